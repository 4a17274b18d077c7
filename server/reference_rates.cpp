#include "reference_rates.hpp"

#include <charconv>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <optional>
#include <pugixml.hpp>
#include <string_view>

namespace tessarine::server {

namespace {

// The rates stand in Cube elements three deep; the names carry the file's namespace
// prefix or none, so they are matched on their local part.
bool IsCube(const pugi::xml_node& node) {
  const std::string_view name = node.name();
  const auto colon = name.rfind(':');
  return (colon == std::string_view::npos ? name : name.substr(colon + 1)) == "Cube";
}

std::optional<double> ParseRate(std::string_view text) {
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  if (!std::isfinite(value) || value <= 0) return std::nullopt;
  return value;
}

std::optional<std::chrono::sys_days> ParseDate(const std::string& text) {
  int y = 0;
  unsigned m = 0, d = 0;
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  const auto part = [&](int from, int length, auto& out) {
    const char* first = text.data() + from;
    const auto [end, error] = std::from_chars(first, first + length, out);
    return error == std::errc() && end == first + length;
  };
  if (!part(0, 4, y) || !part(5, 2, m) || !part(8, 2, d)) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year(y), std::chrono::month(m),
                                         std::chrono::day(d)};
  if (!date.ok()) return std::nullopt;
  return std::chrono::sys_days(date);
}

}  // namespace

std::variant<ReferenceRates, std::string> ReadReferenceRates(const std::string& path) {
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(path, ignored)) return "cannot read " + path;
  pugi::xml_document document;
  const pugi::xml_parse_result parsed = document.load_file(path.c_str());
  if (!parsed)
    return path + " is not well-formed XML (" + parsed.description() + " at byte " +
           std::to_string(parsed.offset) + ")";
  pugi::xml_node day;
  for (pugi::xml_node outer : document.document_element().children())
    if (IsCube(outer))
      for (pugi::xml_node inner : outer.children())
        if (IsCube(inner) && inner.attribute("time")) day = inner;
  if (!day) return path + " holds no dated rates (no Cube with a time)";
  ReferenceRates rates;
  rates.date = day.attribute("time").value();
  if (!ParseDate(rates.date)) return path + ": the date \"" + rates.date + "\" is not a date";
  for (pugi::xml_node cube : day.children()) {
    if (!IsCube(cube)) continue;
    const std::string code = cube.attribute("currency").value();
    const auto rate = ParseRate(cube.attribute("rate").value());
    if (code.empty() || !rate)
      return path + ": a rate that is not a positive number (currency \"" + code + "\")";
    rates.per_euro[code] = *rate;
  }
  if (!rates.per_euro.count("USD")) return path + " has no USD rate";
  return rates;
}

std::variant<int, std::string> DaysBetween(const std::string& from, const std::string& to) {
  const auto a = ParseDate(from);
  const auto b = ParseDate(to);
  if (!a) return "\"" + from + "\" is not a date (YYYY-MM-DD)";
  if (!b) return "\"" + to + "\" is not a date (YYYY-MM-DD)";
  return static_cast<int>((*b - *a).count());
}

}  // namespace tessarine::server
