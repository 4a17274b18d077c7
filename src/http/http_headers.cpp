#include "http/http_headers.hpp"

#include "http/http_module.hpp"
#include "runtime/text.hpp"

namespace tessarine {

void HTTPHeaders::Add(std::string_view name, std::string_view value) {
  Field.push_back(Trim(name));
  Value.push_back(Trim(value));
}

std::string HTTPHeaders::Data() const {
  std::string out;
  for (std::size_t i = 1; i < Field.size(); ++i) {
    out += Field[i];
    out += ": ";
    out += Value[i];
    out += "\r\n";
  }
  return out;
}

void HTTPHeaders::Clear() {
  Field.assign(1, "");
  Value.assign(1, "");
}

std::string HTTPHeaders::Get(std::string_view name) const {
  for (std::size_t i = 1; i < Field.size(); ++i)
    if (StrEq(Field[i], name)) return Value[i];
  return "";
}

void HTTPHeaders::Parse(std::string_view text, std::string_view separator) {
  for (const std::string& line : http_detail::Fields(text, separator)) {
    if (!line.empty() && (line[0] == ' ' || line[0] == '\t')) {
      // A folded line joins the entry before the last, as the client always did.
      if (LastIndex() >= 1) {
        std::string& target = Value[static_cast<std::size_t>(LastIndex() - 1)];
        target += " ";
        target += Trim(line);
      }
      continue;
    }
    Field.push_back(http_detail::Fields(line, ":").front());
    Value.push_back(Trim(GetAfter(line, ":")));
  }
}

void HTTPHeaders::Remove(std::string_view name) {
  for (std::size_t i = 1; i < Field.size(); ++i) {
    if (StrEq(Field[i], name)) {
      Field.erase(Field.begin() + static_cast<std::ptrdiff_t>(i));
      Value.erase(Value.begin() + static_cast<std::ptrdiff_t>(i));
      return;
    }
  }
}

void HTTPHeaders::Combine(const HTTPHeaders& other) {
  for (std::size_t i = 1; i < other.Field.size() && i < other.Value.size(); ++i) {
    Field.push_back(other.Field[i]);
    Value.push_back(other.Value[i]);
  }
}

}  // namespace tessarine
