// The script engine behind the Expression tab: compiles and runs a small language
// of Print statements over numeric formulas, reporting through its event members.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "expression/compile_error.hpp"
#include "runtime/exceptions.hpp"

namespace tessarine {

namespace expression {
struct Program;
}

// The fault a running script reports: `\` or Mod with a zero divisor.
class DivisionByZeroException : public RuntimeException {
 public:
  using RuntimeException::RuntimeException;
  const char* ClassName() const override { return "DivisionByZeroException"; }
};

// Holds one source text and runs it on demand, on the calling thread; the events
// are raised from within Run. An unset event is skipped.
class ScriptEngine {
 public:
  ScriptEngine();
  ~ScriptEngine();
  ScriptEngine(const ScriptEngine&) = delete;
  ScriptEngine& operator=(const ScriptEngine&) = delete;

  // Once for each Print executed, with its text.
  std::function<void(const std::string& text)> Print;
  // For an input statement; the language has none, so it is never raised.
  std::function<std::string(const std::string& prompt)> Input;
  // Instead of running, when the source does not compile: 1-based line and column
  // (in characters) of the fault, and its message.
  std::function<void(int line, int column, const std::string& message)> CompilerError;
  // When the running script fails, with the 1-based line; the run stops there.
  std::function<void(int line, const RuntimeException& error)> RuntimeError;

  // Replaces the whole program text and discards what was compiled before.
  void Source(std::string_view text);
  const std::string& Source() const { return source_; }

  // Compiles the source if not done yet and runs it to the end. An event handler
  // may set Source or call Run again; the run under way goes on with its program.
  void Run();

 private:
  std::string source_;
  std::shared_ptr<expression::Program> program_;  // null until compiled
  std::optional<expression::CompileError> compile_error_;
  bool compiled_ = false;
};

}  // namespace tessarine
