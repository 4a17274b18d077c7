#include "conversion/convert_tab.hpp"

#include <cmath>
#include <cstdint>
#include <vector>

#include "calculator/tape_window.hpp"
#include "conversion/catalogue.hpp"
#include "conversion/convert_key.hpp"
#include "conversion/currency_error_window.hpp"
#include "conversion/proxy_settings.hpp"
#include "conversion/rate_page.hpp"
#include "conversion/rates_age.hpp"
#include "conversion/version_update_error_window.hpp"
#include "runtime/date.hpp"
#include "runtime/text.hpp"
#include "settings/preference_keys.hpp"

namespace tessarine {

namespace {

constexpr std::uint32_t kStaleRatesColor = 0xFF0000;
constexpr std::uint32_t kFreshRatesColor = 0x000000;

}  // namespace

ConvertTab::ConvertTab(CalcWindow& window, AppContext& app)
    : window_(window),
      app_(app),
      CategoryPopup(window.Get("ConversionCategoryPopup")),
      FromPopup(window.Get("ConversionFromPopup")),
      ToPopup(window.Get("ConversionToPopup")),
      ResultLabel(window.Get("ConversionResult")),
      UpdateCurrencyButton(window.Get("UpdateCurrencyButton")),
      CurrencyConversionInfo(window.Get("CurrencyConversionInfo")) {
  // The categories are the popup's own rows from the start; only the units change.
  if (CategoryPopup.Rows().empty())
    for (std::string_view name : CategoryNames()) CategoryPopup.AddRow(std::string(name));
  Currency = DefaultCurrencyRates();
  CurrencyTimeAndDate = kNeverUpdated;
  CurrencyDate = kNeverUpdated;

  CategoryPopup.events.Change = [this] { ConversionCategoryPopup_Change(); };
  FromPopup.events.Change = [this] { ConversionFromPopup_Change(); };
  ToPopup.events.Change = [this] { ConversionToPopup_Change(); };
  Control& convert_key = window.Get("ConversionUpdateNowButton");
  convert_key.events.Open = [&convert_key] { convert_key.SetCaption("Convert"); };
  convert_key.events.Action = [this] { ConversionUpdateNowButton_Action(); };
  ResultLabel.events.MouseDown = [this](int x, int y) { return ConversionResult_MouseDown(x, y); };
  UpdateCurrencyButton.events.Action = [this] { UpdateCurrencyButton_Action(); };

  BasicHTTPsocket = std::make_unique<BasicHTTP>(app.platform.sockets, app.platform.clock);
  BasicHTTPsocket->SockConnected = [this] { BasicHTTPsocket_SockConnected(); };
  BasicHTTPsocket->PageReceived = [this](const std::string&, const std::string& page, bool) {
    BasicHTTPsocket_PageReceived(page);
  };
  BasicHTTPsocket->TCPError = [this](std::int32_t) { BasicHTTPsocket_TCPError(); };
  // A bad status (ProtocolError, Cancelled) has no handler: the button stays on
  // "Cancel" until the user presses it.
}

void ConvertTab::ConversionCategoryPopup_Change() {
  FromPopup.DeleteAllRows();
  ToPopup.DeleteAllRows();
  const int category = CategoryPopup.ListIndex();
  const std::vector<std::string> units = UnitNames(category);
  for (const std::string& unit : units) FromPopup.AddRow(unit);
  if (category == kTemperatureCategory) FromPopup.SetListIndex(0);
  for (const std::string& unit : units) ToPopup.AddRow(unit);
  ShowHideCurrencyUpdateInfo();
  // Both sides land on the first unit, whatever they showed before; a category
  // without units leaves them empty.
  if (units.empty()) return;
  FromPopup.SetListIndex(0);
  ToPopup.SetListIndex(0);
}

// An answer never stays beside units it does not belong to.
void ConvertTab::ConversionFromPopup_Change() {
  ResultLabel.SetText("");
}
void ConvertTab::ConversionToPopup_Change() {
  ResultLabel.SetText("");
}

void ConvertTab::ShowHideCurrencyUpdateInfo() {
  const bool show = ShowsCurrencyUpdateInfo(CategoryPopup.ListIndex());
  UpdateCurrencyButton.SetVisible(show);
  CurrencyConversionInfo.SetVisible(show);
}

void ConvertTab::ConversionUpdateNowButton_Action() {
  const std::string& separator = app_.platform.decimal_separator;
  const ConvertKeyInput input{CategoryPopup.ListIndex(), FromPopup.ListIndex(), ToPopup.ListIndex(),
                              window_.Result, ResultLabel.Text()};
  const ConvertKeyEffects effects = PressConvertKey(input, Currency, separator);
  if (effects.show_currency_error) {
    ShowCurrencyErrorWindow(app_);
    return;
  }
  ResultLabel.SetText(effects.result_text);
  if (effects.play_result_sound) window_.PlayResultSound();
  window_.SpeakButton(effects.speak_button);
  window_.SpeakTotal(effects.speak_total);
  window_.WriteToTape(effects.source_tape_mark);
  // The answer gets a line of its own, at the tape's end whatever is selected there.
  TapeWindow& tape = GetTapeWindow(app_);
  if (tape.TapeOnButton.IsDown()) {
    Control& field = tape.TapeEditField;
    field.SetSelStart(Len(field.Text()));
    field.SetSelText(window_.Padded(effects.answer_tape_value) + effects.answer_tape_mark +
                     window_.CR);
  }
}

bool ConvertTab::ConversionResult_MouseDown(int, int) {
  const auto value = AnswerClickValue(ResultLabel.Text(), app_.platform.decimal_separator);
  if (!value) return false;
  window_.Result = *value;
  window_.UpdateDisplay();
  // Both flags down: a digit typed next extends the number taken over.
  window_.ClearDisplay = false;
  window_.ClearDisplay2 = false;
  return false;
}

void ConvertTab::UpdateCurrencyButton_Action() {
  if (StrEq(UpdateCurrencyButton.Caption(), "Update")) {
    UpdateCurrencyExchangeRates();
    return;
  }
  BasicHTTPsocket->Stop();
  CurrencyConversionInfo.SetText("Last updated: " + CurrencyTimeAndDate);
  UpdateCurrencyButton.SetCaption("Update");
}

void ConvertTab::UpdateCurrencyExchangeRates() {
  UpdateCurrencyButton.SetCaption("Cancel");
  CurrencyConversionInfo.SetText("Connecting to server...");
  DataBuffer.clear();
  ApplyProxySettings(app_.prefs, *BasicHTTPsocket);
  BasicHTTPsocket->Get(RatesPageURL(app_.platform));
}

void ConvertTab::BasicHTTPsocket_SockConnected() {
  CurrencyConversionInfo.SetText("Connecting to server...");
  DataBuffer.clear();
}

// Whatever page arrives counts as an update: its body is not checked.
void ConvertTab::BasicHTTPsocket_PageReceived(const std::string& page) {
  DataBuffer = page;
  UpdateCurrencyButton.SetCaption("Update");
  const Date now(app_.platform.clock);
  CurrencyTimeAndDate = now.ShortDate() + " " + now.ShortTime();
  CurrencyDate = now.ShortDate();
  CurrencyConversionInfo.SetText("Last updated: " + CurrencyTimeAndDate);
  CurrencyConversionInfo.SetTextColor(kFreshRatesColor);
  const auto rows = CurrencyUnits();
  for (int i = 0; i < kCurrencyCount; ++i) Currency(i) = ExtractValue(rows[i].name);
  PrefsModule& prefs = app_.prefs;
  WriteCurrencyRates(prefs, Currency);
  prefs.SetStringValue(kCurrencyUpdateTimeAndDateKey, CurrencyTimeAndDate, true);
  prefs.SetStringValue(kCurrencyUpdateDateKey, CurrencyDate, true);
  prefs.WriteOut();
}

void ConvertTab::BasicHTTPsocket_TCPError() {
  CurrencyConversionInfo.SetText("Last updated: " + CurrencyTimeAndDate);
  UpdateCurrencyButton.SetCaption("Update");
  ShowNetworkError(app_, kRatesNotUpdatedText);
}

std::string ConvertTab::ExtractValue(std::string_view name) const {
  return tessarine::ExtractValue(DataBuffer, name);
}

void ConvertTab::Started(const std::string& now) {
  // The stored date never holds a time, so this runs at every start while the
  // setting is on.
  if (ReadPref(app_.prefs, prefs::UpdateExchangeRates) && !StrEq(CurrencyDate, now))
    UpdateCurrencyExchangeRates();
}

void ConvertTab::Restore(OpenStep step) {
  if (step == OpenStep::Rates) RestoreRates();
  if (step == OpenStep::Choices) RestoreChoices();
}

void ConvertTab::RestoreRates() {
  PrefsModule& prefs = app_.prefs;
  Currency = ReadCurrencyRates(prefs);
  CurrencyTimeAndDate = prefs.GetStringValue(kCurrencyUpdateTimeAndDateKey, kNeverUpdated, true);
  CurrencyDate = prefs.GetStringValue(kCurrencyUpdateDateKey, kNeverUpdated, true);
  const RatesAgeLine line =
      RatesAgeAtOpen(CurrencyTimeAndDate, CurrencyDate, Date(app_.platform.clock));
  CurrencyConversionInfo.SetText(line.text);
  if (line.red) CurrencyConversionInfo.SetTextColor(kStaleRatesColor);
}

void ConvertTab::RestoreChoices() {
  // The category first: its change fills the unit lists and puts both on row 0.
  SelectSavedRow(CategoryPopup, kConvertCategoryKey);
  SelectSavedRow(FromPopup, kConvertFromKey);
  SelectSavedRow(ToPopup, kConvertToKey);
}

void ConvertTab::SelectSavedRow(Control& popup, const char* key) {
  const double saved = app_.prefs.GetNumberValue(key, 0, true);
  const int rows = static_cast<int>(popup.Rows().size());
  if (rows == 0) return;
  // A file edited by hand may name a row the list does not have: the first row then.
  int row = 0;
  if (std::isfinite(saved) && saved >= 0 && saved < rows) row = static_cast<int>(saved);
  popup.SetListIndex(row);
}

void ConvertTab::Closing() {
  PrefsModule& prefs = app_.prefs;
  prefs.SetNumberValue(kConvertCategoryKey, CategoryPopup.ListIndex(), true);
  prefs.SetNumberValue(kConvertFromKey, FromPopup.ListIndex(), true);
  prefs.SetNumberValue(kConvertToKey, ToPopup.ListIndex(), true);
}

std::optional<FieldValue> ConvertTab::FieldByName(std::string_view name) const {
  if (StrEq(name, "CurrencyTimeAndDate")) return FieldValue{CurrencyTimeAndDate};
  if (StrEq(name, "CurrencyDate")) return FieldValue{CurrencyDate};
  if (StrEq(name, "DataBuffer")) return FieldValue{DataBuffer};
  return std::nullopt;
}

}  // namespace tessarine
