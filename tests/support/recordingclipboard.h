#pragma once

#include <string>
#include <vector>

#include "platform/clipboard.h"

namespace velmora::testing {

// A clipboard that keeps every text put on it, the last one last.
class RecordingClipboard final : public platform::Clipboard {
 public:
  void SetText(const std::string& text) override { texts.push_back(text); }
  std::string Last() const { return texts.empty() ? std::string() : texts.back(); }
  std::vector<std::string> texts;
};

}  // namespace velmora::testing
