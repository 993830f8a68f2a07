#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <QPointer>
#include <QWidget>

#include "expr/graphfields.h"
#include "graph/graphhost.h"
#include "graph/historylog.h"
#include "graph/qt/framelink.h"
#include "platform/colordialog.h"
#include "platform/filedialog.h"
#include "platform/inputbox.h"
#include "platform/messagebox.h"
#include "platform/recentlist.h"
#include "platform/settingsstore.h"
#include "platform/toolwindows.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QRadioButton;
class QTableWidget;
class QTimer;

namespace velmora::graph {
class GraphWindow;
class MouseReadout;
class WindowCommands;
}  // namespace velmora::graph

namespace velmora::graph_qt {

class FrmGridOpt;
class FrmLabel;
class FrmMini;
class LabelPanel;
class FrmUnesit;
class PDrawView;
class PicMcrBox;
class QImageSurface;

// What a graph window is given. The services must outlive the window.
struct FrmFuncServices {
  platform::SettingsStore* settings = nullptr;  // required
  platform::MessageBox* messages = nullptr;     // required
  platform::InputBox* input = nullptr;          // required
  platform::ColorDialog* colours = nullptr;     // null: the colour commands do nothing
  platform::FileDialog* files = nullptr;        // null: Sav1 does nothing
  platform::RecentList* recent = nullptr;       // null: a draw adds no recent line
  const graph::HistoryLog* history = nullptr;   // null: no history file (rtb stays empty)
  expr::ActiveWindow* activeWindow = nullptr;   // null: the window is its own active child
  FrameLink* frame = nullptr;                   // null: a lone window (tests, tools)
  platform::ToolWindows* tools = nullptr;       // null: no MathPad or other tool to hand to
  // Milliseconds of a monotonic clock, read by the screen-rate repaints of
  // a draw; empty: the steady clock. Tests drive it by hand.
  std::function<std::int64_t()> clockMs;
};

// `frmFunc`, the graph window, as a Qt view over graph::GraphWindow: the
// retained picture `pDraw` with the cross-hairs and the tangent mark drawn
// over it, the function boxes `txtY` and `txtX` with their lists, the type
// options, `C1`, the history `rtb`, the value table `MS1`, the progress
// label `lblPerCent` (click to stop) and the readout `LblChart`.
//
// Keys: Enter in txtY draws in the current type, Enter in txtX draws
// (CrtajFJU); Esc in txtY or pDraw stops a draw. Mouse over pDraw: readout;
// right button held: trace. During a draw events are pumped once per sample,
// the progress text is kept per sample and the picture and the label are
// repainted at screen rate (at most every 16 ms); every command does nothing
// while a draw runs, and a close waits for the draw to stop.
//
// Widgets and logic. Typing in txtY and txtX goes to the logic at once. The
// widgets follow the logic by themselves at the start and the end of every
// draw (whoever started it: Enter, the frame, an example) and after every
// command of this class. After calling anything else through Logic() (zoom,
// move, PodeliFje, optFunk, setting the boxes of an example without a
// draw), the frame calls SyncFromLogic().
//
// A resize keeps the view: see graph::ViewResize.
class FrmFunc : public QWidget, private graph::GraphHost {
  Q_OBJECT

 public:
  explicit FrmFunc(FrmFuncServices services, QWidget* parent = nullptr);
  ~FrmFunc() override;

  graph::GraphWindow& Logic();
  const graph::GraphWindow& Logic() const;
  // The retained picture of pDraw.
  QImageSurface& Picture();

  // Shows the logic's state in the widgets (texts, lists, type, labels,
  // table, history, picture).
  void SyncFromLogic();

  // ---- Commands the frame sends to the active window ------------------------
  // mnuDrawFunction and the toolbar's "Draw Graph" (`cepaj`): CrtajFJU.
  void DrawFunction();
  // Esc, a click on lblPerCent: the running draw stops at its next sample.
  void Stop();
  // The Color menu's routines (colour dialog, then the paper repainted).
  // Each returns true when a colour was chosen. The frame's Color menu then
  // calls Sacboje() and, while KolkoFunkc > 0, Logic().RedrawFunc(); or it
  // calls ColourMenu(index), which does all of that.
  bool mnuBojeBack();
  bool mnuBojeGrid();
  bool mnuBojeAxes();
  bool mnuBojeGraph();
  void mnuBojeDef();
  void Sacboje();
  // The whole Color menu entry: 0 "&Background...", 1 "G&rid...",
  // 2 "&Axes...", 3 "&Graph...", 4 "&Default".
  void ColourMenu(int index);
  // "Graph Line &Width...": the input box, the width of the next plots.
  void mnuPlotWidth();
  // Edit menu. Each asks its question where it has one and ends complete
  // (functions drawn again where the command does that).
  void ClearAll();      // "Clear &All" (mnued2)
  void ClearScreen();   // "Clear &Screen" (mnued3)
  void mnuclhistory();  // "Clear &History" (mnued4)
  void ClearGrid();     // "Clear &Grid" (mnuclearall), toolbar "ClearG"
  void RedrawGrid();    // "&Redraw Grid" (mnuredraw)
  void ClearFju();      // toolbar "ClearF"
  // File menu "S&wap Y - X".
  void SwapYX();
  // "&Copy Graph": the picture to the clipboard as an image (framed when
  // the setting Ram is on).
  void Kopirajgraf();
  // "&BMP, WMF": the picture saved as a bitmap, with the replace question.
  // Returns true when a file was written.
  bool Sav1();
  // "&Options...": Plotting Options for this window, modal over the
  // application; it is shown and returned at once (null during a draw) and
  // deletes itself when closed.
  FrmGridOpt* OpenPlottingOptions();

  // ---- The window's own tools -----------------------------------------------------
  // "Draw &Tangent && Normal...": refused for a polar function ("Available
  // for Cartesian and Parametric functions."); `crtajt` and `frmunesit` for
  // a Cartesian one, `frmUnTP` for a parametric pair. Returns the dialog
  // shown (non-modal over the window, deleted when closed) or null.
  FrmUnesit* mnuDrawTangent();
  // "Draw &Integral && Average...": refused for a function that is not
  // Cartesian ("Available for Cartesian functions only.", from the toolbar's
  // "Integral/Average" "Available for Cartesian (standard) functions
  // only."), then `mnuDrawIntegral` and `frmMini`, modal.
  FrmMini* mnuDrawIntegral(bool fromToolbar = false);
  // "Draw D&erivative": CrtajFJUDeriv.
  void CrtajFJUDeriv();
  // "Insert &Label...": `mnulabel`, then `frmLabel`; null when refused.
  FrmLabel* mnulabel();
  // The label in hand: burnt in (`daLabele`) or thrown away (`neLabel`).
  void daLabele();
  void neLabel();
  PicMcrBox* picMCRBox();
  // The label panel inside the window (`frkur`), the dialog's twin: opened
  // with the refusal and the default text of `mnulabel` (null when refused),
  // its buttons run the four commands below.
  LabelPanel* ShowLabelPanel();
  LabelPanel* frkur();
  // "Font" and the colour button: the font and colour dialogs for the label.
  void cmdFontL();
  void cmdBojaL();
  // "OK": an empty text shows "Enter Graph Label text." and the panel stays;
  // else the label is in hand over the plot and the panel closes.
  void cmdLabelL();
  // "Cancel": the panel closes, nothing is drawn.
  void cmdTextCancelL();
  // "&Save History...": "Open function history in MathPad?"; yes appends
  // the history to MathPad's document. Needs MathPad.
  void mnusaveHistory();
  // The history's Print entry: "Open function history in MathPad and edit
  // it, save or print?"; yes opens GraphLog.txt in MathPad.
  void PrintLog2();
  // The value table to the clipboard with its title: all rows (`SveTable`)
  // or the selected ones (`Copyrow`).
  void SveTable();
  void Copyrow();
  // Whether this version has MathPad (the history entries need it).
  bool HasMathPad() const;

  // ---- The controls, for the frame and for tests -------------------------------
  PDrawView* pDraw() const { return pDraw_; }
  QComboBox* txtY() const { return txtY_; }
  QComboBox* txtX() const { return txtX_; }
  QLabel* labY() const { return labY_; }
  QLabel* LABx() const { return LABx_; }
  QRadioButton* optFunkcije(int index) const;  // 1 to 3
  QComboBox* C1() const { return C1_; }
  QPlainTextEdit* rtb() const { return rtb_; }
  QTableWidget* MS1() const { return MS1_; }
  QLabel* lblPointtab() const { return lblPointtab_; }
  QLabel* lblPerCent() const { return lblPerCent_; }
  QLabel* LblChart() const { return LblChart_; }

  // A pending repaint after a resize runs now instead of when the size has
  // settled (for a frame that has just laid the window out, and tests).
  void SettleSize();

  // Screen-rate repaints made during draws since the window opened.
  int ScreenUpdates() const { return screenUpdates_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  // graph::GraphHost
  void DoEvents() override;
  void ProgressChanged() override;
  void RefreshFrame() override;
  void TypeChosen(int type) override;
  void FocusFunctionBox() override;
  void ShowStatusText(const std::string& text) override;
  void ToolChanged() override;

  void BuildWidgets();
  void ConnectWidgets();
  // The value table's copy menu and the label box.
  void ConnectTools();
  void ShowLabelBox();
  std::string TableText(bool selectedOnly) const;
  void EnterInTxtY();
  void EnterInTxtX();
  void TakeBoxes();
  void TypeClicked(int index);
  void ListPicked(int index);
  void FunctionNamePicked(int index);
  void MouseMoved(int button, double x, double y);
  void MouseReleased();
  void SurfaceResized(int oldWidth, int oldHeight, int width, int height);
  void SizeSettled();
  // After a command of this class: widgets from the logic, frame refreshed.
  void Done();
  void SyncBox(QComboBox* box, const std::string& text, const std::vector<std::string>& list);
  void SyncTable();
  void SyncHistory();
  void ApplyProgress();
  void DrawStarted();
  void DrawFinished();

  FrmFuncServices services_;
  std::unique_ptr<QImageSurface> surface_;
  std::unique_ptr<graph::GraphWindow> logic_;
  std::unique_ptr<graph::MouseReadout> readout_;
  std::unique_ptr<graph::WindowCommands> commands_;

  PDrawView* pDraw_ = nullptr;
  QComboBox* txtY_ = nullptr;
  QComboBox* txtX_ = nullptr;
  QLabel* labY_ = nullptr;
  QLabel* LABx_ = nullptr;
  QRadioButton* types_[3] = {nullptr, nullptr, nullptr};
  QComboBox* C1_ = nullptr;
  QLineEdit* txtImenilac_ = nullptr;
  QLineEdit* txtY2_ = nullptr;
  QLineEdit* txtY3_ = nullptr;
  QLabel* lblY3_ = nullptr;
  QPlainTextEdit* rtb_ = nullptr;
  QTableWidget* MS1_ = nullptr;
  QLabel* lblPointtab_ = nullptr;
  QLabel* lblPerCent_ = nullptr;
  QLabel* LblChart_ = nullptr;
  QTimer* settle_ = nullptr;
  PicMcrBox* picMCRBox_ = nullptr;
  LabelPanel* frkur_ = nullptr;

  std::optional<std::int64_t> lastScreenUpdateMs_;  // none: the next sample repaints
  int screenUpdates_ = 0;
  bool drawShown_ = false;  // the widgets show a draw in progress
  bool progressDirty_ = false;
  bool syncing_ = false;  // widgets being set from the logic
  bool closePending_ = false;
  bool listChoice_ = false;  // a choice is being made in txtY's open list
  std::string shownHistory_;
};

}  // namespace velmora::graph_qt
