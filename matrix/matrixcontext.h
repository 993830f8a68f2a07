#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/messagebox.h"

namespace velmora::matrix {

// The state that the Matrix Calculator shares between its matrices: the
// number of decimal places of every printed result, the flag the singular
// path raises for the adjoint, and where messages go.
struct MatrixContext {
  explicit MatrixContext(platform::MessageBox& messages) : Messages(messages) {}

  std::int32_t Precision = 3;  // the value when the calculator opens
  bool SingularFlag = false;
  platform::MessageBox& Messages;
};

// Title of the calculator's own boxes that name no other title.
inline constexpr const char* kCalculatorTitle = "Matrix Calculator";

// The check of the precision box as it is edited: a value outside 1 to 15
// shows "Invalid input (1 - 15)." and the box is set to "2". Returns true
// when the text was replaced.
bool CheckPrecisionText(std::string& text, platform::MessageBox& messages);

// The precision taken when a calculation starts: the number the box holds
// when that is above 0, else 2.
std::int32_t PrecisionAtGo(std::string_view text);

}  // namespace velmora::matrix
