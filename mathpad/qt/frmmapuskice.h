#pragma once

#include <map>
#include <vector>

#include <QMainWindow>
#include <QPointer>

#include "mathpad/padfile.h"
#include "mathpad/qt/padconvert.h"
#include "platform/colordialog.h"
#include "platform/mathpadtarget.h"
#include "platform/toolwindows.h"

class QAction;
class QActionGroup;
class QComboBox;
class QLabel;
class QMenu;
class QTextEdit;
class QToolBar;

namespace velmora::mathpad_qt {

class FrmFind;
class FrmAnsi;

// The services MathPad uses; all but the colour dialog, the shell and the
// tool windows are required.
struct MathPadServices {
  platform::SettingsStore* settings = nullptr;
  platform::MessageBox* messages = nullptr;
  platform::InputBox* input = nullptr;
  platform::FileDialog* files = nullptr;
  platform::ShellLauncher* shell = nullptr;
  platform::ColorDialog* colours = nullptr;
  platform::ToolWindows* tools = nullptr;
};

// `frmMaPuskice`, MathPad: a rich-text notebook on a QTextEdit (`rtbp`),
// with its File, Edit, Tools, Format and Help menus, the toolbar whose
// toggle buttons follow the selection, the font and size boxes and the
// status panels for the file and its size. Other windows reach it through
// platform::MathPadTarget. One instance, non-modal, deleted when closed.
class FrmMaPuskice final : public QMainWindow, public mathpad::PadView, public platform::MathPadTarget {
  Q_OBJECT

 public:
  FrmMaPuskice(QWidget* owner, MathPadServices services);
  ~FrmMaPuskice() override;

  // platform::MathPadTarget
  void AppendText(const std::string& text) override;
  void InsertText(const std::string& text, const std::string& fontName) override;
  void NewDocument(const std::string& text) override;
  void OpenFile(const std::string& path) override;

  // mathpad::PadView
  rtf::Document Content() const override;
  void SetContent(const rtf::Document& document) override;
  void ShowCaption(const std::string& caption) override;
  void ShowFileName(const std::string& name) override;
  void ShowSize(const std::string& text) override;
  void ShowRecent(const platform::RecentList& list) override;

  // The parts tests and other windows drive.
  QTextEdit* Editor() const { return rtbp_; }
  mathpad::PadFile& File() { return file_; }
  QAction* Action(const QString& name) const;
  QAction* Button(const QString& key) const;
  QString FilePanel() const;
  QString SizePanel() const;
  QString PlacePanel() const;
  FrmFind* FindDialog();
  FrmAnsi* SymbolDialog();

  // The Edit menu's commands and tests: a single undo step (undoing an undo
  // brings the change back), the clipboard, delete.
  bool CanUndo() const;
  void Undo();
  void RefreshEditMenu();

  // Format commands on the selection.
  void ToggleBold();
  void ToggleItalic();
  void ToggleUnderline();
  void SetAlignment(Qt::Alignment alignment);
  void ToggleBullets();
  void ToggleSuperscript();
  void ToggleSubscript();
  void ChangeCase(bool upper);
  void SelectLine();
  void SetViewMode(int mode);  // 0 No Wrap, 1 WordWrap, 2 PrintView

  // Tools commands.
  void InsertImage();
  bool InsertImageFile(const QString& path);
  // A picture from the clipboard or another window, kept as PNG.
  void InsertImage(const QImage& image);
  void InsertDateTime();
  void InsertSymbol(const QString& text, const QString& family);
  void Print();

  // Reads the selection's format and presses or releases the toggle buttons.
  void UpdateToolbar();

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildMenus();
  void BuildToolbar();
  QAction* AddAction(QMenu* menu, const QString& name, const QString& text, void (FrmMaPuskice::*slot)());
  void OnTextChanged();
  void OnCursorMoved();
  void ApplySize(double points);
  void ScriptToggle(bool raise);
  void FontDialog();
  void FontColor();
  void RefreshHelpMenu();

  MathPadServices services_;
  QTextEdit* rtbp_ = nullptr;
  QToolBar* toolbar1_ = nullptr;
  QComboBox* combo1_ = nullptr;
  QComboBox* cmbSize_ = nullptr;
  QLabel* panelFile_ = nullptr;
  QLabel* panelSize_ = nullptr;
  QLabel* panelPlace_ = nullptr;
  QMenu* editMenu_ = nullptr;
  QMenu* fileMenu_ = nullptr;
  QMenu* helpMenu_ = nullptr;
  QAction* separator2_ = nullptr;
  std::vector<QAction*> recentActions_;
  std::map<QString, QAction*> actions_;
  std::map<QString, QAction*> buttons_;
  std::vector<std::pair<QAction*, platform::ToolWindow>> helpEntries_;
  QActionGroup* viewGroup_ = nullptr;
  PadPictures pictures_;
  mathpad::PadFile file_;
  QPointer<FrmFind> find_;
  QPointer<FrmAnsi> ansi_;
  bool updatingToolbar_ = false;
};

}  // namespace velmora::mathpad_qt
