// The preferences file, byte for byte: each record type read from hand-made bytes,
// the scrambling, the lossy number form, and the store's get-creates-with-default.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "runtime/headless/memory_file_system.hpp"
#include "runtime/numbers.hpp"
#include "settings/prefs_module.hpp"
#include "settings/prefs_records.hpp"
#include "settings/prefs_scramble.hpp"

namespace tessarine {
namespace {

std::string Bytes(std::initializer_list<int> values) {
  std::string out;
  for (int v : values) out.push_back(static_cast<char>(v));
  return out;
}

// A record head: type, flag, 16-bit key length, key (scrambled when flag is 1).
std::string Head(int type, bool scrambled, const std::string& key) {
  return Bytes({type, scrambled ? 1 : 0, static_cast<int>(key.size() >> 8),
                static_cast<int>(key.size() & 0xFF)}) +
         (scrambled ? Encode(key) : key);
}

TEST(PrefsScramble, ShiftsByTheLengthWithOneCorrection) {
  EXPECT_EQ(Encode("abc"), "def");
  EXPECT_EQ(Encode(""), "");
  // A 200-character key with a code of 100: 300 wraps to 44.
  const std::string key(200, 'd');
  EXPECT_EQ(Encode(key), std::string(200, ','));
  EXPECT_EQ(Decode(Encode(key)), key);
  // Every byte value survives, UTF-8 marks included.
  std::string all;
  for (int b = 0; b < 256; ++b) all.push_back(static_cast<char>(b));
  EXPECT_EQ(Decode(Encode(all)), all);
  EXPECT_EQ(Decode(Encode("π ÷ √")), "π ÷ √");
}

// Every entry as "family key=value", "*" marking a scrambled one; colours in hex.
std::string Describe(const PrefsData& data) {
  std::string out;
  const auto add = [&](const char* family, const auto& entry, const std::string& value) {
    out += (out.empty() ? "" : ", ") + std::string(family) + entry.key + "=" + value +
           (entry.scrambled ? "*" : "");
  };
  for (const auto& e : data.booleans) add("b ", e, e.value ? "1" : "0");
  for (const auto& e : data.strings) add("s ", e, e.value);
  for (const auto& e : data.colors) {
    std::string hex;
    char byte[3];
    for (const char c : e.value)
      hex += (std::snprintf(byte, sizeof byte, "%02x", static_cast<unsigned char>(c)), byte);
    add("c ", e, hex);
  }
  for (const auto& e : data.numbers) add("n ", e, Str(e.value));
  return out;
}

TEST(PrefsRecords, ReadsEveryRecordTypeAndWhatDamageLeaves) {
  const struct {
    const char* name;
    std::string file, want;
  } cases[] = {
      {"every_type",
       Head(1, true, "On") + Bytes({1}) +        // boolean, scrambled
           Head(1, false, "Off") + Bytes({7}) +  // any other byte is false
           Head(2, false, "I32") + Bytes({0xFF, 0xFF, 0xFF, 0xFE}) + Head(3, false, "B") +
           Bytes({200}) + Head(4, false, "I16") + Bytes({0x01, 0x00}) + Head(5, true, "Name") +
           Bytes({0, 5}) + Encode("Hello") + Head(6, false, "Colour") + Bytes({255, 0, 128}) +
           Head(7, true, "Pi") + Bytes({0, 0, 0, 3, 0, 0, 0, 14}),  // 3 and 14: 3.14
       "b On=1*, b Off=0, s Name=Hello*, c Colour=ff0080, n I32=-2, n B=200, n I16=256, n "
       "Pi=3.14*"},
      // An unknown type drops its key and skips no payload: the next byte starts a record.
      {"unknown_type", Head(9, false, "X") + Head(1, false, "After") + Bytes({1}), "b After=1"},
      {"string_cut_short", Head(5, false, "S") + Bytes({0, 10}) + "abc", "s S=abc"},
      {"number_cut_after_whole_part", Head(7, false, "N") + Bytes({0, 0, 0, 9}), "n N=9"},
      {"negative_key_length", Bytes({1, 0, 0xFF, 0xFF, 1}), "b =1"},
      {"empty", "", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(Describe(ParsePrefsFile(c.file, ".")), c.want) << c.name;
}

TEST(PrefsRecords, NumbersTravelAsTextAndLoseWhatTheFormLoses) {
  struct Case {
    double value, back;
  };
  const Case cases[] = {
      {12.75, 12.75},     {0.05, 0.5},  // the fraction's leading zero is dropped
      {-2.5, -3.5},                     // the whole part floored, the digits of the magnitude
      {1000000, 1000000}, {0, 0},      {-7, -7},
  };
  for (const char* separator : {".", ","}) {
    for (const Case& c : cases) {
      SCOPED_TRACE(std::to_string(c.value) + " with " + separator);
      PrefsData data;
      data.numbers.push_back({"k", c.value, true});
      const PrefsData back = ParsePrefsFile(SerializePrefsFile(data, separator), separator);
      ASSERT_EQ(back.numbers.size(), 1u);
      EXPECT_DOUBLE_EQ(back.numbers[0].value, c.back);
    }
  }
}

TEST(PrefsRecords, WritesFamiliesInOrderWithExactSizes) {
  PrefsData data;
  data.numbers.push_back({"n", 2, true});
  data.booleans.push_back({"b", true, true});
  data.strings.push_back({"s", "xy", true});
  data.colors.push_back({"c", Bytes({1, 2, 3}), false});
  const std::string file = SerializePrefsFile(data, ".");
  // boolean 4+1+1, string 4+1+2+2, colour 4+1+3, number 4+1+8
  EXPECT_EQ(file.size(), 6u + 9u + 8u + 13u);
  EXPECT_EQ(file[0], kPrefsBoolean);
  EXPECT_EQ(file[6], kPrefsString);
  EXPECT_EQ(file[15], kPrefsColor);
  EXPECT_EQ(file[23], kPrefsNumber);
  EXPECT_EQ(file.substr(6, 9), Head(5, true, "s") + Bytes({0, 2}) + Encode("xy"));
}

class PrefsModuleTest : public ::testing::Test {
 protected:
  std::string File() { return *files.ReadFile("/memory/Tessarine/Tessarine4 Preferences"); }
  MemoryFileSystem files;
  PrefsModule prefs{files, "."};
};

TEST_F(PrefsModuleTest, GetBeforeOpeningReturnsTheDefaultAndCreatesNothing) {
  EXPECT_EQ(prefs.GetNumberValue("NumOfDec", 6, true), 6);
  EXPECT_TRUE(prefs.Data().numbers.empty());
  prefs.SetBooleanValue("TapeOn", true, true);
  EXPECT_TRUE(prefs.Data().booleans.empty());
}

// A set overwrites its entry in place: the scripts' listings of the store show it. The
// program gives every key one case, one family and the scrambled flag.
TEST_F(PrefsModuleTest, DuplicatesInTheFileActOnTheFirst) {
  files.WriteFileAtomically("/memory/Tessarine/Tessarine4 Preferences",
                            Head(1, true, "K") + Bytes({1}) + Head(1, true, "K") + Bytes({1}));
  prefs.SetName("Tessarine4 Preferences", "PREF");
  EXPECT_TRUE(prefs.GetBooleanValue("K", false, true));
  prefs.SetBooleanValue("K", false, true);
  EXPECT_FALSE(prefs.Data().booleans[0].value);
  EXPECT_TRUE(prefs.Data().booleans[1].value);  // the duplicate is carried, untouched
  EXPECT_EQ(prefs.Data().booleans.size(), 2u);
}

TEST_F(PrefsModuleTest, OldNumberTypesAreRewrittenAsType7) {
  files.WriteFileAtomically("/memory/Tessarine/Tessarine4 Preferences",
                            Head(3, false, "B") + Bytes({42}));
  prefs.SetName("Tessarine4 Preferences", "PREF");
  prefs.WriteOut();
  EXPECT_EQ(File(), Head(7, false, "B") + Bytes({0, 0, 0, 42, 0, 0, 0, 0}));
}

}  // namespace
}  // namespace tessarine
