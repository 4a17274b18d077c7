// What the compiler reports when a script does not compile.
#pragma once

#include <string>

namespace tessarine::expression {

enum class CompileErrorKind {
  kSyntax,            // a token that cannot stand where it stands
  kUnknownName,       // a name that is no function, keyword or statement
  kInvalidCharacter,  // a character that begins no token
  kArgumentCount,     // a call with too few or too many arguments
  kTypeMismatch,      // a number where text is needed, or the other way round
  kUnfinished,        // the line ends inside a formula or a parenthesis
  kExtraParenthesis,  // a ")" that closes nothing
};

// The position is where the fault was found: 1-based line, and column in characters.
struct CompileError {
  CompileErrorKind kind = CompileErrorKind::kSyntax;
  int line = 1;
  int column = 1;
};

// The message that goes with a kind, as passed to the CompilerError event.
const char* CompileErrorText(CompileErrorKind kind);

}  // namespace tessarine::expression
