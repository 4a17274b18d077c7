#include "properties.hpp"

#include <charconv>
#include <cstdio>
#include <functional>
#include <utility>
#include <vector>

#include "driver.hpp"
#include "json_text.hpp"
#include "runtime/text.hpp"

namespace tessarine::drive {

namespace {

std::string ColorText(std::uint32_t rgb) {
  char text[8];
  std::snprintf(text, sizeof text, "#%06x", static_cast<unsigned>(rgb & 0xFFFFFFu));
  return JsonString(text);
}

std::string RowsText(const std::vector<std::string>& rows) {
  std::string text = "[";
  for (std::size_t i = 0; i < rows.size(); ++i) text += (i ? "," : "") + JsonString(rows[i]);
  return text + "]";
}

// The readable properties of a control, in the order dump prints them.
std::vector<std::pair<std::string, std::function<std::string(const Control&)>>> ControlGetters() {
  return {
      {"Name", [](const Control& c) { return JsonString(c.Name()); }},
      {"Index", [](const Control& c) { return JsonNumber(c.Index()); }},
      {"Class", [](const Control& c) { return JsonString(std::string(KindName(c.Kind()))); }},
      {"Parent", [](const Control& c) { return JsonString(c.Parent()); }},
      {"Text", [](const Control& c) { return JsonString(c.Text()); }},
      {"Value",
       [](const Control& c) {
         return HasBooleanValue(c.Kind()) ? JsonBool(c.IsDown()) : JsonNumber(c.Value());
       }},
      {"ListIndex", [](const Control& c) { return JsonNumber(c.ListIndex()); }},
      {"Rows", [](const Control& c) { return RowsText(c.Rows()); }},
      {"Enabled", [](const Control& c) { return JsonBool(c.Enabled()); }},
      {"Visible", [](const Control& c) { return JsonBool(c.Visible()); }},
      {"HelpTag", [](const Control& c) { return JsonString(c.HelpTag()); }},
      {"TextColor", [](const Control& c) { return ColorText(c.TextColor()); }},
      {"TextSize", [](const Control& c) { return JsonNumber(c.TextSize()); }},
      {"Left", [](const Control& c) { return JsonNumber(c.Left()); }},
      {"Top", [](const Control& c) { return JsonNumber(c.Top()); }},
      {"Width", [](const Control& c) { return JsonNumber(c.Width()); }},
      {"Height", [](const Control& c) { return JsonNumber(c.Height()); }},
      {"TabPage", [](const Control& c) { return JsonNumber(c.TabPage()); }},
      {"PanelPage", [](const Control& c) { return JsonNumber(c.PanelPage()); }},
      {"SelStart", [](const Control& c) { return JsonNumber(c.SelStart()); }},
      {"SelLength", [](const Control& c) { return JsonNumber(c.SelLength()); }},
      {"SelText", [](const Control& c) { return JsonString(c.SelText()); }},
  };
}

double NumberWord(const Word& word) {
  double value = 0;
  const std::string& s = word.text;
  auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), value);
  if (word.quoted || ec != std::errc() || end != s.data() + s.size() || s.empty())
    throw ScriptError("expected a number, got " + s);
  return value;
}

int IntWord(const Word& word) {
  const double value = NumberWord(word);
  if (value != static_cast<double>(static_cast<int>(value)))
    throw ScriptError("expected a whole number, got " + word.text);
  return static_cast<int>(value);
}

bool BoolWord(const Word& word) {
  if (!word.quoted && word.text == "true") return true;
  if (!word.quoted && word.text == "false") return false;
  throw ScriptError("expected true or false, got " + word.text);
}

std::uint32_t ColorWord(const Word& word) {
  const std::string& s = word.text;
  std::uint32_t rgb = 0;
  if (s.size() == 7 && s[0] == '#') {
    auto [end, ec] = std::from_chars(s.data() + 1, s.data() + 7, rgb, 16);
    if (ec == std::errc() && end == s.data() + 7) return rgb;
  }
  throw ScriptError("expected a colour #rrggbb, got " + s);
}

std::string WindowProperty(const Window& window, const std::string& property) {
  if (StrEq(property, "Left")) return JsonNumber(window.Left());
  if (StrEq(property, "Top")) return JsonNumber(window.Top());
  if (StrEq(property, "Width")) return JsonNumber(window.Width());
  if (StrEq(property, "Height")) return JsonNumber(window.Height());
  if (StrEq(property, "Visible")) return JsonBool(window.Visible());
  throw ScriptError("unknown window property " + property);
}

}  // namespace

std::string GetProperty(const Target& target, const std::string& property) {
  if (target.timer) {
    if (StrEq(property, "Mode")) return JsonNumber(target.timer->Mode());
    if (StrEq(property, "Period")) return JsonNumber(target.timer->Period());
    throw ScriptError("unknown timer property " + property);
  }
  if (!target.control) return WindowProperty(*target.window, property);
  const std::string name = StrEq(property, "Caption") ? "Text" : property;
  if (StrEq(name, "ListCount"))
    return JsonNumber(static_cast<double>(target.control->Rows().size()));
  for (const auto& [key, read] : ControlGetters())
    if (StrEq(key, name)) return read(*target.control);
  throw ScriptError("unknown property " + property);
}

void SetProperty(const Target& target, const std::string& property, const Word& value) {
  if (target.timer) {
    if (StrEq(property, "Mode")) return target.timer->SetMode(IntWord(value));
    if (StrEq(property, "Period")) return target.timer->SetPeriod(IntWord(value));
    throw ScriptError("cannot set timer property " + property);
  }
  if (!target.control) {
    // Moving or resizing a window, as the user drags it.
    Window& w = *target.window;
    const auto user = [&](const char* what, const std::function<void()>& change) {
      w.Dispatch(std::string("Event_") + what, change);
    };
    if (StrEq(property, "Left"))
      return user("Moved", [&] { w.UserMoved(IntWord(value), w.Top()); });
    if (StrEq(property, "Top"))
      return user("Moved", [&] { w.UserMoved(w.Left(), IntWord(value)); });
    if (StrEq(property, "Width"))
      return user("Resized", [&] { w.UserResized(IntWord(value), w.Height()); });
    if (StrEq(property, "Height"))
      return user("Resized", [&] { w.UserResized(w.Width(), IntWord(value)); });
    throw ScriptError("cannot set window property " + property);
  }
  Control& c = *target.control;
  // An assignment runs as program code inside an event, so that a runtime fault
  // it raises is reported like any other.
  std::function<void()> assign;
  if (StrEq(property, "Text") || StrEq(property, "Caption")) {
    assign = [&] { c.SetText(value.text); };
  } else if (StrEq(property, "Value")) {
    const int v = HasBooleanValue(c.Kind()) ? BoolWord(value) : IntWord(value);
    assign = [&c, v] { c.SetValue(v); };
  } else if (StrEq(property, "ListIndex")) {
    const int v = IntWord(value);
    assign = [&c, v] { c.SetListIndex(v); };
  } else if (StrEq(property, "Enabled")) {
    const bool v = BoolWord(value);
    assign = [&c, v] { c.SetEnabled(v); };
  } else if (StrEq(property, "Visible")) {
    const bool v = BoolWord(value);
    assign = [&c, v] { c.SetVisible(v); };
  } else if (StrEq(property, "HelpTag")) {
    assign = [&] { c.SetHelpTag(value.text); };
  } else if (StrEq(property, "TextColor")) {
    const std::uint32_t v = ColorWord(value);
    assign = [&c, v] { c.SetTextColor(v); };
  } else if (StrEq(property, "TextSize")) {
    const int v = IntWord(value);
    assign = [&c, v] { c.SetTextSize(v); };
  } else if (StrEq(property, "SelStart")) {
    const int v = IntWord(value);
    assign = [&c, v] { c.SetSelStart(v); };
  } else if (StrEq(property, "SelLength")) {
    const int v = IntWord(value);
    assign = [&c, v] { c.SetSelLength(v); };
  } else if (StrEq(property, "SelText")) {
    assign = [&] { c.SetSelText(value.text); };
  } else {
    throw ScriptError("cannot set property " + property);
  }
  c.Owner().Dispatch("set " + c.FullName() + "." + property, assign);
}

std::string DumpControl(const Control& control) {
  std::string text = "{";
  bool first = true;
  for (const auto& [key, read] : ControlGetters()) {
    text += (first ? "" : ",") + JsonString(key) + ":" + read(control);
    first = false;
  }
  return text + "}";
}

}  // namespace tessarine::drive
