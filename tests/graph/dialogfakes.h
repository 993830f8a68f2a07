#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "graph/qt/framelink.h"
#include "platform/colordialog.h"
#include "platform/filedialog.h"

namespace velmora::testing {

// Fakes of the platform dialogs and of the frame, for the graph window's
// commands and its widgets.

// A colour dialog that answers from a queue and records the colour it was
// opened on; nothing queued fails the test and answers as a cancel.
class ScriptedColorDialog final : public platform::ColorDialog {
 public:
  std::optional<std::uint32_t> Choose(std::uint32_t initial) override {
    opened.push_back(initial);
    if (answers.empty()) {
      ADD_FAILURE() << "unexpected colour dialog";
      return std::nullopt;
    }
    auto answer = answers.front();
    answers.pop_front();
    return answer;
  }
  std::deque<std::optional<std::uint32_t>> answers;
  std::vector<std::uint32_t> opened;
};

// A file dialog that answers from a queue and records its titles and filters.
class ScriptedFileDialog final : public platform::FileDialog {
 public:
  struct Asked {
    std::string title;
    std::string filter;
    std::string defaultName;
  };
  std::optional<std::string> Open(const std::string& title, const std::string& filter,
                                  const std::string&) override {
    return Next({title, filter, {}});
  }
  std::optional<std::string> Save(const std::string& title, const std::string& filter, const std::string&,
                                  const std::string& defaultName) override {
    return Next({title, filter, defaultName});
  }
  std::deque<std::optional<std::string>> answers;
  std::vector<Asked> asked;

 private:
  std::optional<std::string> Next(Asked question) {
    asked.push_back(std::move(question));
    if (answers.empty()) {
      ADD_FAILURE() << "unexpected file dialog";
      return std::nullopt;
    }
    auto answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

// The frame as a graph window sees it, recording what it is told.
class RecordingFrame final : public graph_qt::FrameLink {
 public:
  void UpdateStatus() override { ++updates; }
  void MarkFunctionType(int type) override { types.push_back(type); }
  void ShowStatusText(const std::string& text) override { statusTexts.push_back(text); }
  void WindowClosing(graph_qt::FrmFunc* window) override { closing.push_back(window); }
  int updates = 0;
  std::vector<int> types;
  std::vector<std::string> statusTexts;
  std::vector<graph_qt::FrmFunc*> closing;
};

}  // namespace velmora::testing
