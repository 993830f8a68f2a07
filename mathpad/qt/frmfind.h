#pragma once

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QPushButton;
class QTextEdit;

namespace velmora::mathpad_qt {

// `frmFind`, MathPad's non-modal Find and Replace dialog over the editor.
// Its two check boxes act crossed ("Case sensitive" asks for whole words,
// "Whole word only" for matching case), as the dialog always has.
class FrmFind final : public QDialog {
  Q_OBJECT

 public:
  FrmFind(QWidget* owner, QTextEdit* editor);

  // Find: from the start of the document.
  void Find();
  // Find Next: from the end of the last hit (the caret when there is none).
  void FindNext();
  // The selection takes the replacement; the search goes on from the hit + 1.
  void Replace();
  // Replace until no hit is left; each hit once, the search going on after
  // the replacement, all in one undo step.
  void ReplaceAll();

  // The position of the last hit, -1 when there is none.
  int FoundAt() const { return foundAt_; }

  QLineEdit* Text1() const { return text1_; }
  QLineEdit* Text2() const { return text2_; }
  QCheckBox* Check1() const { return check1_; }
  QCheckBox* Check2() const { return check2_; }
  QPushButton* FindNextButton() const { return findNextButton_; }
  QPushButton* ReplaceButton() const { return replaceButton_; }
  QPushButton* ReplaceAllButton() const { return replaceAllButton_; }

 private:
  // Searches from `from`; selects and answers the hit, or -1.
  int Search(int from);
  void ShowHit(bool hit);

  QTextEdit* editor_;
  QLineEdit* text1_;
  QLineEdit* text2_;
  QCheckBox* check1_;
  QCheckBox* check2_;
  QPushButton* findButton_;
  QPushButton* findNextButton_;
  QPushButton* replaceButton_;
  QPushButton* replaceAllButton_;
  QPushButton* command5_;
  int foundAt_ = -1;
};

}  // namespace velmora::mathpad_qt
