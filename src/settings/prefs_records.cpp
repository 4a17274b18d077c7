#include "settings/prefs_records.hpp"

#include <cmath>
#include <cstdint>

#include "runtime/arithmetic.hpp"
#include "runtime/numbers.hpp"
#include "runtime/text.hpp"
#include "settings/prefs_scramble.hpp"

namespace tessarine {

namespace {

// A float to a signed 32-bit integer keeps its whole part; beyond the range it
// saturates, and not-a-number gives 0.
std::int32_t ToInt32(double x) {
  if (std::isnan(x)) return 0;
  if (x >= 2147483647.0) return INT32_MAX;
  if (x <= -2147483648.0) return INT32_MIN;
  return static_cast<std::int32_t>(x);
}

// Reads big-endian fields; past the end it yields zeros and empty text.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {}
  bool AtEnd() const { return pos_ >= bytes_.size(); }
  std::uint32_t Unsigned(int size) {
    std::uint32_t value = 0;
    for (int i = 0; i < size; ++i)
      value = value << 8 | (pos_ < bytes_.size() ? static_cast<unsigned char>(bytes_[pos_++]) : 0u);
    return value;
  }
  std::int16_t Int16() { return static_cast<std::int16_t>(Unsigned(2)); }
  std::int32_t Int32() { return static_cast<std::int32_t>(Unsigned(4)); }
  std::string Bytes(int length) {
    if (length <= 0 || pos_ >= bytes_.size()) return "";
    const std::size_t n =
        std::min<std::size_t>(static_cast<std::size_t>(length), bytes_.size() - pos_);
    std::string out(bytes_.substr(pos_, n));
    pos_ += n;
    return out;
  }

 private:
  std::string_view bytes_;
  std::size_t pos_ = 0;
};

void PutUnsigned(std::string& out, std::uint32_t value, int size) {
  for (int i = size - 1; i >= 0; --i) out.push_back(static_cast<char>(value >> (8 * i) & 0xFF));
}

// A 16-bit length field holds at most 32767 bytes: longer texts are cut there, at
// a character boundary.
std::string_view Fit16(std::string_view text) {
  if (text.size() <= 32767) return text;
  std::size_t cut = 32767;
  while (cut > 0 && (static_cast<unsigned char>(text[cut]) & 0xC0) == 0x80) --cut;
  return text.substr(0, cut);
}

void PutHead(std::string& out, unsigned char type, bool scrambled, std::string_view key) {
  out.push_back(static_cast<char>(type));
  out.push_back(static_cast<char>(scrambled ? 1 : 0));
  PutUnsigned(out, static_cast<std::uint32_t>(key.size()), 2);
  out += scrambled ? Encode(key) : std::string(key);
}

}  // namespace

void SplitPrefsNumber(double value, std::string_view separator, int& whole, int& fraction) {
  whole = ToInt32(Floor(value));
  const std::string t = CStr(value, separator);
  fraction = InStr(t, separator) > 0 ? ToInt32(Val(NthField(t, separator, 2))) : 0;
}

double JoinPrefsNumber(int whole, int fraction, std::string_view separator) {
  return CDbl(Str(whole) + std::string(separator) + Str(fraction), separator);
}

PrefsData ParsePrefsFile(std::string_view bytes, std::string_view separator) {
  PrefsData data;
  Reader in(bytes);
  while (!in.AtEnd()) {
    const unsigned type = in.Unsigned(1);
    const bool scrambled = in.Unsigned(1) == 1;
    std::string key = in.Bytes(in.Int16());
    if (scrambled) key = Decode(key);
    switch (type) {
      case kPrefsBoolean:
        data.booleans.push_back({key, in.Unsigned(1) == 1, scrambled});
        break;
      case kPrefsInt32:
        data.numbers.push_back({key, static_cast<double>(in.Int32()), scrambled});
        break;
      case kPrefsByte:
        data.numbers.push_back({key, static_cast<double>(in.Unsigned(1)), scrambled});
        break;
      case kPrefsInt16:
        data.numbers.push_back({key, static_cast<double>(in.Int16()), scrambled});
        break;
      case kPrefsString: {
        std::string value = in.Bytes(in.Int16());
        data.strings.push_back({key, scrambled ? Decode(value) : value, scrambled});
        break;
      }
      case kPrefsColor: {
        std::string rgb = in.Bytes(3);
        rgb.resize(3, '\0');
        data.colors.push_back({key, rgb, scrambled});
        break;
      }
      case kPrefsNumber: {
        const int whole = in.Int32();
        const int fraction = in.Int32();
        data.numbers.push_back({key, JoinPrefsNumber(whole, fraction, separator), scrambled});
        break;
      }
      default:  // an unknown record: its key is dropped and no payload skipped
        break;
    }
  }
  return data;
}

std::string SerializePrefsFile(const PrefsData& data, std::string_view separator) {
  std::string out;
  for (const auto& e : data.booleans) {
    const std::string_view key = Fit16(e.key);
    PutHead(out, kPrefsBoolean, e.scrambled, key);
    out.push_back(e.value ? 1 : 0);
  }
  for (const auto& e : data.strings) {
    PutHead(out, kPrefsString, e.scrambled, Fit16(e.key));
    const std::string_view value = Fit16(e.value);
    PutUnsigned(out, static_cast<std::uint32_t>(value.size()), 2);
    out += e.scrambled ? Encode(value) : std::string(value);
  }
  for (const auto& e : data.colors) {
    PutHead(out, kPrefsColor, e.scrambled, Fit16(e.key));
    out += e.value.substr(0, 3);
  }
  for (const auto& e : data.numbers) {
    PutHead(out, kPrefsNumber, e.scrambled, Fit16(e.key));
    int whole = 0, fraction = 0;
    SplitPrefsNumber(e.value, separator, whole, fraction);
    PutUnsigned(out, static_cast<std::uint32_t>(whole), 4);
    PutUnsigned(out, static_cast<std::uint32_t>(fraction), 4);
  }
  return out;
}

}  // namespace tessarine
