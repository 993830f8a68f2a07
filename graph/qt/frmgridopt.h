#pragma once

#include <QDialog>

#include "graph/plottingoptions.h"
#include "platform/messagebox.h"
#include "platform/settingsstore.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace velmora::graph {
class GraphWindow;
}

namespace velmora::graph_qt {

// Plotting Options (`frmGridOpt`): a dialog over graph::PlottingOptions.
// It loads the section Grid when it opens; Apply writes every key, repaints
// the active window and closes; Cancel closes without writing; Reset puts
// the defaults in the controls only. The three paper pictures are drawn by
// the program (PaperPicture); a click on one selects that paper.
class FrmGridOpt final : public QDialog {
  Q_OBJECT

 public:
  // `active` is the active graph window; null: Apply writes the keys only.
  FrmGridOpt(platform::SettingsStore& settings, platform::MessageBox& messages, graph::GraphWindow* active,
             QWidget* parent = nullptr);

  const graph::PlottingOptions& Model() const { return model_; }
  // The controls, for tests.
  QLineEdit* TextBox(int index) const { return texts_[index]; }       // PlottingOptions::Text
  QCheckBox* Check(int number) const { return checks_[number - 1]; }  // 1 to 13
  QRadioButton* Option2(int index) const { return papers_[index]; }   // 0 to 2
  QLabel* Image(int index) const { return images_[index]; }           // 0 to 2: Image1 to Image3
  QPushButton* Command1() const { return apply_; }                    // "&Apply"
  QPushButton* Command2() const { return cancel_; }                   // "Cancel"
  QPushButton* Command3() const { return reset_; }                    // "&Reset"

 signals:
  // Apply has written the keys and repainted the active window.
  void Applied();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowModel();
  void CheckClicked(int number);
  void PaperClicked(int index);
  void Apply();
  void Reset();

  platform::SettingsStore& settings_;
  platform::MessageBox& messages_;
  graph::GraphWindow* active_;
  graph::PlottingOptions model_;
  QLineEdit* texts_[4] = {};
  QCheckBox* checks_[graph::PlottingOptions::kChecks] = {};
  QRadioButton* papers_[3] = {};
  QLabel* images_[3] = {};
  QPushButton* apply_ = nullptr;
  QPushButton* cancel_ = nullptr;
  QPushButton* reset_ = nullptr;
};

}  // namespace velmora::graph_qt
