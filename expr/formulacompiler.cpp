#include "expr/formulacompiler.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

#include "expr/formulatokenizer.h"

namespace velmora::expr {
namespace {

// Entries of the operator stack of the shunting-yard pass.
enum class Pending : std::uint8_t { Bracket, CallBracket, Negate, Add, Subtract, Multiply, Divide, Power };

struct PendingOp {
  Pending kind;
  Fn fn;  // for CallBracket
};

int Precedence(Pending kind) {
  switch (kind) {
    case Pending::Add:
    case Pending::Subtract: return 1;
    case Pending::Multiply:
    case Pending::Divide: return 2;
    case Pending::Negate: return 3;
    case Pending::Power: return 4;
    case Pending::Bracket:
    case Pending::CallBracket: return 0;
  }
  return 0;
}

OpCode ToOpCode(Pending kind) {
  switch (kind) {
    case Pending::Negate: return OpCode::Negate;
    case Pending::Add: return OpCode::Add;
    case Pending::Subtract: return OpCode::Subtract;
    case Pending::Multiply: return OpCode::Multiply;
    case Pending::Divide: return OpCode::Divide;
    case Pending::Power: return OpCode::Power;
    case Pending::Bracket:
    case Pending::CallBracket: break;
  }
  return OpCode::Call;
}

bool IsVariableLetter(char c) { return c == 'x' || c == 'X' || c == 'k' || c == 'K'; }

bool IsConstant(Fn fn) { return fn == Fn::Pi || fn == Fn::E || fn == Fn::Degree; }

class Compiler {
 public:
  explicit Compiler(std::string_view text) : text_(text) {}

  std::optional<Program> Run() {
    std::size_t pos = 0;
    bool expectOperand = true;
    for (;;) {
      const Token token = NextToken(text_, pos);
      if (token.kind == TokenKind::End) break;
      const std::string_view spelling = text_.substr(token.begin, token.length);
      switch (token.kind) {
        case TokenKind::Number:
          if (!expectOperand) return std::nullopt;  // implied product
          if (program_.literals.size() >= std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
          Emit({OpCode::Literal, Fn::Pi, static_cast<std::uint32_t>(program_.literals.size())});
          program_.literals.push_back(NumberValue(spelling));
          expectOperand = false;
          break;
        case TokenKind::Name: {
          if (!expectOperand) return std::nullopt;
          std::size_t after = pos;
          if (NextToken(text_, after).kind == TokenKind::LeftBracket) {
            const auto fn = FindEngineFunction(spelling);
            if (!fn) return std::nullopt;
            pos = after;
            ops_.push_back({Pending::CallBracket, *fn});
            // expectOperand stays true: the bracket must not be empty.
          } else {
            if (!EmitBareName(spelling)) return std::nullopt;
            expectOperand = false;
          }
          break;
        }
        case TokenKind::LeftBracket:
          if (!expectOperand) return std::nullopt;
          ops_.push_back({Pending::Bracket, Fn::Pi});
          break;
        case TokenKind::RightBracket: {
          if (expectOperand) return std::nullopt;  // "()", "(1+)"
          if (!CloseBracket()) return std::nullopt;
          break;
        }
        case TokenKind::Plus:
        case TokenKind::Minus:
          if (expectOperand) {
            // A sign: minus waits for its operand's power; plus changes nothing.
            if (token.kind == TokenKind::Minus) ops_.push_back({Pending::Negate, Fn::Pi});
            break;
          }
          PushBinary(token.kind == TokenKind::Plus ? Pending::Add : Pending::Subtract);
          expectOperand = true;
          break;
        case TokenKind::Star:
        case TokenKind::Slash:
          if (expectOperand) return std::nullopt;
          PushBinary(token.kind == TokenKind::Star ? Pending::Multiply : Pending::Divide);
          expectOperand = true;
          break;
        case TokenKind::Caret:
          if (expectOperand) return std::nullopt;
          PushBinary(Pending::Power);
          expectOperand = true;
          break;
        case TokenKind::Invalid:
        case TokenKind::End: return std::nullopt;
      }
    }
    if (expectOperand) return std::nullopt;  // empty text or a trailing operator
    while (!ops_.empty()) {
      const PendingOp op = ops_.back();
      ops_.pop_back();
      if (op.kind == Pending::Bracket || op.kind == Pending::CallBracket) return std::nullopt;
      Emit({ToOpCode(op.kind), Fn::Pi, 0});
    }
    if (depth_ != 1) return std::nullopt;
    program_.literalCount = program_.literals.size();
    return std::move(program_);
  }

 private:
  void Emit(Instruction in) {
    switch (in.op) {
      case OpCode::Literal:
      case OpCode::Constant:
      case OpCode::Variable: ++depth_; break;
      case OpCode::Add:
      case OpCode::Subtract:
      case OpCode::Multiply:
      case OpCode::Divide:
      case OpCode::Power: --depth_; break;
      case OpCode::Negate:
      case OpCode::Call: break;
    }
    program_.maxDepth = std::max(program_.maxDepth, depth_);
    if (in.op == OpCode::Variable) program_.usesVariable = true;
    program_.code.push_back(in);
  }

  // Powers group from the right; everything else from the left. A pending
  // sign has a lower precedence than "^", so it waits for the finished power.
  void PushBinary(Pending kind) {
    const int prec = Precedence(kind);
    const bool rightToLeft = kind == Pending::Power;
    while (!ops_.empty()) {
      const PendingOp top = ops_.back();
      if (top.kind == Pending::Bracket || top.kind == Pending::CallBracket) break;
      const int topPrec = Precedence(top.kind);
      if (topPrec < prec || (topPrec == prec && rightToLeft)) break;
      ops_.pop_back();
      Emit({ToOpCode(top.kind), Fn::Pi, 0});
    }
    ops_.push_back({kind, Fn::Pi});
  }

  bool CloseBracket() {
    while (!ops_.empty()) {
      const PendingOp top = ops_.back();
      ops_.pop_back();
      if (top.kind == Pending::Bracket) return true;
      if (top.kind == Pending::CallBracket) {
        Emit({OpCode::Call, top.fn, 0});
        return true;
      }
      Emit({ToOpCode(top.kind), Fn::Pi, 0});
    }
    return false;  // ")" without "("
  }

  bool EmitBareName(std::string_view name) {
    if (const auto fn = FindEngineFunction(name); fn && IsConstant(*fn)) {
      program_.constants.push_back(Apply(*fn, 0.0));
      Emit({OpCode::Constant, *fn, static_cast<std::uint32_t>(program_.constants.size() - 1)});
      return true;
    }
    if (name.size() == 1 && IsVariableLetter(name[0])) {
      Emit({OpCode::Variable, Fn::Pi, 0});
      return true;
    }
    // A short form: a function name joined to the variable, "SINK" or "sinx".
    if (name.size() >= 2 && IsVariableLetter(name.back())) {
      if (const auto fn = FindEngineFunction(name.substr(0, name.size() - 1))) {
        Emit({OpCode::Variable, Fn::Pi, 0});
        Emit({OpCode::Call, *fn, 0});
        return true;
      }
    }
    return false;
  }

  std::string_view text_;
  Program program_;
  std::vector<PendingOp> ops_;
  std::size_t depth_ = 0;
};

}  // namespace

std::optional<Program> CompileFormula(std::string_view text) { return Compiler(text).Run(); }

}  // namespace velmora::expr
