#include "graph/qt/frmzoom2.h"

#include <QMenu>

#include "geometry/convertresult.h"
#include "graph/constants.h"
#include "platform/evaluatortarget.h"
#include "platform/messagebox.h"
#include "platform/qt/qtstring.h"
#include "platform/toolwindows.h"

namespace velmora::graph_qt {
namespace {

QString Caption(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

void WriteToEvaluator(platform::ToolWindows& tools, const std::string& text) {
  if (platform::EvaluatorTarget* evaluator = tools.Evaluator(true)) evaluator->WriteText(text);
}

}  // namespace

QMenu* FrmZoom2::LabelMenu(QWidget* parent, std::function<void()> insert, std::function<void()> remove) {
  auto* menu = new QMenu(QStringLiteral("Label"), parent);
  menu->setObjectName(QStringLiteral("mnulabel"));
  QAction* da = menu->addAction(QStringLiteral("Insert Label"));
  da->setObjectName(QStringLiteral("mnudalabel"));
  QAction* ne = menu->addAction(QStringLiteral("Delete Label"));
  ne->setObjectName(QStringLiteral("mnunelabel"));
  QObject::connect(da, &QAction::triggered, menu, [insert = std::move(insert)] { insert(); });
  QObject::connect(ne, &QAction::triggered, menu, [remove = std::move(remove)] { remove(); });
  return menu;
}

QMenu* FrmZoom2::CopyTableMenu(QWidget* parent, std::function<void()> copySelected,
                               std::function<void()> copyAll) {
  auto* menu = new QMenu(QStringLiteral("CopyTable"), parent);
  menu->setObjectName(QStringLiteral("mnuKopt"));
  QAction* selected = menu->addAction(QStringLiteral("&Copy Selected"));
  selected->setObjectName(QStringLiteral("mnuCT1"));
  QAction* all = menu->addAction(QStringLiteral("Copy &All"));
  all->setObjectName(QStringLiteral("mnuCT2"));
  QObject::connect(selected, &QAction::triggered, menu,
                   [copySelected = std::move(copySelected)] { copySelected(); });
  QObject::connect(all, &QAction::triggered, menu, [copyAll = std::move(copyAll)] { copyAll(); });
  return menu;
}

QMenu* FrmZoom2::ModeMenu(QWidget* parent, platform::ToolWindows& tools, platform::MessageBox& messages,
                          std::function<std::string()> result) {
  auto* menu = new QMenu(QStringLiteral("Mode"), parent);
  menu->setObjectName(QStringLiteral("mnumode"));
  const bool evaluator = tools.Has(platform::ToolWindow::Evaluator);
  const auto addConstants = [&](const QString& title, const QString& name,
                                std::span<const graph::ConstantEntry> list) {
    QMenu* sub = menu->addMenu(title);
    sub->setObjectName(name);
    int next = 1;
    for (const auto& entry : list) {
      for (; next < entry.index; ++next) sub->addSeparator();
      QAction* action = sub->addAction(Caption(entry.caption));
      action->setObjectName(name + QString::number(entry.index));
      action->setEnabled(evaluator);
      const std::string text(entry.text);
      QObject::connect(action, &QAction::triggered, menu, [&tools, text] { WriteToEvaluator(tools, text); });
      next = entry.index + 1;
    }
  };
  addConstants(QStringLiteral("Constants &A - J"), QStringLiteral("mnuconst"), graph::ConstantsAToJ());
  addConstants(QStringLiteral("Constants &M - S"), QStringLiteral("mnuconst2"), graph::ConstantsMToS());
  QMenu* convert = menu->addMenu(QStringLiteral("&Convert Result"));
  convert->setObjectName(QStringLiteral("mnuconv0"));
  int index = 0;
  for (const auto caption : graph::ConvertEntries()) {
    QAction* action = convert->addAction(Caption(caption));
    action->setObjectName(QStringLiteral("mnuconv") + QString::number(index));
    action->setEnabled(evaluator);
    QObject::connect(action, &QAction::triggered, menu, [&tools, &messages, result, index] {
      const auto converted = geometry::ConvertResult(result ? result() : std::string(), index, messages);
      if (converted) WriteToEvaluator(tools, converted->text);
    });
    ++index;
  }
  return menu;
}

}  // namespace velmora::graph_qt
