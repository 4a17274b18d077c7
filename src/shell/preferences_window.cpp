#include "shell/preferences_window.hpp"

#include <algorithm>

#include "calculator/calc_window.hpp"
#include "calculator/smooth_resize.hpp"
#include "runtime/text.hpp"
#include "settings/constants_catalogue.hpp"
#include "settings/preference_keys.hpp"
#include "shell/preferences_help_texts.hpp"
#include "shell/preferences_sounds.hpp"

namespace tessarine {

namespace {

using K = ControlKind;

struct ToolbarButton {
  const char* name;
  const char* caption;
  PreferencesWindow::Page page;
  int width, height;  // the window's size on that page
};
constexpr ToolbarButton kToolbar[] = {
    {"GeneralButtonCanvas", "General", PreferencesWindow::kGeneral, 355, 240},
    {"SoundButtonCanvas", "Sound", PreferencesWindow::kSound, 290, 425},
    {"ConstantsButtonCanvas", "Constants", PreferencesWindow::kConstants, 365, 405},
    {"ProxyButtonCanvas", "Network", PreferencesWindow::kNetwork, 365, 310},
};

// The main window, if it was made: the preferences never make it anew.
CalcWindow* Calc(AppContext& app) {
  return app.windows.Existing<CalcWindow>(CalcWindow::kName);
}

}  // namespace

PreferencesWindow::PreferencesWindow(AppContext& app)
    : Window(app.platform, kName, "Tessarine Preferences"), app_(app) {
  MakeToolbar();
  MakeGeneralPage();
  MakeSoundControls(*this, app_);
  MakeConstantsPage();
  MakeNetworkPage();
  SetBounds(40, 60, 355, 240);
}

void PreferencesWindow::MakeToolbar() {
  AddControl(ControlDesign::At("Canvas1", K::Canvas, 0, 0, 448, 72));
  int left = 0;
  for (const ToolbarButton& row : kToolbar) {
    Control& button =
        AddControl(ControlDesign::At(row.name, K::Canvas, left, 0, 70, 71, row.caption));
    const Page page = row.page;
    button.events.MouseDown = [this, &button, page](int, int) {
      ToolbarMouseDown(button, page);
      return true;
    };
    // A click from the driver or the keyboard is the same press.
    button.events.Action = [this, &button, page] { ToolbarMouseDown(button, page); };
    left += 70;
  }
  // Selected by design; the Value of a toolbar button is its selected state.
  Get("GeneralButtonCanvas").SetValue(1);
  ControlDesign panel = ControlDesign::At("PreferencesPagePanel", K::PagePanel, 0, 72, 448, 360);
  AddControl(panel);
}

void PreferencesWindow::MakeGeneralPage() {
  const auto add = [this](const char* name, K kind, int left, int top, int width, int height,
                          const char* text = "") -> Control& {
    ControlDesign design = ControlDesign::At(name, kind, left, top, width, height, text);
    design.parent = "PreferencesPagePanel";
    design.panel_page = kGeneral + 1;
    return AddControl(design);
  };
  GlobalStuff& g = app_.globals;
  Control& tags = add("ShowHelpTagsCheckBox", K::CheckBox, 20, 84, 315, 20, "Show help tags");
  tags.events.Open = [this, &tags] { tags.SetValue(app_.globals.ShowHelpTags); };
  tags.events.Action = [this, &tags] { HelptagsEnabled(tags.IsDown()); };
  Control& display = add("SaveDisplayValueCheckBox", K::CheckBox, 20, 106, 315, 20,
                         "Save display value between launches");
  display.events.Open = [&g, &display] { display.SetValue(g.SaveDisplay); };
  display.events.Action = [&g, &display] { g.SaveDisplay = display.IsDown(); };
  Control& banks = add("SaveMemoryBanksCheckBox", K::CheckBox, 20, 128, 315, 20,
                       "Save memory banks between launches");
  banks.events.Open = [&g, &banks] { banks.SetValue(g.SaveMemoryBanks); };
  banks.events.Action = [&g, &banks] { g.SaveMemoryBanks = banks.IsDown(); };
  add("NumberOfDecimalsLabel", K::Label, 20, 156, 100, 20, "Decimal places");
  Control& decimals = add("NumberOfDecimalsEditField", K::TextField, 125, 156, 30, 22, "4");
  decimals.events.Open = [&g, &decimals] { decimals.SetText(Str(g.NumberOfDecimals)); };
  decimals.events.TextChange = [this] { NumberOfDecimalsEditField_TextChange(); };
  // Only the arrows change the number.
  decimals.events.GotFocus = [this] { app_.platform.desktop.ClearFocus(); };
  decimals.events.KeyDown = [](const std::string&) { return true; };
  Control& arrows = add("DecimalsUpDownArrows", K::Canvas, 158, 154, 13, 26);
  arrows.events.MouseDown = [this, &arrows](int, int y) {
    if (y < arrows.Height() / 2)
      DecimalsUpDownArrows_Up();
    else
      DecimalsUpDownArrows_Down();
    return true;
  };
  Control& memory = add("ShowMemoryButtonsCheckBox", K::CheckBox, 20, 186, 315, 20,
                        "Show memory buttons in simple mode");
  memory.events.Open = [this, &g, &memory] {
    g.ShowMemoryButtons = ReadPref(app_.prefs, prefs::ShowMemoryButtonsSetting);
    memory.SetValue(g.ShowMemoryButtons);
  };
  memory.events.Action = [&g, &memory] { g.ShowMemoryButtons = memory.IsDown(); };
}

void PreferencesWindow::MakeNetworkPage() {
  const auto add = [this](const char* name, K kind, int left, int top, int width, int height,
                          const char* text = "", const char* parent = "") -> Control& {
    ControlDesign design = ControlDesign::At(name, kind, left, top, width, height, text);
    design.parent = *parent ? parent : "PreferencesPagePanel";
    design.panel_page = kNetwork + 1;
    return AddControl(design);
  };
  PrefsModule& store = app_.prefs;
  Control& updates = add("CheckForUpdatesCheckBox", K::CheckBox, 20, 82, 330, 20,
                         "Automatically check for application updates");
  updates.events.Open = [&store, &updates] {
    updates.SetValue(ReadPref(store, prefs::CheckForUpdates));
  };
  updates.events.Action = [&store, &updates] {
    WritePref(store, prefs::CheckForUpdates, updates.IsDown());
  };
  Control& rates = add("UpdateExchangeRatesCheckBox", K::CheckBox, 20, 104, 330, 20,
                       "Update currency exchange rates daily");
  rates.events.Open = [&store, &rates] {
    rates.SetValue(ReadPref(store, prefs::UpdateExchangeRates));
  };
  rates.events.Action = [&store, &rates] {
    WritePref(store, prefs::UpdateExchangeRates, rates.IsDown());
  };
  Control& proxy = add("UseProxyCheckBox", K::CheckBox, 20, 132, 200, 20, "Use proxy server");
  proxy.events.Open = [this, &store, &proxy] {
    proxy.SetValue(ReadPref(store, prefs::UseProxyServer));
    UseProxyCheckBox_Action();
  };
  proxy.events.Action = [this] { UseProxyCheckBox_Action(); };
  add("ProxyGroupBox", K::GroupBox, 12, 156, 341, 136);
  struct Field {
    const char* label_name;
    const char* label;
    const char* name;
    const PrefKey<PrefType::String>& key;
    int width;
  };
  const Field fields[] = {
      {"StaticText3", "Server:", "ServerEditFIeld", prefs::ProxyServerName, 240},
      {"StaticText4", "Port:", "PortEditField", prefs::ProxyServerPort, 80},
      {"StaticText5", "User:", "UserEditField", prefs::ProxyServerUser, 240},
      {"StaticText6", "Password:", "PasswordEditField", prefs::ProxyServerPassword, 240},
  };
  int top = 170;
  for (const Field& row : fields) {
    add(row.label_name, K::Label, 24, top, 72, 20, row.label, "ProxyGroupBox");
    Control& field = add(row.name, K::TextField, 100, top, row.width, 22, "", "ProxyGroupBox");
    const PrefKey<PrefType::String>& key = row.key;
    field.events.Open = [&store, &field, &key] { field.SetText(ReadPref(store, key)); };
    top += 28;
  }
}

void PreferencesWindow::ToolbarMouseDown(Control& button, Page page) {
  SelectToolbarButton(button.Name());
  ShowPage(page);
}

void PreferencesWindow::SelectToolbarButton(std::string_view name) {
  for (const ToolbarButton& row : kToolbar) Get(row.name).SetValue(StrEq(row.name, name) ? 1 : 0);
}

void PreferencesWindow::ShowPage(Page page) {
  Control& panel = Get("PreferencesPagePanel");
  if (panel.Value() == page) return;
  const auto row = std::find_if(std::begin(kToolbar), std::end(kToolbar),
                                [page](const ToolbarButton& b) { return b.page == page; });
  panel.SetValue(static_cast<int>(kBlank));
  SmoothResize(*this, row->width, row->height, Anchor::TopLeft);
  panel.SetValue(static_cast<int>(page));
}

void PreferencesWindow::DecimalsUpDownArrows_Up() {
  GlobalStuff& g = app_.globals;
  g.NumberOfDecimals = std::min(g.NumberOfDecimals + 1, 10);
  Get("NumberOfDecimalsEditField").SetText(Str(g.NumberOfDecimals));
}

void PreferencesWindow::DecimalsUpDownArrows_Down() {
  GlobalStuff& g = app_.globals;
  g.NumberOfDecimals = std::max(g.NumberOfDecimals - 1, 0);
  Get("NumberOfDecimalsEditField").SetText(Str(g.NumberOfDecimals));
}

// The masks follow the number itself, never the field's text.
void PreferencesWindow::NumberOfDecimalsEditField_TextChange() {
  app_.globals.RebuildFormats(app_.globals.NumberOfDecimals);
  if (CalcWindow* calc = Calc(app_)) calc->FormatResult(calc->Result);
}

void PreferencesWindow::HelptagsEnabled(bool enabled) {
  SetPreferencesHelpTags(*this, enabled);
}

void PreferencesWindow::UseProxyCheckBox_Action() {
  Get("ProxyGroupBox").SetEnabled(Get("UseProxyCheckBox").IsDown());
}

void PreferencesWindow::Event_Open() {
  // Height before width, as the window always did: it opens tall and narrow until
  // the menu that asked for it sets the page's size.
  SetBounds(Left(), Top(), Width(), 355);
  SetBounds(Left(), Top(), 240, 355);
  BeginEditingConstants(app_);
  UpdateConstantsList();
  HelptagsEnabled(app_.globals.ShowHelpTags);
}

void PreferencesWindow::Event_Close() {
  GlobalStuff& g = app_.globals;
  PrefsModule& store = app_.prefs;
  const bool tags = Get("ShowHelpTagsCheckBox").IsDown();
  if (CalcWindow* calc = Calc(app_)) calc->HelpTagsEnabled(tags);
  g.ShowHelpTags = tags;
  ApplyConstants(app_);
  StoreSounds(*this, app_);
  WritePref(store, prefs::UseProxyServer, Get("UseProxyCheckBox").IsDown());
  WritePref(store, prefs::ProxyServerName, Get("ServerEditFIeld").Text());
  WritePref(store, prefs::ProxyServerPort, Get("PortEditField").Text());
  WritePref(store, prefs::ProxyServerUser, Get("UserEditField").Text());
  WritePref(store, prefs::ProxyServerPassword, Get("PasswordEditField").Text());
  WritePref(store, prefs::ShowMemoryButtonsSetting, g.ShowMemoryButtons);
  store.WriteOut();
}

std::optional<FieldValue> PreferencesWindow::FieldByName(std::string_view name) const {
  const GlobalStuff& g = app_.globals;
  if (StrEq(name, "NumberOfConstants")) return FieldValue{g.NumberOfConstants};
  if (StrEq(name, "AlteredNumberOfConstants")) return FieldValue{g.AlteredNumberOfConstants};
  if (StrEq(name, "NumberOfDecimals")) return FieldValue{g.NumberOfDecimals};
  if (StrEq(name, "NoExponentFormat")) return FieldValue{g.NoExponentFormat};
  if (StrEq(name, "SmallPositiveNumber")) return FieldValue{g.SmallPositiveNumber};
  if (StrEq(name, "SmallNegativeNumber")) return FieldValue{g.SmallNegativeNumber};
  if (StrEq(name, "ShowMemoryButtons")) return FieldValue{g.ShowMemoryButtons};
  return std::nullopt;
}

void ShowPreferences(AppContext& app, PreferencesWindow::Page page) {
  auto& window = app.windows.Instance<PreferencesWindow>(PreferencesWindow::kName);
  const ToolbarButton& row = kToolbar[page];
  // The Network button keeps whatever state it had.
  for (int i = 0; i < 3; ++i) window.Get(kToolbar[i].name).SetValue(i == page ? 1 : 0);
  window.SetBounds(window.Left(), window.Top(), window.Width(), row.height);
  window.SetBounds(window.Left(), window.Top(), row.width, row.height);
  window.Get("PreferencesPagePanel").SetValue(static_cast<int>(page));
  app.platform.desktop.ShowWindow(window.Name(), false);
}

}  // namespace tessarine
