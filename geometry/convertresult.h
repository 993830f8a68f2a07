#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/messagebox.h"

// Turns a result of the Evaluator window into another number base.
namespace velmora::geometry {

// The bases of the conversion menu, by index.
enum class ResultBase { Decimal = 0, Binary = 1, Hexadecimal = 2, Octal = 3 };

// What the Evaluator window shows after a conversion: the result text and
// the mode word it notes beside it ("dec", "bin", "hex", "oct").
struct ConvertedResult {
  std::string text;
  std::string mode;
};

// Converts the result text `value` by `index` (0 decimal, 1 binary, 2
// hexadecimal, 3 octal). Binary refuses a value above 32767 and makes its
// digits lowest first without reversing them, then reads them as a decimal
// number ("6" gives "11"). Hexadecimal and octal round to a 32-bit integer
// first and give upper-case digits with no prefix; a negative value gives
// its two's complement. Returns nothing after a message, or for an index
// outside 0 to 3.
std::optional<ConvertedResult> ConvertResult(std::string_view value, int index, platform::MessageBox& box);

}  // namespace velmora::geometry
