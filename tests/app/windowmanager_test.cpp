// The graph window manager: counters, captions, the limit of twenty.
#include "app/windowmanager.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/recordingmessagebox.h"

namespace velmora::app {
namespace {

struct RecordingFactory final : GraphWindowFactory {
  void CreateGraphWindow(const std::string& caption) override { captions.push_back(caption); }
  std::vector<std::string> captions;
};

struct Fixture {
  testing::RecordingMessageBox messages;
  RecordingFactory factory;
  WindowManager manager{messages, factory};
};

TEST(WindowManager, TheFirstWindowIsGraph1) {
  Fixture f;
  EXPECT_TRUE(f.manager.NewGraphWindow());
  EXPECT_EQ(f.factory.captions, std::vector<std::string>{"Graph 1"});
  EXPECT_EQ(f.manager.WindowCount(), 1);
  EXPECT_EQ(f.manager.WindowSerial(), 1);
  EXPECT_TRUE(f.messages.Boxes().empty());
}

TEST(WindowManager, TheTwentyFirstRequestShowsTheMessageAndMakesNothing) {
  Fixture f;
  for (int i = 0; i < 20; ++i) ASSERT_TRUE(f.manager.NewGraphWindow());
  EXPECT_EQ(f.factory.captions.back(), "Graph 20");
  EXPECT_FALSE(f.manager.NewGraphWindow());
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  const auto& box = f.messages.Boxes()[0];
  EXPECT_EQ(box.text, "Maximum number of windows reached.");
  EXPECT_EQ(box.title, "Error Creating new Window");
  EXPECT_EQ(box.icon, platform::MsgIcon::Critical);
  EXPECT_EQ(box.buttons, platform::MsgButtons::Ok);
  EXPECT_EQ(f.factory.captions.size(), 20u);
  EXPECT_EQ(f.manager.WindowCount(), 20);
  EXPECT_EQ(f.manager.WindowSerial(), 20);
}

TEST(WindowManager, ClosingGraph2OfThreeGivesGraph4Next) {
  Fixture f;
  for (int i = 0; i < 3; ++i) f.manager.NewGraphWindow();
  f.manager.WindowClosed();
  EXPECT_EQ(f.manager.WindowCount(), 2);
  f.manager.NewGraphWindow();
  EXPECT_EQ(f.factory.captions.back(), "Graph 4");
  EXPECT_EQ(f.manager.WindowCount(), 3);
  EXPECT_EQ(f.manager.WindowSerial(), 4);
}

TEST(WindowManager, AfterClosingAllTheNumberGoesOnFromTheLastUsed) {
  Fixture f;
  for (int i = 0; i < 5; ++i) f.manager.NewGraphWindow();
  for (int i = 0; i < 5; ++i) f.manager.WindowClosed();
  EXPECT_EQ(f.manager.WindowCount(), 0);
  f.manager.WindowClosed();  // never below zero
  EXPECT_EQ(f.manager.WindowCount(), 0);
  f.manager.NewGraphWindow();
  EXPECT_EQ(f.factory.captions.back(), "Graph 6");
}

TEST(WindowManager, AClosedWindowMakesRoomUnderTheLimit) {
  Fixture f;
  for (int i = 0; i < 20; ++i) f.manager.NewGraphWindow();
  f.manager.WindowClosed();
  EXPECT_TRUE(f.manager.NewGraphWindow());
  EXPECT_EQ(f.factory.captions.back(), "Graph 21");
  EXPECT_TRUE(f.messages.Boxes().empty());
}

}  // namespace
}  // namespace velmora::app
