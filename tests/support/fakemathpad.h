#pragma once

#include <string>
#include <vector>

#include "platform/mathpadtarget.h"
#include "platform/toolwindows.h"

namespace velmora::testing {

// MathPad as the other windows reach it: keeps what they hand over.
class RecordingMathPad final : public platform::MathPadTarget {
 public:
  void AppendText(const std::string& text) override { appended += text; }
  void InsertText(const std::string& text, const std::string& fontName) override {
    inserted.push_back(fontName + "|" + text);
  }
  void NewDocument(const std::string& text) override { documents.push_back(text); }
  void OpenFile(const std::string& path) override { opened = path; }
  std::string appended;               // every appended text, one after another
  std::vector<std::string> inserted;  // "font|text" a call
  std::vector<std::string> documents;
  std::string opened;
};

// The frame's tool windows with MathPad the only one (present unless
// `withPad` is cleared); records the windows shown.
class MathPadOnlyTools final : public platform::ToolWindows {
 public:
  bool Has(platform::ToolWindow window) const override {
    return window == platform::ToolWindow::MathPad && withPad;
  }
  void Show(platform::ToolWindow window) override { shown.push_back(window); }
  void ShowGraphMode() override {}
  platform::MathPadTarget* MathPad() override { return withPad ? &pad : nullptr; }
  platform::EvaluatorTarget* Evaluator(bool) override { return nullptr; }
  bool withPad = true;
  RecordingMathPad pad;
  std::vector<platform::ToolWindow> shown;
};

}  // namespace velmora::testing
