#include "expression/script_engine.hpp"

#include "expression/evaluator.hpp"
#include "expression/parser.hpp"
#include "expression/program.hpp"

namespace tessarine {

ScriptEngine::ScriptEngine() = default;
ScriptEngine::~ScriptEngine() = default;

void ScriptEngine::Source(std::string_view text) {
  source_.assign(text);
  compiled_ = false;
}

void ScriptEngine::Run() {
  if (!compiled_) {
    // The compiled buffers are reused unless a run under way still holds them.
    if (!program_ || program_.use_count() > 1) program_ = std::make_shared<expression::Program>();
    compile_error_ = expression::Compile(source_, *program_);
    compiled_ = true;
  }
  if (compile_error_) {
    const expression::CompileError error = *compile_error_;
    if (CompilerError)
      CompilerError(error.line, error.column, expression::CompileErrorText(error.kind));
    return;
  }
  // Copies, so that a handler may replace the program or the Print event while it runs.
  const std::shared_ptr<const expression::Program> program = program_;
  const auto print = Print;
  if (const auto fault = expression::Execute(*program, print)) {
    if (RuntimeError) RuntimeError(fault->line, DivisionByZeroException(fault->message));
  }
}

}  // namespace tessarine
