// The control model where the driver scripts don't look: lookup faults, events
// raised by assignments, change notification, and a fault inside a nested event.
// Radio arrays, timers, yields and the fault barrier itself run in every script; a
// click on a disabled key and a mouse up without its down are the scripts' too.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "runtime/exceptions.hpp"
#include "runtime/headless/headless_platform.hpp"
#include "runtime/window.hpp"

namespace tessarine {
namespace {

ControlDesign Design(std::string name, ControlKind kind, int index = -1) {
  ControlDesign design;
  design.name = std::move(name);
  design.kind = kind;
  design.index = index;
  return design;
}

class ControlModelTest : public ::testing::Test {
 protected:
  HeadlessPlatform headless;
  Window window{headless.platform(), "TestWindow"};
};

TEST_F(ControlModelTest, FindsControlsByNameIgnoringCaseAndArraysByIndex) {
  window.AddControl(Design("Display", ControlKind::Label));
  window.AddControl(Design("Radio", ControlKind::RadioButton, 0));
  window.AddControl(Design("Radio", ControlKind::RadioButton, 1));
  EXPECT_EQ(&window.Get("display"), window.FindControl("Display"));
  EXPECT_EQ(window.Item("Radio", 1).Index(), 1);
  EXPECT_EQ(window.FindControl("Radio"), nullptr);  // an array has no plain member
  EXPECT_THROW(window.Item("Radio", 2), OutOfBoundsException);
}

TEST_F(ControlModelTest, AssignmentsRaiseTheirEventsOnlyOnChange) {
  Control& field = window.AddControl(Design("Field", ControlKind::TextField));
  Control& popup = window.AddControl(Design("Popup", ControlKind::PopupMenu));
  popup.AddRow("a");
  popup.AddRow("b");
  int text_changes = 0, list_changes = 0;
  field.events.TextChange = [&] { ++text_changes; };
  popup.events.Change = [&] { ++list_changes; };
  field.SetText("x");
  field.SetText("x");
  popup.SetListIndex(1);
  popup.SetListIndex(1);
  EXPECT_EQ(text_changes, 1);
  EXPECT_EQ(list_changes, 1);
  EXPECT_THROW(popup.SetListIndex(2), OutOfBoundsException);
  EXPECT_THROW(popup.SetListIndex(-2), OutOfBoundsException);
  EXPECT_EQ(popup.ListIndex(), 1);
}

TEST_F(ControlModelTest, ObserversHearRealChangesOnly) {
  Control& label = window.AddControl(Design("Label", ControlKind::Label));
  std::vector<Property> heard;
  window.Observe([&](Control* c, Property p) {
    if (c == &label) heard.push_back(p);
  });
  label.SetText("a");
  label.SetText("a");
  label.SetEnabled(false);
  label.SetVisible(true);  // already visible
  label.SetTextColor(0x123456);
  EXPECT_EQ(heard, (std::vector<Property>{Property::Text, Property::Enabled, Property::TextColor}));
}

TEST_F(ControlModelTest, AFaultInANestedEventReachesTheOuterHandler) {
  Control& key = window.AddControl(Design("Key", ControlKind::PushButton));
  Control& field = window.AddControl(Design("Field", ControlKind::TextField));
  field.events.TextChange = [&] { window.Get("Missing"); };
  bool outer_went_on = false;
  key.events.Action = [&] {
    field.SetText("new");
    outer_went_on = true;
  };
  key.Click();
  auto events = headless.TakeEvents();
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(events[0].text, "NilObjectException");
  EXPECT_EQ(events[0].detail, "Key_Action");
  EXPECT_FALSE(outer_went_on);
}

}  // namespace
}  // namespace tessarine
