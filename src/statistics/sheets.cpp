#include "statistics/sheets.hpp"

#include "calculator/tape_window.hpp"
#include "runtime/text.hpp"

namespace tessarine::statistics {

CalcWindow& GetCalcWindow(AppContext& app) {
  return app.windows.Instance<CalcWindow>(CalcWindow::kName);
}

void CloseSheet(AppContext& app, Window& window) {
  window.Close();
  app.platform.desktop.CloseWindow(window.Name());
}

void AppendResultToTape(AppContext& app, const std::string& text) {
  TapeWindow& tape = GetTapeWindow(app);
  if (!tape.TapeOnButton.IsDown()) return;
  Control& field = tape.TapeEditField;
  field.SetSelStart(Len(field.Text()));
  field.SetSelText(text);
}

}  // namespace tessarine::statistics
