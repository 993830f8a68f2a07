#include "cli/plotcommand.h"

#include <charconv>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
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
};

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
  static const std::vector<std::string_view> kSteps = {"--type",  "--y",    "--x",  "--zoom",
                                                       "--right", "--left", "--up", "--down"};
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
    } else if (a == "--center") {
      o.steps.push_back({a, {}});
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
      o.steps.push_back({a, v});
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
