#include "mathpad/qt/frmmapuskice.h"

#include <cmath>

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QDateTime>
#include <QFontDatabase>
#include <QFontDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPainter>
#include <QStatusBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>
#include <QTextList>
#include <QToolBar>

#include "mathpad/padlogic.h"
#include "mathpad/padtexts.h"
#include "mathpad/qt/frmansi.h"
#include "mathpad/qt/frmfind.h"
#include "mathpad/qt/padeditor.h"
#include "output/qt/frmpagesetup.h"
#include "output/qt/printdialogs.h"
#include "platform/qt/qtsavefile.h"
#include "platform/qt/qtstring.h"
#include "platform/settingskeys.h"

namespace velmora::mathpad_qt {

namespace {

using qtplatform::ToQString;
using qtplatform::ToStdString;

constexpr int kSizes[] = {10, 11, 12, 14, 16, 18, 20, 24, 28, 32, 36, 40, 48, 56, 64, 72, 80, 88, 96};
// The page width of the print view: a letter page less one-inch margins, at 96 dpi.
constexpr int kPrintViewWidth = 624;

mathpad::PadServices PadServicesOf(const MathPadServices& s) {
  mathpad::PadServices out;
  out.messages = s.messages;
  out.files = s.files;
  out.input = s.input;
  out.settings = s.settings;
  out.shell = s.shell;
  // Saves go through QSaveFile: the old file stays whole until the new one is.
  out.write = [](const std::string& path, const std::string& bytes) {
    return qtplatform::SaveFileAtomically(ToQString(path), [&bytes](QIODevice& device) {
      return device.write(bytes.data(), static_cast<qint64>(bytes.size())) ==
             static_cast<qint64>(bytes.size());
    });
  };
  return out;
}

// A toolbar picture drawn from a short text.
QIcon TextIcon(const QString& text, const QFont& font = QFont()) {
  QPixmap pixmap(24, 24);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.setFont(font);
  painter.drawText(pixmap.rect(), Qt::AlignCenter, text);
  return QIcon(pixmap);
}

// An alignment picture: four lines set left, centred or right.
QIcon AlignIcon(Qt::Alignment alignment) {
  QPixmap pixmap(24, 24);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setPen(QPen(Qt::black, 2));
  const int widths[] = {18, 12, 18, 10};
  for (int i = 0; i < 4; ++i) {
    const int w = widths[i];
    int x = 3;
    if (alignment & Qt::AlignHCenter) x = (24 - w) / 2;
    if (alignment & Qt::AlignRight) x = 21 - w;
    painter.drawLine(x, 5 + i * 5, x + w, 5 + i * 5);
  }
  return QIcon(pixmap);
}

// The half-point offset of MathPad's raised and lowered text: the font size
// in points plus 33, taken as twips.
int ScriptOffset(double points) { return static_cast<int>(std::lround((points + 33.0) / 10.0)); }

}  // namespace

FrmMaPuskice::FrmMaPuskice(QWidget* owner, MathPadServices services)
    : QMainWindow(owner, Qt::Window), services_(services), file_(*this, PadServicesOf(services)) {
  setObjectName(QStringLiteral("frmMaPuskice"));
  setAttribute(Qt::WA_DeleteOnClose);
  rtbp_ = new PadEditor(this, [this](const QImage& image) { InsertImage(image); });
  rtbp_->setObjectName(QStringLiteral("rtbp"));
  rtbp_->setAcceptRichText(true);
  // The document's font: MathPad's font settings, "Arial" 10 unless set.
  namespace keys = platform::keys;
  const auto setting = [this](std::string_view name) {
    return ToQString(platform::ReadSetting(*services_.settings, keys::kMpad, name));
  };
  QFont font(setting(keys::mpad::kFont));
  bool ok = false;
  const double size = setting(keys::mpad::kSize).toDouble(&ok);
  font.setPointSizeF(ok && size > 0 ? size : 10);
  rtbp_->document()->setDefaultFont(font);
  rtbp_->installEventFilter(this);
  rtbp_->setContextMenuPolicy(Qt::CustomContextMenu);
  setCentralWidget(rtbp_);

  BuildMenus();
  BuildToolbar();

  panelFile_ = new QLabel(this);
  panelSize_ = new QLabel(this);
  panelPlace_ = new QLabel(this);
  panelFile_->setObjectName(QStringLiteral("SB1File"));
  panelSize_->setObjectName(QStringLiteral("SB1Size"));
  panelPlace_->setObjectName(QStringLiteral("SB1Place"));
  statusBar()->setObjectName(QStringLiteral("SB1"));
  statusBar()->addWidget(panelFile_, 1);
  statusBar()->addPermanentWidget(panelPlace_);
  statusBar()->addPermanentWidget(panelSize_);

  connect(rtbp_, &QTextEdit::textChanged, this, &FrmMaPuskice::OnTextChanged);
  connect(rtbp_, &QTextEdit::cursorPositionChanged, this, &FrmMaPuskice::OnCursorMoved);
  connect(rtbp_, &QTextEdit::currentCharFormatChanged, this,
          [this](const QTextCharFormat&) { UpdateToolbar(); });
  connect(rtbp_, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
    RefreshEditMenu();
    editMenu_->exec(rtbp_->viewport()->mapToGlobal(at));
  });

  file_.Load();
  OnCursorMoved();
  UpdateToolbar();
  resize(720, 520);
}

FrmMaPuskice::~FrmMaPuskice() = default;

QAction* FrmMaPuskice::AddAction(QMenu* menu, const QString& name, const QString& text,
                                 void (FrmMaPuskice::*slot)()) {
  QAction* action = menu->addAction(text);
  action->setObjectName(name);
  if (slot != nullptr) connect(action, &QAction::triggered, this, slot);
  actions_[name] = action;
  return action;
}

void FrmMaPuskice::BuildMenus() {
  using F = FrmMaPuskice;
  fileMenu_ = menuBar()->addMenu(QStringLiteral("&File"));
  fileMenu_->setObjectName(QStringLiteral("mnuFile"));
  AddAction(fileMenu_, "mnuNew", "&New", nullptr);
  connect(actions_["mnuNew"], &QAction::triggered, this, [this] { file_.New(); });
  AddAction(fileMenu_, "mnuOpen", "&Open...", nullptr);
  connect(actions_["mnuOpen"], &QAction::triggered, this, [this] { file_.Open(); });
  AddAction(fileMenu_, "mnuSave", "&Save", nullptr);
  connect(actions_["mnuSave"], &QAction::triggered, this, [this] { file_.Save(); });
  AddAction(fileMenu_, "mnuSaveas", "Save &As...", nullptr);
  connect(actions_["mnuSaveas"], &QAction::triggered, this, [this] { file_.SaveAs(); });
  AddAction(fileMenu_, "mnuRevert", "&Revert", nullptr);
  connect(actions_["mnuRevert"], &QAction::triggered, this, [this] { file_.Revert(); });
  fileMenu_->addSeparator();
  AddAction(fileMenu_, "mnuEmail", "Send to &Email...", nullptr);
  connect(actions_["mnuEmail"], &QAction::triggered, this, [this] { file_.SendToEmail(); });
  fileMenu_->addSeparator();
  AddAction(fileMenu_, "mnuprint", "&Print...", &F::Print);
  AddAction(fileMenu_, "mnuPrSetup", "Print Set&up...", nullptr);
  connect(actions_["mnuPrSetup"], &QAction::triggered, this,
          [this] { output_qt::PageSetupDialog(this, *services_.settings); });
  fileMenu_->addSeparator();
  AddAction(fileMenu_, "mnuExit", "E&xit\tAlt+F4", nullptr);
  connect(actions_["mnuExit"], &QAction::triggered, this, &QWidget::close);
  separator2_ = fileMenu_->addSeparator();
  separator2_->setObjectName(QStringLiteral("mnuSeparator2"));
  for (int i = 1; i <= platform::RecentList::kEntries; ++i) {
    QAction* entry = fileMenu_->addAction(QString());
    entry->setObjectName(QStringLiteral("mnuRecent%1").arg(i));
    entry->setVisible(false);
    connect(entry, &QAction::triggered, this, [this, i] { file_.OpenRecent(i); });
    recentActions_.push_back(entry);
  }

  editMenu_ = menuBar()->addMenu(QStringLiteral("&Edit"));
  editMenu_->setObjectName(QStringLiteral("mnuEdit"));
  AddAction(editMenu_, "mnuEditUndo", "&Undo\tCtrl+Z", &F::Undo);
  editMenu_->addSeparator();
  AddAction(editMenu_, "mnuEditCut", "C&ut\tCtrl+X", nullptr);
  connect(actions_["mnuEditCut"], &QAction::triggered, rtbp_, &QTextEdit::cut);
  AddAction(editMenu_, "mnuEditCopy", "&Copy\tCtrl+C", nullptr);
  connect(actions_["mnuEditCopy"], &QAction::triggered, rtbp_, &QTextEdit::copy);
  AddAction(editMenu_, "mnuEditPaste", "&Paste\tCtrl+V", nullptr);
  connect(actions_["mnuEditPaste"], &QAction::triggered, rtbp_, &QTextEdit::paste);
  AddAction(editMenu_, "mnuEditClear", "&Delete\tDelete", nullptr);
  connect(actions_["mnuEditClear"], &QAction::triggered, this,
          [this] { rtbp_->textCursor().removeSelectedText(); });
  editMenu_->addSeparator();
  AddAction(editMenu_, "mnuSelAll", "Sellect All", nullptr);
  connect(actions_["mnuSelAll"], &QAction::triggered, rtbp_, &QTextEdit::selectAll);
  AddAction(editMenu_, "mnuSelLine", "Select Line", &F::SelectLine);
  connect(editMenu_, &QMenu::aboutToShow, this, &FrmMaPuskice::RefreshEditMenu);

  QMenu* tools = menuBar()->addMenu(QStringLiteral("&Tools"));
  tools->setObjectName(QStringLiteral("mnuTools"));
  AddAction(tools, "mnuInsGraph", "Insert Graph Image...", &F::InsertImage);
  AddAction(tools, "mnuInSymbol", "Insert &Symbol...", nullptr);
  connect(actions_["mnuInSymbol"], &QAction::triggered, this, [this] { SymbolDialog()->show(); });
  AddAction(tools, "mniInsDate", "Insert Date/Time...", &F::InsertDateTime);
  tools->addSeparator();
  AddAction(tools, "mnuFind", "&Find && Replace...", nullptr);
  connect(actions_["mnuFind"], &QAction::triggered, this, [this] {
    FindDialog()->show();
    FindDialog()->raise();
  });
  AddAction(tools, "mnuFNext", "Find &Next...", nullptr);
  connect(actions_["mnuFNext"], &QAction::triggered, this, [this] { FindDialog()->FindNext(); });

  QMenu* format = menuBar()->addMenu(QStringLiteral("F&ormat"));
  format->setObjectName(QStringLiteral("mnuformat"));
  AddAction(format, "mnuFont", "&Font...", &F::FontDialog);
  AddAction(format, "mnuFontColor", "Font &Color...", &F::FontColor);
  QMenu* changeCase = format->addMenu(QStringLiteral("C&hange Case"));
  changeCase->setObjectName(QStringLiteral("mnuChCase"));
  AddAction(changeCase, "mnuuperrcase", "&UPPERCASE", nullptr);
  connect(actions_["mnuuperrcase"], &QAction::triggered, this, [this] { ChangeCase(true); });
  AddAction(changeCase, "mnulowercase", "&lowercase", nullptr);
  connect(actions_["mnulowercase"], &QAction::triggered, this, [this] { ChangeCase(false); });
  AddAction(format, "mnuBullets", "&Bullets", &F::ToggleBullets);
  AddAction(format, "mnusup", "Su&perscript", &F::ToggleSuperscript);
  AddAction(format, "mnusub", "Su&bscript", &F::ToggleSubscript);
  QMenu* view = format->addMenu(QStringLiteral("Set &View"));
  view->setObjectName(QStringLiteral("mnusetview"));
  viewGroup_ = new QActionGroup(this);
  const QString modes[] = {QStringLiteral("&No Wrap"), QStringLiteral("&WordWrap"),
                           QStringLiteral("&PrintView")};
  for (int i = 0; i < 3; ++i) {
    QAction* mode = AddAction(view, QStringLiteral("mnuViewMode%1").arg(i), modes[i], nullptr);
    mode->setCheckable(true);
    mode->setChecked(i == 1);
    viewGroup_->addAction(mode);
    connect(mode, &QAction::triggered, this, [this, i] { SetViewMode(i); });
  }

  helpMenu_ = menuBar()->addMenu(QStringLiteral("Help"));
  helpMenu_->setObjectName(QStringLiteral("mnuhelp2"));
  const std::pair<const char*, platform::ToolWindow> tools2[] = {
      {"Ma&thPad", platform::ToolWindow::MathPad},
      {"&Complex Calculator", platform::ToolWindow::Complex},
      {"&Graph Mode", platform::ToolWindow::MathPad},
      {"&Evaluator", platform::ToolWindow::Evaluator},
      {"&Matrix Calculator", platform::ToolWindow::Matrix},
      {"Ge&ometry Calculator", platform::ToolWindow::Geometry},
  };
  for (const auto& [text, window] : tools2) {
    QAction* entry = helpMenu_->addAction(QString::fromUtf8(text));
    const bool graphMode = QString::fromUtf8(text) == QStringLiteral("&Graph Mode");
    connect(entry, &QAction::triggered, this, [this, window, graphMode] {
      if (services_.tools == nullptr) return;
      if (graphMode) {
        services_.tools->ShowGraphMode();
      } else {
        services_.tools->Show(window);
      }
    });
    if (!graphMode) helpEntries_.emplace_back(entry, window);
    if (graphMode) entry->setEnabled(services_.tools != nullptr);
  }
  helpMenu_->addSeparator();
  // The help file is not part of this version.
  AddAction(helpMenu_, "mnuht2", "&Help", nullptr)->setEnabled(false);
  AddAction(helpMenu_, "mnuabout", "&About", nullptr);
  connect(actions_["mnuabout"], &QAction::triggered, this, [this] {
    services_.messages->Show("MathPad, the notebook of Velmora.", std::string(mathpad::texts::kTitle),
                             platform::MsgIcon::Information, platform::MsgButtons::Ok);
  });
  helpMenu_->addSeparator();
  AddAction(helpMenu_, "mnuexit", "&Close", nullptr);
  connect(actions_["mnuexit"], &QAction::triggered, this, &QWidget::close);
  connect(helpMenu_, &QMenu::aboutToShow, this, &FrmMaPuskice::RefreshHelpMenu);
  RefreshHelpMenu();
}

void FrmMaPuskice::RefreshHelpMenu() {
  for (const auto& [entry, window] : helpEntries_) {
    entry->setEnabled(services_.tools != nullptr && services_.tools->Has(window));
  }
}

void FrmMaPuskice::BuildToolbar() {
  toolbar1_ = addToolBar(QStringLiteral("Toolbar1"));
  toolbar1_->setObjectName(QStringLiteral("Toolbar1"));
  toolbar1_->setIconSize(QSize(24, 24));
  const auto button = [this](const QString& key, const QString& tip, const QIcon& icon, bool toggle,
                             const std::function<void()>& run) {
    QAction* action = toolbar1_->addAction(icon, tip);
    action->setObjectName(key);
    action->setCheckable(toggle);
    connect(action, &QAction::triggered, this, [this, run, key] {
      run();
      // A toggle shows the selection's state, not the click.
      if (buttons_[key]->isCheckable()) UpdateToolbar();
    });
    buttons_[key] = action;
  };
  QStyle* s = style();
  button("New", "New", s->standardIcon(QStyle::SP_FileIcon), false, [this] { file_.New(); });
  button("Open", "Open", s->standardIcon(QStyle::SP_DialogOpenButton), false, [this] { file_.Open(); });
  button("Save", "Save", s->standardIcon(QStyle::SP_DialogSaveButton), false, [this] { file_.Save(); });
  button("Print", "Print", TextIcon("P"), false, [this] { Print(); });
  toolbar1_->addSeparator();
  button("Copy", "Copy", TextIcon("Cp"), false, [this] { rtbp_->copy(); });
  button("Paste", "Paste", TextIcon("Ps"), false, [this] { rtbp_->paste(); });
  button("Undo", "Undo", s->standardIcon(QStyle::SP_ArrowBack), false, [this] { Undo(); });
  toolbar1_->addSeparator();
  button("Insert", "Insert Graph Image", TextIcon("Img"), false, [this] { InsertImage(); });
  button("Sup", "Superscript", TextIcon(QStringLiteral("x\u00B2")), true, [this] { ToggleSuperscript(); });
  button("Bul", "Bullets", TextIcon(QStringLiteral("\u2022")), true, [this] { ToggleBullets(); });
  button("Sub", "Subscript", TextIcon(QStringLiteral("x\u2082")), true, [this] { ToggleSubscript(); });
  button("simbol", "Insert Symbol", TextIcon(QStringLiteral("\u03A9")), false,
         [this] { SymbolDialog()->show(); });
  button("Find", "Find & Replace", TextIcon("Fd"), false, [this] { FindDialog()->show(); });
  toolbar1_->addSeparator();
  combo1_ = new QComboBox(this);
  combo1_->setObjectName(QStringLiteral("Combo1"));
  combo1_->addItems(QFontDatabase::families());
  // Editable, so a document's font shows even when the system lacks it.
  combo1_->setEditable(true);
  combo1_->setMaximumWidth(180);
  toolbar1_->addWidget(combo1_);
  cmbSize_ = new QComboBox(this);
  cmbSize_->setObjectName(QStringLiteral("cmbSize"));
  cmbSize_->setEditable(true);
  for (const int size : kSizes) cmbSize_->addItem(QString::number(size));
  toolbar1_->addWidget(cmbSize_);
  connect(combo1_, &QComboBox::textActivated, this, [this](const QString& family) {
    QTextCharFormat chars;
    chars.setFontFamilies(QStringList{family});
    rtbp_->mergeCurrentCharFormat(chars);
    rtbp_->setFocus();
  });
  connect(cmbSize_, &QComboBox::textActivated, this, [this](const QString& text) {
    bool ok = false;
    const double points = text.toDouble(&ok);
    if (ok && points > 0) ApplySize(points);
    rtbp_->setFocus();
  });
  toolbar1_->addSeparator();
  QFont bold;
  bold.setBold(true);
  QFont italic;
  italic.setItalic(true);
  QFont underline;
  underline.setUnderline(true);
  button("Bold", "Bold", TextIcon("B", bold), true, [this] { ToggleBold(); });
  button("Italic", "Italic", TextIcon("I", italic), true, [this] { ToggleItalic(); });
  button("Underline", "Underline", TextIcon("U", underline), true, [this] { ToggleUnderline(); });
  button("Left", "Left", AlignIcon(Qt::AlignLeft), true, [this] { SetAlignment(Qt::AlignLeft); });
  button("Center", "Center", AlignIcon(Qt::AlignHCenter), true, [this] { SetAlignment(Qt::AlignHCenter); });
  button("Right", "Right", AlignIcon(Qt::AlignRight), true, [this] { SetAlignment(Qt::AlignRight); });
}

QAction* FrmMaPuskice::Action(const QString& name) const {
  const auto it = actions_.find(name);
  return it == actions_.end() ? nullptr : it->second;
}

QAction* FrmMaPuskice::Button(const QString& key) const {
  const auto it = buttons_.find(key);
  return it == buttons_.end() ? nullptr : it->second;
}

QString FrmMaPuskice::FilePanel() const { return panelFile_->text(); }
QString FrmMaPuskice::SizePanel() const { return panelSize_->text(); }
QString FrmMaPuskice::PlacePanel() const { return panelPlace_->text(); }

FrmFind* FrmMaPuskice::FindDialog() {
  if (find_.isNull()) find_ = new FrmFind(this, rtbp_);
  return find_;
}

FrmAnsi* FrmMaPuskice::SymbolDialog() {
  if (ansi_.isNull()) {
    ansi_ = new FrmAnsi(this);
    ansi_->Combo1()->setCurrentText(rtbp_->currentFont().family());
    connect(ansi_, &FrmAnsi::Insert, this, &FrmMaPuskice::InsertSymbol);
  }
  return ansi_;
}

// --- platform::MathPadTarget ---

void FrmMaPuskice::AppendText(const std::string& text) {
  QString plain = ToQString(text);
  plain.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  QTextCursor cursor(rtbp_->document());
  cursor.movePosition(QTextCursor::End);
  cursor.insertText(plain);
  rtbp_->setTextCursor(cursor);
  rtbp_->ensureCursorVisible();
}

void FrmMaPuskice::InsertText(const std::string& text, const std::string& fontName) {
  QString plain = ToQString(text);
  plain.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  QTextCursor cursor = rtbp_->textCursor();
  QTextCharFormat chars = cursor.charFormat();
  if (!fontName.empty()) chars.setFontFamilies(QStringList{ToQString(fontName)});
  cursor.insertText(plain, chars);
  rtbp_->setTextCursor(cursor);
}

void FrmMaPuskice::NewDocument(const std::string& text) {
  const bool wasDirty = file_.Dirty();
  file_.New();
  if (file_.Dirty() && wasDirty) return;  // the question was cancelled
  AppendText(text);
}

void FrmMaPuskice::OpenFile(const std::string& path) { file_.OpenPath(path); }

// --- mathpad::PadView ---

rtf::Document FrmMaPuskice::Content() const { return GetDocument(*rtbp_->document(), pictures_); }

void FrmMaPuskice::SetContent(const rtf::Document& document) {
  SetDocument(*rtbp_->document(), document, pictures_);
  rtbp_->moveCursor(QTextCursor::Start);
  OnTextChanged();
}

void FrmMaPuskice::ShowCaption(const std::string& caption) { setWindowTitle(ToQString(caption)); }
void FrmMaPuskice::ShowFileName(const std::string& name) { panelFile_->setText(ToQString(name)); }
void FrmMaPuskice::ShowSize(const std::string& text) { panelSize_->setText(ToQString(text)); }

void FrmMaPuskice::ShowRecent(const platform::RecentList& list) {
  separator2_->setVisible(list.SeparatorVisible());
  for (int i = 1; i <= platform::RecentList::kEntries; ++i) {
    QAction* entry = recentActions_[static_cast<std::size_t>(i - 1)];
    entry->setText(QStringLiteral("&%1 %2").arg(i).arg(ToQString(list.Caption(i))));
    entry->setVisible(i <= list.VisibleEntries());
  }
}

// --- editing ---

void FrmMaPuskice::OnTextChanged() {
  file_.ContentChanged(static_cast<std::uint64_t>(std::max(0, rtbp_->document()->characterCount() - 1)));
  OnCursorMoved();
}

void FrmMaPuskice::OnCursorMoved() {
  const QTextCursor cursor = rtbp_->textCursor();
  panelPlace_->setText(
      QStringLiteral("Ln %1, Col %2").arg(cursor.blockNumber() + 1).arg(cursor.positionInBlock() + 1));
}

bool FrmMaPuskice::CanUndo() const {
  return rtbp_->document()->isUndoAvailable() || rtbp_->document()->isRedoAvailable();
}

void FrmMaPuskice::Undo() {
  // One step only, as the classic rich edit control keeps it: Undo takes
  // back the last change and forgets the older ones; Undo again brings the
  // change back.
  QTextDocument* document = rtbp_->document();
  if (document->isRedoAvailable()) {
    document->redo();
    document->clearUndoRedoStacks(QTextDocument::RedoStack);
  } else if (document->isUndoAvailable()) {
    document->undo();
    document->clearUndoRedoStacks(QTextDocument::UndoStack);
  }
}

void FrmMaPuskice::RefreshEditMenu() {
  const bool selection = rtbp_->textCursor().hasSelection();
  actions_["mnuEditUndo"]->setEnabled(CanUndo());
  actions_["mnuEditCut"]->setEnabled(selection);
  actions_["mnuEditCopy"]->setEnabled(selection);
  actions_["mnuEditClear"]->setEnabled(selection);
  actions_["mnuEditPaste"]->setEnabled(rtbp_->canPaste());
}

bool FrmMaPuskice::eventFilter(QObject* watched, QEvent* event) {
  if (watched == rtbp_ && (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress)) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
      // The editor's own many-step undo stays out of reach.
      if (event->type() == QEvent::KeyPress) Undo();
      event->accept();
      return true;
    }
  }
  return QMainWindow::eventFilter(watched, event);
}

void FrmMaPuskice::closeEvent(QCloseEvent* event) {
  if (!file_.QueryClose()) {
    event->ignore();
    return;
  }
  if (!find_.isNull()) find_->close();
  if (!ansi_.isNull()) ansi_->close();
  event->accept();
}

// --- format ---

void FrmMaPuskice::UpdateToolbar() {
  const QTextCursor cursor = rtbp_->textCursor();
  const QTextCharFormat chars = rtbp_->currentCharFormat();
  const int offset = chars.intProperty(kOffsetProperty);
  const Qt::Alignment alignment = rtbp_->alignment() & Qt::AlignHorizontal_Mask;
  const auto press = [this](const char* key, bool on) { buttons_[QString::fromLatin1(key)]->setChecked(on); };
  press("Bold", chars.fontWeight() > QFont::Medium);
  press("Italic", chars.fontItalic());
  press("Underline", chars.fontUnderline());
  press("Left", !(alignment & (Qt::AlignHCenter | Qt::AlignRight | Qt::AlignJustify)));
  press("Center", (alignment & Qt::AlignHCenter) != 0);
  press("Right", (alignment & Qt::AlignRight) != 0);
  press("Sup", offset > 0 || chars.verticalAlignment() == QTextCharFormat::AlignSuperScript);
  press("Sub", offset < 0 || chars.verticalAlignment() == QTextCharFormat::AlignSubScript);
  press("Bul", cursor.currentList() != nullptr);
  const QStringList families = chars.fontFamilies().toStringList();
  const QString family = families.isEmpty() ? rtbp_->document()->defaultFont().family() : families.front();
  combo1_->setCurrentText(family);
  const double points =
      chars.fontPointSize() > 0 ? chars.fontPointSize() : rtbp_->document()->defaultFont().pointSizeF();
  if (offset == 0) cmbSize_->setEditText(QString::number(points));
}

void FrmMaPuskice::ToggleBold() {
  QTextCharFormat chars;
  chars.setFontWeight(rtbp_->currentCharFormat().fontWeight() > QFont::Medium ? QFont::Normal : QFont::Bold);
  rtbp_->mergeCurrentCharFormat(chars);
}

void FrmMaPuskice::ToggleItalic() {
  QTextCharFormat chars;
  chars.setFontItalic(!rtbp_->currentCharFormat().fontItalic());
  rtbp_->mergeCurrentCharFormat(chars);
}

void FrmMaPuskice::ToggleUnderline() {
  QTextCharFormat chars;
  chars.setFontUnderline(!rtbp_->currentCharFormat().fontUnderline());
  rtbp_->mergeCurrentCharFormat(chars);
}

void FrmMaPuskice::SetAlignment(Qt::Alignment alignment) {
  rtbp_->setAlignment(alignment);
  UpdateToolbar();
}

void FrmMaPuskice::ToggleBullets() {
  QTextCursor cursor = rtbp_->textCursor();
  if (QTextList* list = cursor.currentList()) {
    // Every block of the selection leaves the list.
    const int end = cursor.selectionEnd();
    QTextBlock block = rtbp_->document()->findBlock(cursor.selectionStart());
    while (block.isValid() && block.position() <= end) {
      list->remove(block);
      QTextBlockFormat format = block.blockFormat();
      format.setIndent(0);
      QTextCursor(block).setBlockFormat(format);
      block = block.next();
    }
  } else {
    cursor.createList(QTextListFormat::ListDisc);
  }
  UpdateToolbar();
}

void FrmMaPuskice::ApplySize(double points) {
  QTextCharFormat chars;
  chars.setFontPointSize(points);
  rtbp_->mergeCurrentCharFormat(chars);
}

void FrmMaPuskice::ScriptToggle(bool raise) {
  // MathPad's own raised and lowered text: the offset is the size + 33
  // twips and the size 0.7 times the size box; the other direction and the
  // word processors' super/subscript are taken off.
  const QTextCharFormat current = rtbp_->currentCharFormat();
  const int offset = current.intProperty(kOffsetProperty);
  const bool on = raise ? offset > 0 : offset < 0;
  bool ok = false;
  double points = cmbSize_->currentText().toDouble(&ok);
  if (!ok || points <= 0) points = rtbp_->document()->defaultFont().pointSizeF();
  QTextCharFormat chars;
  chars.setVerticalAlignment(QTextCharFormat::AlignNormal);
  if (on) {
    chars.setProperty(kOffsetProperty, 0);
    chars.setBaselineOffset(0);
    chars.setFontPointSize(points);
  } else {
    const int halfPoints = ScriptOffset(points) * (raise ? 1 : -1);
    const double size = std::round(points * 0.7 * 2) / 2;
    chars.setProperty(kOffsetProperty, halfPoints);
    chars.setBaselineOffset(100.0 * halfPoints / std::max(size * 2, 1.0));
    chars.setFontPointSize(size);
  }
  rtbp_->mergeCurrentCharFormat(chars);
  UpdateToolbar();
}

void FrmMaPuskice::ToggleSuperscript() { ScriptToggle(true); }
void FrmMaPuskice::ToggleSubscript() { ScriptToggle(false); }

void FrmMaPuskice::ChangeCase(bool upper) {
  QTextCursor cursor = rtbp_->textCursor();
  if (!cursor.hasSelection()) return;
  const QString text = cursor.selectedText();
  const std::u16string in(reinterpret_cast<const char16_t*>(text.utf16()),
                          static_cast<std::size_t>(text.size()));
  const std::u16string out = upper ? mathpad::UpperCaseText(in) : mathpad::LowerCaseText(in);
  const int start = cursor.selectionStart();
  cursor.insertText(QString::fromUtf16(out.data(), static_cast<qsizetype>(out.size())));
  cursor.setPosition(start);
  cursor.setPosition(start + static_cast<int>(out.size()), QTextCursor::KeepAnchor);
  rtbp_->setTextCursor(cursor);
}

void FrmMaPuskice::SelectLine() {
  QTextCursor cursor = rtbp_->textCursor();
  cursor.movePosition(QTextCursor::StartOfLine);
  cursor.movePosition(QTextCursor::EndOfLine, QTextCursor::KeepAnchor);
  rtbp_->setTextCursor(cursor);
}

void FrmMaPuskice::SetViewMode(int mode) {
  switch (mode) {
    case 0: rtbp_->setLineWrapMode(QTextEdit::NoWrap); break;
    case 2:
      rtbp_->setLineWrapMode(QTextEdit::FixedPixelWidth);
      rtbp_->setLineWrapColumnOrWidth(kPrintViewWidth);
      break;
    default: rtbp_->setLineWrapMode(QTextEdit::WidgetWidth); break;
  }
  if (QAction* checked = Action(QStringLiteral("mnuViewMode%1").arg(mode))) checked->setChecked(true);
}

void FrmMaPuskice::FontDialog() {
  bool ok = false;
  const QFont font = QFontDialog::getFont(&ok, rtbp_->currentFont(), this);
  if (!ok) return;
  QTextCharFormat chars;
  chars.setFont(font, QTextCharFormat::FontPropertiesSpecifiedOnly);
  rtbp_->mergeCurrentCharFormat(chars);
}

void FrmMaPuskice::FontColor() {
  if (services_.colours == nullptr) return;
  const QColor current = rtbp_->currentCharFormat().foreground().color();
  const auto initial =
      static_cast<std::uint32_t>(current.red() | (current.green() << 8) | (current.blue() << 16));
  const auto chosen = services_.colours->Choose(initial);
  if (!chosen) return;
  QTextCharFormat chars;
  chars.setForeground(QColor(static_cast<int>(*chosen & 0xFF), static_cast<int>((*chosen >> 8) & 0xFF),
                             static_cast<int>((*chosen >> 16) & 0xFF)));
  rtbp_->mergeCurrentCharFormat(chars);
}

// --- tools ---

void FrmMaPuskice::InsertImage() {
  const auto path = services_.files->Open(std::string(mathpad::texts::kImageTitle),
                                          std::string(mathpad::texts::kImageFilter), "");
  if (!path || path->empty()) return;
  InsertImageFile(ToQString(*path));
}

bool FrmMaPuskice::InsertImageFile(const QString& path) {
  const auto picture = PictureFromFile(path);
  if (!picture) {
    services_.messages->Show(std::string(mathpad::texts::kImageUnreadable),
                             std::string(mathpad::texts::kImageTitle), platform::MsgIcon::Exclamation,
                             platform::MsgButtons::Ok);
    return false;
  }
  QTextImageFormat image;
  image.setName(pictures_.Add(*rtbp_->document(), picture->first, picture->second));
  image.setWidth(picture->second.width());
  image.setHeight(picture->second.height());
  rtbp_->textCursor().insertImage(image);
  return true;
}

void FrmMaPuskice::InsertImage(const QImage& image) {
  QTextImageFormat format;
  format.setName(pictures_.Add(*rtbp_->document(), PictureFromImage(image), image));
  format.setWidth(image.width());
  format.setHeight(image.height());
  rtbp_->textCursor().insertImage(format);
}

void FrmMaPuskice::InsertDateTime() {
  rtbp_->textCursor().insertText(QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat));
}

void FrmMaPuskice::InsertSymbol(const QString& text, const QString& family) {
  QTextCursor cursor = rtbp_->textCursor();
  QTextCharFormat chars = rtbp_->currentCharFormat();
  if (!family.isEmpty()) chars.setFontFamilies(QStringList{family});
  cursor.insertText(text, chars);
  rtbp_->setTextCursor(cursor);
}

void FrmMaPuskice::Print() {
  // The print dialog first (a cancel ends the command), then "Nothing to
  // print." for an empty page, else the document page by page inside the
  // stored margins.
  output_qt::PrintDocumentDialog(this, *rtbp_->document(), *services_.settings, *services_.messages);
}

}  // namespace velmora::mathpad_qt
