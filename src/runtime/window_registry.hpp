// WindowRegistry: the program's windows by name, each an implicit single instance.
// Asking for a window returns the open one or makes a new one from its factory in
// its start state and opens it; a window that closed is made anew on the next ask.
// Front ends hear of every window made, and of the one in front.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/signal.hpp"
#include "runtime/window.hpp"

namespace tessarine {

class WindowRegistry {
 public:
  using Factory = std::function<std::unique_ptr<Window>()>;

  WindowRegistry() = default;
  WindowRegistry(const WindowRegistry&) = delete;
  WindowRegistry& operator=(const WindowRegistry&) = delete;
  ~WindowRegistry();

  // How the window of that name is made. Registering a name again replaces its factory.
  void Register(std::string name, Factory factory);
  bool Knows(std::string_view name) const;

  // The open window of that name, or a new one, opened.
  Window& Instance(std::string_view name);
  template <class T>
  T& Instance(std::string_view name) {
    return static_cast<T&>(Instance(name));
  }
  // The window of that name if it was made, open or not; nullptr otherwise.
  Window* Existing(std::string_view name) const;
  template <class T>
  T* Existing(std::string_view name) const {
    return static_cast<T*>(Existing(name));
  }
  // The window of that name if it is open.
  Window* FindOpen(std::string_view name) const;

  // The window in front, as the front end reports it; the first open window made
  // when none was reported.
  Window* Front() const;
  void SetFront(Window* window) { front_ = window; }

  // Every window made, in the order of registration.
  std::vector<Window*> All() const;

  Signal<Window&> WindowMade;

 private:
  struct Slot {
    std::string name;
    Factory factory;
    std::unique_ptr<Window> window;
  };
  Slot* Find(std::string_view name) const;
  std::vector<std::unique_ptr<Slot>> slots_;
  // Windows replaced by a fresh one, kept until none of their handlers runs.
  std::vector<std::unique_ptr<Window>> retired_;
  Window* front_ = nullptr;
};

}  // namespace tessarine
