// BasicHTTP: the program's small asynchronous HTTP/1.1 client over one socket.
//
// One request at a time: Get (or GetHeaders, Download, Grab, Resume) parses the
// URL, resets the state with Init and connects; Event_Connected sends the request
// in one write; Event_DataAvailable finds the end of the reply header, ParseHeader
// decides what the reply means, and AddToFile collects the body in Buffer, in
// memory (Mode 0) or flushed to File every BufferSize bytes (Mode 1). FinishFile
// hands the result to the owner. Every event goes to the owner through the
// std::function of its name and is skipped when that one is empty. The owner may
// start another request, or destroy this object, from inside any event.
//
// Files: basic_http_request.cpp (URL, Init, request side), basic_http_reply.cpp
// (header, status, redirects, events of the socket), basic_http_body.cpp (body,
// file mode, downloads, Cancel and Stop).
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "http/http_cookie.hpp"
#include "http/http_headers.hpp"
#include "runtime/platform/clock.hpp"
#include "runtime/platform/socket.hpp"

namespace tessarine {

// What an owner's AddCookies hands back: the cookies to send with a request.
struct CookieList {
  std::vector<HTTPCookie> cookies;
  int Count() const { return static_cast<int>(cookies.size()); }
  // Their "name=value" texts joined by "; ".
  std::string Text() const;
};

// Error codes the client raises through TCPError for its own limits, beside the
// socket's codes (runtime/platform/socket.hpp).
enum HTTPLimitError : std::int32_t {
  kHTTPHeaderTooLarge = 120,  // no end of header within kMaxHeaderBytes
  kHTTPPageTooLarge = 121,    // a body in memory beyond kMaxPageBytes
};

class BasicHTTP final : private SocketListener {
 public:
  static constexpr std::size_t kMaxHeaderBytes = std::size_t{256} * 1024;
  static constexpr std::size_t kMaxPageBytes = std::size_t{64} * 1024 * 1024;

  BasicHTTP(SocketFactory& sockets, const Clock& clock);
  ~BasicHTTP() override;
  BasicHTTP(const BasicHTTP&) = delete;
  BasicHTTP& operator=(const BasicHTTP&) = delete;

  // --- Properties -----------------------------------------------------------
  std::string Buffer;     // body bytes not yet written or delivered
  double BufferSize = 0;  // file mode flushes Buffer at this size; 0 becomes 32768
  std::string Client;     // "User-Agent"; empty becomes "BasicHTTP/1.0"
  std::string Command;    // "GET", "POST", "HEAD" or the owner's
  bool Connected = false;
  std::string CR, CRLF, LF;
  std::string EndLine;  // the line end of this reply's header
  HTTPHeaders Extras;   // more request headers, kept between requests
  std::string File;     // target of a download; empty: none
  std::string FormData;
  bool HeaderReceived = false;
  bool IsChunked = false;
  std::int32_t Mode = 0;  // 0 page in memory, 1 file, 2 file unless the reply is text
  std::string OriginalURL;
  std::string Pass, User;
  std::string Path;  // request target
  std::string ProxyAddress, ProxyPass, ProxyUser;
  std::int32_t ProxyPort = 0;
  std::string ServerAddress, ServerPath;
  std::int32_t ServerPort = 0;
  double Size = 0;  // expected total length; 0 unknown
  std::string Type;
  bool ViaGrab = false;
  bool RememberSettings = false;
  double ResumeSize = 0;
  std::string CookiePath, CookieDomain;
  std::string FormContentType;
  bool SendFormAfter = false;
  // Where the socket connects: the server, or the proxy.
  std::string Address;
  std::int32_t Port = 0;

  // --- Events to the owner --------------------------------------------------
  std::function<void()> Cancelled;
  std::function<void(double received, double total, double chunk)> DataProgress;
  std::function<void(const std::string& type, const std::string& file, bool via_grab)> FileReceived;
  std::function<void(std::int32_t code, const HTTPHeaders& headers, bool interim, bool final)>
      GotHeaders;
  std::function<bool(const std::string& location)> HandleRedirection;
  std::function<void(const std::string& text, std::int32_t code)> OperationError;
  std::function<void(const std::string& type, const std::string& page, bool via_grab)> PageReceived;
  std::function<void(const std::string& status)> ProgressChange;
  std::function<void(std::int32_t code, const HTTPHeaders& headers)> ProtocolError;
  std::function<void(std::int32_t code)> TCPError;
  std::function<void(const std::string& file, bool flushed)> FileUpdated;
  std::function<bool(std::string& user, std::string& password)> NeedAuthorization;
  std::function<void()> SockConnected;
  std::function<void(const HTTPCookie& cookie, bool expired)> CookieReceived;
  std::function<std::shared_ptr<CookieList>(const std::string& address, const std::string& path)>
      AddCookies;
  std::function<void(const std::string& location)> BadRedirection;

  // --- Operations -------------------------------------------------------------
  void Event_Error();
  void Event_DataAvailable();
  void Event_Connected();
  void SendRequest();
  void Init();
  // names and values from index 1 on; index 0 is not read.
  void SetForm(const std::vector<std::string>& names, const std::vector<std::string>& values,
               bool post);
  void AddToFile(const std::string& data);
  void ParseHeader(const std::string& text);
  void Get(const std::string& url);
  double FileSize() const;
  // False when the file could not be written; the transfer has ended then.
  bool WriteToFile(bool flushed);
  void FinishFile();
  bool ParseURL(const std::string& url);
  void Cancel();
  void Redirect(const std::string& url);
  void Stop();
  void Download(const std::string& url, const std::string& file);
  static std::string ParseChunked(std::string_view body);
  void SetClient(const std::string& name, double version);
  static std::string URLEncode(std::string_view text, bool keep_escapes, bool keep_reserved);
  void GetHeaders(const std::string& url);
  std::string FormEncode(std::string_view text);
  void Grab(const std::string& url, const std::string& file);
  void SetProxy(const std::string& address, std::int32_t port, const std::string& user,
                const std::string& password);
  static std::string Base64(std::string_view text);
  void Resume(const std::string& url, const std::string& file);
  void ClearForm();
  void ClearProxy();
  void SetFormDirectly(const std::string& content_type, const std::string& data, bool post);
  void Authorize(const std::string& user, const std::string& password);

 private:
  void SocketConnected() override { Event_Connected(); }
  void SocketDataAvailable() override { Event_DataAvailable(); }
  void SocketError() override { Event_Error(); }
  void Connect();
  // Ends the transfer on one of the client's own limits, as a socket error would.
  void Abort(std::int32_t code);
  // Event helpers: each fires the owner's handler when there is one.
  void Fire(const std::function<void()>& event) {
    if (event) event();
  }
  void Progress(const std::string& status) {
    if (ProgressChange) ProgressChange(status);
  }

  std::unique_ptr<Socket> socket_;
  const Clock* clock_;
  // Cleared on destruction: code that fired an event checks it before going on.
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
  // How much of the unread reply has been searched for the end of the header.
  std::size_t header_scanned_ = 0;
};

}  // namespace tessarine
