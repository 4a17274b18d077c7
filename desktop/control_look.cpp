#include "control_look.hpp"

#include <string_view>

#include "runtime/text.hpp"

namespace tessarine::desktop {

namespace {

bool Is(const Control& control, std::string_view name) {
  return StrEq(control.Name(), name);
}

bool IsKey(const Control& control) {
  return control.Kind() == ControlKind::CalcBevelButton ||
         control.Kind() == ControlKind::BevelButton;
}

}  // namespace

ControlLook LookFor(const Control& control) {
  ControlLook look;
  if (Is(control, "Display")) {
    look.family = kSansFamily;
    look.pixel_size = 13;  // start-up sets 15 once the first value shows
    look.alignment = Qt::AlignRight | Qt::AlignVCenter;
  } else if (Is(control, "ExponentText")) {
    look.family = kMonoFamily;
    look.pixel_size = 11;
    look.alignment = Qt::AlignRight | Qt::AlignVCenter;
  } else if (Is(control, "MemoryLabel")) {
    look.family = kMonoFamily;
    look.pixel_size = 8;
    look.alignment = Qt::AlignLeft | Qt::AlignTop;
  } else if (Is(control, "BrindleyURL")) {
    look.family = kSansFamily;
    look.pixel_size = 9;
    look.alignment = Qt::AlignLeft | Qt::AlignVCenter;
  } else if (Is(control, "MessageText")) {
    look.family = kSansFamily;
    look.pixel_size = 10;
    look.alignment = Qt::AlignLeft | Qt::AlignVCenter;
  } else if (Is(control, "ButtonSquared") || Is(control, "ButtonCubed") ||
             Is(control, "ButtonXtotheY")) {
    look.family = kSerifFamily;
    look.pixel_size = 15;
  } else if (Is(control, "TapeEditField")) {
    // The tape pads its values to fixed columns, which line up only in a fixed face.
    look.family = kMonoFamily;
    look.pixel_size = 11;
  } else if (Is(control, "CalcTabSelector")) {
    look.pixel_size = 11;
  } else if (IsKey(control) && control.Parent().empty()) {
    // The keypad: Arial's metrics.
    look.family = kSansFamily;
    look.pixel_size = 14;
  } else if (IsKey(control)) {
    look.family = kSansFamily;
    look.pixel_size = 13;
  }
  if (IsKey(control) && control.TabPage() == 3) {
    look.family.clear();  // the keys of the statistics page use the system font
    look.pixel_size = 12;
  }

  if (Is(control, "DisplayBackground"))
    look.background = QColor(0xff, 0xff, 0xff);
  else if (Is(control, "ButtonClear"))
    look.background = QColor(0xff, 0x00, 0x00);
  else if (Is(control, "ButtonClearEntry"))
    look.background = QColor(0xff, 0xff, 0x66);
  else if (Is(control, "StoragePlusButton") || Is(control, "StorageMinusButton") ||
           Is(control, "StorageRecallButton") || Is(control, "StorageClearButton"))
    look.background = QColor(0x00, 0x80, 0x80);
  if (Is(control, "StoragePlusButton") || Is(control, "StorageMinusButton") ||
      Is(control, "StorageRecallButton") || Is(control, "StorageClearButton"))
    look.pixel_size = 11;
  return look;
}

QFont FontFor(const Control& control, const QFont& application_font) {
  const ControlLook look = LookFor(control);
  QFont font = application_font;
  if (!look.family.isEmpty()) {
    font.setFamilies({look.family});
    font.setStyleHint(look.family == kMonoFamily    ? QFont::Monospace
                      : look.family == kSerifFamily ? QFont::Serif
                                                    : QFont::SansSerif);
  }
  font.setPixelSize(control.TextSize() > 0 ? control.TextSize() : look.pixel_size);
  return font;
}

}  // namespace tessarine::desktop
