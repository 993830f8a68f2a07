#pragma once

#include <string>

#include "complex/complexfields.h"
#include "platform/messagebox.h"

namespace velmora::complex {

// Split an operand text such as "3+j-4" into its part fields: ParseZ1 fills
// lbla and lblb, ParseZ2 fills lblc and lbld. The text comes back with its
// blanks removed. The real part is what stands before the sign in front of
// the unit ("i" is looked for first, then "j", in any case), the imaginary
// part what follows the unit, negated when that sign is "-"; a part in
// brackets after the unit loses its last character.
//
// Both run statement by statement: a statement that fails (a substring of
// negative length, a number out of range) is skipped and the next one runs,
// so fields keep their old text where their statement failed. A message
// (no unit, a bracket in front, for ParseZ2 a missing closing bracket) ends
// the routine and leaves the remaining fields as they were; callers go on
// with the fields as they stand.
void ParseZ1(std::string& text, ComplexFields& fields, platform::MessageBox& box);
void ParseZ2(std::string& text, ComplexFields& fields, platform::MessageBox& box);

}  // namespace velmora::complex
