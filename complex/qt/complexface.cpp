#include "complex/qt/complexface.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "complex/complextables.h"
#include "platform/qt/qtstring.h"

namespace velmora::complex_qt {
namespace {

using qtplatform::ToQString;

// The look of a pocket calculator: a dark case, a green liquid-crystal
// display, light digit keys, amber operator keys and a red OFF key. Sizes are
// in em so that they follow the desktop's font and scale.
constexpr const char* kStyle = R"(
#frmComplex { background: #2f343b; }
#frmComplex QLabel#brand { color: #c9ced6; font-weight: bold; letter-spacing: 2px; }
#frmComplex QCheckBox { color: #e9ecef; spacing: 0.3em; }
QFrame#Display { background: #c7d5ae; border: 2px solid #161a1e; border-radius: 0.6em; }
QFrame#Display QLabel { color: #1f2b17; background: transparent; }
QFrame#Display QLabel[role="caption"] { color: #4d5c3f; }
QFrame#Display QLabel[role="part"] { border: 1px solid transparent; border-radius: 0.25em; padding: 0 0.2em; }
QFrame#Display QLabel[role="part"][active="true"] { border-color: #1f2b17; background: #b4c497; }
QFrame#Display QLineEdit { color: #1f2b17; background: #bccba1; border: none; border-radius: 0.2em;
                           padding: 0 0.2em; }
QFrame#Display QLabel#Readout { background: #b4c497; border-radius: 0.25em; padding: 0.1em 0.4em; }
#frmComplex QPushButton { color: #f4f5f7; background: #4a515b; border: 1px solid #161a1e;
                          border-bottom-width: 3px; border-radius: 0.45em; padding: 0.45em 0.6em; }
#frmComplex QPushButton:pressed { border-bottom-width: 1px; background: #3d434b; }
#frmComplex QPushButton:disabled { color: #8a9099; }
#frmComplex QPushButton[role="digit"] { background: #e6e8eb; color: #1b1e22; font-weight: bold; }
#frmComplex QPushButton[role="digit"]:pressed { background: #c9ccd1; }
#frmComplex QPushButton[role="operator"] { background: #e08a2c; color: #1b1e22; font-weight: bold; }
#frmComplex QPushButton[role="memory"] { background: #3a6f73; }
#frmComplex QPushButton[role="part"] { background: #5b6470; font-weight: bold; }
#frmComplex QPushButton[role="part"]:checked { background: #f2c14e; color: #1b1e22; }
#frmComplex QPushButton[role="off"] { background: #b8322a; font-weight: bold; }
#frmComplex QPushButton[role="wide"] { background: #39414a; }
#frmComplex QPushButton[role="calculate"] { background: #2d6cb5; font-weight: bold; }
#frmComplex QComboBox { padding: 0.2em 0.4em; }
)";

QLabel* MakeLabel(QWidget* parent, const char* name, const QString& text, const char* role = nullptr) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(QString::fromLatin1(name));
  if (role != nullptr) label->setProperty("role", QString::fromLatin1(role));
  return label;
}

// The grid of a key page: four columns of equal width, tight to the page.
QGridLayout* KeyGrid(QWidget* page) {
  auto* grid = new QGridLayout(page);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(4);
  for (int column = 0; column < 4; ++column) grid->setColumnStretch(column, 1);
  return grid;
}

QPushButton* MakeKey(QWidget* parent, const QString& name, const QString& caption,
                     const char* role = nullptr) {
  auto* key = new QPushButton(caption, parent);
  key->setObjectName(name);
  // Keys never take the focus from the keyboard's own road through the
  // window; the calculator's keys work wherever the focus stands.
  key->setFocusPolicy(Qt::NoFocus);
  key->setAutoDefault(false);
  // A key may grow with the window but never below its caption's size.
  key->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
  if (role != nullptr) key->setProperty("role", QString::fromLatin1(role));
  return key;
}

QFont Scaled(const QFont& base, double factor, bool bold = false) {
  QFont font = base;
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * factor);
  } else {
    font.setPixelSize(static_cast<int>(font.pixelSize() * factor));
  }
  font.setBold(bold);
  return font;
}

// The captions of the direct road's keys; the operation words stay what
// lblSta shows.
struct OperationKey {
  const char* control;
  const char* caption;
  const char* tip;
};

constexpr OperationKey kFunctionKeys[] = {
    {"cmdSin", "Sin", "Sine of Complex 1"},
    {"cmdCos", "Cos", "Cosine of Complex 1"},
    {"cmdtang", "Tan", "Tangent of Complex 1"},
    {"cmdLn", "Ln", "Natural logarithm of Complex 1"},
    {"cmdSinh", "Sinh", "Hyperbolic sine of Complex 1"},
    {"cmdCosh", "Cosh", "Hyperbolic cosine of Complex 1"},
    {"cmdTanh", "Tanh", "Hyperbolic tangent of Complex 1"},
    {"cmde", "e^z1", "e to the power Complex 1"},
    {"Command2", "z1\u00b2", "Complex 1 squared"},
    {"Command4", "z1\u00b3", "Complex 1 cubed"},
    {"Command3", "\u221az1", "Square root of Complex 1"},
    {"cmdExp", "z1^z2", "Complex 1 to the power Complex 2"},
    {"pi", "|z1|", "Magnitude of Complex 1"},
    {"cmdOver", "1/z1", "Inverse of Complex 1"},
    {"Command1", "Arg", "Argument of Complex 1"},
    {"cmdlog", "Log", "Logarithm of Complex 1"},
};

constexpr OperationKey kOperatorKeys[] = {
    {"cmddeljenje", "\u00f7", "Complex 1 / Complex 2"},
    {"cmdmnozenje", "\u00d7", "Complex 1 * Complex 2"},
    {"cmdrazlika", "\u2212", "Complex 1 - Complex 2"},
    {"cmdzbir", "+", "Complex 1 + Complex 2"},
};

void BuildDisplay(QWidget& window, ComplexFace& f) {
  f.display = new QFrame(&window);
  f.display->setObjectName(QStringLiteral("Display"));
  auto* outer = new QVBoxLayout(f.display);
  const QFontMetrics metrics(window.font());
  const int pad = metrics.height() / 2;
  outer->setContentsMargins(pad, pad / 2, pad, pad / 2);
  outer->setSpacing(2);

  f.complexRows = new QWidget(f.display);
  auto* grid = new QGridLayout(f.complexRows);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(pad / 2);
  grid->setVerticalSpacing(1);
  const QFont big = Scaled(window.font(), 1.35, true);
  f.Label1c = MakeLabel(f.complexRows, "Label1c", QStringLiteral("a + ib ="), "caption");
  f.lblZ1 = MakeLabel(f.complexRows, "lblZ1", QString());
  f.Label2c = MakeLabel(f.complexRows, "Label2c", QStringLiteral("c + id ="), "caption");
  f.lblZ2 = MakeLabel(f.complexRows, "lblZ2", QString());
  for (QLabel* z : {f.lblZ1, f.lblZ2}) {
    z->setFont(big);
    z->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    z->setTextInteractionFlags(Qt::TextSelectableByMouse);
  }
  grid->addWidget(f.Label1c, 0, 0);
  grid->addWidget(f.lblZ1, 0, 1);
  grid->addWidget(f.Label2c, 1, 0);
  grid->addWidget(f.lblZ2, 1, 1);

  // The four part fields in one row, each after its letter.
  auto* partsRow = new QHBoxLayout();
  partsRow->setSpacing(pad / 3);
  const char* partNames[] = {"lbla", "lblb", "lblc", "lbld"};
  const char* letters[] = {"a", "b", "c", "d"};
  for (std::size_t i = 0; i < 4; ++i) {
    f.partCaptions[i] = MakeLabel(f.complexRows, "", QString::fromLatin1(letters[i]), "caption");
    f.partCaptions[i]->setObjectName(QStringLiteral("Label_") + QString::fromLatin1(letters[i]));
    f.parts[i] = MakeLabel(f.complexRows, partNames[i], QString(), "part");
    f.parts[i]->setMinimumWidth(metrics.horizontalAdvance(QStringLiteral("-0.000000")));
    f.parts[i]->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    partsRow->addWidget(f.partCaptions[i]);
    partsRow->addWidget(f.parts[i], 1);
  }
  grid->addLayout(partsRow, 2, 0, 1, 2);

  auto* stateRow = new QHBoxLayout();
  f.lblSta = MakeLabel(f.complexRows, "lblSta", QString());
  f.lblSta->setFont(Scaled(window.font(), 1.0, true));
  f.Label4 = MakeLabel(f.complexRows, "Label4", QStringLiteral("M"));
  f.Label4->setFont(Scaled(window.font(), 1.0, true));
  f.Label4->setToolTip(QStringLiteral("Memory"));
  f.lblMemory1 = MakeLabel(f.complexRows, "lblMemory1", QString());
  stateRow->addWidget(f.lblSta);
  stateRow->addStretch(1);
  stateRow->addWidget(f.Label4);
  stateRow->addSpacing(pad / 2);
  stateRow->addWidget(f.lblMemory1);
  grid->addLayout(stateRow, 3, 0, 1, 2);

  auto* equals = MakeLabel(f.complexRows, "LabelEquals", QStringLiteral("="), "caption");
  equals->setFont(Scaled(window.font(), 1.6, true));
  f.LabelRezultat = MakeLabel(f.complexRows, "LabelRezultat", QString());
  f.LabelRezultat->setFont(Scaled(window.font(), 1.6, true));
  f.LabelRezultat->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  f.LabelRezultat->setTextInteractionFlags(Qt::TextSelectableByMouse);
  grid->addWidget(equals, 4, 0);
  grid->addWidget(f.LabelRezultat, 4, 1);

  auto* resultRow = new QHBoxLayout();
  f.TextResultReal = new QLineEdit(f.complexRows);
  f.TextResultReal->setObjectName(QStringLiteral("TextResultReal"));
  f.TextResultImaginary = new QLineEdit(f.complexRows);
  f.TextResultImaginary->setObjectName(QStringLiteral("TextResultImaginary"));
  resultRow->addWidget(MakeLabel(f.complexRows, "LabelRe", QStringLiteral("Re"), "caption"));
  resultRow->addWidget(f.TextResultReal, 1);
  resultRow->addWidget(MakeLabel(f.complexRows, "LabelIm", QStringLiteral("Im"), "caption"));
  resultRow->addWidget(f.TextResultImaginary, 1);
  for (QLineEdit* edit : {f.TextResultReal, f.TextResultImaginary}) {
    edit->setReadOnly(true);
    edit->setFocusPolicy(Qt::ClickFocus);
  }
  grid->addLayout(resultRow, 5, 0, 1, 2);

  f.LabelRule = MakeLabel(f.complexRows, "LabelRule", QString(), "caption");
  f.LabelRule->setWordWrap(true);
  f.LabelRule->setFont(Scaled(window.font(), 0.9));
  grid->addWidget(f.LabelRule, 6, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  outer->addWidget(f.complexRows);

  f.Readout = MakeLabel(f.display, "Readout", QString());
  f.Readout->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  f.Readout->setToolTip(QStringLiteral("Click and switch to Simple Mode"));
  f.Readout->setCursor(Qt::PointingHandCursor);
  outer->addWidget(f.Readout);
}

QWidget* BuildComplexFunctions(QWidget* parent, ComplexFace& f) {
  auto* page = new QWidget(parent);
  auto* grid = KeyGrid(page);
  int slot = 0;
  for (const OperationKey& key : kFunctionKeys) {
    QPushButton* button = MakeKey(page, QString::fromLatin1(key.control), QString::fromUtf8(key.caption));
    button->setToolTip(QString::fromLatin1(key.tip));
    f.operations[button->objectName()] = button;
    grid->addWidget(button, slot / 4, slot % 4);
    ++slot;
  }
  f.cmdconv = MakeKey(page, QStringLiteral("cmdconv"), QStringLiteral("Conv"), "wide");
  f.cmdconv->setToolTip(QStringLiteral("Replace, swap or conjugate the operands"));
  grid->addWidget(f.cmdconv, slot / 4, 0, 1, 4);
  return page;
}

QWidget* BuildRealFunctions(QWidget* parent, ComplexFace& f) {
  auto* page = new QWidget(parent);
  auto* grid = KeyGrid(page);
  const char* direct[][2] = {{"cmdsing", "sin"}, {"cmdcosr", "cos"}, {"cmdtanr", "tan"}, {"cmdcotg", "cot"}};
  const char* inverse[][2] = {
      {"cmdasin", "asin"}, {"cmdacos", "acos"}, {"cmdatan", "atan"}, {"cmdacot", "acot"}};
  for (int i = 0; i < 4; ++i) {
    const auto at = static_cast<std::size_t>(i);
    f.realFunctions[at] = MakeKey(page, QString::fromLatin1(direct[i][0]), QString::fromLatin1(direct[i][1]));
    f.inverseFunctions[at] =
        MakeKey(page, QString::fromLatin1(inverse[i][0]), QString::fromLatin1(inverse[i][1]));
    f.inverseFunctions[at]->hide();
    // Two big keys a row, as the keypad's rows are high.
    grid->addWidget(f.realFunctions[at], i / 2, (i % 2) * 2, 1, 2);
    grid->addWidget(f.inverseFunctions[at], i / 2, (i % 2) * 2, 1, 2);
  }
  f.Check1 = new QCheckBox(QStringLiteral("inv"), page);
  f.Check1->setObjectName(QStringLiteral("Check1"));
  f.Check2 = new QCheckBox(QStringLiteral("deg"), page);
  f.Check2->setObjectName(QStringLiteral("Check2"));
  grid->addWidget(f.Check1, 2, 0, 1, 2, Qt::AlignCenter);
  grid->addWidget(f.Check2, 2, 2, 1, 2, Qt::AlignCenter);
  auto* mirrorCaption = new QLabel(QStringLiteral("The readout feeds part:"), page);
  mirrorCaption->setObjectName(QStringLiteral("LabelMirror"));
  mirrorCaption->setStyleSheet(QStringLiteral("color: #c9ced6;"));
  grid->addWidget(mirrorCaption, 3, 0, 1, 4);
  const char* mirrors[][2] = {{"checka", "a"}, {"checkb", "b"}, {"checkc", "c"}, {"checkd", "d"}};
  for (int i = 0; i < 4; ++i) {
    auto* box = new QCheckBox(QString::fromLatin1(mirrors[i][1]), page);
    box->setObjectName(QString::fromLatin1(mirrors[i][0]));
    box->setFocusPolicy(Qt::NoFocus);
    f.mirrors[static_cast<std::size_t>(i)] = box;
    grid->addWidget(box, 4, i, Qt::AlignCenter);
  }
  f.Check1->setFocusPolicy(Qt::NoFocus);
  f.Check2->setFocusPolicy(Qt::NoFocus);
  return page;
}

QWidget* BuildKeypad(QWidget* parent, ComplexFace& f) {
  auto* pad = new QWidget(parent);
  auto* grid = KeyGrid(pad);
  const int rows[3][3] = {{7, 8, 9}, {4, 5, 6}, {1, 2, 3}};
  for (int r = 0; r < 3; ++r) {
    for (int c = 0; c < 3; ++c) {
      const int digit = rows[r][c];
      f.Number[static_cast<std::size_t>(digit)] =
          MakeKey(pad, ControlName("Number", digit), QString::number(digit), "digit");
      grid->addWidget(f.Number[static_cast<std::size_t>(digit)], r, c);
    }
  }
  f.Number[0] = MakeKey(pad, ControlName("Number", 0), QStringLiteral("0"), "digit");
  f.Decimal = MakeKey(pad, QStringLiteral("Decimal"), QStringLiteral("."), "digit");
  f.cmdPlusMinus = MakeKey(pad, QStringLiteral("cmdPlusMinus"), QStringLiteral("+/-"), "digit");
  grid->addWidget(f.Number[0], 3, 0);
  grid->addWidget(f.Decimal, 3, 1);
  grid->addWidget(f.cmdPlusMinus, 3, 2);
  int row = 0;
  for (const OperationKey& key : kOperatorKeys) {
    QPushButton* button =
        MakeKey(pad, QString::fromLatin1(key.control), QString::fromUtf8(key.caption), "operator");
    button->setToolTip(QString::fromLatin1(key.tip));
    f.operations[button->objectName()] = button;
    grid->addWidget(button, row++, 3);
  }
  f.cmdClearAll = MakeKey(pad, QStringLiteral("cmdClearAll"), QStringLiteral(" Clear All "), "off");
  f.CancelEntry = MakeKey(pad, QStringLiteral("CancelEntry"), QStringLiteral("CE"), "memory");
  f.CancelEntry->setToolTip(QStringLiteral("Clear Last Entry"));
  grid->addWidget(f.CancelEntry, 4, 0);
  grid->addWidget(f.cmdClearAll, 4, 1, 1, 3);
  return pad;
}

}  // namespace

QString ControlName(const char* name, int index) {
  QString text = QString::fromLatin1(name);
  if (index >= 0) text += QLatin1Char('(') + QString::number(index) + QLatin1Char(')');
  return text;
}

ComplexFace BuildFace(QWidget& window) {
  ComplexFace f;
  window.setStyleSheet(QString::fromLatin1(kStyle));
  auto* layout = new QVBoxLayout(&window);
  const int pad = QFontMetrics(window.font()).height() / 2;
  layout->setContentsMargins(pad, pad, pad, pad);
  layout->setSpacing(pad / 2 + 2);

  // The case's top: the menu key, the name plate and OFF.
  auto* top = new QHBoxLayout();
  f.cmdMenu = MakeKey(&window, QStringLiteral("cmdMenu"), QStringLiteral("Complex \u25be"), "wide");
  f.cmdMenu->setToolTip(QStringLiteral("Other tools, panel and help"));
  auto* brand = MakeLabel(&window, "brand", QStringLiteral("VELMORA  z = a + ib"));
  brand->setAlignment(Qt::AlignCenter);
  f.cmdOff = MakeKey(&window, QStringLiteral("cmdOff"), QStringLiteral("OFF"), "off");
  top->addWidget(f.cmdMenu);
  top->addWidget(brand, 1);
  top->addWidget(f.cmdOff);
  layout->addLayout(top);

  BuildDisplay(window, f);
  layout->addWidget(f.display);

  // The part keys and the memory.
  auto* partRow = new QHBoxLayout();
  partRow->setSpacing(4);
  const char* partTips[] = {"Real A of Z1", "Imaginary B of Z1", "Real B of Z2", "Imaginary D of Z2"};
  const char* partCaptions[] = {"A", "B", "C", "D"};
  for (int i = 0; i < 4; ++i) {
    QPushButton* key =
        MakeKey(&window, ControlName("cmdBroj", i + 1), QString::fromLatin1(partCaptions[i]), "part");
    key->setCheckable(true);
    key->setToolTip(QString::fromLatin1(partTips[i]));
    f.cmdBroj[static_cast<std::size_t>(i)] = key;
    partRow->addWidget(key, 1);
  }
  partRow->addSpacing(pad);
  f.cmdMemory3 = MakeKey(&window, QStringLiteral("cmdMemory3"), QStringLiteral("MC"), "memory");
  f.cmdMemory3->setToolTip(QStringLiteral("Clear Memory"));
  f.cmdMemory2 = MakeKey(&window, QStringLiteral("cmdMemory2"), QStringLiteral("MR"), "memory");
  f.cmdMemory2->setToolTip(QStringLiteral("Read Memory"));
  f.cmdMemory1 = MakeKey(&window, QStringLiteral("cmdMemory1"), QStringLiteral("M+"), "memory");
  f.cmdMemory1->setToolTip(QStringLiteral("Add to Memory"));
  for (QPushButton* key : {f.cmdMemory3, f.cmdMemory2, f.cmdMemory1}) partRow->addWidget(key, 1);
  layout->addLayout(partRow);

  // The body: function keys on the left, the keypad on the right.
  auto* body = new QHBoxLayout();
  body->setSpacing(pad);
  f.functionKeys = new QStackedWidget(&window);
  f.functionKeys->setObjectName(QStringLiteral("FunctionKeys"));
  f.functionKeys->addWidget(BuildComplexFunctions(f.functionKeys, f));
  f.functionKeys->addWidget(BuildRealFunctions(f.functionKeys, f));
  body->addWidget(f.functionKeys, 1);
  body->addWidget(BuildKeypad(&window, f), 1);
  layout->addLayout(body, 1);

  // The function list with CALCULATE !.
  f.listRow = new QWidget(&window);
  auto* list = new QHBoxLayout(f.listRow);
  list->setContentsMargins(0, 0, 0, 0);
  f.ComboFunction = new QComboBox(f.listRow);
  f.ComboFunction->setObjectName(QStringLiteral("ComboFunction"));
  for (const complex::FunctionEntry& entry : complex::ComboFunctionEntries())
    f.ComboFunction->addItem(ToQString(entry.name));
  f.ComboFunction->setFocusPolicy(Qt::ClickFocus);
  f.CommandCalculate = MakeKey(f.listRow, QStringLiteral("CommandCalculate"),
                               ToQString(complex::kCalculateCaption), "calculate");
  list->addWidget(f.ComboFunction, 1);
  list->addWidget(f.CommandCalculate);
  layout->addWidget(f.listRow);

  auto* bottom = new QHBoxLayout();
  f.cmdcopy = MakeKey(&window, QStringLiteral("cmdcopy"), QStringLiteral(" Copy Result "), "wide");
  f.cmdPan = MakeKey(&window, QStringLiteral("cmdPan"), QStringLiteral("Toggle Panel"), "wide");
  bottom->addWidget(f.cmdcopy, 1);
  bottom->addWidget(f.cmdPan, 1);
  layout->addLayout(bottom);
  return f;
}

void ShowMode(ComplexFace& face, bool simple) {
  face.complexRows->setVisible(!simple);
  face.listRow->setVisible(!simple);
  face.functionKeys->setCurrentIndex(simple ? 1 : 0);
  const QFont base = face.display->font();
  face.Readout->setFont(simple ? Scaled(base, 2.2, true) : Scaled(base, 1.0));
  face.Readout->setMinimumHeight(simple ? QFontMetrics(face.Readout->font()).height() * 2 : 0);
  face.Readout->setToolTip(simple ? QStringLiteral("Click and switch back to Complex Mode")
                                  : QStringLiteral("Click and switch to Simple Mode"));
}

}  // namespace velmora::complex_qt
