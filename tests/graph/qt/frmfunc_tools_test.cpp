// The graph window's own tools through its widgets: the tangent dialogs,
// frmMini, the label dialog and box, the history handed to MathPad and the
// value table's copy.
#include <QCheckBox>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "graph/qt/frmlabel.h"
#include "graph/qt/frmmini.h"
#include "graph/qt/frmunesit.h"
#include "graph/qt/picmcrbox.h"
#include "tests/graph/qt/frmfuncfixture.h"
#include "tests/support/fakemathpad.h"

namespace velmora::testing {
namespace {

constexpr graph::Colour kTangent = graph::GraphWindow::kTangentColour;

class FrmFuncTools : public FrmFuncTest {
 protected:
  graph_qt::FrmFunc& Drawn(const QString& y) {
    graph_qt::FrmFunc& w = Make();
    TypeAndEnter(y);
    messages.Clear();
    return w;
  }
};

TEST_F(FrmFuncTools, TangentDialogShowsTheFunctionAndDrawsTheLine) {
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("X^2"));
  graph_qt::FrmUnesit* dialog = w.mnuDrawTangent();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Tangent/Normal to Cartesian Function"));
  EXPECT_EQ(dialog->Label1()->text(), QStringLiteral("Y = X^2"));
  EXPECT_TRUE(dialog->chkTangent(0)->isChecked());
  dialog->Text1()->setText(QStringLiteral("2/2"));
  QTest::mouseClick(dialog->Command1(), Qt::LeftButton);
  EXPECT_EQ(w.txtY()->currentText(), QStringLiteral("2*x-1"));
  EXPECT_GT(CountPixels(Picture(), kTangent), 50);
  EXPECT_TRUE(w.rtb()->toPlainText().contains(QStringLiteral(" Tangent Line: 2*x-1")));
  EXPECT_TRUE(messages.Boxes().empty());
}

TEST_F(FrmFuncTools, AnEmptyPointAsksForOneAndTheDialogStays) {
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("X^2"));
  graph_qt::FrmUnesit* dialog = w.mnuDrawTangent();
  ASSERT_NE(dialog, nullptr);
  QTest::mouseClick(dialog->Command1(), Qt::LeftButton);
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text, "Enter point value.");
  EXPECT_EQ(messages.Boxes()[0].icon, platform::MsgIcon::Information);
  EXPECT_TRUE(dialog->isVisible());
  QTest::mouseClick(dialog->Command2(), Qt::LeftButton);
  EXPECT_EQ(w.txtY()->currentText(), QStringLiteral("X^2"));
  EXPECT_EQ(CountPixels(Picture(), kTangent), 0);
}

TEST_F(FrmFuncTools, TheNormalIsChosenByItsOption) {
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("X^2"));
  graph_qt::FrmUnesit* dialog = w.mnuDrawTangent();
  ASSERT_NE(dialog, nullptr);
  dialog->chkTangent(1)->setChecked(true);
  dialog->Text1()->setText(QStringLiteral("1"));
  QTest::mouseClick(dialog->Command1(), Qt::LeftButton);
  EXPECT_EQ(w.txtY()->currentText(), QStringLiteral("-0.5*x+1.5"));
}

TEST_F(FrmFuncTools, AParametricPairGetsItsOwnDialog) {
  graph_qt::FrmFunc& w = Make();
  w.optFunkcije(2)->click();
  Logic().SetFunctionTexts("K^2", "K");
  w.SyncFromLogic();
  w.DrawFunction();
  graph_qt::FrmUnesit* dialog = w.mnuDrawTangent();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Tangent/Normal to Parametric Function"));
  EXPECT_EQ(dialog->Label1()->text(), QStringLiteral("Y = K^2 ; X = K"));
  dialog->Text1()->setText(QStringLiteral("1"));
  QTest::mouseClick(dialog->Command1(), Qt::LeftButton);
  EXPECT_EQ(w.txtY()->currentText(), QStringLiteral("2*x-1"));
  EXPECT_TRUE(w.optFunkcije(1)->isChecked());
}

TEST_F(FrmFuncTools, APolarFunctionIsRefused) {
  graph_qt::FrmFunc& w = Make();
  w.optFunkcije(3)->click();
  TypeAndEnter(QStringLiteral("1"));
  messages.Clear();
  EXPECT_EQ(w.mnuDrawTangent(), nullptr);
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text, "Available for Cartesian and Parametric functions.");
  EXPECT_EQ(w.mnuDrawIntegral(true), nullptr);
  EXPECT_EQ(messages.Boxes().back().text, "Available for Cartesian (standard) functions only.");
  EXPECT_EQ(w.mnuDrawIntegral(false), nullptr);
  EXPECT_EQ(messages.Boxes().back().text, "Available for Cartesian functions only.");
}

TEST_F(FrmFuncTools, FrmMiniFillsTheAreaWithItsBand) {
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("SinX"));
  graph_qt::FrmMini* dialog = w.mnuDrawIntegral();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Draw Integral & Average"));
  EXPECT_TRUE(dialog->Check2()->isChecked());
  EXPECT_FALSE(dialog->Frame2()->isEnabled());
  dialog->Check1()->setChecked(true);
  EXPECT_TRUE(dialog->Frame2()->isEnabled());
  dialog->Text1()->setText(QStringLiteral("0"));
  dialog->Text2()->setText(QStringLiteral("pi"));
  dialog->Text3()->setText(QStringLiteral("0.5"));
  const int before = CountPixels(Picture(), kGraphColour);
  QTest::mouseClick(dialog->Command1(), Qt::LeftButton);
  EXPECT_GT(CountPixels(Picture(), kGraphColour), before + 500);  // the area under the arch
  EXPECT_GT(CountPixels(Picture(), 255), 500);                    // the band in AvBoja
  EXPECT_TRUE(messages.Boxes().empty());
}

TEST_F(FrmFuncTools, FrmMiniRefusesAnAverageOfZeroAndStays) {
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("SinX"));
  graph_qt::FrmMini* dialog = w.mnuDrawIntegral();
  ASSERT_NE(dialog, nullptr);
  dialog->Check1()->setChecked(true);
  dialog->Text1()->setText(QStringLiteral("0"));
  dialog->Text2()->setText(QStringLiteral("1"));
  QTest::mouseClick(dialog->Command1(), Qt::LeftButton);
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text, "Invalid input for Average value.");
  EXPECT_TRUE(dialog->isVisible());
  QTest::mouseClick(dialog->Command2(), Qt::LeftButton);
}

TEST_F(FrmFuncTools, TheLabelDialogOffersTheFunctionAndHoldsOneLabelAtATime) {
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("X^2"));
  graph_qt::FrmLabel* dialog = w.mnulabel();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Label"));
  EXPECT_EQ(dialog->Text2()->text(), QStringLiteral("Y (X) =X^2"));
  dialog->Text2()->clear();
  QTest::mouseClick(dialog->cmdLabel(), Qt::LeftButton);
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text, "Enter Graph Label text.");
  dialog->Text2()->setText(QStringLiteral("Parabola"));
  input.Answer(std::string("90"));
  dialog->AskAngle();
  EXPECT_EQ(dialog->txtAngle()->text(), QStringLiteral("90"));
  EXPECT_EQ(input.AskedBoxes().back().prompt, "Set value for rotating angle in range (-180 to 180) Deg.");
  EXPECT_EQ(input.AskedBoxes().back().defaultText, "0");
  QTest::mouseClick(dialog->cmdLabel(), Qt::LeftButton);
  ASSERT_TRUE(w.picMCRBox()->isVisible());
  EXPECT_GT(w.picMCRBox()->height(), w.picMCRBox()->width());  // upright
  EXPECT_EQ(w.mnulabel(), nullptr);
  EXPECT_EQ(messages.Boxes().back().text, "Insert current label or delete it before you proceed.");
  const int before = CountPixels(Picture(), 0);
  w.daLabele();
  EXPECT_FALSE(w.picMCRBox()->isVisible());
  EXPECT_GT(CountPixels(Picture(), 0), before);  // the text is in the picture now
}

TEST_F(FrmFuncTools, DraggingTheLabelMovesItAndShowsTheHint) {
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("X^2"));
  graph_qt::FrmLabel* dialog = w.mnulabel();
  ASSERT_NE(dialog, nullptr);
  QTest::mouseClick(dialog->cmdLabel(), Qt::LeftButton);
  graph_qt::PicMcrBox* box = w.picMCRBox();
  const QPoint start = box->pos();
  const double left = Logic().picMCRBox().Left();
  QTest::mousePress(box, Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
  QMouseEvent move(QEvent::MouseMove, QPointF(42, 32), box->mapToGlobal(QPointF(42, 32)), Qt::NoButton,
                   Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(box, &move);
  QTest::mouseRelease(box, Qt::LeftButton, Qt::NoModifier, QPoint(42, 32));
  EXPECT_EQ(box->pos(), start + QPoint(40, 30));
  EXPECT_EQ(Logic().picMCRBox().Left(), left + 40);
  EXPECT_EQ(w.LblChart()->text(), QStringLiteral("Drag the Label and click right mouse to insert or delete"));
  // Burnt in where it was dragged to.
  const QImage before = Picture();
  w.daLabele();
  const QImage after = Picture();
  int changedNearNewPlace = 0;
  for (int y = start.y() + 30; y < start.y() + 30 + box->height(); ++y)
    for (int x = start.x() + 40; x < start.x() + 40 + box->width(); ++x)
      changedNearNewPlace += before.pixel(x, y) != after.pixel(x, y);
  EXPECT_GT(changedNearNewPlace, 0);
}

TEST_F(FrmFuncTools, TheHistoryIsScrolledToItsNewestRecord) {
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("X^2"));
  for (int i = 0; i < 6; ++i) {
    graph_qt::FrmUnesit* dialog = w.mnuDrawTangent();
    ASSERT_NE(dialog, nullptr);
    dialog->Text1()->setText(QStringLiteral("1"));
    QTest::mouseClick(dialog->Command1(), Qt::LeftButton);
    Logic().SetFunctionTexts("X^2", "K");
    w.SyncFromLogic();
  }
  QScrollBar* bar = w.rtb()->verticalScrollBar();
  EXPECT_GT(bar->maximum(), 0);
  EXPECT_EQ(bar->value(), bar->maximum());
}

TEST_F(FrmFuncTools, AParametricLabelHoldsBothEquationsWithTwoBlanksBetween) {
  graph_qt::FrmFunc& w = Make();
  w.optFunkcije(2)->click();
  Logic().SetFunctionTexts("SinK", "CosK");
  w.SyncFromLogic();
  graph_qt::FrmLabel* dialog = w.mnulabel();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->Text2()->text(), QStringLiteral("X (K) =CosK  Y (K) =SinK"));
  QTest::mouseClick(dialog->cmdTextCancel(), Qt::LeftButton);
  EXPECT_FALSE(w.picMCRBox()->isVisible());
}

TEST_F(FrmFuncTools, ADeletedLabelLeavesThePictureAsItWas) {
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("X^2"));
  graph_qt::FrmLabel* dialog = w.mnulabel();
  ASSERT_NE(dialog, nullptr);
  QTest::mouseClick(dialog->cmdLabel(), Qt::LeftButton);
  const QImage before = Picture();
  w.neLabel();
  EXPECT_FALSE(w.picMCRBox()->isVisible());
  EXPECT_EQ(Picture(), before);
  EXPECT_NE(w.mnulabel(), nullptr);  // the next label may come
}

TEST_F(FrmFuncTools, SaveHistoryAppendsTheHistoryToMathPadOnYes) {
  MathPadOnlyTools fake;
  tools = &fake;
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("X^2"));
  EXPECT_TRUE(w.HasMathPad());
  messages.Answer(platform::MsgResult::No);
  w.mnusaveHistory();
  EXPECT_EQ(messages.Boxes().back().text, "Open function history in MathPad?");
  EXPECT_TRUE(fake.pad.appended.empty());
  messages.Answer(platform::MsgResult::Yes);
  w.mnusaveHistory();
  EXPECT_EQ(fake.pad.appended.rfind("\r\n\r\nFunction History:", 0), 0u);
  EXPECT_NE(fake.pad.appended.find(" Y(X) = x^2\r\n"), std::string::npos) << fake.pad.appended;
  messages.Answer(platform::MsgResult::Yes);
  w.PrintLog2();
  EXPECT_EQ(messages.Boxes().back().text, "Open function history in MathPad and edit it, save or print?");
  EXPECT_EQ(fake.pad.opened, history->Path());
}

TEST_F(FrmFuncTools, WithoutMathPadTheHistoryCommandsDoNothing) {
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("X^2"));
  EXPECT_FALSE(w.HasMathPad());
  w.mnusaveHistory();
  w.PrintLog2();
  EXPECT_TRUE(messages.Boxes().empty());
}

TEST_F(FrmFuncTools, CopyAllPutsTheTableWithItsTitleOnTheClipboard) {
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("X^2"));
  w.SveTable();
  const QString text = QGuiApplication::clipboard()->text();
  EXPECT_TRUE(text.startsWith(QStringLiteral("Function: Y = X^2\r\nX\tY\tY'\r\n"))) << text.toStdString();
}

}  // namespace
}  // namespace velmora::testing
