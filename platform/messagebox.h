#pragma once

#include "base/messagebox.h"

namespace velmora::platform {

// The message box is one of the platform services; its interface sits in
// base/ so that the expression engine can report through it without
// depending on this layer.
using base::MessageBox;
using base::MsgButtons;
using base::MsgIcon;
using base::MsgResult;
using base::SilentMessageBox;

}  // namespace velmora::platform
