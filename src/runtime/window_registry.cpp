#include "runtime/window_registry.hpp"

#include "runtime/exceptions.hpp"
#include "runtime/text.hpp"

namespace tessarine {

WindowRegistry::~WindowRegistry() {
  // Later windows may refer to earlier ones (the main window to its tape): undo in
  // the reverse order of registration.
  for (auto it = slots_.rbegin(); it != slots_.rend(); ++it) (*it)->window.reset();
}

void WindowRegistry::Register(std::string name, Factory factory) {
  if (Slot* slot = Find(name)) {
    slot->factory = std::move(factory);
    return;
  }
  slots_.push_back(std::make_unique<Slot>(Slot{std::move(name), std::move(factory), nullptr}));
}

bool WindowRegistry::Knows(std::string_view name) const {
  return Find(name) != nullptr;
}

WindowRegistry::Slot* WindowRegistry::Find(std::string_view name) const {
  for (const auto& slot : slots_)
    if (StrEq(slot->name, name)) return slot.get();
  return nullptr;
}

Window& WindowRegistry::Instance(std::string_view name) {
  Slot* slot = Find(name);
  if (!slot) throw NilObjectException("no window called " + std::string(name));
  std::erase_if(retired_, [](const auto& window) { return !window->Dispatching(); });
  if (!slot->window || !slot->window->IsOpen()) {
    if (front_ == slot->window.get()) front_ = nullptr;
    // The old window goes only after the new one is made: its handlers may still
    // be on the stack (a sheet that closes its window and asks for a fresh one).
    std::unique_ptr<Window> fresh = slot->factory();
    std::swap(slot->window, fresh);
    if (fresh) retired_.push_back(std::move(fresh));
    WindowMade.Emit(*slot->window);
    slot->window->Open();
  }
  return *slot->window;
}

Window* WindowRegistry::Existing(std::string_view name) const {
  const Slot* slot = Find(name);
  return slot ? slot->window.get() : nullptr;
}

Window* WindowRegistry::FindOpen(std::string_view name) const {
  Window* window = Existing(name);
  return window && window->IsOpen() ? window : nullptr;
}

Window* WindowRegistry::Front() const {
  if (front_ && front_->IsOpen() && front_->Visible()) return front_;
  for (const auto& slot : slots_)
    if (slot->window && slot->window->IsOpen()) return slot->window.get();
  return nullptr;
}

std::vector<Window*> WindowRegistry::All() const {
  std::vector<Window*> windows;
  for (const auto& slot : slots_)
    if (slot->window) windows.push_back(slot->window.get());
  return windows;
}

}  // namespace tessarine
