#pragma once

#include <functional>
#include <map>

#include <QPointer>
#include <QWidget>

#include "platform/toolwindows.h"

namespace velmora::app {

// The frame's tool windows: each kind is registered with the function that
// makes it, made at its first use as a top-level window owned by the frame
// (non-modal, one of each), and made again after it was closed and deleted.
class ToolWindowHost final : public platform::ToolWindows {
 public:
  // Makes the window with the frame as its owner.
  using Factory = std::function<QWidget*(QWidget* owner)>;

  explicit ToolWindowHost(QWidget* owner) : owner_(owner) {}

  void Register(platform::ToolWindow window, Factory factory);
  // The open window of that kind, or null.
  QWidget* Window(platform::ToolWindow window) const;

  bool Has(platform::ToolWindow window) const override;
  void Show(platform::ToolWindow window) override;
  void ShowGraphMode() override;
  platform::MathPadTarget* MathPad() override;
  platform::EvaluatorTarget* Evaluator(bool create) override;

 private:
  struct Entry {
    Factory factory;
    QPointer<QWidget> window;
  };
  QWidget* Made(platform::ToolWindow window);

  QWidget* owner_;
  std::map<platform::ToolWindow, Entry> entries_;
};

}  // namespace velmora::app
