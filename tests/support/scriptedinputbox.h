#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/inputbox.h"

namespace velmora::testing {

// An input box that records each question and answers from a queue; nothing
// queued fails the test and answers as a cancel, so a test never hangs.
class ScriptedInputBox final : public platform::InputBox {
 public:
  struct Asked {
    std::string prompt;
    std::string title;
    std::string defaultText;
  };

  std::optional<std::string> Ask(const std::string& prompt, const std::string& title,
                                 const std::string& defaultText) override {
    asked_.push_back({prompt, title, defaultText});
    if (answers_.empty()) {
      ADD_FAILURE() << "unexpected input box: " << title << ": " << prompt;
      return std::nullopt;
    }
    auto answer = answers_.front();
    answers_.pop_front();
    return answer;
  }

  void Answer(std::optional<std::string> answer) { answers_.push_back(std::move(answer)); }
  const std::vector<Asked>& AskedBoxes() const { return asked_; }

 private:
  std::deque<std::optional<std::string>> answers_;
  std::vector<Asked> asked_;
};

}  // namespace velmora::testing
