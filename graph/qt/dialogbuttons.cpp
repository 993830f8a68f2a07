#include "graph/qt/dialogbuttons.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>

namespace velmora::graph_qt {

OkCancelRow MakeOkCancelRow(QDialog* dialog) {
  OkCancelRow keys;
  keys.ok = new QPushButton(QStringLiteral("OK"), dialog);
  keys.ok->setObjectName(QStringLiteral("Command1"));
  keys.ok->setDefault(true);
  keys.cancel = new QPushButton(QStringLiteral("Cancel"), dialog);
  keys.cancel->setObjectName(QStringLiteral("Command2"));
  keys.row = new QHBoxLayout;
  keys.row->addStretch(1);
  keys.row->addWidget(keys.ok);
  keys.row->addWidget(keys.cancel);
  QObject::connect(keys.cancel, &QPushButton::clicked, dialog, &QDialog::reject);
  return keys;
}

}  // namespace velmora::graph_qt
