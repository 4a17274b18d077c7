// The preferences file: a bare sequence of typed records, big-endian, with no
// header. Parse never fails: a damaged file yields what could be read, and every
// record consumes at least one byte, so no input can make it hang.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

template <typename T>
struct PrefsEntry {
  std::string key;
  T value;
  bool scrambled = false;
};

// The four families of entries, each in its order of arrival.
struct PrefsData {
  std::vector<PrefsEntry<bool>> booleans;
  std::vector<PrefsEntry<std::string>> strings;
  std::vector<PrefsEntry<std::string>> colors;  // three bytes: red, green, blue
  std::vector<PrefsEntry<double>> numbers;
};

// Record types.
enum PrefsRecordType : unsigned char {
  kPrefsBoolean = 1,
  kPrefsInt32 = 2,
  kPrefsByte = 3,
  kPrefsInt16 = 4,
  kPrefsString = 5,
  kPrefsColor = 6,
  kPrefsNumber = 7,
};

// Numbers travel as text, split at the decimal separator: lossy by design.
// (whole, fraction digits) of a value, and the value of such a pair.
void SplitPrefsNumber(double value, std::string_view separator, int& whole, int& fraction);
double JoinPrefsNumber(int whole, int fraction, std::string_view separator);

PrefsData ParsePrefsFile(std::string_view bytes, std::string_view separator);
std::string SerializePrefsFile(const PrefsData& data, std::string_view separator);

}  // namespace tessarine
