// The control model: lookup by name, events raised by assignments and by the
// user, change notification, and the fault barrier of the event dispatch.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "runtime/exceptions.hpp"
#include "runtime/headless/headless_platform.hpp"
#include "runtime/window.hpp"

namespace tessarine {
namespace {

ControlSpec Spec(std::string name, ControlKind kind, int index = -1) {
  ControlSpec spec;
  spec.name = std::move(name);
  spec.kind = kind;
  spec.index = index;
  return spec;
}

class ControlModelTest : public ::testing::Test {
 protected:
  HeadlessPlatform headless;
  Window window{headless.platform(), "TestWindow"};
};

TEST_F(ControlModelTest, FindsControlsByNameIgnoringCaseAndArraysByIndex) {
  window.AddControl(Spec("Display", ControlKind::Label));
  window.AddControl(Spec("Radio", ControlKind::RadioButton, 0));
  window.AddControl(Spec("Radio", ControlKind::RadioButton, 1));
  EXPECT_EQ(&window.Get("display"), window.FindControl("Display"));
  EXPECT_EQ(window.Item("Radio", 1).Index(), 1);
  EXPECT_EQ(window.FindControl("Radio"), nullptr);  // an array has no plain member
  EXPECT_THROW(window.Item("Radio", 2), OutOfBoundsException);
  EXPECT_THROW(window.Get("Missing"), NilObjectException);
}

TEST_F(ControlModelTest, AssignmentsRaiseTheirEventsOnlyOnChange) {
  Control& field = window.AddControl(Spec("Field", ControlKind::TextField));
  Control& popup = window.AddControl(Spec("Popup", ControlKind::PopupMenu));
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

TEST_F(ControlModelTest, RadioButtonsOfAnArrayExcludeEachOther) {
  Control& rad = window.AddControl(Spec("Units", ControlKind::RadioButton, 0));
  Control& deg = window.AddControl(Spec("Units", ControlKind::RadioButton, 1));
  int actions = 0;
  deg.events.Action = [&] { ++actions; };
  rad.SetValue(true);
  deg.Click();
  deg.Click();  // already selected: no second action
  EXPECT_FALSE(rad.IsDown());
  EXPECT_TRUE(deg.IsDown());
  EXPECT_EQ(actions, 1);
}

TEST_F(ControlModelTest, UserActionsOnADisabledControlDoNothing) {
  Control& key = window.AddControl(Spec("Key", ControlKind::CalcBevelButton));
  Control& box = window.AddControl(Spec("Box", ControlKind::CheckBox));
  int actions = 0;
  key.events.Action = [&] { ++actions; };
  key.SetEnabled(false);
  box.SetEnabled(false);
  key.Click();
  box.Click();
  EXPECT_EQ(actions, 0);
  EXPECT_FALSE(box.IsDown());
  box.SetEnabled(true);
  box.Click();
  EXPECT_TRUE(box.IsDown());
}

TEST_F(ControlModelTest, MouseUpFollowsOnlyAMouseDownThatAskedForIt) {
  Control& link = window.AddControl(Spec("Link", ControlKind::Label));
  bool wants_up = false;
  int ups = 0;
  link.events.MouseDown = [&](int, int) { return wants_up; };
  link.events.MouseUp = [&](int, int) { ++ups; };
  link.UserMouseDown(1, 1);
  link.UserMouseUp(1, 1);
  wants_up = true;
  link.UserMouseDown(1, 1);
  link.UserMouseUp(1, 1);
  link.UserMouseUp(1, 1);  // a second up without a down
  EXPECT_EQ(ups, 1);
}

TEST_F(ControlModelTest, ObserversHearRealChangesOnly) {
  Control& label = window.AddControl(Spec("Label", ControlKind::Label));
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

TEST_F(ControlModelTest, AnUnhandledFaultIsReportedAndTheProgramGoesOn) {
  Control& key = window.AddControl(Spec("Key", ControlKind::PushButton));
  Control& list = window.AddControl(Spec("List", ControlKind::Listbox));
  int after = 0;
  key.events.Action = [&] {
    list.SetRow(5, "nowhere");  // faults: the list has no rows
    ++after;
  };
  key.Click();
  auto events = headless.TakeEvents();
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(events[0].kind, "exception");
  EXPECT_EQ(events[0].text, "OutOfBoundsException");
  EXPECT_EQ(events[0].detail, "Key_Action");
  EXPECT_EQ(after, 0);
  key.events.Action = [&] { ++after; };
  key.Click();
  EXPECT_EQ(after, 1);
  EXPECT_EQ(UnhandledExceptionMessage("NilObjectException"),
            "An exception of class NilObjectException was not handled.");
}

TEST_F(ControlModelTest, AFaultInANestedEventReachesTheOuterHandler) {
  Control& key = window.AddControl(Spec("Key", ControlKind::PushButton));
  Control& field = window.AddControl(Spec("Field", ControlKind::TextField));
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

TEST_F(ControlModelTest, TimersFireOnVirtualTimeInOrder) {
  std::vector<std::string> fired;
  Timer& once = window.AddTimer("Once", 100, Timer::kOff);
  Timer& tick = window.AddTimer("Tick", 30, Timer::kOff);
  once.Action = [&] {
    fired.push_back("once@" + std::to_string(headless.NowMicroseconds() / 1000));
  };
  tick.Action = [&] {
    fired.push_back("tick@" + std::to_string(headless.NowMicroseconds() / 1000));
  };
  once.SetMode(Timer::kSingle);
  tick.SetMode(Timer::kMultiple);
  headless.Wait(99);
  EXPECT_EQ(fired, (std::vector<std::string>{"tick@30", "tick@60", "tick@90"}));
  headless.Wait(1);
  EXPECT_EQ(fired.back(), "once@100");
  EXPECT_EQ(once.Mode(), Timer::kOff);
  tick.SetMode(Timer::kOff);
  fired.clear();
  headless.Wait(1000);
  EXPECT_TRUE(fired.empty());
}

TEST_F(ControlModelTest, YieldLetsTimersRunDuringALongLoop) {
  int fired = 0;
  Timer& timer = window.AddTimer("T", 5, Timer::kMultiple);
  timer.Action = [&] { ++fired; };
  const auto start = headless.platform().clock.Ticks();
  while (headless.platform().clock.Ticks() - start < 7) headless.platform().desktop.Yield();
  EXPECT_EQ(headless.platform().clock.Ticks() - start, 7);
  EXPECT_EQ(fired, 23);  // 7 ticks are 116.7 ms: the loop ends at 117 ms
}

}  // namespace
}  // namespace tessarine
