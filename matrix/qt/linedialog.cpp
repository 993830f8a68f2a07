#include "matrix/qt/linedialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace velmora::matrix_qt {

std::optional<std::pair<std::string, std::string>> QtLineDialogs::Ask(const LineDialogCaptions& captions) {
  QDialog dialog(owner_);
  dialog.setWindowTitle(QString::fromStdString(captions.title));
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(new QLabel(QString::fromStdString(captions.size), &dialog));
  auto* form = new QFormLayout;
  auto* first = new QLineEdit(&dialog);
  first->setObjectName(QStringLiteral("txtRI"));
  auto* second = new QLineEdit(&dialog);
  second->setObjectName(QStringLiteral("txtCI"));
  auto* label1 = new QLabel(QString::fromStdString(captions.label1), &dialog);
  label1->setObjectName(QStringLiteral("lblSwap1"));
  auto* label2 = new QLabel(QString::fromStdString(captions.label2), &dialog);
  label2->setObjectName(QStringLiteral("lblSwap2"));
  form->addRow(label1, first);
  form->addRow(label2, second);
  layout->addLayout(form);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
  buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("Command1"));
  buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("Command2"));
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  layout->addWidget(buttons);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return std::make_pair(first->text().toStdString(), second->text().toStdString());
}

}  // namespace velmora::matrix_qt
