#include <algorithm>

#include "http/basic_http.hpp"
#include "http/http_module.hpp"
#include "runtime/numbers.hpp"
#include "runtime/text.hpp"

namespace tessarine {

void BasicHTTP::Event_DataAvailable() {
  if (!Connected) return;
  if (HeaderReceived) {
    AddToFile(socket_->ReadAll());
    return;
  }
  const std::string_view received = socket_->Lookahead();
  // Nothing in what was searched before held any of the three forms, so each
  // search may start just before the new bytes and still find the first one.
  const std::size_t from = header_scanned_ > 3 ? header_scanned_ - 3 : 0;
  std::size_t end = received.find("\r\n\r\n", from);
  if (end != std::string_view::npos) {
    EndLine = "\r\n";
  } else if ((end = received.find("\r\r", from)) != std::string_view::npos) {
    EndLine = "\r";
  } else if ((end = received.find("\n\n", from)) != std::string_view::npos) {
    EndLine = "\n";
  } else {
    header_scanned_ = received.size();
    if (received.size() > kMaxHeaderBytes) Abort(kHTTPHeaderTooLarge);
    return;
  }
  const std::string header = socket_->Read(end);
  socket_->Read(2 * EndLine.size());
  HeaderReceived = true;
  const auto alive = alive_;
  Progress("Receiving Data...");
  if (!*alive) return;
  ParseHeader(header);
}

void BasicHTTP::ParseHeader(const std::string& text) {
  const auto alive = alive_;
  const std::string status = http_detail::Fields(text, EndLine).front();
  const std::int32_t code = http_detail::ToInt32(Val(NthField(status, " ", 2)));
  HTTPHeaders headers;
  headers.Parse(GetAfter(text, EndLine), EndLine);

  if ((code < 100 || code > 399) && code != 401) {
    Cancel();
    if (ProtocolError) ProtocolError(code, headers);
    if (!*alive) return;
    Fire(Cancelled);
    return;
  }

  std::string location;
  for (int i = 1; i <= headers.LastIndex(); ++i) {
    const std::string& name = headers.Field[static_cast<std::size_t>(i)];
    const std::string& value = headers.Value[static_cast<std::size_t>(i)];
    const std::string v = Trim(Unquote(Trim(http_detail::Fields(value, ";").front())));
    if (StrEq(name, "Content-Type")) {
      Type = v;
    } else if (StrEq(name, "Content-Length")) {
      Size = Val(v);
      if (ResumeSize > 0) Size += ResumeSize;
    } else if (StrEq(name, "Content-Range")) {
      if (Size == 0) Size = Val(NthField(v, "/", 2));
    } else if (StrEq(name, "Location")) {
      if (code == 201 || (code >= 300 && code <= 399)) location = v;
    } else if (StrEq(name, "Transfer-Encoding")) {
      IsChunked = StrEq(v, "chunked");
    } else if (StrEq(name, "Set-Cookie")) {
      HTTPCookie cookie(*clock_);
      if (cookie.Parse(value, CookieDomain, CookiePath, ServerPath) && CookieReceived) {
        CookieReceived(cookie, cookie.Expired());
        if (!*alive) return;
      }
    } else if (StrEq(name, "WWW-Authenticate")) {
      std::string user;
      std::string password;
      if (NeedAuthorization) {
        const bool retry = NeedAuthorization(user, password);
        if (!*alive) return;
        if (retry) {
          Cancel();
          Authorize(user, password);
          if (!*alive) return;
        }
      }
    }
    // "Proxy-Authenticate" is known and left alone.
  }

  const bool head = StrEq(Command, "HEAD") || StrEq(Command, "OPTIONS");
  if (GotHeaders) {
    GotHeaders(code, headers, code < 200, head && code >= 200);
    if (!*alive) return;
  }
  // An interim reply ends here; what follows it is taken as the body.
  if (code < 200) return;
  if (head) {
    Command.clear();
    Cancel();
    return;
  }
  // A redirect keeps the form and the method, so a POST goes again to the new place.
  if (code < 300) {
    FormData.clear();
    Command.clear();
  }
  if (!location.empty()) {
    if (InStr(location, "://") > 0 && !StrEq(Left(location, 7), "http://")) {
      Cancel();
      if (BadRedirection) BadRedirection(location);
      if (!*alive) return;
      Fire(Cancelled);
      if (!*alive) return;
      // No return: the redirect is tried all the same.
    }
    bool handled = false;
    if (HandleRedirection) {
      handled = HandleRedirection(location);
      if (!*alive) return;
    }
    if (!handled) {
      Redirect(location);
      return;
    }
  }
  const bool has_range =
      std::any_of(headers.Field.begin() + 1, headers.Field.end(),
                  [](const std::string& f) { return StrEq(f, "Content-Range"); });
  if (ResumeSize > 0 && code != 206 && !has_range) {
    Cancel();
    if (OperationError) OperationError("Server Doesn't Support Resuming", 1);
    if (!*alive) return;
    Fire(Cancelled);
    return;
  }
  if (Mode == 2) {
    if (StrEq(http_detail::Fields(Type, "/").front(), "text") || Type.empty()) {
      File.clear();
      Mode = 0;
    } else {
      Mode = 1;
    }
    ViaGrab = true;
  }
  if (!socket_->Lookahead().empty()) AddToFile(socket_->ReadAll());
}

void BasicHTTP::Event_Error() {
  Connected = false;
  const auto alive = alive_;
  const std::int32_t code = socket_->LastErrorCode();
  if (HeaderReceived && Size == 0 && code == kSocketPeerClosed) {
    // The peer closed a reply of unknown length: its normal end.
    if (Mode == 1 && !Buffer.empty() && !WriteToFile(true)) return;
    if (!*alive) return;
    FinishFile();
    return;
  }
  if (Mode == 1 && HeaderReceived && !Buffer.empty() && !WriteToFile(true)) return;
  if (!*alive) return;
  if (TCPError) TCPError(code);
  if (!*alive) return;
  Fire(Cancelled);
}

void BasicHTTP::Abort(std::int32_t code) {
  Cancel();
  std::string().swap(Buffer);
  const auto alive = alive_;
  if (TCPError) TCPError(code);
  if (!*alive) return;
  Fire(Cancelled);
}

void BasicHTTP::Cancel() {
  socket_->ReadAll();
  socket_->Close();
  ServerAddress.clear();
  ServerPath.clear();
  ServerPort = 0;
  Connected = false;
}

void BasicHTTP::Redirect(const std::string& url) {
  // The old connection goes first, so that a refused location leaves nothing
  // open behind it whose close would raise an event later.
  socket_->Close();
  Connected = false;
  if (!ParseURL(url)) return;
  RememberSettings = true;
  Init();
  const auto alive = alive_;
  Progress("Looking Up Host...");
  if (*alive) Connect();
}

}  // namespace tessarine
