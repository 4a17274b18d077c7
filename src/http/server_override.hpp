// The server a user (or a test) puts in place of the maker's: every request the
// program makes goes to Platform::server_override when it is set.
#pragma once

#include <string>

namespace tessarine {

// The URL with its host and port replaced by `server` ("host:port"); the scheme,
// the credentials and the path stay. An empty server leaves the URL as it is.
// BasicHTTP takes only hosts with a dot, so a local server is "127.0.0.1:PORT".
std::string ApplyServerOverride(const std::string& url, const std::string& server);

}  // namespace tessarine
