#pragma once

#include <array>
#include <vector>

#include <QObject>

#include "app/menustate.h"
#include "app/toolbarlayout.h"
#include "app/toolbartable.h"

class QAction;
class QMainWindow;
class QToolBar;
class QToolButton;

namespace velmora::app {

// The four toolbars `Toolbar1` to `Toolbar4`, the frame's bands, built from
// the toolbar table. Buttons are QToolButtons named by their keys; a
// drop-down entry is a QAction named by its key. Bands can be hidden (the
// View menu) and start a second row before band 3 when the stored layout
// has more than one. A band is as wide as its buttons; the last of a row
// takes the rest of the row.
class FrameToolbars final : public QObject {
  Q_OBJECT

 public:
  explicit FrameToolbars(QMainWindow* frame);

  QToolBar* Band(int band) const;  // 1 to 4
  // Shows the stored layout: the bands' visibility and rows. The stored
  // widths are not imposed on the bands.
  void Apply(const ToolbarLayout& layout);
  // The layout as it stands, to be stored; a band's width is the width its
  // buttons take.
  ToolbarLayout Current() const;
  // Whether a shown band hides some of its buttons behind its chevron.
  bool HidesButtons(int band) const;
  bool BandVisible(int band) const { return visible_[static_cast<std::size_t>(band - 1)]; }
  void SetBandVisible(int band, bool visible);
  std::array<bool, 4> Bands() const { return visible_; }

  void Refresh(const FrameView& view);

  QToolButton* Button(const QString& key) const;
  QAction* MenuEntry(const QString& key) const;

 signals:
  void CommandChosen(velmora::app::Command command);

 private:
  struct Entry {
    QAction* action;
    EnableRule enable;
    int zoomEntry;
  };

  QMainWindow* frame_;
  std::array<QToolBar*, 4> bars_{};
  std::array<bool, 4> visible_{true, true, false, true};
  std::vector<Entry> entries_;
  std::vector<QToolButton*> buttons_;
};

}  // namespace velmora::app
