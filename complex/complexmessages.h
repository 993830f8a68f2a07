#pragma once

#include <string_view>

#include "platform/messagebox.h"

// The fixed messages of the Complex Calculator: each one's text, title and
// icon exactly as the user sees them. Texts keep their own spelling and
// spacing ("Log  of" has two blanks) because users and tests read them.
namespace velmora::complex {

struct Message {
  std::string_view text;
  std::string_view title;
  platform::MsgIcon icon;
};

// The title of a box whose routine names none: the program's own name.
inline constexpr std::string_view kDefaultTitle = "Velmora";

using platform::MsgIcon;

// A runtime failure inside the arithmetic (overflow, division by zero, an
// argument outside a primitive's domain).
inline constexpr Message kInvalidInput{"Invalid input.", kDefaultTitle, MsgIcon::Critical};

// Operand text input.
inline constexpr Message kRealPartBrackets{
    "The real part of complex cannot contain brackets or other nonnumerics.", kDefaultTitle,
    MsgIcon::Information};
inline constexpr Message kNoImaginaryUnit{
    "Check input. The Complex number must contain either j or i for imaginary.", kDefaultTitle,
    MsgIcon::None};
inline constexpr Message kCheckBrackets{"Check brackets.", kDefaultTitle, MsgIcon::None};
// A part too long to hold as a number (hundreds of digits): the operation is
// refused rather than run on a part read as 0. The text is the one the
// matrix side gives a cell that cannot be held.
inline constexpr Message kOperandTooLarge{"You must enter a valid complex number.", kDefaultTitle,
                                          MsgIcon::Exclamation};

// The direct buttons.
inline constexpr Message kButtonDivisionByZero{"#IND", "Error.", MsgIcon::None};
inline constexpr Message kButtonLnOfZero{"Log of 0 + i0 is undefined.", "Error", MsgIcon::None};
inline constexpr Message kButtonLogBaseOfZero{"Log  of 0 + i0 is undefined.", "Logarithm Error",
                                              MsgIcon::None};
inline constexpr Message kButtonLogBaseZero{"Base  0 + i0 . Undefined.", "Logarithm Error", MsgIcon::None};
inline constexpr Message kButtonLogBaseOne{"Base 1 + i0 . Undefined.", "Logarithm Error", MsgIcon::None};

// The function list with CALCULATE !.
inline constexpr Message kListDivisionByZero{"Undefined", "Error.", MsgIcon::None};
inline constexpr Message kListLogOfZero{"Log <0,0> Is Undefined", "Logarithm Error", MsgIcon::None};
inline constexpr Message kListLogBaseOfZero{"Log <0,0> Is Undefined In Any Base", "Logarithm Error",
                                            MsgIcon::None};
inline constexpr Message kListLogBaseZero{"Log (Base <0,0>) Is Undefined", "Logarithm Error", MsgIcon::None};
inline constexpr Message kListLogBaseOne{"Log (Base <1,0>) Is Undefined", "Logarithm Error", MsgIcon::None};
inline constexpr Message kListZeroToNegativePower{"You Cannot Raise <0,0> To A Negative Power", "Power Error",
                                                  MsgIcon::None};

// Memory.
inline constexpr Message kNullResult{"Can't add null result.", kDefaultTitle, MsgIcon::Information};
inline constexpr Message kNoCalculations{"Perform some calculations first.", kDefaultTitle, MsgIcon::None};
inline constexpr Message kMemoryEmpty{"Memory is empty.", kDefaultTitle, MsgIcon::Information};

// The keypad's Clear All asks first (OK and Cancel).
inline constexpr Message kClearAllQuestion{"Clear All?", kDefaultTitle, MsgIcon::Critical};
// A real function of the simple readout outside its domain.
inline constexpr Message kReadoutInvalidInput{"Invalid input.", kDefaultTitle, MsgIcon::Information};

// Shows a fixed message with an OK button.
void Show(platform::MessageBox& box, const Message& message);

}  // namespace velmora::complex
