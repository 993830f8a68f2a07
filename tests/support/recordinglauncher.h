#pragma once

#include <string>
#include <vector>

#include "platform/shellopen.h"

namespace velmora::testing {

// A shell that records "verb file" a call and answers success.
class RecordingLauncher final : public platform::ShellLauncher {
 public:
  int Execute(const std::string& file, const std::string&, const std::string&, const std::string& verb,
              bool) override {
    opened.push_back(verb + " " + file);
    return 42;
  }
  std::vector<std::string> opened;
};

}  // namespace velmora::testing
