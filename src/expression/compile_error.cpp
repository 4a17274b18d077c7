#include "expression/compile_error.hpp"

namespace tessarine::expression {

const char* CompileErrorText(CompileErrorKind kind) {
  switch (kind) {
    case CompileErrorKind::kSyntax:
      return "Syntax error";
    case CompileErrorKind::kUnknownName:
      return "This name is not known";
    case CompileErrorKind::kInvalidCharacter:
      return "This character is not allowed here";
    case CompileErrorKind::kArgumentCount:
      return "Wrong number of arguments";
    case CompileErrorKind::kTypeMismatch:
      return "Type mismatch";
    case CompileErrorKind::kUnfinished:
      return "The line ends too soon";
    case CompileErrorKind::kExtraParenthesis:
      return "This parenthesis closes nothing";
  }
  return "Syntax error";
}

}  // namespace tessarine::expression
