#include "app/toolwindowhost.h"

#include "platform/evaluatortarget.h"
#include "platform/mathpadtarget.h"

namespace velmora::app {

void ToolWindowHost::Register(platform::ToolWindow window, Factory factory) {
  entries_[window].factory = std::move(factory);
}

QWidget* ToolWindowHost::Window(platform::ToolWindow window) const {
  const auto it = entries_.find(window);
  return it == entries_.end() ? nullptr : it->second.window.data();
}

bool ToolWindowHost::Has(platform::ToolWindow window) const {
  const auto it = entries_.find(window);
  return it != entries_.end() && static_cast<bool>(it->second.factory);
}

QWidget* ToolWindowHost::Made(platform::ToolWindow window) {
  const auto it = entries_.find(window);
  if (it == entries_.end() || !it->second.factory) return nullptr;
  Entry& entry = it->second;
  if (entry.window.isNull()) {
    entry.window = entry.factory(owner_);
    if (entry.window != nullptr) {
      // A tool window is its own top-level window that stays with the frame.
      entry.window->setWindowFlag(Qt::Window, true);
    }
  }
  return entry.window.data();
}

void ToolWindowHost::Show(platform::ToolWindow window) {
  QWidget* widget = Made(window);
  if (widget == nullptr) return;
  if (widget->isMinimized()) {
    widget->showNormal();
  } else {
    widget->show();
  }
  widget->raise();
  widget->activateWindow();
}

void ToolWindowHost::ShowGraphMode() {
  if (owner_ == nullptr) return;
  if (owner_->isMinimized()) owner_->showNormal();
  owner_->raise();
  owner_->activateWindow();
}

platform::MathPadTarget* ToolWindowHost::MathPad() {
  if (!Has(platform::ToolWindow::MathPad)) return nullptr;
  Show(platform::ToolWindow::MathPad);
  return dynamic_cast<platform::MathPadTarget*>(Window(platform::ToolWindow::MathPad));
}

platform::EvaluatorTarget* ToolWindowHost::Evaluator(bool create) {
  if (!Has(platform::ToolWindow::Evaluator)) return nullptr;
  if (create) {
    Show(platform::ToolWindow::Evaluator);
  } else if (Window(platform::ToolWindow::Evaluator) == nullptr) {
    return nullptr;
  }
  return dynamic_cast<platform::EvaluatorTarget*>(Window(platform::ToolWindow::Evaluator));
}

}  // namespace velmora::app
