#include "matrix/matrixcontext.h"

#include <algorithm>

#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::matrix {
namespace {

double ValOrZero(std::string_view text) {
  try {
    return expr::TextToNumber(text);
  } catch (const expr::Fault&) {
    return 1e300;  // a number too large to read is out of range all the same
  }
}

}  // namespace

bool CheckPrecisionText(std::string& text, platform::MessageBox& messages) {
  const double v = ValOrZero(text);
  if (v > 15 || v < 1) {
    messages.Show("Invalid input (1 - 15).", kCalculatorTitle, platform::MsgIcon::Information);
    text.assign(1, '2');  // the box falls back to 2
    return true;
  }
  return false;
}

std::int32_t PrecisionAtGo(std::string_view text) {
  const double v = ValOrZero(text);
  if (!(v > 0)) return 2;
  // Places beyond 15 print as 15, so a huge value may as well stop at the
  // top of the integer range.
  return expr::ToLong(std::min(v, 2147483647.0));
}

}  // namespace velmora::matrix
