#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/filedialog.h"

namespace velmora::testing {

// A file dialog answering Open and Save from a queue and recording the
// titles and filters asked. With nothing queued it cancels; when `strict`,
// that also fails the test, as no dialog was expected.
class QueuedFileDialog final : public platform::FileDialog {
 public:
  std::optional<std::string> Open(const std::string& title, const std::string& filter,
                                  const std::string&) override {
    return Next(title, filter);
  }
  std::optional<std::string> Save(const std::string& title, const std::string& filter, const std::string&,
                                  const std::string&) override {
    return Next(title, filter);
  }
  std::deque<std::optional<std::string>> answers;
  std::vector<std::string> titles;
  std::vector<std::string> filters;
  bool strict = true;

 private:
  std::optional<std::string> Next(const std::string& title, const std::string& filter) {
    titles.push_back(title);
    filters.push_back(filter);
    if (answers.empty()) {
      if (strict) ADD_FAILURE() << "unexpected file dialog " << title;
      return std::nullopt;
    }
    auto answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

// A save dialog giving the same `answer` every time and recording
// "title|filter" a call; Open cancels.
class SaveAnswerFileDialog final : public platform::FileDialog {
 public:
  std::optional<std::string> Open(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> Save(const std::string& title, const std::string& filter, const std::string&,
                                  const std::string&) override {
    asked.push_back(title + "|" + filter);
    return answer;
  }
  std::optional<std::string> answer;
  std::vector<std::string> asked;
};

}  // namespace velmora::testing
