#pragma once

#include <string>

#include "platform/messagebox.h"
#include "platform/toolwindows.h"

namespace velmora::mathpad {

// The graph windows' history handed to MathPad through the frame's tool
// windows, so the graph side never depends on the MathPad window.

// Save History: "Open function history in MathPad?"; on yes MathPad opens
// and gets, after what it holds, CR LF CR LF "Function History:" + date +
// CR LF + the history text. False when nothing was handed over.
bool SendHistoryToMathPad(platform::MessageBox& messages, platform::ToolWindows& tools,
                          const std::string& history, const std::string& date);

// "Open function history in MathPad and edit it, save or print?"; on yes
// MathPad opens the history file itself.
bool OpenHistoryInMathPad(platform::MessageBox& messages, platform::ToolWindows& tools,
                          const std::string& historyPath);

}  // namespace velmora::mathpad
