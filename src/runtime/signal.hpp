// Signal: the callbacks that hear of one kind of change. Connect returns a
// Connection handle; dropping the handle (or calling Disconnect) takes the
// callback away, so an observer that dies first is never called. A callback may
// connect or disconnect others while the signal runs: those added run from the
// next emission on, those removed are not called again.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tessarine {

// A connected callback's handle. Move-only; disconnects when destroyed unless
// released (a front end that lives as long as the program keeps its callbacks).
class Connection {
 public:
  Connection() = default;
  explicit Connection(std::function<void()> disconnect) : disconnect_(std::move(disconnect)) {}
  Connection(Connection&& other) noexcept : disconnect_(std::exchange(other.disconnect_, {})) {}
  Connection& operator=(Connection&& other) noexcept {
    if (this != &other) {
      Disconnect();
      disconnect_ = std::exchange(other.disconnect_, {});
    }
    return *this;
  }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  ~Connection() { Disconnect(); }

  void Disconnect() {
    if (auto disconnect = std::exchange(disconnect_, {})) disconnect();
  }
  bool Connected() const { return static_cast<bool>(disconnect_); }
  // Keeps the callback connected for the signal's whole life.
  void Release() { disconnect_ = {}; }

 private:
  std::function<void()> disconnect_;
};

template <class... Args>
class Signal {
 public:
  using Slot = std::function<void(Args...)>;

  Signal() = default;
  Signal(const Signal&) = delete;
  Signal& operator=(const Signal&) = delete;

  [[nodiscard]] Connection Connect(Slot slot) {
    const std::uint64_t id = state_->next_id++;
    state_->entries.push_back({id, std::make_shared<Slot>(std::move(slot))});
    return Connection([weak = std::weak_ptr<State>(state_), id] {
      if (auto state = weak.lock()) state->Remove(id);
    });
  }

  bool Empty() const { return state_->entries.empty(); }

  void Emit(Args... args) const {
    // The state is held for the call: a callback may destroy the signal's owner.
    const std::shared_ptr<State> state = state_;
    const std::size_t count = state->entries.size();
    ++state->emitting;
    for (std::size_t i = 0; i < count && i < state->entries.size(); ++i) {
      std::shared_ptr<Slot> slot = state->entries[i].slot;  // survives a reallocation
      if (slot) (*slot)(args...);
    }
    if (--state->emitting == 0 && state->removed) state->Compact();
  }

 private:
  struct Entry {
    std::uint64_t id;
    std::shared_ptr<Slot> slot;  // null once disconnected during an emission
  };
  struct State {
    std::vector<Entry> entries;
    std::uint64_t next_id = 1;
    int emitting = 0;
    bool removed = false;

    void Remove(std::uint64_t id) {
      for (Entry& entry : entries)
        if (entry.id == id) entry.slot.reset();
      removed = true;
      if (emitting == 0) Compact();
    }
    void Compact() {
      std::erase_if(entries, [](const Entry& entry) { return !entry.slot; });
      removed = false;
    }
  };
  std::shared_ptr<State> state_ = std::make_shared<State>();
};

}  // namespace tessarine
