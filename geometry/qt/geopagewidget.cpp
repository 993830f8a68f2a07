#include "geometry/qt/geopagewidget.h"

#include <algorithm>
#include <array>

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

#include "geometry/boxcaptions.h"
#include "geometry/circle.h"
#include "geometry/ellipsoid.h"
#include "geometry/figuresketch.h"
#include "geometry/qt/figureview.h"
#include "geometry/sphere.h"
#include "geometry/triangle.h"
#include "platform/qt/qtstring.h"

namespace velmora::geometry_qt {
namespace {

using qtplatform::ToQString;
using qtplatform::ToStdString;

// Boxes a figure of a shared page has no use for, hidden while it is
// selected (the Circle page keeps one record for three figures).
struct Unused {
  std::string_view page;
  std::string_view option;
  std::array<std::string_view, 3> boxes;
};
constexpr std::array<Unused, 4> kUnused = {{
    {"Circle", "Circle", {"txtKFi", "txtKrmalo", "txtKRR"}},
    {"Circle", "Arc", {"txtKrmalo", "txtKRR", {}}},
    {"Circle", "Ring", {"txtKFi", {}, {}}},
    {"Frustrum", "Sphere", {"txtFA", "txtFQ", {}}},
}};

// The control names of the page's buttons and option arrays.
struct PageControls {
  std::string_view page;
  std::string_view calculate;
  std::string_view reset;
  std::string_view options;
};
constexpr std::array<PageControls, 8> kControls = {{
    {"Triangle", geometry::kTriangleCalculateButton, geometry::kTriangleResetButton, ""},
    {"Polygon", "cmdPolygon", "cmdPolygonReset", ""},
    {"Euclid", "cmdEuclid", "cmdEuclidReset", ""},
    {"Circle", "cmdCircle", "cmdCircleReset", "Option6"},
    {"Sphere", "cmdSphere", "cmdSphereReset", ""},
    {"Frustrum", "cmdFrustrum", "cmdFrustrumReset", "Option1"},
    {"Ellipsoid", "cmdEllipsoid", "cmdEllipsoidReset", "Option4"},
    {"Cone", "cmdCone", "cmdConeReset", ""},
}};

const PageControls& ControlsOf(std::string_view page) {
  for (const auto& c : kControls) {
    if (c.page == page) return c;
  }
  return kControls[0];
}

// The triangle's option buttons: a general triangle has neither of the two
// set; the page gives that choice a button of its own.
QString TriangleOptionName(std::string_view option) {
  if (option == "Right-angled") return QStringLiteral("optionR");
  if (option == "Equilateral") return QStringLiteral("optionE");
  return QStringLiteral("optionG");
}

constexpr std::array<std::string_view, 3> kRadiansButtons = {"Command54", "Command55", "Command56"};

}  // namespace

GeoPageWidget::GeoPageWidget(std::string_view caption, platform::MessageBox& messages, QWidget* parent)
    : QWidget(parent), page_(caption), messages_(messages) {
  setObjectName(ToQString(caption));
  auto* row = new QHBoxLayout(this);
  auto* column = new QVBoxLayout;
  row->addLayout(column, 0);

  BuildOptions(column);
  auto* boxesFrame = new QGroupBox(this);
  auto* grid = new QGridLayout(boxesFrame);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(4);
  BuildBoxes(grid);
  column->addWidget(boxesFrame);

  if (caption == "Sphere") {
    shade_ = new QCheckBox(ToQString(geometry::kShadeSphereCaption), this);
    shade_->setObjectName(QStringLiteral("Check3"));
    connect(shade_, &QCheckBox::toggled, this, [this] { Redraw(); });
    column->addWidget(shade_);
  }

  const PageControls& controls = ControlsOf(caption);
  auto* buttons = new QHBoxLayout;
  calculate_ = new QPushButton(QStringLiteral("Calculate"), this);
  calculate_->setObjectName(ToQString(controls.calculate));
  reset_ = new QPushButton(ToQString(geometry::kResetCaption), this);
  reset_->setObjectName(ToQString(controls.reset));
  buttons->addWidget(calculate_);
  buttons->addWidget(reset_);
  buttons->addStretch(1);
  column->addLayout(buttons);
  column->addStretch(1);
  connect(calculate_, &QPushButton::clicked, this, [this] {
    QMenu* menu = MakeMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(calculate_->mapToGlobal(QPoint(0, calculate_->height())));
  });
  connect(reset_, &QPushButton::clicked, this, [this] { Reset(); });

  auto* right = new QVBoxLayout;
  row->addLayout(right, 1);
  title_ = new QLabel(this);
  title_->setObjectName(QStringLiteral("lblTitle"));
  QFont bold = title_->font();
  bold.setBold(true);
  title_->setFont(bold);
  right->addWidget(title_);
  figure_ = new FigureView(this);
  right->addWidget(figure_, 1);
  help_ = new QLabel(this);
  help_->setObjectName(QStringLiteral("lblHelp"));
  help_->setWordWrap(true);
  help_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  right->addWidget(help_);

  ShowKind();
}

void GeoPageWidget::BuildOptions(QBoxLayout* column) {
  const auto& kinds = page_.Kinds();
  if (kinds.size() < 2) return;
  auto* frame = new QHBoxLayout;
  auto* group = new QButtonGroup(this);
  const QString array = ToQString(ControlsOf(page_.Caption()).options);
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    const std::string_view option = kinds[i]->option;
    const bool triangle = page_.Caption() == "Triangle";
    auto* button =
        new QRadioButton(triangle && option.empty() ? QStringLiteral("General") : ToQString(option), this);
    button->setObjectName(triangle ? TriangleOptionName(option)
                                   : array + QLatin1Char('_') + QString::number(i));
    button->setChecked(i == 0);
    group->addButton(button);
    options_.emplace(std::string(option), button);
    frame->addWidget(button);
    connect(button, &QRadioButton::clicked, this, [this, option] { SelectOption(option); });
  }
  frame->addStretch(1);
  column->addLayout(frame);
}

void GeoPageWidget::BuildBoxes(QGridLayout* grid) {
  const auto& record = page_.State().boxes;
  const std::size_t half = (record.Size() + 1) / 2;
  for (std::size_t i = 0; i < record.Size(); ++i) {
    const std::string& name = record.NameAt(i);
    const int row = static_cast<int>(i < half ? i : i - half);
    const int col = i < half ? 0 : 3;
    auto* label = new QLabel(ToQString(geometry::BoxCaption(name)), this);
    auto* edit = new QLineEdit(this);
    edit->setObjectName(ToQString(name));
    edit->setMinimumWidth(96);
    label->setBuddy(edit);
    if (page_.Caption() == "Triangle") {
      const auto tip = geometry::TriangleToolTip(name);
      if (!tip.empty()) edit->setToolTip(ToQString(tip));
    }
    grid->addWidget(label, row, col, Qt::AlignRight);
    grid->addWidget(edit, row, col + 1);
    // Enter in a box acts as the page's main command: the case menu opens.
    connect(edit, &QLineEdit::returnPressed, this, [this] { calculate_->click(); });
    boxes_.emplace(name, edit);
    labels_.emplace(name, label);
  }
  // The radians buttons beside the angle boxes they convert.
  const auto addButton = [&](std::string_view control, std::string_view caption, std::string_view tip,
                             std::string_view box) {
    auto* button = new QPushButton(ToQString(caption), this);
    button->setObjectName(ToQString(control));
    if (!tip.empty()) button->setToolTip(ToQString(tip));
    const std::string target(box);
    connect(button, &QPushButton::clicked, this, [this, target] { ConvertToRadians(target); });
    for (std::size_t i = 0; i < record.Size(); ++i) {
      if (record.NameAt(i) != box) continue;
      const int row = static_cast<int>(i < half ? i : i - half);
      grid->addWidget(button, row, i < half ? 2 : 5);
    }
    extras_.emplace(target, button);
  };
  if (page_.Caption() == "Triangle") {
    for (const auto control : kRadiansButtons) {
      addButton(control, geometry::kRadiansButtonCaption, {}, geometry::RadiansButtonBox(control));
    }
  }
  if (page_.Caption() == "Circle") {
    addButton(geometry::kArcRadiansButton, geometry::kArcRadiansCaption, geometry::kArcRadiansToolTip,
              "txtKFi");
  }
}

QLineEdit* GeoPageWidget::Box(std::string_view name) const {
  const auto it = boxes_.find(name);
  return it == boxes_.end() ? nullptr : it->second;
}

QRadioButton* GeoPageWidget::Option(std::string_view caption) const {
  const auto it = options_.find(caption);
  return it == options_.end() ? nullptr : it->second;
}

QString GeoPageWidget::HelpText() const {
  return help_->text().isEmpty() ? title_->text() : title_->text() + QLatin1Char('\n') + help_->text();
}

QMenu* GeoPageWidget::MakeMenu() {
  auto* menu = new QMenu(this);
  menu->setObjectName(ToQString(page_.Kind().menu));
  QAction* heading = menu->addAction(ToQString(geometry::kSelectCaseHeading));
  heading->setEnabled(false);
  QFont bold = menu->font();
  bold.setBold(true);
  heading->setFont(bold);
  menu->addSeparator();
  for (const auto& entry : page_.Menu()) {
    QAction* action = menu->addAction(ToQString(entry.caption));
    action->setObjectName(ToQString(entry.name));
    const std::string name(entry.name);
    connect(action, &QAction::triggered, this, [this, name] { Choose(name); });
  }
  return menu;
}

bool GeoPageWidget::Choose(std::string_view entry) {
  ReadBoxes();
  auto& state = page_.State();
  state.result.clear();
  state.label.clear();
  state.note.clear();
  const bool ran = page_.Run(entry, messages_);
  ShowBoxes();
  Redraw();
  if (ran && !state.result.empty()) emit Solved(ToQString(state.ResultText()));
  return ran;
}

void GeoPageWidget::SelectOption(std::string_view option) {
  ReadBoxes();
  if (!page_.SelectOption(option)) return;
  if (QRadioButton* button = Option(option)) button->setChecked(true);
  ShowBoxes();
  ShowKind();
}

void GeoPageWidget::Reset() {
  page_.Reset();
  page_.State().label.clear();
  page_.State().note.clear();
  ShowBoxes();
  Redraw();
}

void GeoPageWidget::ConvertToRadians(std::string_view box) {
  ReadBoxes();
  geometry::ConvertToRadians(page_.State().boxes, box);
  ShowBoxes();
}

void GeoPageWidget::Redraw() {
  geometry::SketchOptions options;
  options.shade = shade_ != nullptr && shade_->isChecked();
  figure_->SetSketch(geometry::FigureSketch(page_.Kind().word, page_.State(), options));
}

void GeoPageWidget::ReadBoxes() {
  auto& record = page_.State().boxes;
  for (const auto& [name, edit] : boxes_) record.SetText(name, ToStdString(edit->text()));
}

void GeoPageWidget::ShowBoxes() {
  const auto& record = page_.State().boxes;
  for (const auto& [name, edit] : boxes_) {
    const QString text = ToQString(record.Text(name));
    if (edit->text() != text) edit->setText(text);
    edit->setCursorPosition(0);
  }
}

void GeoPageWidget::ShowKind() {
  const geometry::FigureKind& kind = page_.Kind();
  for (const auto& [name, edit] : boxes_) {
    bool used = std::find(kind.boxes.begin(), kind.boxes.end(), name) != kind.boxes.end();
    for (const auto& u : kUnused) {
      if (u.page == page_.Caption() && u.option == kind.option &&
          std::find(u.boxes.begin(), u.boxes.end(), name) != u.boxes.end()) {
        used = false;
      }
    }
    edit->setVisible(used);
    labels_.at(name)->setVisible(used);
    if (const auto extra = extras_.find(name); extra != extras_.end()) extra->second->setVisible(used);
  }
  if (page_.Caption() == "Circle") {
    labels_.at("txtKobim")->setText(ToQString(geometry::LengthCaption(kind.option == "Arc")));
  }
  if (page_.Caption() == "Ellipsoid") {
    const auto captions = geometry::EllipsePageLabels(kind.option == "Ellipsoid");
    labels_.at("txtEvolume")->setText(ToQString(captions.lblEobim));
    labels_.at("txtELaREA")->setText(ToQString(captions.lblArea));
  }
  const auto help = page_.Help();
  title_->setText(help.empty() ? QString() : ToQString(help.front()));
  QStringList lines;
  for (std::size_t i = 1; i < help.size(); ++i) lines << ToQString(help[i]);
  help_->setText(lines.join(QLatin1Char('\n')));
  Redraw();
}

}  // namespace velmora::geometry_qt
