#include "runtime/window.hpp"

#include <algorithm>
#include <cctype>

#include "runtime/exceptions.hpp"

namespace tessarine {

namespace {
// Control names are found ignoring case, as the program's logic spells them freely.
std::string FoldName(std::string_view name) {
  std::string folded(name);
  for (char& c : folded) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return folded;
}
}  // namespace

Window::Window(Platform& platform, std::string name, std::string title)
    : platform_(platform), name_(std::move(name)), title_(std::move(title)) {}

Window::~Window() = default;

Control& Window::AddControl(const ControlDesign& design) {
  controls_.push_back(std::make_unique<Control>(*this, design));
  Control* control = controls_.back().get();
  by_name_[FoldName(design.name)].push_back(control);
  return *control;
}

Timer& Window::AddTimer(std::string name, int period_ms, int mode) {
  timers_.push_back(std::make_unique<Timer>(*this, std::move(name), period_ms, mode));
  return *timers_.back();
}

Control* Window::FindControl(std::string_view name, int index) const {
  auto it = by_name_.find(FoldName(name));
  if (it == by_name_.end()) return nullptr;
  for (Control* control : it->second)
    if (control->Index() == index) return control;
  return nullptr;
}

Control& Window::Get(std::string_view name) const {
  Control* control = FindControl(name);
  if (!control) throw NilObjectException("no control " + std::string(name));
  return *control;
}

Control& Window::Item(std::string_view name, int index) const {
  Control* control = FindControl(name, index);
  if (!control) throw OutOfBoundsException(std::string(name) + "(" + std::to_string(index) + ")");
  return *control;
}

Timer* Window::FindTimer(std::string_view name) const {
  const std::string folded = FoldName(name);
  for (const auto& timer : timers_)
    if (FoldName(timer->Name()) == folded) return timer.get();
  return nullptr;
}

void Window::Open() {
  if (open_) return;
  open_ = true;
  Dispatch("Event_Open", [this] {
    for (const auto& control : controls_)
      if (control->events.Open) control->events.Open();
    Event_Open();
  });
}

void Window::Close() {
  if (!open_) return;
  Dispatch("Event_Close", [this] {
    for (const auto& control : controls_)
      if (control->events.Close) control->events.Close();
    Event_Close();
  });
  open_ = false;
  for (const auto& timer : timers_) timer->SetMode(Timer::kOff);
}

void Window::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  NotifyChanged(nullptr, Property::Visible);
}

bool Window::KeyDown(const std::string& key) {
  bool handled = false;
  Dispatch("Event_KeyDown", [&] { handled = Event_KeyDown(key); });
  return handled;
}

void Window::SetBounds(int left, int top, int width, int height) {
  if (left == left_ && top == top_ && width == width_ && height == height_) return;
  left_ = left;
  top_ = top;
  width_ = width;
  height_ = height;
  NotifyChanged(nullptr, Property::Bounds);
}

void Window::Dispatch(std::string_view handler_name, const std::function<void()>& handler) {
  if (dispatch_depth_ > 0) {  // a nested event: faults travel to the outer handler
    ++dispatch_depth_;
    try {
      handler();
    } catch (...) {
      --dispatch_depth_;
      throw;
    }
    --dispatch_depth_;
    return;
  }
  ++dispatch_depth_;
  try {
    handler();
  } catch (const RuntimeException& fault) {
    platform_.desktop.ReportUnhandledException(fault.ClassName(), std::string(handler_name));
  } catch (const std::exception&) {
    // A fault of the program itself, not of the runtime: report it the same way
    // rather than end the program and lose the user's work.
    platform_.desktop.ReportUnhandledException("RuntimeException", std::string(handler_name));
  }
  dispatch_depth_ = 0;
}

void Window::NotifyChanged(Control* control, Property property) {
  // An observer may add observers (a front end builds a window's view when the
  // window shows): the signal tells those present when the change happened.
  changed_.Emit(control, property);
}

}  // namespace tessarine
