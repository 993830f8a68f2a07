#include "expr/formulamachine.h"

#include <cmath>
#include <limits>

namespace velmora::expr {

double RunProgram(const Program& program, std::span<const double> literals, double variable,
                  std::vector<double>& stack) {
  constexpr double kFault = std::numeric_limits<double>::quiet_NaN();
  if (program.code.empty() || literals.size() < program.literalCount) return kFault;
  if (stack.size() < program.maxDepth) stack.resize(program.maxDepth);
  // `t` points one past the top element: t[-1] is the top, t[-2] the one below.
  double* t = stack.data();
  const double* lit = literals.data();
  for (const Instruction& in : program.code) {
    switch (in.op) {
      case OpCode::Literal: *t++ = lit[in.index]; break;
      case OpCode::Constant: *t++ = program.constants[in.index]; break;
      case OpCode::Variable: *t++ = variable; break;
      case OpCode::Negate: t[-1] = -t[-1]; break;
      case OpCode::Add:
        --t;
        t[-1] = t[-1] + t[0];
        if (!std::isfinite(t[-1])) return kFault;
        break;
      case OpCode::Subtract:
        --t;
        t[-1] = t[-1] - t[0];
        if (!std::isfinite(t[-1])) return kFault;
        break;
      case OpCode::Multiply:
        --t;
        t[-1] = t[-1] * t[0];
        if (!std::isfinite(t[-1])) return kFault;
        break;
      case OpCode::Divide:
        --t;
        t[-1] = t[-1] / t[0];  // x/0 is infinite or NaN, so the check below is the zero test
        if (!std::isfinite(t[-1])) return kFault;
        break;
      case OpCode::Power:
        --t;
        t[-1] = std::pow(t[-1], t[0]);
        if (!std::isfinite(t[-1])) return kFault;
        break;
      case OpCode::Call:
        t[-1] = Apply(in.fn, t[-1]);
        if (!std::isfinite(t[-1])) return kFault;
        break;
    }
  }
  // A lone literal or constant is not checked on the way: an out-of-range
  // literal reads as infinity, which is a fault too.
  const double value = t[-1];
  return std::isfinite(value) ? value : kFault;
}

}  // namespace velmora::expr
