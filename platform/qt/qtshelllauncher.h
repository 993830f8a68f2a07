#pragma once

#include "platform/shellopen.h"

namespace velmora::qtplatform {

// The desktop's opener: a program target starts as a detached process with
// its parameters, anything else goes to QDesktopServices::openUrl, which
// hands it to the application the desktop associates with it. The answer
// uses the classic result numbers so that the error texts stay the same.
class QtShellLauncher final : public platform::ShellLauncher {
 public:
  int Execute(const std::string& file, const std::string& parameters, const std::string& directory,
              const std::string& verb, bool runAsProgram) override;
};

}  // namespace velmora::qtplatform
