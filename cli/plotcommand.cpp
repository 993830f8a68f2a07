#include "cli/plotcommand.h"

#include <charconv>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "cli/plotcanvas.h"
#include "cli/streammessagebox.h"
#include "expr/numtext.h"
#include "graph/graphwindow.h"
#include "graph/historylog.h"
#include "platform/qt/qtsettingsstore.h"
#include "platform/qt/qtstring.h"
#include "platform/recentlist.h"

namespace velmora::cli {
namespace {

constexpr std::string_view kUsage =
    "usage: velmora-cli plot [--settings FILE] [--width W] [--height H] [--history FILE]\n"
    "         [--type cartesian|parametric|polar] --y TEXT [--x TEXT] ...\n"
    "         [--zoom in|out|default|Z] [--right N] [--left N] [--up N] [--down N] [--center] ...\n"
    "         [--tangent X0] [--normal X0] [--integral XMIN XMAX [--average V] [--hide-curve]]\n"
    "         [--derivative] [--label TEXT X Y [--angle DEG] [--transparent]] ...\n"
    "         [--replay] [--png FILE] [--jpeg FILE [--quality Q]] [--bmp FILE] [--pdf FILE]\n"
    "         [--trace] [--table] [--status]\n";

// A batch run asks nothing: the move and zoom commands get their answers
// from the command line through the window's apply routines.
class SilentInputBox final : public platform::InputBox {
 public:
  std::optional<std::string> Ask(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
};

// One line per pass of the sampling loop.
class TracePrinter final : public graph::LoopObserver {
 public:
  explicit TracePrinter(std::ostream& out) : out_(out) {}
  void Pass(const graph::LoopPass& p) override {
    out_ << expr::NumberToText(p.kr) << '\t' << expr::NumberToText(p.Y) << '\t' << expr::NumberToText(p.X)
         << '\t' << expr::NumberToText(p.Xp) << '\t' << expr::NumberToText(p.Yp) << '\t'
         << graph::ActionName(p.action) << '\t' << p.drawStyle << '\n';
  }

 private:
  std::ostream& out_;
};

// One step of the command line, applied in order.
struct Step {
  std::string option;
  std::string value;
  std::string value2;  // --integral: XMAX; --label: X
  std::string value3;  // --label: Y
  std::string extra;   // --integral: the average; --label: the angle
  bool flag = false;   // --integral: --hide-curve; --label: --transparent
};

Step MakeStep(const std::string& option, const std::string& value = {}) {
  Step step;
  step.option = option;
  step.value = value;
  return step;
}

struct Options {
  std::optional<std::string> settings;
  std::optional<std::string> history;
  std::optional<std::string> png;
  PictureOptions pictures;
  int width = 600;
  int height = 400;
  bool trace = false;
  bool table = false;
  bool status = false;
  bool replay = false;
  std::vector<Step> steps;
};

bool ParseInt(std::string_view text, int& value) {
  const auto [p, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
  return ec == std::errc() && p == text.data() + text.size();
}

// Reads the options; false with a message on a bad command line.
bool Parse(const std::vector<std::string>& args, Options& o, std::ostream& err) {
  static const std::vector<std::string_view> kSteps = {"--type", "--y",  "--x",    "--zoom",    "--right",
                                                       "--left", "--up", "--down", "--tangent", "--normal"};
  for (std::size_t i = 0; i < args.size(); ++i) {
    std::string pictureError;
    switch (ReadPictureOption(args, i, o.pictures, pictureError)) {
      case OptionRead::Read: continue;
      case OptionRead::Error: err << "velmora-cli plot: " << pictureError << '\n'; return false;
      case OptionRead::NotMine: break;
    }
    const std::string& a = args[i];
    const auto value = [&](std::string& into) {
      if (i + 1 >= args.size()) {
        err << "velmora-cli plot: " << a << " needs a value\n";
        return false;
      }
      into = args[++i];
      return true;
    };
    std::string v;
    if (a == "--trace") {
      o.trace = true;
    } else if (a == "--table") {
      o.table = true;
    } else if (a == "--status") {
      o.status = true;
    } else if (a == "--replay") {
      o.replay = true;
    } else if (a == "--center" || a == "--derivative") {
      o.steps.push_back(MakeStep(a));
    } else if (a == "--integral" || a == "--label") {
      Step step = MakeStep(a);
      if (!value(step.value) || !value(step.value2)) return false;
      if (a == "--label" && !value(step.value3)) return false;
      o.steps.push_back(step);
    } else if (a == "--average" || a == "--hide-curve" || a == "--angle" || a == "--transparent") {
      // Each belongs to the --integral or --label just before it.
      const bool ofIntegral = a == "--average" || a == "--hide-curve";
      const char* owner = ofIntegral ? "--integral" : "--label";
      if (o.steps.empty() || o.steps.back().option != owner) {
        err << "velmora-cli plot: " << a << " follows " << owner << "\n";
        return false;
      }
      if (a == "--average" || a == "--angle") {
        if (!value(v)) return false;
        o.steps.back().extra = v;
      } else {
        o.steps.back().flag = true;
      }
    } else if (a == "--settings" || a == "--history" || a == "--png") {
      if (!value(v)) return false;
      (a == "--settings" ? o.settings : a == "--history" ? o.history : o.png) = v;
    } else if (a == "--width" || a == "--height") {
      if (!value(v)) return false;
      int n = 0;
      if (!ParseInt(v, n) || n < 1 || n > 10000) {
        err << "velmora-cli plot: " << a << " must be a whole number from 1 to 10000\n";
        return false;
      }
      (a == "--width" ? o.width : o.height) = n;
    } else if (std::find(kSteps.begin(), kSteps.end(), a) != kSteps.end()) {
      if (!value(v)) return false;
      if (a == "--type" && v != "cartesian" && v != "parametric" && v != "polar") {
        err << "velmora-cli plot: --type is cartesian, parametric or polar\n";
        return false;
      }
      o.steps.push_back(MakeStep(a, v));
    } else {
      err << "velmora-cli plot: unknown option '" << a << "'\n" << kUsage;
      return false;
    }
  }
  return true;
}

// The functions typed so far and not yet drawn.
struct Pending {
  bool has = false;
  int type = 1;  // the type given before the function
  std::string y;
  std::optional<std::string> x;
};

// The frame's Draw Tangent: the dialog of the window's type with the point
// typed and OK pressed; a polar function is refused.
void Tangent(graph::GraphWindow& window, bool normal, const std::string& point, platform::MessageBox& box) {
  const int type = window.Boxes().optFunkcije();
  if (type == graph::kPolar) {
    box.Show("Available for Cartesian and Parametric functions.",
             std::string(graph::GraphWindow::kDefaultTitle), platform::MsgIcon::Exclamation);
    return;
  }
  if (type == graph::kCartesian && !window.crtajt()) return;
  if (point.empty()) {
    box.Show("Enter point value.", std::string(graph::GraphWindow::kDefaultTitle),
             platform::MsgIcon::Information);
    return;
  }
  const auto value = window.EvaluatePoint(point);
  if (!value) return;
  if (type == graph::kCartesian) {
    window.ApplyTangent(normal, *value);
  } else {
    window.ApplyParametricTangent(normal, *value);
  }
}

// The frame's Draw Integral: refused for other types, then frmMini with its
// fields filled and OK pressed.
void Integral(graph::GraphWindow& window, const Step& s, platform::MessageBox& box) {
  if (window.Boxes().optFunkcije() != graph::kCartesian) {
    box.Show("Available for Cartesian functions only.", std::string(graph::GraphWindow::kDefaultTitle),
             platform::MsgIcon::Exclamation);
    return;
  }
  if (!window.mnuDrawIntegral()) return;
  graph::GraphWindow::IntegralRequest request;
  request.xMin = s.value;
  request.xMax = s.value2;
  request.drawAverage = !s.extra.empty();
  request.average = s.extra;
  request.drawFunction = !s.flag;
  window.ApplyIntegral(request);
}

// Insert Label: the dialog's text, angle and transparency, the box dragged
// to X, Y (user units of its top left) and burnt in.
bool Label(graph::GraphWindow& window, const Step& s, std::ostream& out, std::ostream& err) {
  graph::LabelStyle style;
  style.text = s.value;
  double x = 0;
  double y = 0;
  try {
    x = std::stod(s.value2);
    y = std::stod(s.value3);
    if (!s.extra.empty()) style.angle = std::stod(s.extra);
  } catch (const std::exception&) {
    err << "velmora-cli plot: --label X Y and --angle are numbers\n";
    return false;
  }
  if (style.angle < -180 || style.angle > 180) {
    err << "velmora-cli plot: --angle is from -180 to 180\n";
    return false;
  }
  style.transparent = s.flag;
  if (!window.mnulabel()) return true;
  if (!window.cmdLabelL(style)) return true;
  const auto& view = window.View();
  window.MoveLabelTo(view.CenterX() + x * view.Zoom(), view.CenterY() - y * view.Zoom());
  window.daLabele();
  out << "label: " << style.text << '\n';
  return true;
}

}  // namespace

int RunPlot(const std::vector<std::string>& args, std::istream& /*in*/, std::ostream& out,
            std::ostream& err) {
  Options o;
  if (!Parse(args, o, err)) return 2;
  if (args.empty()) {
    err << kUsage;
    return 2;
  }

  // The user's file, as the program uses it, unless --settings names another.
  auto settingsStore = o.settings
                           ? std::make_unique<qtplatform::QtSettingsStore>(qtplatform::ToQString(*o.settings))
                           : std::make_unique<qtplatform::QtSettingsStore>();
  qtplatform::QtSettingsStore& settings = *settingsStore;
  graph::HistoryLog history(o.history.value_or(graph::HistoryLog::DefaultPath()));
  StreamMessageBox messages(out, "message: ");
  SilentInputBox input;
  platform::RecentList recent(settings, platform::RecentList::kFunctions);
  recent.LoadRecent();
  TracePrinter trace(out);
  auto canvas = MakePlotCanvas(o.width, o.height);

  graph::GraphServices services = graph::StandardServices(settings, messages, input);
  services.history = &history;
  services.recent = &recent;
  if (o.trace) services.observer = &trace;
  graph::GraphWindow window(canvas->Surface(), std::move(services));
  window.Activate();

  int type = graph::kCartesian;
  Pending pending;
  // Draws what was typed, as Enter in the function box does.
  const auto flush = [&] {
    if (!pending.has) return;
    window.optFunk(pending.type);
    window.SettxtY(pending.y);
    if (pending.x) window.SettxtX(*pending.x);
    window.DrawFromTxtY();
    pending = Pending{};
  };
  // A view command of the frame: the window's routine, then the replay
  // when the window holds functions.
  const auto viewCommand = [&](const std::function<void()>& routine) {
    flush();
    routine();
    if (window.State().KolkoFunkc() > 0) window.RedrawFunc();
  };

  for (const Step& s : o.steps) {
    if (s.option == "--type") {
      type = s.value == "parametric" ? graph::kParametric
             : s.value == "polar"    ? graph::kPolar
                                     : graph::kCartesian;
    } else if (s.option == "--y") {
      flush();
      pending.has = true;
      pending.type = type;
      pending.y = s.value;
    } else if (s.option == "--x") {
      pending.x = s.value;
    } else if (s.option == "--zoom") {
      viewCommand([&] {
        if (s.value == "in" || s.value == "50") {
          window.mnuzoomin();
        } else if (s.value == "out" || s.value == "15") {
          window.mnuzoomout();
        } else if (s.value == "default" || s.value == "30") {
          window.mnuZoomDef();
        } else {
          window.ApplyFineZoom(s.value);
        }
      });
    } else if (s.option == "--center") {
      viewCommand([&] { window.mnuCenter(); });
    } else if (s.option == "--tangent" || s.option == "--normal") {
      flush();
      Tangent(window, s.option == "--normal", s.value, messages);
      out << "txtY: " << window.Boxes().txtY().Text << '\n';
    } else if (s.option == "--integral") {
      flush();
      Integral(window, s, messages);
    } else if (s.option == "--derivative") {
      flush();
      window.CrtajFJUDeriv();
    } else if (s.option == "--label") {
      flush();
      if (!Label(window, s, out, err)) return 2;
    } else {
      // The menu's move with the answer it would have asked for.
      viewCommand([&] {
        if (s.option == "--right") window.ApplyMove(graph::MoveDirection::Right, s.value);
        if (s.option == "--left") window.ApplyMove(graph::MoveDirection::Left, s.value);
        if (s.option == "--up") window.ApplyMove(graph::MoveDirection::Up, s.value);
        if (s.option == "--down") window.ApplyMove(graph::MoveDirection::Down, s.value);
      });
    }
  }
  flush();
  if (o.replay) window.RedrawFunc();

  if (o.table) {
    for (const auto& line : window.MS1().TabLines()) out << line << '\n';
  }
  if (o.status) {
    out << window.StatusCaption() << '\n';
    out << "Zoom: " << expr::NumberToText(window.View().zlevel()) << '\n';
    out << window.View().MovedText() << '\n';
  }
  std::string error;
  const auto failed = [&] {
    err << "velmora-cli plot: " << error << '\n';
    return 1;
  };
  if (o.png && !canvas->SavePng(*o.png, error)) return failed();
  if (o.pictures.Any() && !canvas->SavePictures(o.pictures, settings, error)) return failed();
  return 0;
}

}  // namespace velmora::cli
