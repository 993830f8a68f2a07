#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "expr/formulacontrol.h"
#include "expr/graphfields.h"
#include "graph/controls.h"
#include "graph/drawingguard.h"
#include "graph/drawstate.h"
#include "graph/functionboxes.h"
#include "graph/graphhost.h"
#include "graph/graphlabel.h"
#include "graph/graphpaper.h"
#include "graph/graphtooltarget.h"
#include "graph/historylog.h"
#include "graph/pencolours.h"
#include "graph/samplingloop.h"
#include "graph/surface.h"
#include "graph/syntaxchecker.h"
#include "graph/tangentrequest.h"
#include "graph/valuetable.h"
#include "graph/viewstate.h"
#include "platform/inputbox.h"
#include "platform/messagebox.h"
#include "platform/recentlist.h"
#include "platform/settingsstore.h"

namespace velmora::graph {

// What a graph window is given: the platform services, its two formula
// controls, and the window layer's hooks. Pointers may be null where noted.
struct GraphServices {
  platform::SettingsStore* settings = nullptr;       // required
  platform::MessageBox* messages = nullptr;          // required
  platform::InputBox* input = nullptr;               // required
  std::unique_ptr<expr::FormulaControl> evaluator1;  // required: every sample
  std::unique_ptr<expr::FormulaControl> evaluator2;  // may be null: the parametric tangent's second function
  SyntaxCheckerFactory makeChecker = nullptr;        // null: no check before a draw
  const HistoryLog* history = nullptr;               // null: no history log
  platform::RecentList* recent = nullptr;            // null: no recent list
  GraphHost* host = nullptr;                         // null: nothing to show
  LoopObserver* observer = nullptr;                  // null: no trace
  expr::ActiveWindow* activeWindow = nullptr;        // null: this window is the frame's active child
};

// The program's services: the formula engine twice and the evaluator's check.
GraphServices StandardServices(platform::SettingsStore& settings, platform::MessageBox& messages,
                               platform::InputBox& input);

// The fraction keypad's hidden fields, which the text evaluator reads for
// rational powers: `txtImenilac` (the denominator), `txtY3`, `txtY2` and
// `lblY3` (whether the rational mode is on).
struct FractionFields {
  std::string txtImenilac;
  std::string txtY3;
  std::string txtY2;
  std::string lblY3;
};

// The line controls over the surface.
enum class OverlayLine { LineY, Line1, Line2 };

// The graph window, `frmFunc`, without widgets. Its state lives in parts it
// owns (the view, the pen, the function boxes, the tangent request, the
// draw state), which others read through the accessors below and change
// only through the window's commands and setters. It draws on a Surface
// (`pDraw`); a window layer shows the surface and the controls, forwards the
// user's commands to these methods and implements GraphHost. It is also the
// field reader the text evaluator uses for rational powers
// (expr::GraphFields) and the target the tool windows read and draw through
// (GraphToolTarget).
//
// One thread: the plot loop lets events run once per drawn sample through
// GraphHost::DoEvents, and `Drawing` makes every command that would touch
// the surface do nothing meanwhile.
class GraphWindow final : public expr::GraphFields, public GraphToolTarget {
 public:
  // The title of a box that names none: the program's name.
  static constexpr std::string_view kDefaultTitle = "Velmora";
  // The graph window's table: the steps and decimals of the Value Tables
  // window's defaults.
  static constexpr double kTableStep = 1;
  static constexpr int kTableDecimals = 3;

  // Loads the window: colours and background from the settings, zoom 30,
  // the centre in the middle of the surface, type 1, the history read.
  GraphWindow(Surface& pDraw, GraphServices services);
  ~GraphWindow() override;
  GraphWindow(const GraphWindow&) = delete;
  GraphWindow& operator=(const GraphWindow&) = delete;

  // ---- The parts of the state ----------------------------------------------
  const ViewState& View() const { return view_; }
  const PenColours& Pen() const { return pen_; }
  const FunctionBoxes& Boxes() const { return boxes_; }
  const TangentRequest& Tangent() const { return tangent_; }
  const DrawState& State() const { return draw_; }

  // ---- The other controls ------------------------------------------------------
  // `pDraw`: the plot surface; all curves, grid and numbers go on it.
  Surface& pDraw() { return surface_; }
  const Surface& pDraw() const { return surface_; }
  // `lblPerCent`: the progress text of a draw ("Done...   40%").
  const Label& lblPerCent() const { return lblPerCent_; }
  // `LblChart`: the coordinate readout under the mouse.
  const Label& LblChart() const { return lblChart_; }
  // `lblzm`: the zoom as text, hidden; the readouts compute with it.
  const Label& lblzm() const { return lblzm_; }
  // `lblPointtab`: the title of the value table; its fore colour follows
  // the plot colour when colours are random.
  const Label& lblPointtab() const { return lblPointtab_; }
  // `MS1`: the value table of the last drawn function.
  const ValueTable& MS1() const { return ms1_; }
  // `rtb`: the history log as the window shows it.
  const std::string& rtb() const { return rtb_; }
  // `LineY`, `Line1`, `Line2`: the horizontal cross-hair, the tangent mark
  // and the vertical cross-hair over the surface.
  const LineControl& LineY() const { return lineY_; }
  const LineControl& Line1() const { return line1_; }
  const LineControl& Line2() const { return line2_; }
  // `Check1`: the transparent-numbers box of the plotting options.
  bool Check1() const { return check1_; }
  // `zoomMenu`: the texts and the checked entry of the toolbar's zoom menu.
  const ZoomMenu& zoomMenu() const { return zoomMenu_; }
  const FractionFields& Fraction() const { return fraction_; }

  // ---- Changes from the window layer and the frame -------------------------------
  // Texts typed into the function boxes.
  void SetFunctionTexts(std::string_view y, std::string_view x);
  void SettxtY(std::string_view text) { boxes_.SetTxtY(text); }
  void SettxtX(std::string_view text) { boxes_.SetTxtX(text); }
  // "Y" or "X": the box that got the focus.
  void SetFocusBox(char box) { boxes_.SetFocusBox(box); }
  // A colour the user chose for the grid, the axes or the next plots.
  void SetGridColor(Colour colour) { pen_.SetGridColor(colour); }
  void SetAxesColor(Colour colour) { pen_.SetAxesColor(colour); }
  void ChooseGraphColour(Colour colour) { pen_.ChooseGraphColour(colour); }
  // The origin's pixel moved with the surface (a resize), in pixels.
  void ShiftCentre(double dx, double dy) { view_.ShiftCentre(dx, dy); }
  // A view set whole (a restored view, a tool's own zoom): the zoom, its
  // text and the origin's pixel. Nothing is repainted.
  void SetView(double zoom, double centerX, double centerY);
  // The plot line width as given; a draw takes 0 or less as 1.
  void SetGraphLineWidth(double width) { pen_.SetGraphLineWidth(width); }
  // Marks the window busy, as a running draw does, until the guard goes:
  // for work on the surface outside a draw (a tool's own curve).
  [[nodiscard]] DrawingGuard Busy() { return DrawingGuard(draw_); }
  // `Zezaj` while a frame command changes the window.
  void SetZezaj(bool changing) { draw_.SetZezaj(changing); }
  void SetTangentRequest(TangentRequest request) { tangent_ = std::move(request); }
  void SetCheck1(bool transparent) { check1_ = transparent; }
  void SetFraction(FractionFields fields) { fraction_ = std::move(fields); }
  // The history emptied (Clear History).
  void ClearHistoryView() { rtb_.clear(); }
  // The mouse readout's text and lines.
  void ShowReadout(std::string text) { lblChart_.Caption = std::move(text); }
  void ShowLine(OverlayLine which, const LineControl& line);
  void HideLines();
  // The lists and count of drawn functions of another window, so that a
  // replay here draws what it drew.
  void AdoptListsOf(const GraphWindow& other);

  // ---- Drawing ------------------------------------------------------------
  // `CrtajFJU` ("draw the function"): the draw of a Cartesian or parametric
  // function from the boxes, with its check, history record, recent line,
  // lists and table.
  void CrtajFJU();
  // `CrtajPolar`: the same for R (K), drawn as R sin K against R cos K.
  void CrtajPolar();
  // `CrtajFJUAuto`, `CrtajPolarAuto`: the replay of a listed function: no
  // check, no record, no recent line, lists or count.
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
  void Stop() { draw_.RequestStop(); }

  // The evaluation primitives; a failed evaluation gives 0. `F`: FuncY at
  // K = v; `F2`: FuncX at K = v with Y = w.
  double F(double v);
  double F2(double v, double w);
  // F on another text of the evaluation form (the mouse copy of a function,
  // FMis): every K becomes the value in brackets, Evaluator1 computes it.
  double EvaluateAt(std::string_view evaluationForm, double v);
  // F2 on another text: K becomes v, then Y becomes w; a text that is K
  // alone is v itself.
  double EvaluateXAt(std::string_view evaluationForm, double v, double w);

  // ---- Tangent and normal ------------------------------------------------------
  // `lblBoja2`: the tangent colour, in which tangents and normals are drawn.
  static constexpr Colour kTangentColour = 0x008000;
  Colour lblBoja2() const { return kTangentColour; }
  // `crtajt`: whether the Cartesian tangent dialog may open. An empty txtY
  // shows "Draw function first." ("Tangent/Normal"); an X box other than
  // "K" shows "This option is available only for Cartesian (Standard)
  // functions." ("Tamgent/Normal").
  bool crtajt();
  // The point a tangent dialog was given, through Evaluator1: its value, or
  // nothing after the box "Error. " and the fault's description.
  std::optional<double> EvaluatePoint(std::string_view text);
  // `frmunesit` OK with the point's value: the request (Tngenta or
  // Normalka, TngentaX, fjaT) and `unesix`.
  void ApplyTangent(bool normal, double x0);
  // `frmUnTP` OK: the parametric request and `unesixPara` or
  // `unesixParaNorm`.
  void ApplyParametricTangent(bool normal, double k);
  // `unesix`: txtY becomes the tangent or normal of its function at
  // TngentaX, drawn by CrtajFJU in the tangent colour (`Boje4`, `Boje5`).
  void unesix();
  // `unesixPara`, `unesixParaNorm`: the tangent or normal of the parametric
  // pair of the request at k, drawn as a Cartesian line in the tangent colour.
  void unesixPara(double k);
  void unesixParaNorm(double k);

  // ---- Integral, average and derivative ----------------------------------------
  // What `frmMini` hands over: the range texts, `Check2` "Draw Function",
  // `Check1` "Draw Average" and `Text3`, the average's value.
  struct IntegralRequest {
    std::string xMin;
    std::string xMax;
    bool drawFunction = true;
    bool drawAverage = false;
    std::string average;
  };
  // `mnuDrawIntegral`: whether frmMini may open ("Enter function first.",
  // "Not available for parametric functions." otherwise).
  bool mnuDrawIntegral();
  // `frmMini` OK: false (the dialog stays) after "Invalid input for Average
  // value."; else the fill, and with the average the fill and the band
  // twice over the same range.
  bool ApplyIntegral(const IntegralRequest& request);
  // `CrtajIntegralNovo`: the paper afresh, then the function with strokes
  // down to the X axis from XMin to XMax; no record, lists or table.
  void CrtajIntegralNovo();
  // `CrtajAverageNovo`: the band: strokes from the average's value down to
  // the axis over the same range in AvBoja, the pen hidden otherwise.
  void CrtajAverageNovo();
  // `CrtajFJUDeriv`: the derivative of the function in txtY, in the chosen
  // graph colour; no record, lists or table.
  void CrtajFJUDeriv();
  // `AvBoja`: the band's colour (Shape1 of frmMini).
  void SetAvBoja(Colour colour) { pen_.SetAvBoja(colour); }
  // The derivative of FuncY at K = v through Evaluator1; a failure gives 0.
  double FDeriv(double v);

  // ---- Labels --------------------------------------------------------------------
  static constexpr std::string_view kLabelInHand = "Insert current label or delete it before you proceed.";
  static constexpr std::string_view kLabelEmpty = "Enter Graph Label text.";
  static constexpr std::string_view kLabelDragHint =
      "Drag the Label and click right mouse to insert or delete";
  static constexpr std::string_view kLabelAnglePrompt =
      "Set value for rotating angle in range (-180 to 180) Deg.";
  // `picMCRBox`: the label in hand.
  const GraphLabel& picMCRBox() const { return label_; }
  // `mnulabel`: refused with kLabelInHand while a label is in hand;
  // otherwise the default text of the dialog: the function with its
  // caption, for a parametric pair "X (K) =" X, two blanks, "Y (K) =" Y.
  std::optional<std::string> mnulabel();
  // `cmdLabelL`: an empty text shows kLabelEmpty and gives false; else the
  // label is in hand over the plot, its top left at (left, top).
  bool cmdLabelL(const LabelStyle& style, double left = 20, double top = 20);
  // The angle asked by its input box: a number from -180 to 180, or
  // nothing (cancelled or out of range).
  std::optional<double> AskLabelAngle();
  // A drag of the label by the mouse, with its hint in LblChart.
  void DragLabel(double dx, double dy);
  void MoveLabelTo(double left, double top) { label_.MoveTo(left, top); }
  // `daLabele`: the label burnt into the picture where it stands, then
  // hidden; `neLabel`: hidden, nothing drawn.
  void daLabele();
  void neLabel() { label_.Hide(); }

  // ---- Paper and clearing ---------------------------------------------------
  // `DrawLines`: the graph paper (grid, axes, numbers) over the picture.
  void DrawLines();
  // `ClearGraph`: the picture cleared and the paper drawn again; `whole`
  // also empties the boxes, the lists, the count and the table.
  void ClearGraph(bool whole);
  // `Clearwith`: the surface cleared, nothing drawn.
  void Clearwith();
  // `Redraw`: the paper, unless a draw is running.
  void Redraw();
  // Clear Function: the Y box emptied; Swap Y - X: the two texts exchanged.
  void ClearFunctionText() { boxes_.SetTxtY(""); }
  void SwapYX() { boxes_.SwapTexts(); }

  // ---- Zoom and move ----------------------------------------------------------
  // Each command that asks a question is the question (the menu's entry)
  // and its apply, which the examples and the batch front end call with
  // the answer they would have typed.
  // `Zumiraj` ("zoom"): the zoom's text from Zoom, the paper repainted.
  void Zumiraj();
  // `mnuzoomin`, `mnuzoomout`, `mnuZoomDef`: the presets 50, 15 and 30.
  void mnuzoomin();
  void mnuzoomout();
  void mnuZoomDef();
  // `mnuFineZoom`: asks "Select zooming factor in range (5-200)." and
  // applies the answer (ApplyFineZoom).
  void mnuFineZoom();
  // Fine zoom with an answer: a number from 5 to 200 becomes the zoom; out
  // of range shows "Input out of range (5-200)!" and keeps the number as the
  // zoom unpainted; an empty or unreadable answer changes nothing.
  void ApplyFineZoom(std::string_view answer);
  // `ZumDec`, `ZumStef`, `ZumGama`, `ZumPuding`: the fixed zooms of the
  // examples, 8, 15, 44 and 177.
  void ZumDec();
  void ZumStef();
  void ZumGama();
  void ZumPuding();
  // A window becoming active shows its own zoom in the toolbar texts.
  void Activate();
  // `PomeriX`, `PomeriY` ("shift"): a value with the move taken off.
  double PomeriX(double v) const { return view_.PomeriX(v); }
  double PomeriY(double v) const { return view_.PomeriY(v); }
  // `mnuright`, `mnuleft`, `mnuup`, `mnudown`: ask how many grid steps and
  // apply the answer (ApplyMove).
  void mnuright();
  void mnuleft();
  void mnuup();
  void mnudown();
  // A move with an answer: that many grid steps of the X axis, the paper
  // repainted, "Moved:" extended. An empty answer changes nothing.
  void ApplyMove(MoveDirection direction, std::string_view answer);
  // `mnuCenter`: the origin back in the middle, "Moved:" again.
  void mnuCenter();
  // `mnuPlotWidth`: asks the graph line width until the answer is good or
  // empty (ApplyPlotWidth).
  void mnuPlotWidth();
  // The plot width with an answer: a number above 0 becomes GraphLineWidth
  // and gives true; anything else shows "Invalid input: Line width = ..."
  // and gives false.
  bool ApplyPlotWidth(std::string_view answer);

  // ---- Tables and history -----------------------------------------------------
  // `FillValueTable`: MS1 for the Cartesian function in txtY, X from `from`
  // to `to`; `FillValueTableParam` for the parametric pair, K between the
  // bounds; `FillValueTablePolar` for R (K) at thirteen angles of one turn.
  void FillValueTable(double from, double to);
  void FillValueTableParam(double top, double bottom);
  void FillValueTablePolar();
  // `funcSave`: the history record of the last draw in GraphLog.txt, and
  // rtb read again.
  void funcSave();

  // ---- Frame ---------------------------------------------------------------------
  // The window's caption as the status bar shows it.
  std::string StatusCaption() const { return boxes_.StatusCaption(); }
  // The zoom as a number from its label (the "zoom text").
  double ZoomText() const;

  // ---- expr::GraphFields -----------------------------------------------------------
  std::string TxtImenilac() override { return fraction_.txtImenilac; }
  std::string TxtY3() override { return fraction_.txtY3; }
  std::string TxtY2() override { return fraction_.txtY2; }
  std::string LblY3() override { return fraction_.lblY3; }
  // `Boje2`, `Boje3` ("colours"): the plot colour becomes the background
  // or the chosen graph colour again; the text evaluator calls them for the
  // inverse secant and cosecant.
  void Boje2() override;
  void Boje3() override;

  // ---- GraphToolTarget ---------------------------------------------------------------
  std::string FunctionYText() const override { return boxes_.txtY().Text; }
  std::string FunctionXText() const override { return boxes_.txtX().Text; }
  int FunctionTypeIndex() const override { return boxes_.optFunkcije(); }
  std::vector<std::string> DrawnFunctions() const override { return boxes_.txtY().List; }
  std::vector<std::string> DrawnXTexts() const override { return boxes_.txtX().List; }
  std::vector<std::string> DrawnParametricY() const override { return boxes_.cmbR3().List; }
  ViewBounds VisibleBounds() const override;
  double ZoomFactor() const override { return view_.Zoom(); }
  bool IsDrawing() const override { return draw_.Drawing(); }
  bool DrawFunction(int type, std::string_view y, std::string_view x) override;
  void SetFunctionYText(std::string_view y) override;
  bool DrawCurve(const std::vector<CurvePoint>& points, std::uint32_t colour) override;

 private:
  // How a plot procedure differs from CrtajFJU around the one loop.
  struct PlotProcedure {
    bool polar = false;                   // R (K) drawn as R sin K against R cos K
    bool polarInType3 = false;            // polar only when the window is in type 3
    bool checkSyntax = true;              // the trial of the texts before the draw
    bool remember = true;                 // history record, recent line, count and lists
    bool table = true;                    // the value table refilled after the loop
    bool keepColour = false;              // Graph_Clr as it stands (tangent colour, band, derivative)
    SampleStrategy* strategy = nullptr;   // null: the window's curve
    const std::string* fixedY = nullptr;  // a constant Y (the band) instead of the boxes
  };
  friend class SamplingLoop;
  friend class CurveStrategy;

  void Draw(const PlotProcedure& procedure);
  // CrtajFJU in the tangent colour, the plot colour back afterwards.
  void DrawTangentLine();
  bool CheckSyntax(const std::string& cleaned);
  void ChooseColour();
  void FinishTable(bool polar, double lastXp);
  void Remember(bool polar);
  void AddRecent(bool polar);
  void ZoomPreset(double value, int checked, std::string text);
  void AskMove(std::string_view title, MoveDirection direction);
  void Repaint();
  double Grid(std::string_view name) const;
  PaperView Paper() const;
  void Progress(const std::string& text, bool visible);
  expr::FormulaControl& Evaluator1() { return *services_.evaluator1; }

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

  ViewState view_;
  PenColours pen_;
  FunctionBoxes boxes_;
  TangentRequest tangent_;
  DrawState draw_;
  Label lblPerCent_;
  Label lblChart_;
  Label lblzm_;
  Label lblPointtab_;
  ValueTable ms1_;
  std::string rtb_;
  LineControl lineY_;
  LineControl line1_;
  LineControl line2_;
  bool check1_ = false;
  ZoomMenu zoomMenu_;
  FractionFields fraction_;

  GraphLabel label_;
  // The range and the choices of the last frmMini.
  double xMin_ = 0;
  double xMax_ = 0;
  bool check2_ = true;
  std::string averageText_;
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
