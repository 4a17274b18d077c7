// Runs the Expression tab's wrapping of a typed text and records every event raised.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "expression/script_engine.hpp"

namespace tessarine::expression {

// Everything one Run reported.
struct Outcome {
  std::vector<std::string> printed;
  int compile_errors = 0;
  std::string error_message;
  int runtime_errors = 0;
};

inline Outcome RunSource(ScriptEngine& engine, std::string_view source) {
  Outcome out;
  engine.Print = [&out](const std::string& s) { out.printed.push_back(s); };
  engine.CompilerError = [&out](int, int, const std::string& message) {
    ++out.compile_errors;
    out.error_message = message;
  };
  engine.RuntimeError = [&out](int, const RuntimeException&) { ++out.runtime_errors; };
  engine.Source(source);
  engine.Run();
  return out;
}

inline Outcome RunSource(std::string_view source) {
  ScriptEngine engine;
  return RunSource(engine, source);
}

// The source the tab builds from the field's text.
inline Outcome RunTyped(std::string_view typed) {
  return RunSource("Print Str(" + std::string(typed) + ")");
}

// The one printed text of a run that succeeded, or a marker naming what went wrong.
inline std::string ValueOf(std::string_view typed) {
  const Outcome o = RunTyped(typed);
  if (o.compile_errors) return "<compile error: " + o.error_message + ">";
  if (o.runtime_errors) return "<runtime error>";
  if (o.printed.size() != 1) return "<printed " + std::to_string(o.printed.size()) + " times>";
  return o.printed[0];
}

// One typed formula and what it must print: the row of the tables of values.
struct PrintCase {
  const char* name;
  const char* typed;
  const char* printed;
  friend std::ostream& operator<<(std::ostream& os, const PrintCase& c) { return os << c.name; }
};

// The tables of values (precedence, functions, printed form) instantiate this
// one test with their rows.
class TypedFormula : public testing::TestWithParam<PrintCase> {};

}  // namespace tessarine::expression
