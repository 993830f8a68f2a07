#include "graph/graphpaper.h"

#include <cmath>

#include "expr/numtext.h"
#include "graph/forstep.h"
#include "platform/settingskeys.h"

namespace velmora::graph {
namespace {

namespace grid = platform::keys::grid;

constexpr std::string_view kStandardFont = "MS Sans Serif";
// Pi as the paper spells it: the grid of the Trig paper steps by its text
// over 4, the labels by its value rounded to one decimal.
constexpr double kPi = 3.14159265358979;
// The polar paper's rays use 3.14, not pi, and so are only near 30 and 60 degrees.
constexpr double kRayPi = 3.14;

}  // namespace

int GraphPaper::Stride(double zoom) {
  if (zoom >= 45) return 1;
  if (zoom >= 20) return 2;
  return 4;
}

std::string GraphPaper::PrintedNumber(double value) {
  std::string text = expr::NumberToText(value);
  if (!(value < 0)) text.insert(0, 1, ' ');
  text += ' ';
  return text;
}

double GraphPaper::Number(std::string_view name) {
  return ReadSettingNumber(settings_, platform::keys::kGrid, name);
}
std::string GraphPaper::Text(std::string_view name) {
  return platform::ReadSetting(settings_, platform::keys::kGrid, name);
}

void GraphPaper::StandardFont() {
  surface_.SetFontName(kStandardFont);
  surface_.SetFontSize(8);
  surface_.SetFontBold(false);
}

void GraphPaper::Axes(const PaperView& v) {
  const double w = surface_.ScaleWidth();
  const double h = surface_.ScaleHeight();
  surface_.Line(v.CenterX, 0, v.CenterX, h, v.AxesColor);
  surface_.Line(0, v.CenterY, w, v.CenterY, v.AxesColor);
}

bool GraphPaper::DrawLines(const PaperView& v) {
  const double w = surface_.ScaleWidth();
  const double h = surface_.ScaleHeight();
  // The standard font.
  StandardFont();
  // Assigned axes draw their text transparent.
  const bool ozna = Number(grid::kOzna) == 1;
  if (ozna) surface_.SetFontTransparent(true);
  // The grid's pen.
  const int dashStyle = Number(grid::kDash) == 1 ? kDot : kSolid;
  surface_.SetDrawStyle(dashStyle);
  // The steps, in user units.
  double stepX = 0;
  double stepY = 0;
  if (Number(grid::kTrigo) == 1) {
    stepX = expr::TextToNumber(expr::NumberToText(kPi / 4));
    stepY = 1;
  } else {
    stepX = expr::TextToNumber(Text(grid::kScaleX));
    stepY = expr::TextToNumber(Text(grid::kScaleY));
  }
  const double px = stepX * v.Zoom;
  const double py = stepY * v.Zoom;
  // The paper and the axes. Every loop starts at the axis, so a line
  // always passes through the origin.
  if (Number(grid::kAxes) == 1) {
    surface_.SetDrawStyle(kSolid);
  } else if (Number(grid::kPolarP) == 1) {
    ForStep(px, 2 * h, px, [&](double r) {
      surface_.Circle(v.CenterX, v.CenterY, r, v.GridColor);
      return true;
    });
    for (const double angle : {kRayPi / 3, kRayPi / 6}) {
      for (const double sign : {1.0, -1.0}) {
        const double slope = sign * std::tan(angle);
        // Pixel rows grow downward, so a rising ray falls in pixel terms.
        const double xTop = v.CenterX + v.CenterY / slope;
        const double xBottom = v.CenterX - (h - v.CenterY) / slope;
        surface_.Line(xTop, 0, xBottom, h, v.GridColor);
      }
    }
    surface_.SetDrawStyle(kSolid);
  } else if (Number(grid::kCrte) == 1) {
    surface_.SetDrawStyle(kSolid);
    const auto tickX = [&](double x) {
      surface_.Line(x, v.CenterY - 3, x, v.CenterY + 4, v.GridColor);
      return true;
    };
    const auto tickY = [&](double y) {
      surface_.Line(v.CenterX - 3, y, v.CenterX + 4, y, v.GridColor);
      return true;
    };
    ForStep(v.CenterX, w, px, tickX);
    ForStep(v.CenterX, 0, -px, tickX);
    ForStep(v.CenterY, h, py, tickY);
    ForStep(v.CenterY, 0, -py, tickY);
  } else {
    const auto vertical = [&](double x) {
      surface_.Line(x, 0, x, h, v.GridColor);
      return true;
    };
    const auto horizontal = [&](double y) {
      surface_.Line(0, y, w, y, v.GridColor);
      return true;
    };
    ForStep(v.CenterX, w, px, vertical);
    ForStep(v.CenterX, 0, -px, vertical);
    ForStep(v.CenterY, h, py, horizontal);
    ForStep(v.CenterY, 0, -py, horizontal);
    surface_.SetDrawStyle(kSolid);
  }
  Axes(v);
  // The numbers.
  surface_.SetDrawStyle(kSolid);
  CrtajBrojeve(v);
  // Axis names and arrows.
  if (ozna) {
    surface_.SetForeColor(v.AxesColor);
    CrtajStrele(v);
  }
  // The scale note.
  if (Number(grid::kSkala) == 1) {
    StandardFont();
    surface_.SetForeColor(v.AxesColor);
    surface_.SetCurrentX(8);
    surface_.SetCurrentY(h - 20);
    surface_.Print("[" + Text(grid::kScaleX1) + " , " + Text(grid::kScaleY1) + "]");
  }
  return ozna;
}

void GraphPaper::CrtajBrojeve(const PaperView& v) {
  StandardFont();
  if (Number(grid::kTrigo) == 1) {
    Drawtrigo(v);
    return;
  }
  const double w = surface_.ScaleWidth();
  const double h = surface_.ScaleHeight();
  const double sx = expr::RoundTo(expr::TextToNumber(Text(grid::kScaleX)), 1);
  const double sy = expr::RoundTo(expr::TextToNumber(Text(grid::kScaleY)), 1);
  const int n = Stride(v.Zoom);
  surface_.SetForeColor(Number(grid::kBrojBoja) == 1 ? v.GridColor : v.AxesColor);
  if (Number(grid::kBrojX) == 1) {
    // The label counts strides; it does not multiply by the grid step.
    double label = 0;
    ForStep(v.CenterX, w, v.Zoom * n * sx, [&](double x) {
      surface_.SetCurrentX(x);
      surface_.SetCurrentY(v.CenterY + 3);
      surface_.Print(PrintedNumber(label));
      label += n;
      return true;
    });
    label = 0;
    ForStep(v.CenterX, 0, -(v.Zoom * n * sx), [&](double x) {
      if (x == 0) return false;
      surface_.SetCurrentX(x);
      surface_.SetCurrentY(v.CenterY + 3);
      if (label != 0) surface_.Print(PrintedNumber(label));
      label -= n;
      return true;
    });
  }
  if (Number(grid::kBrojY) == 1) {
    double label = 0;
    const auto print = [&](double y) {
      surface_.SetCurrentY(y);
      surface_.SetCurrentX(v.CenterX + 3);
      if (label != 0) surface_.Print(PrintedNumber(label));
      return true;
    };
    ForStep(v.CenterY, h, v.Zoom * n * sy, [&](double y) {
      print(y);
      label -= n;
      return true;
    });
    label = 0;
    ForStep(v.CenterY, 0, -(v.Zoom * n * sy), [&](double y) {
      print(y);
      label += n;
      return true;
    });
  }
}

void GraphPaper::Drawtrigo(const PaperView& v) {
  StandardFont();
  const double w = surface_.ScaleWidth();
  const double h = surface_.ScaleHeight();
  // The labels step by pi rounded to 3.1 while the grid steps by pi / 4:
  // the slight drift between them is the paper's.
  const double p = expr::RoundTo(kPi, 1);
  const double sy = expr::RoundTo(1, 1);
  const int n = v.Zoom >= 10 ? 1 : 2;
  surface_.SetForeColor(Number(grid::kBrojBoja) == 1 ? v.GridColor : v.AxesColor);
  const bool brojX = Number(grid::kBrojX) == 1;
  const auto printAt = [&](double x, std::string_view text) {
    surface_.SetCurrentX(x);
    surface_.SetCurrentY(v.CenterY + 3);
    surface_.Print(text);
  };
  const auto labelText = [](double label, std::string_view unit) {
    return expr::NumberToText(label) + std::string(unit);
  };
  if (brojX) {
    double label = 0;
    ForStep(v.CenterX, w, v.Zoom * n * p, [&](double x) {
      if (label == 0) {
        printAt(x + 3, "0");
      } else if (label == 1) {
        printAt(x - 3, "pi");
      } else {
        printAt(x - 6, labelText(label, "pi"));
      }
      label += n;
      return true;
    });
    label = 0;
    ForStep(v.CenterX, 0, -(v.Zoom * n * p), [&](double x) {
      if (x == 0) return false;
      if (label == -1) {
        printAt(x - 9, "-pi");
      } else if (label != 0) {
        printAt(x - 9, labelText(label, "pi"));
      }
      label -= n;
      return true;
    });
  }
  if (v.Zoom >= 50 && brojX) {
    // The odd half steps: pi/2, 3pi/2 ... on either side.
    const double half = v.Zoom * n * p / 2;
    double label = 1;
    ForStep(v.CenterX + half, w, 2 * half, [&](double x) {
      if (x != v.CenterX) printAt(x - 8, label == 1 ? std::string("pi/2") : labelText(label, "pi/2"));
      label += 2;
      return true;
    });
    label = -1;
    ForStep(v.CenterX - half, 0, -2 * half, [&](double x) {
      if (x == 0) return false;
      printAt(x - 12, label == -1 ? std::string("-pi/2") : labelText(label, "pi/2"));
      label -= 2;
      return true;
    });
  }
  if (Number(grid::kBrojY) == 1) {
    const int ny = Stride(v.Zoom);
    double label = 0;
    const auto print = [&](double y) {
      surface_.SetCurrentY(y);
      surface_.SetCurrentX(v.CenterX + 3);
      if (label != 0) surface_.Print(PrintedNumber(label));
    };
    ForStep(v.CenterY, h, v.Zoom * ny * sy, [&](double y) {
      print(y);
      label -= ny;
      return true;
    });
    label = 0;
    ForStep(v.CenterY, 0, -(v.Zoom * ny * sy), [&](double y) {
      print(y);
      label += ny;
      return true;
    });
  }
}

void GraphPaper::CrtajStrele(const PaperView& v) {
  // A font that is missing reads back under another name.
  surface_.SetFontName("Marlett");
  if (surface_.FontName() != "Marlett") {
    CrtajStreleold(v);
    return;
  }
  Arrows(v, "Marlett");
}

void GraphPaper::CrtajStreleold(const PaperView& v) {
  surface_.SetFontName("Webdings");
  if (surface_.FontName() != "Webdings") {
    messages_.Show(std::string(kArrowsMissingText), std::string(kArrowsMissingTitle),
                   platform::MsgIcon::Exclamation);
    StandardFont();
    return;
  }
  Arrows(v, "Webdings");
}

// In both arrow fonts the digit "4" is a right arrow head and "5" an up arrow head.
void GraphPaper::Arrows(const PaperView& v, std::string_view arrowFont) {
  const double w = surface_.ScaleWidth();
  surface_.SetFontName("Arial");
  surface_.SetCurrentX(v.CenterX - 14);
  surface_.SetCurrentY(-2);
  surface_.Print("y");
  surface_.SetCurrentX(w - 10);
  surface_.SetCurrentY(v.CenterY - 20);
  surface_.Print("x");
  surface_.SetFontName(arrowFont);
  surface_.SetFontSize(14);
  surface_.SetFontBold(false);
  // The wide test: an arrow head wider than the 13 pixels left for it at
  // the right edge is drawn bold and further in.
  if (surface_.TextWidth("4") > 13) {
    surface_.SetFontBold(true);
    surface_.SetCurrentX(w - 15);
    surface_.SetCurrentY(v.CenterY - 8);
    surface_.Print("4");
    surface_.SetFontBold(false);
    surface_.SetCurrentX(v.CenterX - 8.5);
    surface_.SetCurrentY(-6);
    surface_.Print("5");
  } else {
    surface_.SetCurrentX(w - 13);
    surface_.SetCurrentY(v.CenterY - 8);
    surface_.Print("4");
    surface_.SetCurrentX(v.CenterX - 8);
    surface_.SetCurrentY(-6);
    surface_.Print("5");
  }
  surface_.SetFontSize(8);
  surface_.SetFontBold(false);
}

}  // namespace velmora::graph
