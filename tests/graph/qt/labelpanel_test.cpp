// The label panel inside the graph window (frkur): its captions, the
// commands its buttons run, and the label it hands to the window.
#include "graph/qt/labelpanel.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "graph/qt/picmcrbox.h"
#include "tests/graph/qt/frmfuncfixture.h"

namespace velmora::testing {
namespace {

class LabelPanelTest : public FrmFuncTest {
 protected:
  graph_qt::FrmFunc& Drawn(const QString& y) {
    graph_qt::FrmFunc& w = Make();
    TypeAndEnter(y);
    messages.Clear();
    return w;
  }
};

TEST_F(LabelPanelTest, TheControlsCarryTheirNamesAndCaptions) {
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("X^2"));
  graph_qt::LabelPanel* panel = w.ShowLabelPanel();
  ASSERT_NE(panel, nullptr);
  EXPECT_EQ(panel->objectName(), QStringLiteral("frkur"));
  EXPECT_EQ(panel->parentWidget(), w.pDraw()) << "inside the window, over the plot";
  EXPECT_EQ(panel->frmText()->objectName(), QStringLiteral("frmText"));
  EXPECT_EQ(panel->frmText()->title(), QStringLiteral("Insert Label"));
  struct Row {
    QWidget* widget;
    const char* name;
    QString shown;
    const char* expected;
    const char* why;
  };
  const Row rows[] = {
      {panel->cmdFont(), "cmdFont", panel->cmdFont()->text(), "Font", "the font button"},
      {panel->cmdLabel(), "cmdLabel", panel->cmdLabel()->text(), "OK", "OK, not the dialog's Insert"},
      {panel->cmdTextCancel(), "cmdTextCancel", panel->cmdTextCancel()->text(), "Cancel", "cancel"},
      {panel->Check1(), "Check1", panel->Check1()->text(), "&Transparent", "shorter than the dialog's"},
      {panel->Label1(), "Label1", panel->Label1()->text(), "Deg", "the unit after the angle"},
      {panel->Label2(), "Label2", panel->Label2()->text(), "Rotate text:", "the angle's caption"},
      {panel->txtAngle(), "txtAngle", panel->txtAngle()->toolTip(), "Angle (deg)", "the angle box's tip"},
      {panel->cmdBoja(), "cmdBoja", panel->cmdBoja()->toolTip(), "Click to change color", "the colour tip"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.widget->objectName(), QString::fromLatin1(row.name)) << row.why;
    EXPECT_EQ(row.shown, QString::fromLatin1(row.expected)) << row.why;
  }
}

TEST_F(LabelPanelTest, OkPutsTheLabelInHandAndClosesThePanel) {
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("X^2"));
  graph_qt::LabelPanel* panel = w.ShowLabelPanel();
  ASSERT_NE(panel, nullptr);
  EXPECT_FALSE(panel->isHidden());
  EXPECT_EQ(panel->Text2()->text(), QStringLiteral("Y (X) =X^2"));
  EXPECT_EQ(panel->txtAngle()->text(), QStringLiteral("0"));
  // An empty text is refused and the panel stays.
  panel->Text2()->clear();
  QTest::mouseClick(panel->cmdLabel(), Qt::LeftButton);
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text, "Enter Graph Label text.");
  EXPECT_FALSE(panel->isHidden());
  // A click on the angle asks for it by the input box.
  panel->Text2()->setText(QStringLiteral("Parabola"));
  input.Answer(std::string("90"));
  QTest::mouseClick(panel->txtAngle(), Qt::LeftButton);
  EXPECT_EQ(input.AskedBoxes().back().prompt, "Set value for rotating angle in range (-180 to 180) Deg.");
  EXPECT_EQ(panel->txtAngle()->text(), QStringLiteral("90"));
  QTest::mouseClick(panel->cmdLabel(), Qt::LeftButton);
  EXPECT_TRUE(panel->isHidden());
  EXPECT_FALSE(w.picMCRBox()->isHidden());
  EXPECT_EQ(Logic().picMCRBox().Style().text, "Parabola");
  EXPECT_GT(w.picMCRBox()->height(), w.picMCRBox()->width()) << "a 90-degree label stands upright";
  // One label at a time: the panel is refused while this one is in hand.
  EXPECT_EQ(w.ShowLabelPanel(), nullptr);
  EXPECT_EQ(messages.Boxes().back().text, "Insert current label or delete it before you proceed.");
  const int before = CountPixels(Picture(), 0);
  w.daLabele();
  EXPECT_GT(CountPixels(Picture(), 0), before) << "burnt in";
  EXPECT_NE(w.ShowLabelPanel(), nullptr) << "the next label may come";
}

TEST_F(LabelPanelTest, CancelLeavesThePictureAsItWas) {
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("SinX"));
  graph_qt::LabelPanel* panel = w.ShowLabelPanel();
  ASSERT_NE(panel, nullptr);
  const QImage before = Picture();
  QTest::mouseClick(panel->cmdTextCancel(), Qt::LeftButton);
  EXPECT_TRUE(panel->isHidden());
  EXPECT_FALSE(Logic().picMCRBox().Visible());
  EXPECT_EQ(Picture(), before);
  EXPECT_TRUE(messages.Boxes().empty());
}

TEST_F(LabelPanelTest, FontColourAndTransparencyReachTheLabel) {
  graph_qt::FrmFunc& w = Drawn(QStringLiteral("X"));
  graph_qt::LabelPanel* panel = w.ShowLabelPanel();
  ASSERT_NE(panel, nullptr);
  QFont chosenFont(QStringLiteral("DejaVu Serif"));
  chosenFont.setPointSize(20);
  chosenFont.setBold(true);
  panel->SetFontChooser([&](const QFont&) { return std::optional<QFont>(chosenFont); });
  QTest::mouseClick(panel->cmdFont(), Qt::LeftButton);
  // The colour through the window's colour dialog; a cancel keeps the colour.
  colours.answers = {std::uint32_t{0x0000FF}, std::nullopt};
  QTest::mouseClick(panel->cmdBoja(), Qt::LeftButton);
  QTest::mouseClick(panel->cmdBoja(), Qt::LeftButton);
  ASSERT_EQ(colours.opened.size(), 2u);
  EXPECT_EQ(colours.opened[1], 0x0000FFu) << "the second dialog opens on the first's colour";
  panel->Check1()->setChecked(true);
  QTest::mouseClick(panel->cmdLabel(), Qt::LeftButton);
  const graph::LabelStyle& style = Logic().picMCRBox().Style();
  EXPECT_EQ(style.fontName, "DejaVu Serif");
  EXPECT_EQ(style.fontSize, 20);
  EXPECT_TRUE(style.bold);
  EXPECT_EQ(style.colour, 0x0000FFu);
  EXPECT_TRUE(style.transparent);
  EXPECT_EQ(style.angle, 0);
}

TEST_F(LabelPanelTest, AParametricPairIsOfferedWithTwoBlanksBetween) {
  graph_qt::FrmFunc& w = Make();
  w.optFunkcije(2)->click();
  Logic().SetFunctionTexts("SinK", "CosK");
  w.SyncFromLogic();
  graph_qt::LabelPanel* panel = w.ShowLabelPanel();
  ASSERT_NE(panel, nullptr);
  EXPECT_EQ(panel->Text2()->text(), QStringLiteral("X (K) =CosK  Y (K) =SinK"));
}

}  // namespace
}  // namespace velmora::testing
