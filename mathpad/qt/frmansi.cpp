#include "mathpad/qt/frmansi.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QVBoxLayout>

#include "mathpad/symbolcodes.h"
#include "rtf/codepage.h"

namespace velmora::mathpad_qt {

namespace {

QString CharacterOf(int code) {
  const char32_t c = rtf::FromCp1252(static_cast<unsigned char>(code));
  return QString::fromUcs4(&c, 1);
}

}  // namespace

FrmAnsi::FrmAnsi(QWidget* owner) : QDialog(owner, Qt::Tool) {
  setObjectName(QStringLiteral("frmansi"));
  setWindowTitle(QStringLiteral("Insert Symbol"));
  setModal(false);
  combo1_ = new QComboBox(this);
  combo1_->setObjectName(QStringLiteral("Combo1"));
  combo1_->addItems(QFontDatabase::families());
  grid1_ = new QTableWidget((kLast - kFirst + 1 + kColumns - 1) / kColumns, kColumns, this);
  grid1_->setObjectName(QStringLiteral("Grid1"));
  grid1_->horizontalHeader()->hide();
  grid1_->verticalHeader()->hide();
  grid1_->horizontalHeader()->setDefaultSectionSize(26);
  grid1_->verticalHeader()->setDefaultSectionSize(26);
  grid1_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid1_->setSelectionMode(QAbstractItemView::SingleSelection);
  picture1_ = new QLabel(this);
  picture1_->setObjectName(QStringLiteral("Picture1"));
  picture1_->setFixedSize(72, 72);
  picture1_->setAlignment(Qt::AlignCenter);
  picture1_->setFrameShape(QFrame::Box);
  lblcodes_ = new QLabel(this);
  lblcodes_->setObjectName(QStringLiteral("lblcodes"));
  text1_ = new QLineEdit(this);
  text1_->setObjectName(QStringLiteral("Text1"));
  check1_ = new QCheckBox(QStringLiteral("OnTop"), this);
  check1_->setObjectName(QStringLiteral("Check1"));
  auto* insert = new QPushButton(QStringLiteral("&Insert"), this);
  insert->setObjectName(QStringLiteral("Command2"));
  auto* close = new QPushButton(QStringLiteral("&Close"), this);
  close->setObjectName(QStringLiteral("Command3"));
  sb1_ = new QStatusBar(this);
  sb1_->setObjectName(QStringLiteral("SB1"));
  sb1_->setSizeGripEnabled(false);

  auto* frame1 =
      new QGroupBox(QStringLiteral("Click on Character to Select or Double-Click to Insert"), this);
  frame1->setObjectName(QStringLiteral("Frame1"));
  auto* frameLayout = new QVBoxLayout(frame1);
  frameLayout->addWidget(grid1_);

  auto* side = new QVBoxLayout;
  side->addWidget(new QLabel(QStringLiteral("Symbol"), this));
  side->addWidget(combo1_);
  side->addWidget(new QLabel(QStringLiteral("Preview"), this));
  side->addWidget(picture1_);
  side->addWidget(new QLabel(QStringLiteral("Selected"), this));
  side->addWidget(lblcodes_);
  auto* textRow = new QHBoxLayout;
  textRow->addWidget(new QLabel(QStringLiteral("Text:"), this));
  textRow->addWidget(text1_);
  side->addLayout(textRow);
  side->addWidget(check1_);
  side->addStretch();
  side->addWidget(insert);
  side->addWidget(close);

  auto* top = new QHBoxLayout;
  top->addWidget(frame1, 1);
  top->addLayout(side);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(sb1_);

  FillGrid();
  connect(combo1_, &QComboBox::currentTextChanged, this, [this] { FillGrid(); });
  connect(grid1_, &QTableWidget::cellClicked, this, &FrmAnsi::CellClicked);
  connect(grid1_, &QTableWidget::cellDoubleClicked, this, [this](int row, int column) {
    CellClicked(row, column);
    InsertSelected();
  });
  connect(insert, &QPushButton::clicked, this, &FrmAnsi::InsertSelected);
  connect(close, &QPushButton::clicked, this, &QDialog::close);
  connect(check1_, &QCheckBox::toggled, this, [this](bool onTop) {
    setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
    show();
  });
  resize(660, 460);
}

void FrmAnsi::FillGrid() {
  QFont font(combo1_->currentText());
  font.setPointSize(12);
  grid1_->setFont(font);
  for (int code = kFirst; code <= kLast; ++code) {
    auto* cell = new QTableWidgetItem(CharacterOf(code));
    cell->setTextAlignment(Qt::AlignCenter);
    grid1_->setItem((code - kFirst) / kColumns, (code - kFirst) % kColumns, cell);
  }
  QFont large(combo1_->currentText());
  large.setPointSize(36);
  picture1_->setFont(large);
}

void FrmAnsi::CellClicked(int row, int column) { SelectCode(kFirst + row * kColumns + column); }

void FrmAnsi::SelectCode(int code) {
  if (code < kFirst || code > kLast) return;
  code_ = code;
  grid1_->setCurrentCell((code - kFirst) / kColumns, (code - kFirst) % kColumns);
  const QString character = CharacterOf(code);
  picture1_->setText(character);
  text1_->setText(character);
  const mathpad::SymbolCodes codes = mathpad::CodesOf(static_cast<unsigned>(code), character.toStdString());
  lblcodes_->setText(QString::fromStdString(codes.codes));
  sb1_->showMessage(QString::fromStdString(codes.status + "   " + codes.keyboard));
}

QString FrmAnsi::StatusText() const { return sb1_->currentMessage(); }

void FrmAnsi::InsertSelected() {
  if (code_ < 0) return;
  emit Insert(CharacterOf(code_), combo1_->currentText());
}

}  // namespace velmora::mathpad_qt
