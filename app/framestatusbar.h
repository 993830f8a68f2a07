#pragma once

#include <array>

#include <QStatusBar>

#include "app/statuspanels.h"

class QLabel;

namespace velmora::app {

// The frame's status bar `SS1`: four panels, left to right the active
// window's caption (it takes the width the other three leave), the zoom,
// the status text and the number of windows. The labels are named Panel1
// to Panel4.
class FrameStatusBar final : public QStatusBar {
  Q_OBJECT

 public:
  explicit FrameStatusBar(QWidget* parent = nullptr);
  void SetPanels(const StatusTexts& texts);
  QString PanelText(int panel) const;  // 1 to 4

 private:
  std::array<QLabel*, 4> panels_{};
};

}  // namespace velmora::app
