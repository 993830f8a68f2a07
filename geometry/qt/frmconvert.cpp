#include "geometry/qt/frmconvert.h"

#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

#include "geometry/boxcaptions.h"
#include "platform/evaluatortarget.h"
#include "platform/qt/qtclipboard.h"
#include "platform/qt/qtstring.h"

namespace velmora::geometry_qt {
namespace {

using qtplatform::ToQString;
using qtplatform::ToStdString;

constexpr std::string_view kHandBackCaption = "To Evaluator";
constexpr std::string_view kHandBackTip = "Write the result in the Evaluator window";

QString TabCaption(std::string_view word) {
  QString caption = ToQString(word);
  if (!caption.isEmpty()) caption[0] = caption[0].toUpper();
  return caption;
}

}  // namespace

FrmConvert::FrmConvert(QWidget* owner, ConvertServices services)
    : QWidget(owner, Qt::Window), services_(services) {
  setObjectName(QStringLiteral("frmConvert"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(ToQString(geometry::kConverterCaption));
  if (services_.clipboard == nullptr) {
    ownClipboard_ = std::make_unique<qtplatform::QtClipboard>();
    services_.clipboard = ownClipboard_.get();
  }
  auto* layout = new QVBoxLayout(this);
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName(QStringLiteral("SSTab1"));
  layout->addWidget(tabs_);
  const auto pages = geometry::ListPages();
  lists_.resize(pages.size());
  for (std::size_t i = 0; i < pages.size(); ++i) {
    lists_[i].converter = std::make_unique<geometry::ListConverter>(pages[i]);
    tabs_->addTab(MakeListTab(lists_[i]), TabCaption(pages[i].word));
  }
  tabs_->addTab(MakeDegreesTab(), QStringLiteral("Degrees"));
  connect(tabs_, &QTabWidget::currentChanged, this, [this] { RefreshHandBack(); });
  resize(520, 360);
  RefreshHandBack();
}

FrmConvert::~FrmConvert() = default;

QPushButton* FrmConvert::MakeHandBack(QWidget* parent) {
  auto* button = new QPushButton(ToQString(kHandBackCaption), parent);
  button->setObjectName(QStringLiteral("cmdEvaluator%1").arg(handBack_.size() + 1));
  button->setToolTip(ToQString(kHandBackTip));
  connect(button, &QPushButton::clicked, this, [this] { SendToEvaluator(); });
  handBack_.push_back(button);
  return button;
}

QWidget* FrmConvert::MakeListTab(ListTab& tab) {
  const geometry::ListPage& page = tab.converter->Page();
  auto* widget = new QWidget(tabs_);
  auto* grid = new QGridLayout(widget);
  tab.input = new QLineEdit(widget);
  tab.input->setObjectName(ToQString(page.input));
  tab.output = new QLineEdit(widget);
  tab.output->setObjectName(ToQString(page.output));
  tab.output->setReadOnly(true);
  tab.from = new QListWidget(widget);
  tab.from->setObjectName(ToQString(page.fromList));
  tab.to = new QListWidget(widget);
  tab.to->setObjectName(ToQString(page.toList));
  for (const auto& unit : page.units) {
    tab.from->addItem(ToQString(unit.caption));
    tab.to->addItem(ToQString(unit.caption));
  }
  // The lists start on their first entries, as the converter does, without
  // converting anything yet.
  tab.from->setCurrentRow(static_cast<int>(tab.converter->From()));
  tab.to->setCurrentRow(static_cast<int>(tab.converter->To()));

  grid->addWidget(new QLabel(QStringLiteral("From:"), widget), 0, 0);
  grid->addWidget(new QLabel(QStringLiteral("To:"), widget), 0, 1);
  grid->addWidget(tab.input, 1, 0);
  grid->addWidget(tab.output, 1, 1);
  grid->addWidget(tab.from, 2, 0);
  grid->addWidget(tab.to, 2, 1);
  auto* buttons = new QHBoxLayout;
  auto* convert = new QPushButton(QStringLiteral("Convert"), widget);
  convert->setObjectName(QStringLiteral("cmdConvert") + ToQString(page.input));
  auto* copy = new QPushButton(ToQString(geometry::kCopyCaption), widget);
  copy->setObjectName(ToQString(page.copyButton));
  copy->setToolTip(ToQString(geometry::kCopyToolTip));
  buttons->addWidget(convert);
  buttons->addStretch(1);
  buttons->addWidget(copy);
  buttons->addWidget(MakeHandBack(widget));
  grid->addLayout(buttons, 3, 0, 1, 2);

  const std::size_t index = static_cast<std::size_t>(&tab - lists_.data());
  const std::string fromName(page.fromList), toName(page.toList), output(page.output);
  // A click chooses the entry even when it is already the current one; the
  // arrow keys choose by moving the current entry.
  for (QListWidget* list : {tab.from, tab.to}) {
    const std::string name = list == tab.from ? fromName : toName;
    connect(list, &QListWidget::itemClicked, this,
            [this, name, list](QListWidgetItem*) { ChooseUnit(name, list->currentRow()); });
    connect(list, &QListWidget::currentRowChanged, this, [this, name](int row) { ChooseUnit(name, row); });
  }
  connect(tab.input, &QLineEdit::returnPressed, this, [this, index] { ConvertPage(index); });
  connect(convert, &QPushButton::clicked, this, [this, index] { ConvertPage(index); });
  connect(copy, &QPushButton::clicked, this, [this, output] { CopyBox(output); });
  return widget;
}

QWidget* FrmConvert::MakeDegreesTab() {
  auto* widget = new QWidget(tabs_);
  auto* form = new QFormLayout(widget);
  for (std::size_t i = 0; i < degrees_.Size(); ++i) {
    const std::string& name = degrees_.NameAt(i);
    auto* edit = new QLineEdit(widget);
    edit->setObjectName(ToQString(name));
    const bool output = name == "txtRad" || name == "txtGrad";
    edit->setReadOnly(output);
    if (!output) connect(edit, &QLineEdit::returnPressed, this, [this] { ConvertDegrees(); });
    form->addRow(ToQString(geometry::BoxCaption(name)), edit);
  }
  auto* buttons = new QHBoxLayout;
  auto* convert = new QPushButton(QStringLiteral("Convert"), widget);
  convert->setObjectName(QStringLiteral("Command2"));
  auto* copy = new QPushButton(ToQString(geometry::kCopyCaption), widget);
  copy->setObjectName(QStringLiteral("Command1"));
  buttons->addWidget(convert);
  buttons->addStretch(1);
  buttons->addWidget(copy);
  buttons->addWidget(MakeHandBack(widget));
  form->addRow(buttons);
  connect(convert, &QPushButton::clicked, this, [this] { ConvertDegrees(); });
  connect(copy, &QPushButton::clicked, this, [this, copy] {
    QMenu* menu = MakeCopyMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(copy->mapToGlobal(QPoint(0, copy->height())));
  });
  return widget;
}

QLineEdit* FrmConvert::Box(std::string_view name) const { return findChild<QLineEdit*>(ToQString(name)); }
QListWidget* FrmConvert::List(std::string_view name) const {
  return findChild<QListWidget*>(ToQString(name));
}
QPushButton* FrmConvert::Button(std::string_view name) const {
  return findChild<QPushButton*>(ToQString(name));
}

void FrmConvert::ChooseUnit(std::string_view list, int row) {
  if (row < 0) return;
  for (auto& tab : lists_) {
    const geometry::ListPage& page = tab.converter->Page();
    if (page.fromList == list) {
      const QSignalBlocker quiet(tab.from);
      tab.from->setCurrentRow(row);
      tab.converter->ChooseFrom(static_cast<std::size_t>(row), *services_.messages);
    } else if (page.toList == list) {
      const QSignalBlocker quiet(tab.to);
      tab.to->setCurrentRow(row);
      tab.converter->ChooseTo(static_cast<std::size_t>(row), *services_.messages);
    } else {
      continue;
    }
    ShowList(tab);
  }
}

void FrmConvert::ConvertPage(std::size_t page) {
  if (page >= lists_.size()) return;
  ListTab& tab = lists_[page];
  tab.converter->Boxes().SetText(tab.converter->Page().input, ToStdString(tab.input->text()));
  tab.converter->Convert(*services_.messages);
  ShowList(tab);
}

void FrmConvert::ShowList(ListTab& tab) {
  const auto& boxes = tab.converter->Boxes();
  tab.input->setText(ToQString(boxes.Text(tab.converter->Page().input)));
  tab.output->setText(ToQString(boxes.Text(tab.converter->Page().output)));
  tab.output->setCursorPosition(0);
  RefreshHandBack();
}

void FrmConvert::ReadDegrees() {
  for (std::size_t i = 0; i < degrees_.Size(); ++i) {
    if (const QLineEdit* edit = Box(degrees_.NameAt(i)))
      degrees_.SetText(degrees_.NameAt(i), ToStdString(edit->text()));
  }
}

void FrmConvert::ShowDegrees() {
  for (std::size_t i = 0; i < degrees_.Size(); ++i) {
    if (QLineEdit* edit = Box(degrees_.NameAt(i))) edit->setText(ToQString(degrees_.TextAt(i)));
  }
  RefreshHandBack();
}

void FrmConvert::ConvertDegrees() {
  ReadDegrees();
  geometry::ConvertDegrees(degrees_, *services_.messages);
  ShowDegrees();
}

QMenu* FrmConvert::MakeCopyMenu() {
  auto* menu = new QMenu(this);
  menu->setObjectName(QStringLiteral("mnuCopy1"));
  for (const auto& entry : geometry::DegreesCopyMenu()) {
    QAction* action = menu->addAction(ToQString(entry.caption));
    action->setObjectName(ToQString(entry.name));
    const std::string box(entry.box);
    connect(action, &QAction::triggered, this, [this, box] { CopyBox(box); });
  }
  return menu;
}

void FrmConvert::CopyBox(std::string_view name) {
  if (const QLineEdit* edit = Box(name)) services_.clipboard->SetText(ToStdString(edit->text()));
}

bool FrmConvert::EvaluatorOpen() const {
  if (services_.tools == nullptr || !services_.tools->Has(platform::ToolWindow::Evaluator)) return false;
  return services_.tools->Evaluator(false) != nullptr;
}

void FrmConvert::SendToEvaluator() {
  if (services_.tools == nullptr || !services_.tools->Has(platform::ToolWindow::Evaluator)) return;
  platform::EvaluatorTarget* evaluator = services_.tools->Evaluator(false);
  if (evaluator == nullptr) {
    RefreshHandBack();
    return;
  }
  const int current = tabs_->currentIndex();
  const QLineEdit* result = current >= 0 && static_cast<std::size_t>(current) < lists_.size()
                                ? lists_[static_cast<std::size_t>(current)].output
                                : Box("txtRad");
  if (result != nullptr) evaluator->WriteText(ToStdString(result->text()));
}

void FrmConvert::RefreshHandBack() {
  const bool open = EvaluatorOpen();
  for (QPushButton* button : handBack_) button->setEnabled(open);
}

void FrmConvert::changeEvent(QEvent* event) {
  // The Evaluator window may have been opened or closed while this one was
  // in the background.
  if (event->type() == QEvent::ActivationChange) RefreshHandBack();
  QWidget::changeEvent(event);
}

void FrmConvert::showEvent(QShowEvent* event) {
  RefreshHandBack();
  QWidget::showEvent(event);
}

}  // namespace velmora::geometry_qt
