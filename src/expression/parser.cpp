#include "expression/parser.hpp"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "expression/lexer.hpp"
#include "runtime/numbers.hpp"
#include "runtime/text.hpp"

namespace tessarine::expression {

namespace {

enum class Type : std::uint8_t { kNumber, kText };

// Something begun and not yet emitted: an operator waiting for its right side, an
// open parenthesis, or a call waiting for its arguments.
struct Pending {
  enum class Kind : std::uint8_t { kOperator, kParen, kCall } kind;
  OpCode op = OpCode::kAdd;
  int precedence = 0;
  bool is_str = false;
  Function function = Function::kAbs;
  int arguments = 0;  // arguments completed so far
  Token token;
};

// Binding strength of the binary operators; unary minus sits between ^ and * /.
constexpr int kNegatePrecedence = 5;
int Precedence(OpCode op) {
  switch (op) {
    case OpCode::kPower:
      return 6;
    case OpCode::kMultiply:
    case OpCode::kDivide:
      return 4;
    case OpCode::kIntegerDivide:
      return 3;
    case OpCode::kModulo:
      return 2;
    default:
      return 1;
  }
}

bool IsKeyword(std::string_view name, std::string_view keyword) {
  return name.size() == keyword.size() && StrEq(name, keyword);
}

// One pass over the tokens of a source, emitting code as soon as an operator is complete.
class Parser {
 public:
  Parser(std::string_view source, Program& program)
      : source_(source), lexer_(source), program_(program) {}

  std::optional<CompileError> Run() {
    program_.code.clear();
    program_.max_numbers = 0;
    program_.max_texts = 0;
    for (;;) {
      Token token = lexer_.Next();
      if (token.kind == TokenKind::kLineEnd) continue;
      if (token.kind == TokenKind::kEnd) return std::nullopt;
      if (token.kind != TokenKind::kName || !IsKeyword(token.text, "print"))
        return Fail(StatementStartFault(token), token);
      const Token print = token;
      if (!Expression(token)) return error_;
      if (types_.back() != Type::kText) return Fail(CompileErrorKind::kTypeMismatch, print);
      Emit(OpCode::kPrint, print);
      if (token.kind == TokenKind::kEnd) return std::nullopt;
    }
  }

 private:
  static CompileErrorKind StatementStartFault(const Token& token) {
    if (token.kind == TokenKind::kInvalid) return CompileErrorKind::kInvalidCharacter;
    if (token.kind == TokenKind::kName && !IsKnownName(token.text))
      return CompileErrorKind::kUnknownName;
    return CompileErrorKind::kSyntax;
  }

  static bool IsKnownName(std::string_view name) {
    return FindFunction(name) || IsKeyword(name, "str") || IsKeyword(name, "mod") ||
           IsKeyword(name, "print");
  }

  // A fault at a token that cannot stand where it stands.
  static CompileErrorKind MisplacedFault(const Token& token) {
    switch (token.kind) {
      case TokenKind::kInvalid:
        return CompileErrorKind::kInvalidCharacter;
      case TokenKind::kLineEnd:
      case TokenKind::kEnd:
        return CompileErrorKind::kUnfinished;
      case TokenKind::kName:
        return IsKnownName(token.text) ? CompileErrorKind::kSyntax : CompileErrorKind::kUnknownName;
      default:
        return CompileErrorKind::kSyntax;
    }
  }

  std::optional<CompileError> Fail(CompileErrorKind kind, const Token& at) {
    error_ = CompileError{kind, at.line, ColumnOf(source_, at)};
    return error_;
  }

  // One formula up to the end of its line, left as one value on the type stack;
  // `token` comes back holding the line end or the end that stopped it.
  bool Expression(Token& token) {
    const std::size_t base = pending_.size();
    bool expect_operand = true;
    bool after_call_open = false;
    for (;;) {
      token = lexer_.Next();
      if (expect_operand) {
        const bool just_opened = after_call_open;
        after_call_open = false;
        switch (token.kind) {
          case TokenKind::kNumber:
            Emit(OpCode::kPushNumber, token, Val(token.text));
            expect_operand = false;
            continue;
          case TokenKind::kMinus:
            pending_.push_back({Pending::Kind::kOperator, OpCode::kNegate, kNegatePrecedence, false,
                                Function::kAbs, 0, token});
            continue;
          case TokenKind::kOpenParen:
            pending_.push_back(
                {Pending::Kind::kParen, OpCode::kAdd, 0, false, Function::kAbs, 0, token});
            continue;
          case TokenKind::kName:
            if (!OpenCall(token)) return false;
            after_call_open = true;
            continue;
          case TokenKind::kCloseParen:
            if (just_opened) {
              Fail(CompileErrorKind::kArgumentCount, token);
              return false;
            }
            break;
          default:
            break;
        }
        Fail(MisplacedFault(token), token);
        return false;
      }
      OpCode binary;
      switch (token.kind) {
        case TokenKind::kPlus:
          binary = OpCode::kAdd;
          break;
        case TokenKind::kMinus:
          binary = OpCode::kSubtract;
          break;
        case TokenKind::kStar:
          binary = OpCode::kMultiply;
          break;
        case TokenKind::kSlash:
          binary = OpCode::kDivide;
          break;
        case TokenKind::kBackslash:
          binary = OpCode::kIntegerDivide;
          break;
        case TokenKind::kCaret:
          binary = OpCode::kPower;
          break;
        case TokenKind::kName:
          if (IsKeyword(token.text, "mod")) {
            binary = OpCode::kModulo;
            break;
          }
          Fail(MisplacedFault(token), token);
          return false;
        case TokenKind::kCloseParen:
          if (!CloseParen(token, base)) return false;
          continue;
        case TokenKind::kComma:
          if (!Comma(token, base)) return false;
          expect_operand = true;
          continue;
        case TokenKind::kLineEnd:
        case TokenKind::kEnd:
          if (!ReduceOperators(0, base)) return false;
          if (pending_.size() > base) {
            Fail(CompileErrorKind::kUnfinished, token);
            return false;
          }
          return true;
        default:
          Fail(MisplacedFault(token), token);
          return false;
      }
      // Every binary operator groups to the left.
      if (!ReduceOperators(Precedence(binary), base)) return false;
      pending_.push_back(
          {Pending::Kind::kOperator, binary, Precedence(binary), false, Function::kAbs, 0, token});
      expect_operand = true;
    }
  }

  // A name in place of a value: a function or Str, which must open its parentheses.
  bool OpenCall(const Token& name) {
    Pending call{Pending::Kind::kCall, OpCode::kCall1, 0, false, Function::kAbs, 0, name};
    if (IsKeyword(name.text, "str")) {
      call.is_str = true;
    } else if (const auto f = FindFunction(name.text)) {
      call.function = *f;
    } else {
      Fail(MisplacedFault(name), name);
      return false;
    }
    const Token open = lexer_.Next();
    if (open.kind != TokenKind::kOpenParen) {
      Fail(MisplacedFault(open), open);
      return false;
    }
    pending_.push_back(call);
    return true;
  }

  int Arity(const Pending& call) const { return call.is_str ? 1 : ArgumentCount(call.function); }

  bool CloseParen(const Token& token, std::size_t base) {
    if (!ReduceOperators(0, base)) return false;
    if (pending_.size() == base) {
      Fail(CompileErrorKind::kExtraParenthesis, token);
      return false;
    }
    const Pending open = pending_.back();
    pending_.pop_back();
    if (open.kind == Pending::Kind::kParen) return true;
    if (open.arguments + 1 != Arity(open)) {
      Fail(CompileErrorKind::kArgumentCount, token);
      return false;
    }
    if (open.is_str) return Emit(OpCode::kStr, open.token);
    return Emit(Arity(open) == 1 ? OpCode::kCall1 : OpCode::kCall2, open.token, 0, open.function);
  }

  bool Comma(const Token& token, std::size_t base) {
    if (!ReduceOperators(0, base)) return false;
    if (pending_.size() == base || pending_.back().kind != Pending::Kind::kCall) {
      Fail(CompileErrorKind::kSyntax, token);
      return false;
    }
    Pending& call = pending_.back();
    if (++call.arguments >= Arity(call)) {
      Fail(CompileErrorKind::kArgumentCount, token);
      return false;
    }
    return true;
  }

  // Emits the pending operators that bind at least as tightly as `precedence`.
  bool ReduceOperators(int precedence, std::size_t base) {
    while (pending_.size() > base && pending_.back().kind == Pending::Kind::kOperator &&
           pending_.back().precedence >= precedence) {
      const Pending op = pending_.back();
      pending_.pop_back();
      if (!Emit(op.op, op.token)) return false;
    }
    return true;
  }

  // Appends one instruction after checking the types it consumes.
  bool Emit(OpCode op, const Token& at, double number = 0, Function function = Function::kAbs) {
    int take = 0;
    Type result = Type::kNumber;
    switch (op) {
      case OpCode::kPushNumber:
        break;
      case OpCode::kNegate:
      case OpCode::kCall1:
        take = 1;
        break;
      case OpCode::kStr:
        take = 1;
        result = Type::kText;
        break;
      case OpCode::kPrint:
        types_.pop_back();
        --texts_;
        program_.code.push_back({op, function, at.line, number});
        return true;
      default:
        take = 2;
        break;
    }
    // + of two texts joins them; everything else wants numbers.
    if (op == OpCode::kAdd && types_[types_.size() - 1] == Type::kText &&
        types_[types_.size() - 2] == Type::kText) {
      op = OpCode::kConcat;
      result = Type::kText;
      take = 0;
      types_.resize(types_.size() - 2);
      texts_ -= 2;
    }
    for (int i = 0; i < take; ++i) {
      if (types_.back() != Type::kNumber) {
        Fail(CompileErrorKind::kTypeMismatch, at);
        return false;
      }
      types_.pop_back();
      --numbers_;
    }
    types_.push_back(result);
    if (result == Type::kNumber) {
      program_.max_numbers = std::max(program_.max_numbers, ++numbers_);
    } else {
      program_.max_texts = std::max(program_.max_texts, ++texts_);
    }
    program_.code.push_back({op, function, at.line, number});
    return true;
  }

  std::string_view source_;
  Lexer lexer_;
  Program& program_;
  std::vector<Pending> pending_;
  std::vector<Type> types_;
  std::size_t numbers_ = 0;
  std::size_t texts_ = 0;
  CompileError error_;
};

}  // namespace

std::optional<CompileError> Compile(std::string_view source, Program& program) {
  return Parser(source, program).Run();
}

}  // namespace tessarine::expression
