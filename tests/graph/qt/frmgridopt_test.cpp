// Plotting Options as a dialog: opened from the graph window, Reset then
// Apply, the paper pictures.
#include "graph/qt/frmgridopt.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include "graph/qt/paperpreview.h"
#include "platform/settingskeys.h"
#include "tests/graph/qt/frmfuncfixture.h"

namespace velmora::testing {

namespace keys = platform::keys;
namespace {

using platform::MsgResult;
using OptionsTest = FrmFuncTest;

TEST_F(OptionsTest, TheDialogShowsTheStoredKeys) {
  settings.Store(keys::kGrid, keys::grid::kScaleX, "2");
  settings.Store(keys::kGrid, keys::grid::kAxes, "1");
  Make();
  graph_qt::FrmGridOpt* dialog = window->OpenPlottingOptions();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Plotting Options"));
  EXPECT_TRUE(dialog->isModal());
  EXPECT_EQ(dialog->TextBox(graph::PlottingOptions::kTxtX)->text(), QStringLiteral("2"));
  EXPECT_TRUE(dialog->Check(1)->isChecked());
  EXPECT_TRUE(dialog->Check(6)->isChecked());
  EXPECT_FALSE(dialog->Check(10)->isChecked());
  EXPECT_FALSE(dialog->TextBox(graph::PlottingOptions::kTxtX1)->isEnabled());
  EXPECT_FALSE(dialog->Check(3)->isEnabled());
  EXPECT_TRUE(dialog->Option2(0)->isChecked());
  EXPECT_FALSE(dialog->Check(7)->isVisible());
  EXPECT_EQ(dialog->Check(2)->text(), QStringLiteral("&Assign axes "));
  EXPECT_EQ(dialog->Command1()->text(), QStringLiteral("&Apply"));
  EXPECT_EQ(dialog->Command2()->text(), QStringLiteral("Cancel"));
  EXPECT_EQ(dialog->Command3()->text(), QStringLiteral("&Reset"));
  dialog->Command2()->click();
  EXPECT_FALSE(settings.Query(keys::kGrid, keys::grid::kDash).has_value()) << "Cancel writes nothing";
}

TEST_F(OptionsTest, HideGridEnablesAndDisables) {
  Make();
  graph_qt::FrmGridOpt* dialog = window->OpenPlottingOptions();
  dialog->Check(1)->click();
  EXPECT_FALSE(dialog->TextBox(graph::PlottingOptions::kTxtY1)->isEnabled());
  dialog->Check(1)->click();
  EXPECT_TRUE(dialog->TextBox(graph::PlottingOptions::kTxtY1)->isEnabled());
  dialog->Command2()->click();
}

TEST_F(OptionsTest, ResetThenApplyWritesTheKeysAndAsksBeforeErasing) {
  Make();
  TypeAndEnter(QStringLiteral("SinX"));
  graph_qt::FrmGridOpt* dialog = window->OpenPlottingOptions();
  dialog->Command3()->click();
  EXPECT_FALSE(dialog->Check(6)->isChecked());
  EXPECT_EQ(settings.Query(keys::kGrid, keys::grid::kAutored), std::nullopt) << "Reset writes nothing";
  messages.Answer(MsgResult::Ok);
  dialog->Command1()->click();
  ASSERT_EQ(messages.Boxes().size(), 1u);
  EXPECT_EQ(messages.Boxes()[0].text,
            "AutoRedraw options not selected. Your current graphs will be erased.\r\nContinue?");
  EXPECT_EQ(messages.Boxes()[0].title, "Plotting Options");
  for (const char* key : {"Axes", "Ozna", "Crte", "Skala", "Rnd", "Autored", "PolarP", "BrojX", "BrojY",
                          "BrojBoja", "Trigo", "Dash", "Ram"})
    EXPECT_EQ(settings.Query(keys::kGrid, key), std::optional<std::string>("0")) << key;
  for (const char* key : {"ScaleX", "ScaleY", "ScaleX1", "ScaleY1"})
    EXPECT_EQ(settings.Query(keys::kGrid, key), std::optional<std::string>("1")) << key;
  // Erased: the paper alone.
  EXPECT_EQ(CountPixels(Picture(), kGraphColour), 0);
  EXPECT_GT(CountPixels(Picture(), kGridColour), 1000);
}

TEST_F(OptionsTest, ApplyWithAutoRedrawRepaintsThePaperAndTheFunctions) {
  Make();
  TypeAndEnter(QStringLiteral("SinX"));
  graph_qt::FrmGridOpt* dialog = window->OpenPlottingOptions();
  dialog->Option2(1)->click();  // Polar paper
  EXPECT_TRUE(dialog->Model().Check(7));
  dialog->Command1()->click();
  EXPECT_TRUE(messages.Boxes().empty());
  EXPECT_EQ(settings.Query(keys::kGrid, keys::grid::kPolarP), std::optional<std::string>("1"));
  EXPECT_GT(CountPixels(Picture(), kGraphColour), 500);
  // A circle of the polar paper: 2 units right of the origin on the X axis
  // and 2 units up on the Y axis are both grid-coloured.
  EXPECT_EQ(Picture().pixel(300, 140) & 0xFFFFFF, 0u) << "the Y axis";
  EXPECT_GT(CountPixels(Picture(), kGridColour, QRect(340, 150, 6, 6)), 0);
}

TEST_F(OptionsTest, ClickingAPaperPictureSelectsIt) {
  Make();
  graph_qt::FrmGridOpt* dialog = window->OpenPlottingOptions();
  QTest::mouseClick(dialog->Image(2), Qt::LeftButton);
  EXPECT_TRUE(dialog->Option2(2)->isChecked());
  EXPECT_TRUE(dialog->Model().Check(11));
  EXPECT_FALSE(dialog->Model().Check(7));
  dialog->Command2()->click();
}

TEST_F(OptionsTest, TheScaleNoteBoxesTakeNumbersOnly) {
  Make();
  graph_qt::FrmGridOpt* dialog = window->OpenPlottingOptions();
  QLineEdit* box = dialog->TextBox(graph::PlottingOptions::kTxtX1);
  box->clear();
  QTest::keyClicks(box, QStringLiteral("1a.5x"));
  EXPECT_EQ(box->text(), QStringLiteral("1.5"));
  dialog->Command2()->click();
}

TEST_F(OptionsTest, NoOptionsDuringADraw) {
  Make();
  graph_qt::FrmGridOpt* during = nullptr;
  bool ran = false;
  QTimer::singleShot(0, window.get(), [&] {
    ran = true;
    during = window->OpenPlottingOptions();
  });
  TypeAndEnter(QStringLiteral("SinX"));
  EXPECT_TRUE(ran);
  EXPECT_EQ(during, nullptr);
}

TEST(PaperPictures, AreDrawnByTheProgram) {
  const QImage standard = graph_qt::PaperPicture(0);
  const QImage polar = graph_qt::PaperPicture(1);
  const QImage trig = graph_qt::PaperPicture(2);
  EXPECT_EQ(standard.size(), QSize(120, 90));
  EXPECT_NE(standard, polar);
  EXPECT_NE(standard, trig);
  EXPECT_NE(polar, trig);
  // Standard: a grid line every 12 pixels from the axes.
  EXPECT_EQ(standard.pixel(72, 10) & 0xFFFFFF, Rgb(kGridColour));
  // The axes in black through the middle.
  EXPECT_EQ(standard.pixel(60, 5) & 0xFFFFFF, 0u);
  EXPECT_EQ(polar.pixel(5, 45) & 0xFFFFFF, 0u);
}

}  // namespace
}  // namespace velmora::testing
