// The popup menus of frmZoom2: the constants and the result conversions
// written into the Evaluator window, the label and table menus.
#include "graph/qt/frmzoom2.h"

#include <QAction>
#include <QMenu>

#include "platform/evaluatortarget.h"
#include "platform/toolwindows.h"
#include "tests/graph/qt/frmfuncfixture.h"

namespace velmora::testing {
namespace {

class FakeEvaluator final : public platform::EvaluatorTarget {
 public:
  void WriteText(const std::string& text) override { written.push_back(text); }
  std::vector<std::string> written;
};

class FakeTools final : public platform::ToolWindows {
 public:
  explicit FakeTools(bool evaluator) : evaluator_(evaluator) {}
  bool Has(platform::ToolWindow window) const override {
    return evaluator_ && window == platform::ToolWindow::Evaluator;
  }
  void Show(platform::ToolWindow) override {}
  void ShowGraphMode() override {}
  platform::MathPadTarget* MathPad() override { return nullptr; }
  platform::EvaluatorTarget* Evaluator(bool) override { return evaluator_ ? &target : nullptr; }
  FakeEvaluator target;

 private:
  bool evaluator_;
};

QAction* Find(QMenu* menu, const QString& name) { return menu->findChild<QAction*>(name); }

TEST(FrmZoom2, AConstantIsWrittenAsItsText) {
  FakeTools tools(true);
  RecordingMessageBox messages;
  std::unique_ptr<QMenu> menu(
      graph_qt::FrmZoom2::ModeMenu(nullptr, tools, messages, [] { return std::string(); }));
  EXPECT_EQ(menu->title(), QStringLiteral("Mode"));
  QAction* mass = Find(menu.get(), QStringLiteral("mnuconst4"));
  ASSERT_NE(mass, nullptr);
  EXPECT_EQ(mass->text(), QStringLiteral("Atomic mas unit"));
  mass->trigger();
  ASSERT_EQ(tools.target.written.size(), 1u);
  EXPECT_EQ(tools.target.written[0], "1.66054*10^(-27)");
  EXPECT_EQ(Find(menu.get(), QStringLiteral("mnuconst2")), nullptr)
      << "index 2 of the first menu is a separator";
  ASSERT_NE(Find(menu.get(), QStringLiteral("mnuconst223")), nullptr);
  Find(menu.get(), QStringLiteral("mnuconst223"))->trigger();
  EXPECT_EQ(tools.target.written.back(), "1.6726485*10^(-27)");
}

struct Conversion {
  const char* why;
  const char* result;
  int index;
  const char* written;  // empty: nothing written
  const char* message;  // empty: no box
};

class ConvertResultMenu : public ::testing::TestWithParam<Conversion> {};

TEST_P(ConvertResultMenu, WritesTheConvertedResult) {
  const auto& c = GetParam();
  FakeTools tools(true);
  RecordingMessageBox messages;
  const std::string result = c.result;
  std::unique_ptr<QMenu> menu(
      graph_qt::FrmZoom2::ModeMenu(nullptr, tools, messages, [result] { return result; }));
  QAction* action = Find(menu.get(), QStringLiteral("mnuconv%1").arg(c.index));
  ASSERT_NE(action, nullptr);
  action->trigger();
  if (std::string(c.written).empty()) {
    EXPECT_TRUE(tools.target.written.empty()) << c.why;
  } else {
    ASSERT_EQ(tools.target.written.size(), 1u) << c.why;
    EXPECT_EQ(tools.target.written[0], c.written) << c.why;
  }
  if (std::string(c.message).empty()) {
    EXPECT_TRUE(messages.Boxes().empty()) << c.why;
  } else {
    ASSERT_EQ(messages.Boxes().size(), 1u) << c.why;
    EXPECT_EQ(messages.Boxes()[0].text, c.message) << c.why;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ConvertResultMenu,
    ::testing::Values(Conversion{"255 in hexadecimal", "255", 2, "FF", ""},
                      Conversion{"8 in octal", "8", 3, "10", ""},
                      Conversion{"6 in binary keeps its lowest digit first", "6", 1, "11", ""},
                      Conversion{"32767 is the largest binary", "32767", 1, "111111111111111", ""},
                      Conversion{"32768 is refused", "32768", 1, "",
                                 "To convert to binary, the result value must be <= 32767."},
                      Conversion{"decimal writes the value back", "2.5", 0, "2.5", ""}));

TEST(FrmZoom2, WithoutTheEvaluatorEveryEntryIsDisabled) {
  FakeTools tools(false);
  RecordingMessageBox messages;
  std::unique_ptr<QMenu> menu(graph_qt::FrmZoom2::ModeMenu(nullptr, tools, messages, nullptr));
  EXPECT_FALSE(Find(menu.get(), QStringLiteral("mnuconst1"))->isEnabled());
  EXPECT_FALSE(Find(menu.get(), QStringLiteral("mnuconv2"))->isEnabled());
}

TEST(FrmZoom2, TheLabelMenuInsertsOrDeletes) {
  int inserted = 0;
  int deleted = 0;
  std::unique_ptr<QMenu> menu(graph_qt::FrmZoom2::LabelMenu(
      nullptr, [&] { ++inserted; }, [&] { ++deleted; }));
  EXPECT_EQ(Find(menu.get(), QStringLiteral("mnudalabel"))->text(), QStringLiteral("Insert Label"));
  EXPECT_EQ(Find(menu.get(), QStringLiteral("mnunelabel"))->text(), QStringLiteral("Delete Label"));
  Find(menu.get(), QStringLiteral("mnudalabel"))->trigger();
  Find(menu.get(), QStringLiteral("mnunelabel"))->trigger();
  EXPECT_EQ(inserted, 1);
  EXPECT_EQ(deleted, 1);
}

}  // namespace
}  // namespace velmora::testing
