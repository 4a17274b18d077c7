#include "http/basic_http.hpp"
#include "http/http_encoders.hpp"
#include "http/http_module.hpp"
#include "runtime/numbers.hpp"
#include "runtime/text.hpp"

namespace tessarine {

std::string CookieList::Text() const {
  std::string out;
  for (std::size_t i = 0; i < cookies.size(); ++i) {
    if (i > 0) out += "; ";
    out += cookies[i].Data();
  }
  return out;
}

BasicHTTP::BasicHTTP(SocketFactory& sockets, const Clock& clock)
    : socket_(sockets.NewSocket()), clock_(&clock) {
  socket_->SetListener(this);
}

BasicHTTP::~BasicHTTP() {
  *alive_ = false;
  socket_->SetListener(nullptr);
}

void BasicHTTP::Connect() {
  socket_->Connect(Address, Port);
}

void BasicHTTP::Init() {
  CR = "\r";
  LF = "\n";
  CRLF = "\r\n";
  if (Command.empty()) Command = "GET";
  if (FormData.empty() && StrEq(Command, "POST")) Command = "GET";
  EndLine.clear();
  Buffer.clear();
  Type.clear();
  Size = 0;
  if (!RememberSettings) {
    Mode = 0;
    ResumeSize = 0;
    File.clear();
  }
  if (BufferSize == 0) BufferSize = 32768;
  if (Client.empty()) Client = "BasicHTTP/1.0";
  RememberSettings = false;
  HeaderReceived = false;
  Connected = false;
  IsChunked = false;
  ViaGrab = false;
  header_scanned_ = 0;
}

bool BasicHTTP::ParseURL(const std::string& url) {
  std::string s = Trim(url);
  User.clear();
  Pass.clear();
  if (StrEq(Left(s, 7), "http://")) s = Mid(s, 8);
  if (StrEq(Left(s, 6), "ftp://")) s = Mid(s, 7);
  if (InStr(s, "@") > 0) {
    const std::string credentials = GetBefore(s, "@");
    if (InStr(credentials, ":") > 0) {
      User = GetBefore(credentials, ":");
      Pass = GetAfter(credentials, ":");
      s = GetAfter(s, "@");
    }
  }
  const std::string host = http_detail::Fields(s, "/").front();
  if (InStr(host, ":") == 0) {
    ServerAddress = host;
    ServerPort = 80;
  } else {
    ServerAddress = GetBefore(host, ":");
    ServerPort = http_detail::ToInt32(Val(GetAfter(host, ":")));
  }
  ServerPath = URLEncode("/" + GetAfter(s, "/"), true, true);
  if (InStr(ServerAddress, ".") == 0 || ServerPort < 1) {
    const auto alive = alive_;
    if (OperationError) OperationError("Bad URL!", 1);
    if (!*alive) return false;
    Fire(Cancelled);
    return false;
  }
  OriginalURL = Trim(url);

  if (StrEq(Left(ServerAddress, 4), "www.")) {
    CookieDomain = Replace(ServerAddress, "www", "");
  } else if (IsIP(ServerAddress)) {
    CookieDomain = ServerAddress;
  } else {
    CookieDomain = "." + ServerAddress;
  }
  CookiePath = ServerPath;
  if (Right(CookiePath, 1) == "/") CookiePath = Left(CookiePath, Len(CookiePath) - 1);
  const std::vector<std::string> parts = http_detail::Fields(CookiePath, "/");
  if (InStr(parts.back(), ".") > 0)
    CookiePath = Left(CookiePath, Len(CookiePath) - Len(parts.back()));

  if (!ProxyAddress.empty()) {
    Address = ProxyAddress;
    Port = ProxyPort;
    Path = url;
    if (!StrEq(Left(url, 7), "http://") && !StrEq(Left(url, 6), "ftp://")) Path = "http://" + url;
  } else {
    Address = ServerAddress;
    Port = ServerPort;
    Path = ServerPath;
  }
  return true;
}

void BasicHTTP::Get(const std::string& url) {
  if (!ParseURL(url)) return;
  Init();
  const auto alive = alive_;
  Progress("Looking Up Host...");
  if (*alive) Connect();
}

void BasicHTTP::GetHeaders(const std::string& url) {
  if (!ParseURL(url)) return;
  Init();
  Command = "HEAD";
  const auto alive = alive_;
  Progress("Looking Up Host...");
  if (*alive) Connect();
}

void BasicHTTP::SetForm(const std::vector<std::string>& names,
                        const std::vector<std::string>& values, bool post) {
  FormContentType = "application/x-www-form-urlencoded";
  SendFormAfter = post;
  if (post) Command = "POST";
  for (std::size_t i = 1; i < names.size(); ++i) {
    const std::string value = i < values.size() ? values[i] : std::string();
    if (names[i].empty() || value.empty()) continue;
    // The test is on the index, not on what was written: a skipped first pair
    // leaves a leading "&", as forms always went out.
    if (i != 1) FormData += "&";
    FormData += FormEncode(names[i]) + "=" + FormEncode(value);
  }
}

void BasicHTTP::SetFormDirectly(const std::string& content_type, const std::string& data,
                                bool post) {
  FormContentType = content_type;
  FormData = data;
  SendFormAfter = post;
}

void BasicHTTP::ClearForm() {
  FormData.clear();
  Command.clear();
}

void BasicHTTP::SetProxy(const std::string& address, std::int32_t port, const std::string& user,
                         const std::string& password) {
  ProxyAddress = address;
  ProxyPort = port;
  ProxyUser = user;
  ProxyPass = password;
}

void BasicHTTP::ClearProxy() {
  SetProxy("", 0, "", "");
}

void BasicHTTP::SetClient(const std::string& name, double version) {
  Client = ReplaceAll(ReplaceAll(name, " ", ""), "/", "") + "/" + Format(version, "0.0", ".");
}

void BasicHTTP::Authorize(const std::string& user, const std::string& password) {
  if (Connected) Cancel();
  if (!ParseURL(OriginalURL)) return;
  RememberSettings = true;
  Init();
  User = user;
  Pass = password;
  const auto alive = alive_;
  Progress("Looking Up Host...");
  if (*alive) Connect();
}

void BasicHTTP::Event_Connected() {
  const auto alive = alive_;
  Connected = true;
  Progress("Waiting For Reply...");
  if (!*alive) return;
  SendRequest();
  if (!*alive) return;
  Fire(SockConnected);
}

void BasicHTTP::SendRequest() {
  if (!FormData.empty() && !SendFormAfter) {
    Path += "?" + FormData;
    FormData.clear();
  }
  std::string request = Command + " " + Path + " HTTP/1.1" + CRLF;
  HTTPHeaders headers;
  headers.Add("User-Agent", Client);
  headers.Add("Host", ServerAddress);
  headers.Add("Connection", "close");
  if (AddCookies) {
    const auto alive = alive_;
    const std::shared_ptr<CookieList> cookies = AddCookies(ServerAddress, ServerPath);
    if (!*alive) return;
    if (cookies && cookies->Count() > 0) headers.Add("Cookie", cookies->Text());
  }
  if (!FormData.empty()) {
    headers.Add("Content-Type", FormContentType);
    headers.Add("Content-Length", Format(static_cast<double>(FormData.size()), "#", "."));
  }
  if (!User.empty() && !Pass.empty())
    headers.Add("Authorization", "Basic " + Base64(User + ":" + Pass));
  if (!ProxyUser.empty() && !ProxyPass.empty())
    headers.Add("Proxy-Authorization", "Basic " + Base64(ProxyUser + ":" + ProxyPass));
  request += headers.Data();
  request += Extras.Data();
  request += CRLF;
  request += FormData;
  socket_->Write(request);
}

std::string BasicHTTP::URLEncode(std::string_view text, bool keep_escapes, bool keep_reserved) {
  return URLEncodeBytes(text, keep_escapes, keep_reserved);
}

std::string BasicHTTP::FormEncode(std::string_view text) {
  if (CRLF.empty()) Init();
  return FormEncodeBytes(text);
}

std::string BasicHTTP::Base64(std::string_view text) {
  return Base64Bytes(text);
}

}  // namespace tessarine
