#include "shell/program.hpp"

#include "calculator/calc_window.hpp"

namespace tessarine {

Program::Program(Platform& platform, std::uint64_t random_seed)
    : platform_(platform), random_(random_seed) {}

Program::~Program() = default;

void Program::Start() { GetCalcWindow(); }

CalcWindow& Program::GetCalcWindow() {
  if (!calc_window_ || !calc_window_->IsOpen()) {
    calc_window_ = std::make_unique<CalcWindow>(*this);
    calc_window_->Open();
  }
  return *calc_window_;
}

}  // namespace tessarine
