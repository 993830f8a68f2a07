#pragma once

#include <QDialog>

#include "platform/messagebox.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace velmora::graph {
class GraphWindow;
}

namespace velmora::graph_qt {

// The tangent and normal dialog: `frmunesit` for a Cartesian function
// ("Through the point X:") and `frmUnTP` for a parametric pair ("Through
// the point K:"). OK evaluates the point, writes its value back into Text1
// and has the window draw the tangent or the normal; an empty point shows
// "Enter point value." and the dialog stays.
class FrmUnesit final : public QDialog {
  Q_OBJECT

 public:
  FrmUnesit(graph::GraphWindow& window, platform::MessageBox& messages, bool parametric,
            QWidget* parent = nullptr);

  QLabel* Label1() const { return label1_; }
  QLineEdit* Text1() const { return text1_; }
  // 0 "Tangent", 1 "Normal".
  QRadioButton* chkTangent(int index) const { return index == 0 ? tangent_ : normal_; }
  QPushButton* Command1() const { return ok_; }
  QPushButton* Command2() const { return cancel_; }

 signals:
  // The line was drawn: the window shows its new state.
  void Drawn();

 private:
  void Ok();

  graph::GraphWindow& window_;
  platform::MessageBox& messages_;
  bool parametric_;
  QLabel* label1_ = nullptr;
  QLineEdit* text1_ = nullptr;
  QRadioButton* tangent_ = nullptr;
  QRadioButton* normal_ = nullptr;
  QPushButton* ok_ = nullptr;
  QPushButton* cancel_ = nullptr;
};

}  // namespace velmora::graph_qt
