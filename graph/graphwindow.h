#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "expr/graphfields.h"
#include "graph/controls.h"
#include "graph/graphhost.h"
#include "graph/graphpaper.h"
#include "graph/historylog.h"
#include "graph/samplingloop.h"
#include "graph/surface.h"
#include "graph/syntaxchecker.h"
#include "platform/inputbox.h"
#include "platform/messagebox.h"
#include "platform/recentlist.h"
#include "platform/settingsstore.h"
#include "tools/formulacontrol.h"
#include "tools/valuetable.h"

namespace velmora::graph {

// The function types of optFunkcije.
enum FunctionType : int { kCartesian = 1, kParametric = 2, kPolar = 3 };

// What a graph window is given: the platform services, its two formula
// controls, and the window layer's hooks. Pointers may be null where noted.
struct GraphServices {
  platform::SettingsStore* settings = nullptr;        // required
  platform::MessageBox* messages = nullptr;           // required
  platform::InputBox* input = nullptr;                // required
  std::unique_ptr<tools::FormulaControl> evaluator1;  // required: every sample
  std::unique_ptr<tools::FormulaControl> evaluator2;  // may be null: the parametric tangent's second function
  SyntaxCheckerFactory makeChecker = nullptr;         // null: no check before a draw
  const HistoryLog* history = nullptr;                // null: no history log
  platform::RecentList* recent = nullptr;             // null: no recent list
  GraphHost* host = nullptr;                          // null: nothing to show
  LoopObserver* observer = nullptr;                   // null: no trace
  expr::ActiveWindow* activeWindow = nullptr;         // null: this window is the frame's active child
};

// The program's services: the formula engine twice and the evaluator's check.
GraphServices StandardServices(platform::SettingsStore& settings, platform::MessageBox& messages,
                               platform::InputBox& input);

// The graph window, `frmFunc`, without widgets: its state by the names the
// rest of the program uses, its controls as plain state, and its routines
// as methods. It draws on a Surface (`pDraw`); a window layer shows the
// surface and the controls, forwards the user's commands to these methods
// and implements GraphHost. It is also the field reader the text evaluator
// uses for rational powers (expr::GraphFields).
//
// One thread: the plot loop lets events run once per drawn sample through
// GraphHost::DoEvents, and `Drawing` makes every command that would touch
// the surface do nothing meanwhile.
class GraphWindow final : public expr::GraphFields {
 public:
  // The title of a box that names none: the program's name.
  static constexpr std::string_view kDefaultTitle = "Velmora";

  // Loads the window: colours and background from the settings, zoom 30,
  // the centre in the middle of the surface, type 1, the history read.
  GraphWindow(Surface& pDraw, GraphServices services);
  ~GraphWindow() override;
  GraphWindow(const GraphWindow&) = delete;
  GraphWindow& operator=(const GraphWindow&) = delete;

  // ---- State --------------------------------------------------------------
  double Zoom = 30;      // pixels per user unit, the same on both axes
  double CenterX = 0;    // pixel column of the user origin
  double CenterY = 0;    // pixel row of the user origin
  double zlevel = 30;    // zoom as last shown on the toolbar
  Colour Graph_Clr = 0;  // colour of the next plot
  Colour AvBoja = 255;   // colour of the average line
  Colour GridColor = 0;
  Colour AxesColor = 0;
  double GraphLineWidth = 1;
  std::string FuncY;  // working copies of the expressions
  std::string FuncX;
  bool StopCrtanje = false;  // a request to leave the plot loop
  bool Drawing = false;      // a plot is running
  bool Plotted = false;      // a plot has finished
  double Xpoc = 0;           // first and last plotted X, the move taken off
  double Xkraj = 0;
  int KolkoFunkc = 0;  // functions drawn since the window was last cleared
  bool Zezaj = true;   // the window is new
  double MoveX = 0;    // user coordinates of the centre after moves, 3 decimals
  double MoveY = 0;
  std::string MovedText = "Moved:";
  bool MovedLeft = false;
  bool MovedRight = false;
  bool MovedUp = false;
  bool MovedDown = false;
  std::string LastMoveInput;  // the last move's answer
  double LastMoveShift = 0;   // the last move in user units
  // A request of a tangent or normal, written by its dialog.
  bool Tngenta = false;
  bool TngentaP = false;
  bool Normalka = false;
  bool NormalkaP = false;
  std::string TngentaX;
  std::string TngentaXP;
  std::string Slopka;
  std::string fjaT;
  std::string fja1P;
  std::string fja2P;
  std::string fjaTP;

  // ---- Controls -----------------------------------------------------------
  ComboBox txtY;   // Y (or R) expression; its list is the list of drawn functions
  ComboBox txtX;   // X expression; "K" and hidden in types 1 and 3
  ComboBox cmbR3;  // the Y texts of parametric functions, index for index with txtX's list
  Label labY;      // "Y (X) =", "Y (K) =", "R (K) ="
  Label LABx;      // "X (K) ="
  int optFunkcije = kCartesian;
  Label lblPerCent;   // progress text
  Label LblChart;     // the coordinate readout under the mouse
  Label lblzm;        // the zoom factor as text
  Label lblBoja;      // back colour: the graph colour
  Label lblxy;        // which box has the focus
  Label lblPointtab;  // title of the value table
  tools::ValueTable MS1;
  std::string rtb;  // the history as shown
  LineControl LineY;
  LineControl Line1;
  LineControl Line2;
  bool Check1 = false;  // the transparent box
  ZoomMenu zoomMenu;
  // The fraction keypad's hidden fields, which the evaluator reads.
  std::string txtImenilac;
  std::string txtY3;
  std::string txtY2;
  std::string lblY3;

  Surface& pDraw() { return surface_; }

  // ---- Drawing ------------------------------------------------------------
  void CrtajFJU();
  void CrtajPolar();
  void CrtajFJUAuto();
  void CrtajPolarAuto();
  // Enter in txtY: CrtajPolar in type 3, else CrtajFJU.
  void DrawFromTxtY();
  // Replays the list of drawn functions when Autored is on.
  void RedrawFunc();
  // A function picked from the list of txtY.
  void txtY_Click();
  // A recent-functions line back into the boxes and the type.
  void PodeliFje(std::string_view line);
  // Chooses the function type, 1 to 3.
  void optFunk(int index);
  // Esc or a click on the progress label.
  void Stop() { StopCrtanje = true; }

  // The evaluation primitives; a failed evaluation gives 0.
  double F(double v);
  double F2(double v, double w);
  // F on another text of the evaluation form (the mouse copy of a function,
  // FMis): every K becomes the value in brackets, Evaluator1 computes it.
  double EvaluateAt(std::string_view evaluationForm, double v);

  // ---- Paper and clearing ---------------------------------------------------
  void DrawLines();
  void ClearGraph(bool whole);
  void Clearwith();
  void Redraw();

  // ---- Zoom and move ----------------------------------------------------------
  void Zumiraj();
  void mnuzoomin();
  void mnuzoomout();
  void mnuZoomDef();
  void mnuFineZoom();
  // Fixed zooms of examples: 8, 15, 44, 177.
  void ZumDec();
  void ZumStef();
  void ZumGama();
  void ZumPuding();
  // A window becoming active shows its own zoom in the toolbar texts.
  void Activate();
  double PomeriX(double v) const;
  double PomeriY(double v) const;
  void mnuright();
  void mnuleft();
  void mnuup();
  void mnudown();
  void mnuCenter();
  void mnuPlotWidth();

  // ---- Tables and history -----------------------------------------------------
  void FillValueTable(double from, double to);
  void FillValueTableParam(double top, double bottom);
  void FillValueTablePolar();
  void funcSave();
  // The graph window's table: the steps and decimals of the Value Tables
  // window's defaults.
  static constexpr double kTableStep = 1;
  static constexpr int kTableDecimals = 3;

  // ---- Frame ---------------------------------------------------------------------
  // The window's caption as the status bar shows it.
  std::string StatusCaption() const;
  // The zoom as a number from its label (the "zoom text").
  double ZoomText() const;

  // ---- expr::GraphFields -----------------------------------------------------------
  std::string TxtImenilac() override { return txtImenilac; }
  std::string TxtY3() override { return txtY3; }
  std::string TxtY2() override { return txtY2; }
  std::string LblY3() override { return lblY3; }
  void Boje2() override;
  void Boje3() override;

 private:
  // How a plot procedure differs from CrtajFJU around the one loop.
  struct PlotProcedure {
    bool polar = false;         // R (K) drawn as R sin K against R cos K
    bool polarInType3 = false;  // polar only when the window is in type 3
    bool checkSyntax = true;    // the trial of the texts before the draw
    bool remember = true;       // history record, recent line, count and lists
  };
  friend class SamplingLoop;
  friend class CurveStrategy;

  void Draw(const PlotProcedure& procedure);
  bool CheckSyntax(const std::string& cleaned);
  void ChooseColour();
  void FinishTable(bool polar, double lastXp);
  void Remember(bool polar);
  void AddRecent(bool polar);
  void ZoomPreset(double value, int checked, std::string text);
  void Move(std::string_view title, std::string_view tag, int axis, int sign);
  void Repaint();
  double Grid(std::string_view name) const;
  PaperView View() const;
  void Progress(const std::string& text, bool visible);
  tools::FormulaControl& Evaluator1() { return *services_.evaluator1; }

  // The window as the frame's active child when no frame gives one.
  class SelfActive final : public expr::ActiveWindow {
   public:
    explicit SelfActive(GraphWindow& window) : window_(window) {}
    expr::GraphFields* ActiveGraph() override { return &window_; }

   private:
    GraphWindow& window_;
  };

  Surface& surface_;
  GraphServices services_;
  SelfActive self_{*this};
  GraphPaper paper_;
  std::unique_ptr<SyntaxChecker> checker_;
  // The last draw was of a polar curve (its record is the polar one).
  bool lastDrawPolar_ = false;
  // The typed texts of the last draw, kept for its history record.
  std::string typedY_;
  std::string typedX_;
  // Puts the K text (and the Y text, when given) in brackets into the
  // evaluation form and runs it on Evaluator1; throws the engine's fault.
  double SubstituteAndRun(std::string_view evaluationForm, std::string_view kText, std::string_view yText);
  // Reused by F and F2: one sample's formula text.
  std::string formula_;
};

}  // namespace velmora::graph
