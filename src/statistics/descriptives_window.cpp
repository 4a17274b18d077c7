#include "statistics/descriptives_window.hpp"

#include "statistics/descriptives.hpp"
#include "statistics/sheets.hpp"
#include "statistics/stats_tab.hpp"

namespace tessarine::statistics {

DescriptivesWindow::DescriptivesWindow(AppContext& app)
    : Window(app.platform, kName, "Untitled"), app_(app) {
  using K = ControlKind;
  AddControl(ControlDesign::At("DescriptivesEditField", K::TextArea, 14, 13, 272, 194));
  AddControl(ControlDesign::At("CellNumberLabel", K::Label, 14, 220, 70, 20, "Sample #:"));
  ControlDesign popup = ControlDesign::At("CellNumberPopUp", K::PopupMenu, 86, 220, 60, 20);
  popup.rows = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"};
  Control& cell = AddControl(popup);
  // Starts on the main window's sample; the change shows it.
  cell.events.Open = [this, &cell] {
    cell.SetListIndex(GetCalcWindow(app_).Get("CellNumberPopUp").ListIndex());
  };
  cell.events.Change = [this] { UpdateDescriptives(); };
  AddControl(ControlDesign::At("DescriptivesCloseButton", K::PushButton, 206, 220, 80, 20, "Close"))
      .events.Action = [this] { CloseSheet(app_, *this); };
  AddControl(ControlDesign::At("StatsResultsEditField", K::TextArea, 332, 13, 100, 100));
  SetBounds(0, 0, 299, 255);
}

void DescriptivesWindow::Event_Open() {
  UpdateDescriptives();
}

void DescriptivesWindow::UpdateDescriptives() {
  const int sample = Get("CellNumberPopUp").ListIndex() + 1;
  const int main_sample = GetCalcWindow(app_).Get("CellNumberPopUp").ListIndex() + 1;
  Get("DescriptivesEditField")
      .SetText(DescriptivesText(GetStatsTab(app_).Store(), sample, main_sample));
}

}  // namespace tessarine::statistics
