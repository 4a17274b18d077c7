#include "runtime/text.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <random>
#include <string>
#include <vector>

namespace tessarine {
namespace {

const std::string kMarks = "◊÷√∆π–";  // the marks of the keys and the tape
// A stray continuation byte, a truncated sequence, an overlong "/", an encoded
// surrogate: every byte of these is one character.
const std::string kBad = "\x80z\xE2\x88y\xC0\xAF\xED\xA0\x80";

std::string N(int n) {
  return std::to_string(n);
}

TEST(Text, Functions) {
  struct Row {
    const char* name;
    std::string got, want;
  };
  const std::vector<Row> rows = {
      {"len of marks", N(Len(kMarks)), "6"},
      {"len of bad bytes", N(Len(kBad)), "10"},
      {"left of empty by len-1", Left("", Len("") - 1), ""},
      {"left int max", Left("abc", INT_MAX), "abc"},
      {"left of marks", Left(kMarks, 2), "◊÷"},
      {"left of bad bytes", Left(kBad, 3), "\x80z\xE2"},
      {"right of marks", Right(kMarks, 2), "π–"},
      {"right of bad bytes", Right(kBad, 2), "\xA0\x80"},
      {"right int min", Right("abc", INT_MIN), ""},
      {"mid of marks", Mid(kMarks, 3, 2), "√∆"},
      {"mid start below 1", Mid("abc", INT_MIN, 2), "ab"},
      {"mid start beyond", Mid("abc", INT_MAX, 1), ""},
      {"mid negative count", Mid(kMarks, 5, -1), "π–"},
      {"instr ignores case", N(InStr("abcE", "e")), "4"},
      {"instr after marks", N(InStr(kMarks + "x", "X")), "7"},
      {"instr start 2", N(InStr(2, "aa", "a")), "2"},
      {"instr start beyond", N(InStr(4, "aaa", "a")), "0"},
      {"instr empty t", N(InStr(3, "ab", "")), "3"},
      {"instr empty t beyond", N(InStr(4, "ab", "")), "0"},
      {"instr bad byte", N(InStr(kBad, "\xE2")), "3"},
      {"instr times is not divide", N(InStr("÷", "×")), "0"},
      {"instr latin-1", N(InStr("xÉ", "é")), "2"},
      {"instr cyrillic", N(InStr("ПРИВЕТ", "вет")), "4"},
      {"instrb counts bytes", N(InStrB("÷ab", "b")), "4"},
      {"instrb case significant", N(InStrB("AB", "b")), "0"},
      {"nthfield ignores case", NthField("1X2x3", "x", 3), "3"},
      {"nthfield beyond", NthField("a,b", ",", 3), ""},
      {"nthfield empty sep", NthField("a,b", "", 1), "a,b"},
      {"nthfield marks", NthField("1÷2÷3", "÷", 2), "2"},
      {"countfields", N(CountFields("a,b,,c", ",")), "4"},
      {"countfields empty text", N(CountFields("", ",")), "1"},
      {"countfields empty sep", N(CountFields("a,b", "")), "1"},
      {"trim blanks", Trim(" \t\r\n\v\f\xC2\xA0x y\xE3\x80\x80"), "x y"},
      {"ltrim rtrim keep marks", LTrim("  ◊ ") + RTrim(" –  "), "◊  –"},
      {"trim keeps bad bytes", Trim(" \xA0 "), "\xA0"},
      {"replaceall ignores case", ReplaceAll("aXbxc", "x", "--"), "a--b--c"},
      {"replace first only", Replace("axbxc", "X", "÷"), "a÷bxc"},
      {"replace empty a", ReplaceAll("abc", "", "z"), "abc"},
      {"replace cyrillic greek", ReplaceAll("Π\xD0\x90Σ", "\xD0\xB0σ", "√"), "Π√"},
      {"asc", N(Asc("π")) + " " + N(Asc("™")) + " " + N(Asc("")), "960 8482 0"},
      {"asc bad byte", N(Asc("\xFF")), "65533"},
      {"chr", Chr(13) + Chr(240) + Chr(0x1F600), "\rð\xF0\x9F\x98\x80"},
      {"chr no character", Chr(-1) + Chr(0xD800) + Chr(0x110000), ""},
      {"strcomp case significant", N(StrComp("a", "A", 1)), "1"},
      {"strcomp code point order", N(StrComp("z", "é", 1)), "-1"},
      {"streq greek with final sigma", N(StrEq("ΛΟΓΟΣ", "λογος")), "1"},
      {"streq lengths differ", N(StrEq("abc", "ab")) + N(StrEq("ab", "abc")), "00"},
      {"streq different bad bytes", N(StrEq("\xFE", "\xFF")), "0"},
  };
  for (const auto& r : rows) EXPECT_EQ(r.got, r.want) << r.name;
}

TEST(Text, RandomBytesKeepInvariants) {
  const std::vector<std::string> pieces = {
      "a", "E",        " ",    ",",        "÷",        "√",        "–",           "Σ",
      "ς", "\xC2\xA0", "\x80", "\xE2\x88", "\xF0\x9F", "\xC0\xAF", "\xED\xA0\x80"};
  std::mt19937_64 rng(12345);
  const auto text = [&] {
    std::string s;
    for (auto n = rng() % 12; n > 0; --n) {
      s += rng() % 4 ? pieces[rng() % pieces.size()] : std::string(1, static_cast<char>(rng()));
    }
    return s;
  };
  for (int i = 0; i < 20000; ++i) {
    const std::string s = text(), t = text().substr(0, 3);
    const int len = Len(s), n = static_cast<int>(rng() % 16) - 2;
    ASSERT_EQ(Left(s, n) + Mid(s, n + 1), s) << i;
    ASSERT_EQ(Left(s, n) + Right(s, len - n), s) << i;
    ASSERT_EQ(Len(Left(s, n)), std::min(std::max(n, 0), len)) << i;
    ASSERT_EQ(Len(Mid(s, n, 3)), std::max(0, std::min(3, len - std::max(n, 1) + 1))) << i;
    if (const int pos = InStr(n, s, t); pos > 0) {
      ASSERT_TRUE(StrEq(Mid(s, pos, Len(t)), t)) << i;
    }
    std::string joined = NthField(s, t, 1);
    for (int k = 2; k <= CountFields(s, t); ++k) joined += t + NthField(s, t, k);
    ASSERT_TRUE(StrEq(joined, s)) << i;
    ASSERT_TRUE(StrEq(ReplaceAll(s, t, t), s)) << i;
    ASSERT_NE(s.find(Trim(s)), std::string::npos) << i;
    ASSERT_EQ(StrComp(s, t, 1), -StrComp(t, s, 1)) << i;
  }
}

}  // namespace
}  // namespace tessarine
