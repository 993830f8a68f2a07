// The Qt message and input boxes show the program's exact title, text, icon,
// buttons and default answer, and map the user's answer back. Each box is
// answered by a timer that inspects it and clicks; a box it cannot answer is
// closed, so a test fails instead of waiting.
#include <gtest/gtest.h>

#include <functional>

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "platform/qt/qtcolordialog.h"
#include "platform/qt/qtinputbox.h"
#include "platform/qt/qtmessagebox.h"

namespace velmora::qtplatform {
namespace {

using platform::MsgButtons;
using platform::MsgIcon;
using platform::MsgResult;

// Runs `answer` on the modal box as soon as it is up.
void WhenModal(std::function<void(QWidget*)> answer) {
  auto* timer = new QTimer;
  timer->setInterval(10);
  QObject::connect(timer, &QTimer::timeout, timer, [timer, answer] {
    QWidget* box = QApplication::activeModalWidget();
    if (box == nullptr) return;
    timer->stop();
    timer->deleteLater();
    answer(box);
    if (box->isVisible()) box->close();  // never left waiting
  });
  timer->start();
}

TEST(QtMessageBox, ShowsTheExactTitleTextIconAndButtons) {
  struct Case {
    MsgIcon icon;
    MsgButtons buttons;
    QMessageBox::Icon qtIcon;
    QMessageBox::StandardButtons qtButtons;
    QMessageBox::StandardButton click;
    MsgResult result;
  };
  const Case cases[] = {
      {MsgIcon::Question, MsgButtons::YesNo, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No,
       QMessageBox::No, MsgResult::No},
      {MsgIcon::Exclamation, MsgButtons::Ok, QMessageBox::Warning, QMessageBox::Ok, QMessageBox::Ok,
       MsgResult::Ok},
      {MsgIcon::Critical, MsgButtons::OkCancel, QMessageBox::Critical, QMessageBox::Ok | QMessageBox::Cancel,
       QMessageBox::Cancel, MsgResult::Cancel},
      {MsgIcon::Information, MsgButtons::YesNoCancel, QMessageBox::Information,
       QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes, MsgResult::Yes},
      {MsgIcon::None, MsgButtons::RetryCancel, QMessageBox::NoIcon, QMessageBox::Retry | QMessageBox::Cancel,
       QMessageBox::Retry, MsgResult::Retry},
  };
  for (const auto& c : cases) {
    bool seen = false;
    WhenModal([&](QWidget* widget) {
      auto* box = qobject_cast<QMessageBox*>(widget);
      ASSERT_NE(box, nullptr);
      seen = true;
      EXPECT_EQ(box->windowTitle(), QStringLiteral("Velmora Warning"));
      EXPECT_EQ(box->text(), QStringLiteral("Velmora is already running!"));
      EXPECT_EQ(box->icon(), c.qtIcon);
      EXPECT_EQ(box->standardButtons(), c.qtButtons);
      box->button(c.click)->click();
    });
    QtMessageBox messages;
    const MsgResult result =
        messages.Show("Velmora is already running!", "Velmora Warning", c.icon, c.buttons);
    EXPECT_TRUE(seen);
    EXPECT_EQ(result, c.result);
  }
}

TEST(QtMessageBox, ClosingWithoutAChoiceIsCancelOrNo) {
  for (const auto& [buttons, expected] :
       {std::pair{MsgButtons::OkCancel, MsgResult::Cancel}, std::pair{MsgButtons::YesNo, MsgResult::No}}) {
    WhenModal([](QWidget* box) { box->close(); });
    QtMessageBox messages;
    EXPECT_EQ(messages.Show("Continue?", "Clear", MsgIcon::Question, buttons), expected);
  }
}

TEST(QtInputBox, ShowsPromptTitleAndDefaultAndGivesTheAnswer) {
  WhenModal([](QWidget* widget) {
    auto* dialog = qobject_cast<QInputDialog*>(widget);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Moving Right"));
    EXPECT_EQ(dialog->labelText(), QStringLiteral("Enter value for moving center of plotting area."));
    EXPECT_EQ(dialog->textValue(), QStringLiteral("1"));
    dialog->setTextValue(QStringLiteral("2.5"));
    dialog->accept();
  });
  QtInputBox input;
  EXPECT_EQ(input.Ask("Enter value for moving center of plotting area.", "Moving Right", "1"), "2.5");
  WhenModal([](QWidget* widget) { qobject_cast<QDialog*>(widget)->reject(); });
  EXPECT_EQ(input.Ask("Select zooming factor in range (5-200).", "Zooming", ""), std::nullopt);
}

TEST(QtColorDialog, ColoursKeepRedInTheLowByte) {
  struct Case {
    std::uint32_t bgr;
    int r, g, b;
  };
  const Case cases[] = {
      {0xC08000, 0x00, 0x80, 0xC0},  // the default graph colour
      {0xF5F5F5, 0xF5, 0xF5, 0xF5},  // the default background
      {0x0000FF, 0xFF, 0x00, 0x00},  // pure red
  };
  for (const auto& c : cases) {
    const QColor colour = ColorFromBgr(c.bgr);
    EXPECT_EQ(colour.red(), c.r);
    EXPECT_EQ(colour.green(), c.g);
    EXPECT_EQ(colour.blue(), c.b);
    EXPECT_EQ(BgrFromColor(colour), c.bgr);
  }
}

}  // namespace
}  // namespace velmora::qtplatform
