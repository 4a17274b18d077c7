// The HTTP text helpers, encoders, chunk decoding and reply headers, with their kept oddities.
#include <gtest/gtest.h>

#include <string>

#include "http/basic_http.hpp"
#include "http/http_encoders.hpp"
#include "http/http_headers.hpp"
#include "http/http_module.hpp"

namespace tessarine {
namespace {

struct TextCase {
  const char* name;
  std::string got;
  std::string want;
};

TEST(HttpText, HelpersAndEncoders) {
  const TextCase cases[] = {
      {"get_after", GetAfter("Host: x:1", ":"), " x:1"},
      {"get_after_missing", GetAfter("abc", ":"), ""},
      {"get_before", GetBefore("a=b=c", "="), "a"},
      {"get_before_missing_is_empty", GetBefore("abc", ":"), ""},
      {"get_after_ignores_case", GetAfter("aXb", "x"), "b"},
      {"unquote_lone_quote", Unquote("\""), ""},
      {"unquote_one_side", Unquote("\"v"), "\"v"},
      {"url_keeps_escapes", BasicHTTP::URLEncode("%41%4", true, false), "%41%254"},
      {"url_escapes_off", BasicHTTP::URLEncode("%41", false, false), "%2541"},
      {"url_keeps_reserved", BasicHTTP::URLEncode("a b/c", false, true), "a%20b/c"},
      {"url_encodes_reserved", BasicHTTP::URLEncode("a/c?d", false, false), "a%2Fc%3Fd"},
      {"url_capitals_kept", BasicHTTP::URLEncode("AZ$-_.+!*(),", false, false), "AZ$-_.+!*(),"},
      {"url_bytes", BasicHTTP::URLEncode("\xC3\xBC\n", false, false), "%C3%BC%0A"},
      {"base64_1", BasicHTTP::Base64("A"), "QQ"},
      {"base64_2", BasicHTTP::Base64("AB"), "QUI"},
      {"base64_3", BasicHTTP::Base64("ABC"), "QUJD"},
      {"base64_high_bytes", BasicHTTP::Base64("\xFF\xFE"), "//4"},
      {"chunked_extension", BasicHTTP::ParseChunked("5 ;x=1\r\nhello\r\n1\r\n!\r\n0\r\n"),
       "hello!"},
      {"chunked_hex_upper", BasicHTTP::ParseChunked("A\r\n0123456789\r\n0\r\n"), "0123456789"},
      {"chunked_short_data", BasicHTTP::ParseChunked("9\r\nab"), "ab"},
      {"chunked_no_line_end", BasicHTTP::ParseChunked("5"), ""},
      {"chunked_negative_size", BasicHTTP::ParseChunked("FFFFFFFF\r\nabc\r\n"), ""},
      {"chunked_garbage", BasicHTTP::ParseChunked("zz\r\nabc"), ""},
  };
  for (const TextCase& c : cases) EXPECT_EQ(c.got, c.want) << c.name;
}

TEST(HttpText, IsIPKeepsItsSense) {
  const struct {
    const char* text;
    bool want;
  } cases[] = {
      {"0.0.0.0", true},          {"a.b.c.d", true}, {"10.0.0.1", false}, {"127.0.0.1", false},
      {"www.example.com", false}, {"a.b.c", false},  {"0.a.0.b", true},   {"", false}};
  for (const auto& c : cases) EXPECT_EQ(IsIP(c.text), c.want) << c.text;
}

TEST(HttpHeaders, ParseContinuationLandsOnEntryBeforeLast) {
  HTTPHeaders h;
  h.Parse("A: 1\n x\nB: 2\n\ty", "\n");
  EXPECT_EQ(h.Get("a"), "1 y");
  EXPECT_EQ(h.Get("B"), "2");
  EXPECT_EQ(h.Value[0], " x");
  EXPECT_EQ(h.Data(), "A: 1 y\r\nB: 2\r\n");
}

}  // namespace
}  // namespace tessarine
