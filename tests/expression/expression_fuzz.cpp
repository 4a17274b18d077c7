// Fuzz target of the script engine: any bytes, run as a whole source and as text typed
// into the tab, end in prints, a compile error or a runtime error, never a crash, and
// a compile error raises nothing else. A source that compiles prints each line at most once.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "expression/script_engine.hpp"

namespace {

void Check(tessarine::ScriptEngine& engine, const std::string& source) {
  int prints = 0;
  int compile_errors = 0;
  int runtime_errors = 0;
  engine.Print = [&prints](const std::string&) { ++prints; };
  engine.CompilerError = [&compile_errors](int line, int column, const std::string& message) {
    if (line < 1 || column < 1 || message.empty()) std::abort();
    ++compile_errors;
  };
  engine.RuntimeError = [&runtime_errors](int line, const tessarine::RuntimeException&) {
    if (line < 1) std::abort();
    ++runtime_errors;
  };
  engine.Source(source);
  engine.Run();
  if (compile_errors + runtime_errors > 1) std::abort();
  if (compile_errors == 1 && prints != 0) std::abort();
  // One Print statement per line at most, each executed once.
  const auto lines = std::count(source.begin(), source.end(), '\n') +
                     std::count(source.begin(), source.end(), '\r') + 1;
  if (prints > lines) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  tessarine::ScriptEngine engine;
  Check(engine, bytes);
  Check(engine, "Print Str(" + bytes + ")");
  return 0;
}
