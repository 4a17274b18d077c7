#include "settings/constants_catalogue.hpp"

#include <algorithm>
#include <cmath>
#include <string>

#include "settings/preference_keys.hpp"

namespace tessarine {

namespace {

constexpr const char* kMenuItem = "MenuConstant";

MenuItem& Entry(AppContext& app, int index) {
  return app.menu_bar.Item(kMenuItem, index);
}

}  // namespace

std::span<const DefaultConstant> DefaultConstants() {
  static constexpr DefaultConstant kDefaults[] = {
      {"Avogadro's Number (atoms/mole)", "6.02214199e+23"},
      {"Boltzmann Constant (J/K)", "1.3806503e-23"},
      {"Electron Charge (Coulombs)", "1.602176462e-19"},
      {"Electron Rest Mass (kg)", "9.10938188e-31"},
      {"Faraday Constant (Coulombs/mole)", "96485.3415"},
      {"Gravitational Constant (N m^2/kg^2)", "6.673e-11"},
      {"Neutron Rest Mass (kg)", "1.67492716e-27"},
      {"Planck's Constant (m^2 kg/s)", "6.62606876e-34"},
      {"Proton Rest Mass (kg)", "1.67262158e-27"},
      {"Speed of Light (m/sec)", "299792458"},
  };
  return kDefaults;
}

void LoadConstants(AppContext& app) {
  GlobalStuff& g = app.globals;
  PrefsModule& prefs = app.prefs;
  const double stored = ReadPref(prefs, prefs::NumberOfConstants);
  const int n = static_cast<int>(std::clamp(std::trunc(stored), -1.0, double{kMaxConstants}));
  if (n == -1) {
    g.NumberOfConstants = 10;
    app.menu_bar.ResizeItemArray(kMenuItem, 10);
    int i = 0;
    for (const DefaultConstant& row : DefaultConstants()) {
      app.menu_bar.SetText(Entry(app, i), ReadPref(prefs, prefs::ConstantName, i, row.name));
      g.ConstantValue(i) = ReadPref(prefs, prefs::ConstantValue, i, row.value);
      ++i;
    }
    return;
  }
  g.NumberOfConstants = n;
  app.menu_bar.ResizeItemArray(kMenuItem, n);
  for (int i = 0; i < std::max(n, 1); ++i) {
    g.ConstantName(i) = ReadPref(prefs, prefs::ConstantName, i);
    g.ConstantValue(i) = ReadPref(prefs, prefs::ConstantValue, i);
    app.menu_bar.SetText(Entry(app, i), g.ConstantName(i));
  }
}

void BeginEditingConstants(AppContext& app) {
  GlobalStuff& g = app.globals;
  g.AlteredNumberOfConstants = g.NumberOfConstants;
  for (int i = 0; i < g.AlteredNumberOfConstants; ++i) {
    g.ConstantName(i) = Entry(app, i).text;
    g.ConstantValue(i) = ReadPref(app.prefs, prefs::ConstantValue, i);
  }
}

void ApplyConstants(AppContext& app) {
  GlobalStuff& g = app.globals;
  PrefsModule& prefs = app.prefs;
  g.NumberOfConstants = g.AlteredNumberOfConstants;
  app.menu_bar.ResizeItemArray(kMenuItem, g.NumberOfConstants);
  // Place 0 is written even with no entries: it holds what the last removal left.
  for (int i = 0; i < std::max(g.NumberOfConstants, 1); ++i) {
    WritePref(prefs, prefs::ConstantName, i, g.ConstantName(i));
    app.menu_bar.SetText(Entry(app, i), g.ConstantName(i));
    WritePref(prefs, prefs::ConstantValue, i, g.ConstantValue(i));
  }
  WritePref(prefs, prefs::NumberOfConstants, g.NumberOfConstants);
}

void RestoreDefaultConstants(GlobalStuff& globals) {
  int i = 0;
  for (const DefaultConstant& row : DefaultConstants()) {
    globals.ConstantName(i) = row.name;
    globals.ConstantValue(i) = row.value;
    ++i;
  }
  globals.AlteredNumberOfConstants = 10;
}

}  // namespace tessarine
