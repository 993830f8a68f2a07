#include "mathpad/qt/frmfind.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QVBoxLayout>

#include "mathpad/padlogic.h"

namespace velmora::mathpad_qt {

FrmFind::FrmFind(QWidget* owner, QTextEdit* editor) : QDialog(owner, Qt::Tool), editor_(editor) {
  setObjectName(QStringLiteral("frmFind"));
  setWindowTitle(QStringLiteral("Find and Replace"));
  setModal(false);
  text1_ = new QLineEdit(this);
  text2_ = new QLineEdit(this);
  check1_ = new QCheckBox(QStringLiteral("&Case sensitive"), this);
  check2_ = new QCheckBox(QStringLiteral("&Whole word only"), this);
  findButton_ = new QPushButton(QStringLiteral("Find"), this);
  findNextButton_ = new QPushButton(QStringLiteral("Find Next"), this);
  replaceButton_ = new QPushButton(QStringLiteral("Replace"), this);
  replaceAllButton_ = new QPushButton(QStringLiteral("Replace All"), this);
  command5_ = new QPushButton(QStringLiteral("Cancel"), this);
  text1_->setObjectName(QStringLiteral("Text1"));
  text2_->setObjectName(QStringLiteral("Text2"));
  check1_->setObjectName(QStringLiteral("Check1"));
  check2_->setObjectName(QStringLiteral("Check2"));
  findButton_->setObjectName(QStringLiteral("FindButton"));
  findNextButton_->setObjectName(QStringLiteral("FindNextButton"));
  replaceButton_->setObjectName(QStringLiteral("ReplaceButton"));
  replaceAllButton_->setObjectName(QStringLiteral("ReplaceAllButton"));
  command5_->setObjectName(QStringLiteral("Command5"));

  auto* grid = new QGridLayout(this);
  grid->addWidget(new QLabel(QStringLiteral("Find what:"), this), 0, 0);
  grid->addWidget(text1_, 0, 1);
  grid->addWidget(new QLabel(QStringLiteral("Replace with:"), this), 1, 0);
  grid->addWidget(text2_, 1, 1);
  grid->addWidget(check1_, 2, 1);
  grid->addWidget(check2_, 3, 1);
  auto* buttons = new QVBoxLayout;
  for (QPushButton* b : {findButton_, findNextButton_, replaceButton_, replaceAllButton_, command5_}) {
    buttons->addWidget(b);
  }
  buttons->addStretch();
  grid->addLayout(buttons, 0, 2, 5, 1);

  connect(findButton_, &QPushButton::clicked, this, &FrmFind::Find);
  connect(findNextButton_, &QPushButton::clicked, this, &FrmFind::FindNext);
  connect(replaceButton_, &QPushButton::clicked, this, &FrmFind::Replace);
  connect(replaceAllButton_, &QPushButton::clicked, this, &FrmFind::ReplaceAll);
  connect(command5_, &QPushButton::clicked, this, &QDialog::close);
  connect(text1_, &QLineEdit::textChanged, this, [this] { ShowHit(true); });
}

int FrmFind::Search(int from) {
  const QString what = text1_->text();
  if (what.isEmpty()) return -1;
  const mathpad::FindFlags flags =
      mathpad::FlagsOfOptionWord(mathpad::FindOptionWord(check1_->isChecked(), check2_->isChecked()));
  QTextDocument::FindFlags options;
  if (flags.wholeWord) options |= QTextDocument::FindWholeWords;
  if (flags.matchCase) options |= QTextDocument::FindCaseSensitively;
  const QTextCursor hit = editor_->document()->find(what, std::max(from, 0), options);
  if (hit.isNull()) return -1;
  editor_->setTextCursor(hit);
  return hit.selectionStart();
}

void FrmFind::ShowHit(bool hit) {
  findNextButton_->setEnabled(hit);
  replaceButton_->setEnabled(hit);
  replaceAllButton_->setEnabled(hit);
  if (hit && foundAt_ >= 0) editor_->setFocus();
}

void FrmFind::Find() {
  foundAt_ = Search(0);
  ShowHit(foundAt_ >= 0);
}

void FrmFind::FindNext() {
  const int from = foundAt_ >= 0 ? foundAt_ + static_cast<int>(text1_->text().size())
                                 : editor_->textCursor().selectionEnd();
  foundAt_ = Search(from);
  ShowHit(foundAt_ >= 0);
}

void FrmFind::Replace() {
  QTextCursor cursor = editor_->textCursor();
  cursor.insertText(text2_->text());
  editor_->setTextCursor(cursor);
  foundAt_ = Search(foundAt_ + 1);
  ShowHit(foundAt_ >= 0);
}

void FrmFind::ReplaceAll() {
  if (foundAt_ < 0) foundAt_ = Search(0);
  QTextCursor edit(editor_->document());
  edit.beginEditBlock();
  while (foundAt_ >= 0) {
    QTextCursor cursor = editor_->textCursor();
    cursor.insertText(text2_->text());
    editor_->setTextCursor(cursor);
    foundAt_ = Search(cursor.position());
  }
  edit.endEditBlock();
  ShowHit(false);
}

}  // namespace velmora::mathpad_qt
