// The Geometry Calculator window, offscreen: every page solves a case chosen
// from its "Select Case:" menu into the same boxes as velmora-cli geo, logs
// the result, and draws a figure that follows the record.
#include "geometry/qt/frmgeo.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextEdit>

#include "geometry/qt/figureview.h"
#include "geometry/qt/geopagewidget.h"
#include "geometry/qt/sketchpainter.h"
#include "tests/cli/clirun.h"
#include "tests/support/recordingclipboard.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::geometry_qt {
namespace {

using velmora::testing::RecordingClipboard;
using velmora::testing::RecordingMessageBox;

QString Q(const std::string& s) { return QString::fromStdString(s); }

struct Window {
  RecordingMessageBox messages;
  RecordingClipboard clipboard;
  FrmGeo* window = nullptr;
  Window() {
    window = new FrmGeo(nullptr, {&messages, nullptr, &clipboard});
    window->show();
    QApplication::processEvents();
  }
  ~Window() { delete window; }

  GeoPageWidget& Open(const std::string& page) {
    GeoPageWidget* p = window->Page(page);
    EXPECT_NE(p, nullptr) << page;
    window->Tabs()->setCurrentWidget(p);
    QApplication::processEvents();
    return *p;
  }
};

// Chooses the entry from the page's pop-up menu as a user would.
void ChooseFromMenu(GeoPageWidget& page, const std::string& entry) {
  QMenu* menu = page.MakeMenu();
  QAction* action = menu->findChild<QAction*>(Q(entry));
  ASSERT_NE(action, nullptr) << entry;
  action->trigger();
  delete menu;
  QApplication::processEvents();
}

// The boxes and result lines velmora-cli prints for the case.
struct CliRecord {
  std::map<std::string, std::string> boxes;
  std::vector<std::string> result;
};
CliRecord RunCli(const std::string& word, const std::string& entry, const std::vector<std::string>& values) {
  std::vector<std::string> args{"geo", word, entry};
  args.insert(args.end(), values.begin(), values.end());
  const auto run = velmora::testing::RunCli(args);
  EXPECT_EQ(run.status, 0) << run.err;
  CliRecord record;
  for (const auto& line : velmora::testing::Lines(run.out)) {
    const auto eq = line.find('=');
    if (eq == std::string::npos) continue;
    const std::string name = line.substr(0, eq);
    if (name == "result") {
      if (eq + 1 < line.size()) record.result.push_back(line.substr(eq + 1));
    } else {
      record.boxes[name] = line.substr(eq + 1);
    }
  }
  return record;
}

// How much of the picture is not paper.
int InkedPixels(const QImage& image) {
  int inked = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) inked += image.pixel(x, y) != qRgb(255, 255, 255) ? 1 : 0;
  }
  return inked;
}

struct PageCase {
  std::string page;
  std::string option;  // "" for the page's first figure
  std::string word;    // the figure for velmora-cli
  std::string entry;
  std::vector<std::pair<std::string, std::string>> typed;  // box, text
  std::string why;
};

class PageCaseTest : public ::testing::TestWithParam<PageCase> {};

TEST_P(PageCaseTest, AChosenCaseFillsTheBoxesAsTheCliDoesAndRedrawsTheFigure) {
  const PageCase& c = GetParam();
  Window w;
  GeoPageWidget& page = w.Open(c.page);
  if (!c.option.empty()) {
    QRadioButton* option = page.Option(c.option);
    ASSERT_NE(option, nullptr) << c.why;
    option->click();
  }
  const QImage before = page.Figure()->Picture();
  std::vector<std::string> values;
  for (const auto& [box, text] : c.typed) {
    QLineEdit* edit = page.Box(box);
    ASSERT_NE(edit, nullptr) << box;
    EXPECT_TRUE(edit->isVisibleTo(w.window)) << box << ": " << c.why;
    edit->setText(Q(text));
    values.push_back(text);
  }
  ChooseFromMenu(page, c.entry);

  const CliRecord cli = RunCli(c.word, c.entry, values);
  ASSERT_FALSE(cli.boxes.empty()) << c.why;
  for (const auto& [name, text] : cli.boxes) {
    QLineEdit* edit = page.Box(name);
    ASSERT_NE(edit, nullptr) << name;
    EXPECT_EQ(edit->text().toStdString(), text) << name << ": " << c.why;
  }
  std::string joined;
  for (const auto& line : cli.result) joined += (joined.empty() ? "" : "\n") + line;
  EXPECT_EQ(w.window->Log()->toPlainText().toStdString(), joined) << c.why;
  EXPECT_TRUE(w.messages.Boxes().empty()) << c.why;

  const QImage after = page.Figure()->Picture();
  EXPECT_GT(InkedPixels(after), after.width() * after.height() / 100) << c.why;
  EXPECT_NE(before, after) << "the figure follows the record: " << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    EveryPage, PageCaseTest,
    ::testing::Values(
        PageCase{"Triangle",
                 "",
                 "triangle",
                 "mnuabc",
                 {{"txtta", "3"}, {"txttb", "4"}, {"txttc", "5"}},
                 "three sides"},
        PageCase{"Triangle",
                 "Right-angled",
                 "triangle",
                 "mnupravaB1",
                 {{"txtta", "5"}, {"txttb1", "0.5"}},
                 "hypotenuse and angle"},
        PageCase{"Triangle", "Equilateral", "triangle", "mnujednaka1", {{"txtta", "2"}}, "side of three"},
        PageCase{"Polygon", "", "polygon", "a", {{"txtPN", "5"}, {"txtPA", "2"}}, "pentagon by its side"},
        PageCase{"Polygon", "", "polygon", "R", {{"txtPN", "8"}, {"txtPR", "3"}}, "octagon by its radius"},
        PageCase{"Euclid", "", "euclid", "mn", {{"txtecm", "1"}, {"txtecn", "4"}}, "segments 1 and 4"},
        PageCase{"Circle", "Circle", "circle", "mnukrug1", {{"txtKR", "1"}}, "unit circle"},
        PageCase{"Circle", "Arc", "arc", "mnuluk1", {{"txtKR", "2"}, {"txtKFi", "1"}}, "arc of one radian"},
        PageCase{"Circle", "Ring", "ring", "mnuprsten1", {{"txtKR", "3"}, {"txtKrmalo", "1"}}, "ring 3, 1"},
        PageCase{"Sphere", "", "sphere", "mnulopta1", {{"txtSR", "3"}}, "sphere of radius 3"},
        PageCase{"Frustrum",
                 "Cone",
                 "cfrustrum",
                 "mnufrcone1",
                 {{"txtFR", "3"}, {"txtFH", "4"}, {"txtFA", "1"}},
                 "cone cut at 1"},
        PageCase{"Frustrum",
                 "Sphere",
                 "sfrustrum",
                 "mnufrsphere1",
                 {{"txtFR", "2"}, {"txtFH", "1"}},
                 "zone of height 1"},
        PageCase{"Ellipsoid",
                 "Ellipse",
                 "ellipse",
                 "mnuelipsaf1",
                 {{"txtRe1", "1"}, {"txtRe2", "2"}},
                 "radii swapped by the solver"},
        PageCase{"Ellipsoid",
                 "Ellipsoid",
                 "ellipsoid",
                 "mnuElipsoidVolume",
                 {{"txtRe1", "1"}, {"txtRe2", "2"}, {"txtRe3", "3"}},
                 "volume of three radii"},
        PageCase{"Cone", "", "cone", "mnuK1", {{"txtCR", "3"}, {"txtCH", "4"}}, "cone 3, 4"}));

TEST(FrmGeoTest, TheWindowHasTheEightPagesInOrder) {
  Window w;
  EXPECT_EQ(w.window->windowTitle(), QStringLiteral("Geometry Calculator"));
  QStringList tabs;
  for (int i = 0; i < w.window->Tabs()->count(); ++i) tabs << w.window->Tabs()->tabText(i);
  EXPECT_EQ(tabs, (QStringList{"Triangle", "Polygon", "Euclid", "Circle", "Sphere", "Frustrum", "Ellipsoid",
                               "Cone"}));
}

TEST(FrmGeoTest, TheMenuIsHeadedSelectCaseAndCarriesTheExactCaptions) {
  Window w;
  GeoPageWidget& page = w.Open("Triangle");
  QMenu* menu = page.MakeMenu();
  QStringList captions;
  for (QAction* a : menu->actions()) {
    if (!a->isSeparator()) captions << a->text();
  }
  EXPECT_EQ(captions, (QStringList{"Select Case:", "Sides: a, b, c", "Side a, Angles: B, C",
                                   "Sides: b,c Angle: A", "Sides: a,b Angle: A"}));
  EXPECT_FALSE(menu->actions().front()->isEnabled());
  delete menu;
  page.Option("Equilateral")->click();
  menu = page.MakeMenu();
  EXPECT_EQ(menu->objectName(), QStringLiteral("mnujednako"));
  EXPECT_NE(menu->findChild<QAction*>(QStringLiteral("mnujednakrm4")), nullptr);
  delete menu;
}

TEST(FrmGeoTest, ATriangleOptionClearsTheBoxesAndShowsItsHelp) {
  Window w;
  GeoPageWidget& page = w.Open("Triangle");
  page.Box("txtta")->setText(QStringLiteral("3"));
  page.Option("Right-angled")->click();
  EXPECT_EQ(page.Box("txtta")->text(), QString());
  EXPECT_EQ(page.HelpText(),
            QStringLiteral("Right-angled Triangle\nP = b*c / 2;  C + B = pi/2;  b^2 + c^2 = a^2\n"
                           "b = a*Sin(B) = c*Tan(B);  c = a*Cos(B) = b*Tan(C)"));
  EXPECT_EQ(page.Option("Right-angled")->objectName(), QStringLiteral("optionR"));
  EXPECT_EQ(page.Option("Equilateral")->objectName(), QStringLiteral("optionE"));
}

TEST(FrmGeoTest, TheAreaAndPerimeterBoxesCarryEachOthersToolTips) {
  Window w;
  GeoPageWidget& page = w.Open("Triangle");
  EXPECT_EQ(page.Box("txttobim")->toolTip(), QStringLiteral("Tringle area"));
  EXPECT_EQ(page.Box("txttarea")->toolTip(), QStringLiteral("Tringle perimeter"));
}

TEST(FrmGeoTest, AFaultShowsItsMessageUnderTheCalculatorsTitle) {
  Window w;
  GeoPageWidget& page = w.Open("Triangle");
  page.Box("txtta")->setText(QStringLiteral("1"));
  page.Box("txttb")->setText(QStringLiteral("1"));
  page.Box("txttc")->setText(QStringLiteral("3"));
  ChooseFromMenu(page, "mnuabc");
  ASSERT_EQ(w.messages.Boxes().size(), 1u);
  EXPECT_EQ(w.messages.Boxes()[0].text, "Check selected values.");
  EXPECT_EQ(w.messages.Boxes()[0].title, "Velmora");
  EXPECT_EQ(w.messages.Boxes()[0].icon, platform::MsgIcon::Critical);
  EXPECT_EQ(w.window->Log()->toPlainText(), QString());  // nothing solved, nothing logged
}

TEST(FrmGeoTest, TheSecondSolutionIsAskedAndReplacesTheFirst) {
  Window w;
  GeoPageWidget& page = w.Open("Triangle");
  page.Box("txtta")->setText(QStringLiteral("5"));
  page.Box("txttb")->setText(QStringLiteral("6"));
  page.Box("txtta1")->setText(QStringLiteral("0.5"));
  w.messages.Answer(platform::MsgResult::Yes);
  ChooseFromMenu(page, "mnuabc4");
  ASSERT_GE(w.messages.Boxes().size(), 1u);
  EXPECT_EQ(w.messages.Boxes()[0].text, "Try to find another solution?");
  EXPECT_EQ(w.messages.Boxes()[0].title, "Second solution for triangle");
  EXPECT_EQ(w.messages.Boxes()[0].buttons, platform::MsgButtons::YesNo);
  const auto cli = RunCli("triangle", "mnuabc4", {"5", "6", "0.5"});
  // The cli answers No unless told: its first answer is what the window showed before Yes.
  EXPECT_NE(page.Box("txttb1")->text().toStdString(), cli.boxes.at("txttb1"));
  const auto second = velmora::testing::RunCli({"geo", "triangle", "mnuabc4", "5", "6", "0.5", "--yes"});
  EXPECT_NE(second.out.find("txttb1=" + page.Box("txttb1")->text().toStdString() + "\n"), std::string::npos);
}

TEST(FrmGeoTest, TheArcsRadButtonTurnsDegreesIntoRadians) {
  Window w;
  GeoPageWidget& page = w.Open("Circle");
  auto* rad = page.findChild<QPushButton*>(QStringLiteral("Command44"));
  ASSERT_NE(rad, nullptr);
  EXPECT_EQ(rad->text(), QStringLiteral("Rad"));
  EXPECT_EQ(rad->toolTip(), QStringLiteral("Convert to radians"));
  EXPECT_FALSE(rad->isVisibleTo(w.window));  // the circle has no angle
  page.Option("Arc")->click();
  EXPECT_TRUE(rad->isVisibleTo(w.window));
  page.Box("txtKFi")->setText(QStringLiteral("180"));
  rad->click();
  EXPECT_EQ(page.Box("txtKFi")->text(), QStringLiteral("3.14159"));
  page.Box("txtKFi")->setText(QStringLiteral("90"));
  rad->click();
  EXPECT_EQ(page.Box("txtKFi")->text(), QStringLiteral("1.5708"));
}

TEST(FrmGeoTest, TheTrianglesRadiansButtonsConvertTheirOwnAngle) {
  Window w;
  GeoPageWidget& page = w.Open("Triangle");
  page.Box("txtta1")->setText(QStringLiteral("60"));
  page.Box("txttb1")->setText(QStringLiteral("30"));
  page.findChild<QPushButton*>(QStringLiteral("Command55"))->click();
  EXPECT_EQ(page.Box("txtta1")->text(), QStringLiteral("60"));
  EXPECT_EQ(page.Box("txttb1")->text(), QStringLiteral("0.5236"));
}

TEST(FrmGeoTest, ShadeSphereChangesOnlyThePicture) {
  Window w;
  GeoPageWidget& page = w.Open("Sphere");
  page.Box("txtSR")->setText(QStringLiteral("3"));
  ChooseFromMenu(page, "mnulopta1");
  const QImage plain = page.Figure()->Picture();
  auto* shade = page.findChild<QCheckBox*>(QStringLiteral("Check3"));
  ASSERT_NE(shade, nullptr);
  EXPECT_EQ(shade->text(), QStringLiteral("Shade Sphere"));
  shade->click();
  EXPECT_NE(page.Figure()->Picture(), plain);
  EXPECT_EQ(page.Box("txtSD")->text(), QStringLiteral("6"));
}

TEST(FrmGeoTest, APolygonOfSeventeenSidesShowsTheNoteInsteadOfAFigure) {
  Window w;
  GeoPageWidget& page = w.Open("Polygon");
  page.Box("txtPN")->setText(QStringLiteral("17"));
  page.Box("txtPA")->setText(QStringLiteral("1"));
  ChooseFromMenu(page, "a");
  EXPECT_EQ(page.Figure()->Sketch().note, "For N > 16 preview not available.");
  EXPECT_TRUE(page.Figure()->Sketch().Empty());
}

TEST(FrmGeoTest, ResetEmptiesEveryBox) {
  Window w;
  GeoPageWidget& page = w.Open("Cone");
  page.Box("txtCR")->setText(QStringLiteral("3"));
  page.Box("txtCH")->setText(QStringLiteral("4"));
  ChooseFromMenu(page, "mnuK1");
  page.ResetButton()->click();
  for (const char* box : {"txtCR", "txtCH", "txtCa", "txtCb", "txtCFi", "txtCS", "txtCV"}) {
    EXPECT_EQ(page.Box(box)->text(), QString()) << box;
  }
}

TEST(FrmGeoTest, CopyPutsTheResultsOnTheClipboardAndTheLogGrows) {
  Window w;
  GeoPageWidget& page = w.Open("Circle");
  page.Box("txtKR")->setText(QStringLiteral("1"));
  ChooseFromMenu(page, "mnukrug1");
  page.Box("txtKR")->setText(QStringLiteral("2"));
  ChooseFromMenu(page, "mnukrug1");
  w.window->findChild<QPushButton*>(QStringLiteral("cmdCopy"))->click();
  const std::string copied = w.clipboard.Last();
  EXPECT_NE(copied.find("Circle: R = 1"), std::string::npos) << copied;
  EXPECT_NE(copied.find("Circle: R = 2"), std::string::npos) << copied;
  EXPECT_LT(copied.find("Circle: R = 1"), copied.find("Circle: R = 2"));
}

TEST(FrmGeoTest, CopyPicturePutsTheFigureOnTheClipboard) {
  Window w;
  GeoPageWidget& page = w.Open("Cone");
  page.Box("txtCR")->setText(QStringLiteral("3"));
  page.Box("txtCH")->setText(QStringLiteral("4"));
  ChooseFromMenu(page, "mnuK1");
  w.window->findChild<QPushButton*>(QStringLiteral("cmdCopyPicture"))->click();
  const QImage copied = QGuiApplication::clipboard()->image();
  EXPECT_EQ(copied.size(), page.Figure()->size());
  EXPECT_EQ(copied.convertToFormat(QImage::Format_RGB32),
            w.window->Picture().convertToFormat(QImage::Format_RGB32));
}

class SaveDialog final : public platform::FileDialog {
 public:
  explicit SaveDialog(std::string path) : path_(std::move(path)) {}
  std::optional<std::string> Open(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> Save(const std::string&, const std::string&, const std::string&,
                                  const std::string&) override {
    return path_;
  }

 private:
  std::string path_;
};

TEST(FrmGeoTest, TheFigureIsSavedAsABitmap) {
  QTemporaryDir folder;
  ASSERT_TRUE(folder.isValid());
  SaveDialog files(folder.filePath(QStringLiteral("figure")).toStdString());
  RecordingMessageBox messages;
  FrmGeo window(nullptr, {&messages, &files, nullptr});
  window.show();
  QApplication::processEvents();
  EXPECT_TRUE(window.SavePicture());
  QFile saved(folder.filePath(QStringLiteral("figure.bmp")));
  ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
  EXPECT_EQ(saved.read(2), QByteArray("BM"));
  const QImage back(saved.fileName());
  EXPECT_EQ(back.size(), window.Picture().size());
  EXPECT_TRUE(messages.Boxes().empty());
}

TEST(SketchPainterTest, AHighDensityPictureIsDrawnAtItsFullResolution) {
  // The same figure on twice the pixels, for a screen of twice the density.
  geometry::Sketch sketch;
  sketch.segments.push_back({{0, 0}, {1, 1}});
  const QImage normal = RenderSketch(sketch, QSize(200, 100));
  const QImage dense = RenderSketch(sketch, QSize(200, 100), 2.0);
  EXPECT_EQ(dense.size(), QSize(400, 200));
  EXPECT_EQ(dense.deviceIndependentSize(), QSizeF(200, 100));
  EXPECT_GT(InkedPixels(dense), InkedPixels(normal));
}

TEST(FrmGeoTest, SavjpgWritesTheHandOverBitmapWithoutAQuestion) {
  QTemporaryDir folder;
  ASSERT_TRUE(folder.isValid());
  const QString path = folder.filePath(QStringLiteral("temp.bmp"));
  QFile old(path);
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write("old");
  old.close();
  Window w;
  EXPECT_TRUE(w.window->Savjpg(path));
  EXPECT_EQ(QImage(path).size(), w.window->Picture().size());
  EXPECT_TRUE(w.messages.Boxes().empty());
}

}  // namespace
}  // namespace velmora::geometry_qt
