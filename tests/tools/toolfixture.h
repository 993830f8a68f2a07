#pragma once

#include <memory>

#include "expr/formulacontrol.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::tools {

// A tool window's logic over a formula engine of its own, its messages
// recorded.
template <class Tool>
struct ToolOverEngine {
  std::unique_ptr<expr::FormulaControl> engine = expr::MakeFormulaControl();
  testing::RecordingMessageBox boxes;
  Tool tool{*engine, boxes};
};

}  // namespace velmora::tools
