// The Complex Calculator window through its real widgets: keys by mouse and
// keyboard, the operations of both roads with their messages, the popup,
// memory, the hover texts, and no clipped caption at larger fonts.
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPushButton>

#include "tests/complex/qt/complexwindowfixture.h"

namespace velmora::complex_qt {

void ComplexWindowTest::SelectFunction(const char* entry) {
  auto* combo = W().findChild<QComboBox*>(QStringLiteral("ComboFunction"));
  ASSERT_NE(combo, nullptr);
  const int index = combo->findText(QString::fromLatin1(entry));
  ASSERT_GE(index, 0) << entry;
  combo->setCurrentIndex(index);
  emit combo->textActivated(combo->currentText());
}

namespace {

TEST_F(ComplexWindowTest, AtLoadTheWindowShowsItsDesignValues) {
  EXPECT_EQ(W().windowTitle(), QStringLiteral("Complex Calculator"));
  EXPECT_EQ(Text("lblZ1"), "0+i0");
  EXPECT_EQ(Text("lblZ2"), "0+i0");
  EXPECT_EQ(Text("Readout"), "0.");
  EXPECT_EQ(Text("LabelRule"), "(a+i*b)+(c+i*d) = (a+c)+i*(b+d)");
  EXPECT_EQ(Key("CommandCalculate")->text(), QStringLiteral("CALCULATE !"));
  EXPECT_EQ(Key("cmdOff")->text(), QStringLiteral("OFF"));
  EXPECT_EQ(Key("cmdClearAll")->text(), QStringLiteral(" Clear All "));
  EXPECT_EQ(Key("cmdcopy")->text(), QStringLiteral(" Copy Result "));
  EXPECT_EQ(Key("CancelEntry")->text(), QStringLiteral("CE"));
  EXPECT_TRUE(Key("cmdBroj", 1)->isChecked());
  EXPECT_FALSE(Label("Label4")->isVisible());  // no memory
  auto* inv = W().findChild<QCheckBox*>(QStringLiteral("Check1"));
  auto* deg = W().findChild<QCheckBox*>(QStringLiteral("Check2"));
  ASSERT_TRUE(inv != nullptr && deg != nullptr);
  EXPECT_EQ(inv->text(), QStringLiteral("inv"));
  EXPECT_EQ(deg->text(), QStringLiteral("deg"));
  EXPECT_FALSE(inv->isChecked());
  EXPECT_FALSE(deg->isChecked());
}

TEST_F(ComplexWindowTest, ThePartKeysCarryTheirToolTipsAsSpelled) {
  const char* tips[] = {"Real A of Z1", "Imaginary B of Z1", "Real B of Z2", "Imaginary D of Z2"};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(Key("cmdBroj", i + 1)->toolTip().toStdString(), tips[i]);
  EXPECT_EQ(Label("Readout")->toolTip(), QStringLiteral("Click and switch to Simple Mode"));
}

TEST_F(ComplexWindowTest, ThePartKeysActAsARadioGroup) {
  Click("cmdBroj", 3);
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(Key("cmdBroj", i)->isChecked(), i == 3) << i;
  // A click on the key that is down keeps it down.
  Click("cmdBroj", 3);
  EXPECT_TRUE(Key("cmdBroj", 3)->isChecked());
}

TEST_F(ComplexWindowTest, DigitsAfterClearAllByMouse) {
  box.Answer(platform::MsgResult::Ok);
  Click("cmdClearAll");
  box.Clear();
  Click("Number", 5);
  EXPECT_EQ(Text("lblZ1"), "5+j0");
  Click("cmdBroj", 2);
  Click("Number", 4);
  EXPECT_EQ(Text("lblZ1"), "5+j4");
  EXPECT_EQ(Text("lbla"), "5");
  EXPECT_EQ(Text("lblb"), "4");
}

TEST_F(ComplexWindowTest, DigitsAfterClearAllByKeyboard) {
  ClearAll();
  Keypad(Qt::Key_5);
  EXPECT_EQ(Text("lblZ1"), "5+j0");
  Type(Qt::Key_B);
  Keypad(Qt::Key_4);
  EXPECT_EQ(Text("lblZ1"), "5+j4");
  EXPECT_TRUE(Key("cmdBroj", 2)->isChecked());
}

TEST_F(ComplexWindowTest, TheSignKeyOnAZeroImaginaryPartEmptiesIt) {
  ClearAll();
  Enter("A5B");
  Click("cmdPlusMinus");
  EXPECT_EQ(Text("lblZ1"), "5+j");
  EXPECT_EQ(Text("lblb"), "");
}

TEST_F(ComplexWindowTest, DeleteAsksBeforeClearing) {
  Enter("A7B8");
  box.Answer(platform::MsgResult::Cancel);
  Type(Qt::Key_Delete);
  ASSERT_EQ(box.Boxes().size(), 1u);
  EXPECT_EQ(box.Boxes()[0].text, "Clear All?");
  EXPECT_EQ(box.Boxes()[0].icon, platform::MsgIcon::Critical);
  EXPECT_EQ(box.Boxes()[0].buttons, platform::MsgButtons::OkCancel);
  EXPECT_EQ(Text("lblZ1"), "7+j8");  // Cancel: nothing changed
  box.Clear();
  box.Answer(platform::MsgResult::Ok);
  Type(Qt::Key_Delete);
  EXPECT_EQ(Text("lblZ1"), "0+j0");
  EXPECT_EQ(Text("lblZ2"), "0+j0");
  EXPECT_TRUE(Key("cmdBroj", 1)->isChecked());
}

TEST_F(ComplexWindowTest, MainRowDigitsAreNotMapped) {
  ClearAll();
  Type(Qt::Key_5);
  EXPECT_EQ(Text("lblZ1"), "0+j0");
  Keypad(Qt::Key_5);
  EXPECT_EQ(Text("lblZ1"), "5+j0");
}

TEST_F(ComplexWindowTest, KeysWorkWhereverTheFocusStands) {
  ClearAll();
  auto* combo = W().findChild<QComboBox*>(QStringLiteral("ComboFunction"));
  auto* real = W().findChild<QLineEdit*>(QStringLiteral("TextResultReal"));
  QWidget* places[] = {combo, real, Key("Number", 7), Key("cmdSin"), Label("lblZ1")};
  int digit = 1;
  for (QWidget* at : places) {
    ASSERT_NE(at, nullptr);
    Type(Qt::Key_C, Qt::NoModifier, at);
    Keypad(static_cast<Qt::Key>(Qt::Key_0 + digit), at);
    ++digit;
  }
  EXPECT_EQ(Text("lblZ2"), "12345+j0");
  EXPECT_EQ(combo->currentText(), QStringLiteral("Addition"));  // the letter did not search the list
}

struct OperatorKeyCase {
  Qt::Key key;
  const char* word;
  const char* result;
  const char* why;
};

TEST_F(ComplexWindowTest, KeypadOperatorsRunTheirOperations) {
  const OperatorKeyCase cases[] = {
      {Qt::Key_Plus, "z1+z2", "4+j2", "(3+j4)+(1-j2)"},
      {Qt::Key_Minus, "z1-z2", "2+j6", "(3+j4)-(1-j2)"},
      {Qt::Key_Asterisk, "z1*z2", "11+j-2", "(3+j4)*(1-j2)"},
      {Qt::Key_Slash, "z1/z2", "-1+j2", "(3+j4)/(1-j2)"},
  };
  ClearAll();
  Enter("A3B4C1D2~");
  EXPECT_EQ(Text("lblZ2"), "1+j-2");
  for (const auto& c : cases) {
    Keypad(c.key);
    EXPECT_EQ(Text("lblSta"), c.word) << c.why;
    EXPECT_EQ(Text("LabelRezultat"), c.result) << c.why;
  }
  EXPECT_TRUE(box.Boxes().empty());
}

TEST_F(ComplexWindowTest, OperationKeysByMouseShowTheResultFields) {
  ClearAll();
  Enter("A3B4");
  Click("pi");  // the magnitude
  EXPECT_EQ(Text("lblSta"), "Abs");
  EXPECT_EQ(Text("LabelRezultat"), "5");
  // The square goes through the rounded logarithm and exponential.
  Click("Command2");
  EXPECT_EQ(Text("lblSta"), "z1^2");
  EXPECT_EQ(Text("LabelRezultat"), "-6.999991+j24.000007");
  auto* real = W().findChild<QLineEdit*>(QStringLiteral("TextResultReal"));
  auto* imaginary = W().findChild<QLineEdit*>(QStringLiteral("TextResultImaginary"));
  EXPECT_EQ(real->text(), QStringLiteral("-6.999991"));
  EXPECT_EQ(imaginary->text(), QStringLiteral("24.000007"));
}

struct PowerCase {
  const char* z2keys;
  const char* result;  // "" when refused
  const char* why;
};

TEST_F(ComplexWindowTest, PowersOfZeroOnTheListRoad) {
  const PowerCase cases[] = {
      {"C2", "0+j0", "(0 + i0) ^ (2 + i0) gives 0"},
      {"C0", "1+j0", "(0 + i0) ^ (0 + i0) gives 1"},
      {"C1D1", "1+j0", "(0 + i0) ^ (1 + i1): the logarithm of zero is 0, so e^0"},
  };
  for (const auto& c : cases) {
    ClearAll();
    Enter(c.z2keys);
    SelectFunction("(Complex 1) ^ (Complex 2)");
    Click("CommandCalculate");
    EXPECT_EQ(Text("LabelRezultat"), c.result) << c.why;
    EXPECT_TRUE(box.Boxes().empty()) << c.why;
  }
  EXPECT_EQ(Text("LabelRule"), "(a+i*b)^(c+i*d) = e ^ [(c+i*d)*log(a+i*b)]");
  EXPECT_EQ(Key("CommandCalculate")->text(), QStringLiteral("CALCULATE !"));
  // A negative real power of zero is refused and the earlier result stays.
  ClearAll();
  Enter("C1~");
  SelectFunction("(Complex 1) ^ (Complex 2)");
  Click("CommandCalculate");
  ExpectBox("You Cannot Raise <0,0> To A Negative Power", "Power Error");
}

// A box that reads the caption of CALCULATE ! at the moment it is shown.
class CaptionPeek final : public platform::MessageBox {
 public:
  FrmComplex* window = nullptr;
  QString seen;
  platform::MsgResult Show(const std::string&, const std::string&, platform::MsgIcon,
                           platform::MsgButtons) override {
    seen = window->Button("CommandCalculate")->text();
    return platform::MsgResult::Ok;
  }
};

TEST_F(ComplexWindowTest, TheCalculateKeyReadsDoneWhileItRuns) {
  CaptionPeek peek;
  peek.window = new FrmComplex(nullptr, ComplexServices{&peek, &tools, nullptr, QString()});
  auto* combo = peek.window->findChild<QComboBox*>(QStringLiteral("ComboFunction"));
  combo->setCurrentIndex(combo->findText(QStringLiteral("Division")));
  peek.window->Button("CommandCalculate")->click();  // 0 + i0 divides by zero: a box
  EXPECT_EQ(peek.seen, QStringLiteral("Done"));
  EXPECT_EQ(peek.window->Button("CommandCalculate")->text(), QStringLiteral("CALCULATE !"));
  delete peek.window;
}

TEST_F(ComplexWindowTest, DivisionByZeroDiffersBetweenTheRoads) {
  ClearAll();
  Enter("A3B4");
  SelectFunction("Division");
  Click("CommandCalculate");
  ExpectBox("Undefined", "Error.");
  Keypad(Qt::Key_Slash);
  ExpectBox("#IND", "Error.");
}

struct BaseCase {
  const char* z2keys;
  const char* message;  // "" when it goes through
  const char* why;
};

TEST_F(ComplexWindowTest, BaseOneIsRefusedOnlyForExactlyOnePlusI0) {
  const BaseCase cases[] = {
      {"C1", "Base 1 + i0 . Undefined.", "base 1 + i0"},
      {"C1D1", "", "base 1 + i1 goes through"},
      {"C0", "Base  0 + i0 . Undefined.", "base 0 + i0"},
  };
  for (const auto& c : cases) {
    ClearAll();
    Enter("A2");
    Enter(c.z2keys);
    Click("cmdlog");
    ASSERT_TRUE(W().PopupMenu()->isVisible()) << c.why;
    Action("mnulog2")->trigger();
    W().PopupMenu()->hide();
    if (*c.message != '\0') {
      ExpectBox(c.message, "Logarithm Error");
    } else {
      EXPECT_TRUE(box.Boxes().empty()) << c.why;
      EXPECT_EQ(Text("lblSta"), "LogBase") << c.why;
    }
  }
  // The list road has its own words for base 1.
  ClearAll();
  Enter("A2C1");
  SelectFunction("Log (Complex 1) [base (Complex 2)]");
  Click("CommandCalculate");
  ExpectBox("Log (Base <1,0>) Is Undefined", "Logarithm Error");
}

TEST_F(ComplexWindowTest, TheLnKeyAndTheListRefuseTheLogarithmOfZero) {
  ClearAll();
  Click("cmdLn");
  ExpectBox("Log of 0 + i0 is undefined.", "Error");
  SelectFunction("Log (Complex 1)");
  Click("CommandCalculate");
  ExpectBox("Log <0,0> Is Undefined", "Logarithm Error");
}

TEST_F(ComplexWindowTest, SingleOperandEntriesHideComplexTwosParts) {
  SelectFunction("Sin (Complex 1)");
  Click("CommandCalculate");
  EXPECT_FALSE(Label("lblc")->isVisible());
  EXPECT_FALSE(Label("lbld")->isVisible());
  EXPECT_FALSE(Label("Label2c")->isVisible());
  EXPECT_EQ(Text("LabelRule"), "Sin(a+i*b) = {e^[i*(a+i*b)]-e^[-i*(a+i*b)]}/(2*i)");
  SelectFunction("Addition");
  Click("CommandCalculate");
  EXPECT_TRUE(Label("lblc")->isVisible());
  EXPECT_TRUE(Label("Label2c")->isVisible());
}

TEST_F(ComplexWindowTest, EachPopupKeyShowsItsOwnEntries) {
  struct Case {
    const char* key;
    std::vector<std::string> entries;
  };
  const Case cases[] = {
      {"cmdconv", {"mnur1", "mnur2", "mnuswap", "mnucon1", "mnucon2"}},
      {"Command1", {"mnugrad", "mnugdeg"}},
      {"cmdlog", {"mnulog1", "mnulog2"}},
      {"cmdMemory2", {"mnuasA", "mnuasC"}},
  };
  for (const auto& c : cases) {
    Click(c.key);
    EXPECT_TRUE(W().PopupMenu()->isVisible()) << c.key;
    EXPECT_EQ(VisibleEntries(W().PopupMenu()), c.entries) << c.key;
    W().PopupMenu()->hide();
  }
  EXPECT_EQ(Action("mnur1")->text(), QStringLiteral("Replace Complex (A+iB) with the Result"));
  EXPECT_EQ(Action("mnulog1")->text(), QStringLiteral("Log (A + iB) to the base e"));
  EXPECT_EQ(Action("mnugdeg")->text(), QStringLiteral("Get Argument in Deg"));
}

TEST_F(ComplexWindowTest, ReplaceSwapAndConjugateThroughThePopup) {
  ClearAll();
  Enter("A3B4C1D2~");
  Keypad(Qt::Key_Asterisk);  // 11 - j2
  Click("cmdconv");
  Action("mnur2")->trigger();
  EXPECT_EQ(Text("lblZ2"), "11+j-2");
  Action("mnuswap")->trigger();
  EXPECT_EQ(Text("lblZ1"), "11+j-2");
  EXPECT_EQ(Text("lblZ2"), "3+j4");
  Action("mnucon1")->trigger();
  EXPECT_EQ(Text("lblZ1"), "11+j2");
  Action("mnucon2")->trigger();
  EXPECT_EQ(Text("lblZ2"), "3-j4");
  Action("mnur1")->trigger();
  EXPECT_EQ(Text("lblZ1"), "11+j-2");
  W().PopupMenu()->hide();
}

TEST_F(ComplexWindowTest, TheArgumentInRadiansOrDegrees) {
  ClearAll();
  Enter("A1B1");
  Click("Command1");
  Action("mnugdeg")->trigger();
  EXPECT_EQ(Text("lblSta"), "Arg");
  EXPECT_EQ(Text("LabelRezultat"), "45");
  Action("mnugrad")->trigger();
  EXPECT_EQ(Text("LabelRezultat"), "0.785398");
  W().PopupMenu()->hide();
}

TEST_F(ComplexWindowTest, MPlusTwiceDoublesTheMemoryAndMcClearsIt) {
  ClearAll();
  Enter("A1.5B2C1");
  Keypad(Qt::Key_Plus);  // 2.5 + j2
  Click("cmdMemory1");
  EXPECT_TRUE(Label("Label4")->isVisible());
  EXPECT_EQ(Text("lblMemory1"), "2.5+j2");
  Click("cmdMemory1");
  EXPECT_EQ(Text("lblMemory1"), "5+j4");
  // Recall into Complex 2, then clear.
  Click("cmdMemory2");
  Action("mnuasC")->trigger();
  W().PopupMenu()->hide();
  EXPECT_EQ(Text("lblZ2"), "5+j4");
  Click("cmdMemory3");
  EXPECT_EQ(Text("lblMemory1"), "");
  EXPECT_FALSE(Label("Label4")->isVisible());
  Click("cmdMemory2");
  Action("mnuasA")->trigger();
  W().PopupMenu()->hide();
  ExpectBox("Memory is empty.", "Velmora");
}

TEST_F(ComplexWindowTest, MPlusRefusesANullResult) {
  ClearAll();
  Keypad(Qt::Key_Plus);  // 0 + 0
  EXPECT_EQ(Text("LabelRezultat"), "0+j0");
  Click("cmdMemory1");
  EXPECT_TRUE(box.Boxes().empty());  // "0+j0" is not the null line
  Click("cmdMemory3");
  box.Clear();
  // At load the result line reads "0.": refused.
  Open();
  Click("cmdMemory1");
  ExpectBox("Can't add null result.", "Velmora");
}

TEST_F(ComplexWindowTest, HoverTextsNameTheRoleAndTheValue) {
  ClearAll();
  Enter("A5B4C3D2");
  EXPECT_EQ(Label("lbla")->toolTip(), QStringLiteral("a = 5"));
  EXPECT_EQ(Label("lblb")->toolTip(), QStringLiteral("b = 4"));
  EXPECT_EQ(Label("lblc")->toolTip(), QStringLiteral("c = 3"));
  EXPECT_EQ(Label("lbld")->toolTip(), QStringLiteral("d = 2"));
  EXPECT_EQ(Label("Label1c")->toolTip(), QStringLiteral("a + ib = 5+j4"));
  EXPECT_EQ(Label("Label2c")->toolTip(), QStringLiteral("c + id = 3+j2"));
}

TEST_F(ComplexWindowTest, TheResultGoesToTheClipboard) {
  ClearAll();
  Enter("A3B4C1");
  Keypad(Qt::Key_Plus);
  Click("cmdcopy");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("4+j4"));
}

// ------------------------------------------------------------- simple mode

TEST_F(ComplexWindowTest, AClickOnTheReadoutSwitchesToSimpleModeAndBack) {
  QLabel* readout = Label("Readout");
  QTest::mouseClick(readout, Qt::LeftButton);
  EXPECT_TRUE(W().SimpleMode());
  EXPECT_TRUE(Key("cmdsing")->isVisible());
  EXPECT_FALSE(Label("lblZ1")->isVisible());
  QTest::mouseClick(readout, Qt::LeftButton);
  EXPECT_FALSE(W().SimpleMode());
  EXPECT_TRUE(Label("lblZ1")->isVisible());
  EXPECT_FALSE(Key("cmdsing")->isVisible());
}

TEST_F(ComplexWindowTest, SimpleModeDigitsFeedTheReadoutAndTheTickedPart) {
  ClearAll();
  W().SetSimpleMode(true);
  auto* checkb = W().findChild<QCheckBox*>(QStringLiteral("checkb"));
  ASSERT_NE(checkb, nullptr);
  checkb->click();
  Keypad(Qt::Key_4);
  Keypad(Qt::Key_2);
  Keypad(Qt::Key_Period);
  Keypad(Qt::Key_5);
  EXPECT_EQ(Text("Readout"), "42.5");
  EXPECT_EQ(W().Fields().lblb, "42.5");
  EXPECT_EQ(W().Fields().LastInput, "NUMS");
  EXPECT_TRUE(W().Simple().DecimalFlag());
  Click("cmdPlusMinus");
  EXPECT_EQ(Text("Readout"), "-42.5");
  Click("CancelEntry");
  EXPECT_EQ(Text("Readout"), "0.");
  EXPECT_EQ(W().Fields().lblb, "0.");
  EXPECT_EQ(W().Fields().LastInput, "CE");
  EXPECT_FALSE(W().Simple().DecimalFlag());
  // Back in complex mode the label shows what the readout fed.
  W().SetSimpleMode(false);
  EXPECT_EQ(Text("lblZ1"), "0+j0.");
}

TEST_F(ComplexWindowTest, InvAndDegTurnTheRealFunctions) {
  W().SetSimpleMode(true);
  Keypad(Qt::Key_3);
  Keypad(Qt::Key_0);
  W().findChild<QCheckBox*>(QStringLiteral("Check2"))->click();
  Click("cmdsing");
  EXPECT_EQ(Text("Readout"), "0.5");
  W().findChild<QCheckBox*>(QStringLiteral("Check1"))->click();
  EXPECT_FALSE(Key("cmdsing")->isVisible());
  EXPECT_TRUE(Key("cmdasin")->isVisible());
  Click("cmdasin");
  EXPECT_EQ(Text("Readout"), "30");
  Keypad(Qt::Key_2);
  Click("cmdacos");
  ExpectBox("Invalid input.", "Velmora");
  EXPECT_EQ(Text("Readout"), "2.");
}

// ------------------------------------------------------------ captions fit

// Every caption of a key, check box and fixed label is as wide as its text
// needs, in both modes, at the desktop's usual and larger fonts.
TEST_F(ComplexWindowTest, NoCaptionIsClippedAtLargerFonts) {
  const QFont original = QApplication::font();
  for (const double factor : {1.0, 1.25, 2.0}) {
    QFont font = original;
    font.setPointSizeF(original.pointSizeF() * factor);
    QApplication::setFont(font);
    Open();
    for (const bool simple : {false, true}) {
      W().SetSimpleMode(simple);
      window->show();
      window->adjustSize();
      QApplication::processEvents();
      // A key's size hint is its caption with the style's padding and
      // border: a key narrower than that cuts its caption.
      for (QAbstractButton* key : W().findChildren<QAbstractButton*>()) {
        if (!key->isVisible() || key->text().isEmpty()) continue;
        EXPECT_GE(key->width(), key->sizeHint().width())
            << key->objectName().toStdString() << " at " << factor << (simple ? " simple" : "");
        EXPECT_GE(key->height(), key->sizeHint().height()) << key->objectName().toStdString();
      }
      for (QLabel* label : W().findChildren<QLabel*>()) {
        if (!label->isVisible() || label->text().isEmpty() || label->wordWrap()) continue;
        EXPECT_GE(label->width(), label->sizeHint().width())
            << label->objectName().toStdString() << " at " << factor;
      }
    }
  }
  QApplication::setFont(original);
}

}  // namespace
}  // namespace velmora::complex_qt
