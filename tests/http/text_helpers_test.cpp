// The HTTP text helpers, encoders, chunk decoding and cookies, with their kept oddities.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fixed_clock.hpp"
#include "http/basic_http.hpp"
#include "http/http_cookie.hpp"
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

TEST(HttpText, FormEncodeLineEnds) {
  const struct {
    const char* name;
    std::string in, want;
  } cases[] = {
      {"plus_and_blank", "a b+c", "a+b%2Bc"},
      {"lone_cr_doubles", "a\rb", "a%0D%0D%0Ab"},
      {"lone_lf", "a\nb", "a%0D%0Ab"},
      {"crlf_left_alone", "a\r\nb\rc", "a%0D%0Ab%0Dc"},
      {"percent_before_hex_kept", "50%AB", "50%AB"},
  };
  for (const auto& c : cases) EXPECT_EQ(FormEncodeBytes(c.in), c.want) << c.name;
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

TEST(HttpHeaders, AddRemoveCombine) {
  HTTPHeaders h;
  EXPECT_EQ(h.Data(), "");
  h.Add(" Range ", " bytes=1- ");
  h.Add("X", "1");
  h.Add("range", "2");
  h.Remove("RANGE");
  EXPECT_EQ(h.Data(), "X: 1\r\nrange: 2\r\n");
  HTTPHeaders other;
  other.Parse("Name :  v ", "\n");
  h.Combine(other);
  EXPECT_EQ(h.Field.back(), "Name ");
  EXPECT_EQ(h.Get("name "), "v");
  h.Clear();
  EXPECT_EQ(h.LastIndex(), 0);
}

TEST(HttpCookie, ParseAndMatch) {
  testing::FixedClock clock;
  const struct {
    const char* name;
    const char* header;
    const char* request_path;
    bool want_match;
    const char* want_name;
    const char* want_value;
    const char* want_path;
    const char* want_domain;
  } cases[] = {
      {"leading_dot_domain", "a=b; path=/x/; domain=.example.com", "/x/y", true, "a", "b", "/x",
       ".example.com"},
      {"equals_in_value", "k=v=w", "/dir/x", true, "k", "v=w", "/dir", ".host.example.com"},
      {"default_path_cleaned", "k=v", "/other", false, "k", "v", "/dir", ".host.example.com"},
      {"top_level_domain_never_matches", "k=v; domain=.com", "/dir", false, "k", "v", "/dir",
       ".com"},
      {"plain_host_refused", "k=v; domain=example.com", "/dir", false, "k", "v", "/dir",
       "example.com"},
      {"max_age_zero_expired", "k=v; max-age=0", "/dir", false, "k", "v", "/dir",
       ".host.example.com"},
      {"past_expiry", "k=v; expires=Wed, 09-Jun-2021 10:18:14 GMT", "/dir", false, "k", "v", "/dir",
       ".host.example.com"},
      {"future_expiry", "k=v; expires=Wed, 09-Jun-2031 10:18:14 GMT", "/dir", true, "k", "v",
       "/dir", ".host.example.com"},
      {"quotes_removed", "k=\"v\"", "/dir", true, "k", "v", "/dir", ".host.example.com"},
  };
  for (const auto& c : cases) {
    HTTPCookie cookie(clock);
    EXPECT_EQ(cookie.Parse(c.header, ".host.example.com", "/dir/", c.request_path), c.want_match)
        << c.name;
    EXPECT_EQ(cookie.Name, c.want_name) << c.name;
    EXPECT_EQ(cookie.Value, c.want_value) << c.name;
    EXPECT_EQ(cookie.Path, c.want_path) << c.name;
    EXPECT_EQ(cookie.Domain, c.want_domain) << c.name;
  }
}

TEST(HttpCookie, DatesAndFlags) {
  testing::FixedClock clock;
  HTTPCookie cookie(clock);
  cookie.SetDate("Wed, 09-Jun-2021 10:18:14 GMT", false);
  ASSERT_TRUE(cookie.Expires.has_value());
  const Date& e = *cookie.Expires;
  EXPECT_EQ(std::vector<int>({e.Year(), e.Month(), e.Day(), e.Hour(), e.Minute(), e.Second()}),
            std::vector<int>({2021, 6, 9, 10, 18, 14}));
  // Blanks instead of dashes do not parse and give a date far in the past.
  cookie.SetDate("Wed, 09 Jun 2021 10:18:14 GMT", false);
  EXPECT_LT(cookie.Expires->Year(), 1904);
  EXPECT_TRUE(cookie.Expired());
  cookie.SetDate("3600", true);
  EXPECT_FALSE(cookie.Expired());
  EXPECT_EQ(cookie.Expires->Hour(), 13);
  cookie.SetDate("1e300", true);  // a count no date holds stays on the scale
  EXPECT_FALSE(cookie.Expired());

  cookie.Parse("k=v; secure", "", "/", "/");
  EXPECT_FALSE(cookie.Secure);  // only "secure=" counts
  cookie.Parse("k=v; secure=1", "", "/", "/");
  EXPECT_TRUE(cookie.Secure);
  EXPECT_EQ(HTTPCookie::CleanPath("x/"), "/x");
  EXPECT_EQ(HTTPCookie::CleanPath("/"), "/");
  HTTPCookie other(clock);
  other.Parse("K=z; path=/", "", "/", "/");
  EXPECT_TRUE(cookie.Compare(other));
  EXPECT_EQ(cookie.Data(), "k=v");
}

}  // namespace
}  // namespace tessarine
