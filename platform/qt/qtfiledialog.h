#pragma once

#include "platform/filedialog.h"

namespace velmora::qtplatform {

// Open and save dialogs as QFileDialog. The program's "Desc (*.ext)|*.ext"
// filter is turned into Qt's form. The save dialog never asks about
// replacing a file: the routine that saves asks in its own words.
class QtFileDialog final : public platform::FileDialog {
 public:
  std::optional<std::string> Open(const std::string& title, const std::string& filter,
                                  const std::string& initialDir) override;
  std::optional<std::string> Save(const std::string& title, const std::string& filter,
                                  const std::string& initialDir, const std::string& defaultName) override;
};

}  // namespace velmora::qtplatform
