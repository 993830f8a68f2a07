// The Examples menu: ready functions that teach the expression language by
// showing it. The formula texts are data and keep their old spellings
// ("stefK", "HArccos", "cotanK"); the menus show them as they stand.
#include "graph/examplecatalogue.h"

#include <array>

#include "expr/fault.h"
#include "expr/numtext.h"
#include "platform/settingskeys.h"

namespace velmora::graph {
namespace {

// A Cartesian entry whose caption is its function.
constexpr Example Fn(std::string_view text) { return {text, "", kCartesian, text, "K", ExampleView::Keep}; }

constexpr Example Named(std::string_view caption, std::string_view loader, int type, std::string_view y,
                        std::string_view x, ExampleView view = ExampleView::Keep) {
  return {caption, loader, type, y, x, view};
}

constexpr Example Polar(std::string_view caption, std::string_view loader, std::string_view r,
                        ExampleView view = ExampleView::Keep) {
  return {caption, loader, kPolar, r, "K", view};
}

constexpr std::array kComon{
    Fn("(X^2)-1/(1-X)+1/X"),
    Fn("(X-2)*(X-4)/X^2"),
    Fn("X + 2/X"),
    Fn("2*X-3/X"),
    Fn("X^(1/(1-X))"),
    Fn("X/2+SinX"),
    Fn("X^(1/X)"),
    Fn("LnX-X/(1-X^2)"),
    Fn("LnX/SqrX"),
    Fn("X/(LnX)"),
    Fn("2*AbsX-X^2"),
    Fn("SinX+(Sin(2*X))/X"),
    Fn("SinX*Sin(2*X)"),
    Fn("2*Sin(2*X)-Sin(4*X)"),
    Fn("2*Cos(X/2)*3*Cos(X/3)"),
    Fn("(SinX)^3-(CosX)^3"),
    Fn("CosX-(CosX)^2"),
    Fn("1/(SinX+CosX)"),
    Fn("SinX/(Sin(X+Pi/4))"),
    Fn("Atn(LnX)"),
    Fn("X+2*AtnX"),
    Fn("Asin(Ln(X^2+1))"),
    Fn("Ln(HSinX)"),
    Fn("X*(LnX)^2"),
    Fn("HAcos(X+1/X)"),
};

constexpr std::array kPred{
    Fn("Sqr(1-BinX)"),         Fn("8/(X*Sqr(BinX-4))"),
    Fn("X/Cbr(4-BinX)"),       Fn("Cbr(Bin(X+4))-Cbr(Qvd(X-4))"),
    Fn("CubX-BinX+NilX+ExpX"), Fn("BinX-NilX+CbrX"),
    Fn("X*Bin(X-1)*Cub(X-2)"), Fn("Nil(X)-Cbr(X)"),
    Fn("Asin(1-NilX)"),        Fn("SqrX-Sqr(4-X)"),
    Fn("(QvdX+3)/X"),          Fn("(3+(BinX)/3)*Exp(X/3)"),
};

constexpr std::array kPred2{
    Fn("e*X-X^3"),
    Fn("e^(SinX)"),
    Fn("e^X/X"),
    Fn("Exp(X) -X^(2/3)"),
    Fn("Exp(X-3)-1/(1-(X^2))"),
    Fn("Exp(8*X-X^2-14)"),
    Fn("Exp(AtnX)"),
    Fn("(2+X^2)*Exp(-(X^2))"),
    Fn("X*e^(-X)"),
    Fn("(2+X^2)*e^(-X^2)"),
    Fn("Ln(e+1/X)"),
    Fn("Ln(X^2-1)+1/(X^2-1)"),
    Fn("Ln(1-Exp(-X))"),
    Fn("(BinX/2)*Ln(X/3)"),
    Fn("Ln((Sqr(X^2+1)-1)/X)"),
    Fn("AsinX/(SqrT(1-BinX))"),
    Named("Blancmange", "Puding", kCartesian, "Blanc(x)", "K", ExampleView::ZumPuding),
    Named("McLaurin Polynomial", "McLourin", kCartesian, "X-X^3/Fac(3)+X^5/Fac(5)-X^7/Fac(7)", "K"),
    Named("Resonance", "Rezon", kCartesian, "15/Sqrt(4+(1.5*X-12/X)^2)", "K"),
    Named("Maxwel Distribution", "Maksvel", kCartesian, "(3/7)^1.5*Exp(-(X^2)/7)*3*X^2*pi", "K"),
    Named("Damped Oscillations", "Damped", kCartesian, "2*Exp(-X/4)*Cos(3*X)", "K"),
    Named("Gamma Function", "GamaF", kCartesian, "Gamma(x)", "K", ExampleView::ZumGama),
};

constexpr std::array kPow{
    Fn("(1/3)*X^2-(2/3)*X-1"),   Fn("X^2-X/(1-X)"),      Fn("X/2+2+X/(X-2)"), Fn("(X^3 - 2)/(2*X)"),
    Fn("-1/(X+2)+X^(-1/3)"),     Fn("X^(-2/3)+X/(1-X)"), Fn("X^2-X^3+X-1"),   Fn("X^(2/5)+X^(2/3)+1/(2+X)"),
    Fn("1/(X-1)+X^(2/3)"),       Fn("X^2-1/(1-X^2)"),    Fn("(X^2)-X/(2-X)"), Fn("X+1/(1+X^2)"),
    Fn("X^2/(1-X^2)"),           Fn("X^2/(1-X)"),        Fn("X^3+X^(-3/5)"),  Fn("X^3+X^(-3/5)+1/(X-2)"),
    Fn("1/(X^2-(2/X))+X^(2/3)"), Fn("X^2-2/(X-1)"),
};

constexpr int P = kParametric;

constexpr std::array kPf1{
    Named("Astroid", "asteorida", P, "4*(SinK)^3", "4*(CosK)^3"),
    Named("Bel", "Bel", P, "10*cos(K)-5", "HArctanK"),
    Named("Bernulli", "Bernulli", P, "1/2*StefK", "4*CosK"),
    Named("Cycloid", "Cikloide", P, "(1-CosK)", "(K-SinK)"),
    Named("Circle", "Krug", P, "3*cosK+3", "3*sinK+3"),
    Named("Cissoid", "cisoide", P, "4*CubK/(1+BinK)", "4*BinK/(1+BinK)"),
    Named("Conchoid", "kriva1", P, "2/3*K*(3-K^2)", "K^2"),
    Named("Descartes", "Decart", P, "3*3*K/(1+CubK)", "3*3*BinK/(1+CubK)", ExampleView::ZumDec),
    Named("Drop", "drop", P, "K*K", "3*SinK"),
    Named("Eight", "Osam", P, "4*cosK", "StefK/2"),
    Named("Ellipse", "Elipse", P, "2.5*CosK", "5*SinK"),
    Named("Epicycloid", "Epicycloid", P, "4*SinK-2*Sin(4*K)", "4*CosK-2*Cos(4*K)"),
    Named("Evolvent", "Evolvente", P, "SinK-K*CosK", "CosK+K*SinK"),
    Named("Figure", "Locus", P, "2*SinK", "K+Sin(8*K)"),
    Named("Fish", "Riba", P, "stefK ; CosK ; Cos(K)+3 ; Cos(K)+3",
          "10^(cosK)-5 ; 0.1*stef(K)+5 ; Sin(K)+3 ; 0.5*Sin(K)+3"),
    Named("Gift1", "Gift", P, "2*sinK*K", "5*sinK"),
    Named("Gift2", "Gift2", P, "CbrK*stefK", "10*cosK"),
    Named("Glass", "Glass2", P, "2*Sin(2*K)-Sin(4*K)", "10*cosK"),
    Named("HourGlass", "Glass", P, "cotanK*K", "cosK*K"),
    Named("Cardioid", "SrceReal", P, "2*CosK+Cos(2*K)", "2*SinK+Sin(2*K)"),
    Named("Hypocikloid", "Hypocikloid", P, "2*CosK+2*Cos(2*K)", "2*SinK-2*Sin(2*K)"),
    Named("Leaf", "Lisce", P, "6*cosK", "3*sinK^3"),
};

constexpr std::array kPf2{
    Named("Lips", "Lips", P, "5*(SinK)^3", "10*cosK"),
    Named("Loop", "kriva2", P, "2*K^4-(4*K^2)+1/2", "3*K-2*K^3"),
    Named("Mec", "Mec", P, "1/6*StefK*StefK", "2*cosK"),
    Named("Ortogonal Oscillations", "Ortogonal", P, "2*Sin(3*K)", "2*Sin(2*K)"),
    Named("Pen", "Pen", P, "K*TanK", "cosK*K"),
    Named("Semicub", "semiCub", P, "K^3", "K^2"),
    Named("Spiral1", "Spirala", P, "sinK*K", "10*cosK"),
    Named("Spiral2", "Spiral2", P, "CosK*K", "5*SinK"),
    Named("Spiral3", "spiral3", P, "cosK*K", "sinK*K"),
    Named("Spiral4", "spiral4", P, "3*stefK", "sink*K"),
    Named("Star", "Cross", P, "CotK", "K*tanK"),
    Named("Umbrella", "kiso", P, "10^(cosK)", "sinK*K"),
    Named("Strophoid", "Strofoide1", P, "Sqr(BinK*(3+K)/(3-K))", "K"),
    Named("Strophoid (lower branch)", "Strofoide2", P, "-Sqr(BinK*(3+K)/(3-K))", "K"),
    Named("Three-leaved Rose", "Threeleavedrose", P, "2*Cos(K)-2*cos(2*K)", "2*(-SinK)+2*(-Sin(2*K))"),
    Named("Versiere", "Versiere", P, "1/(1+K^2)", "K"),
    // Six entries whose captions are their formulas share one loader, which
    // picks the pair by the entry's index.
    Named("Y = Sin(5K) ; X = Cos(3K)", "Paramed", P, "Sin(5*K)", "Cos(3*K)"),
    Named("Y = K^3+K+1 ; X = K^2-1", "Paramed", P, "K^3+K+1", "K^2-1"),
    Named("Y = Exp(CosK) ; X = Exp(SinK)", "Paramed", P, "Exp(CosK)", "Exp(SinK)"),
    Named("Y = Tan(5K) ; X = Atn(2K)", "Paramed", P, "Tan(5*K)", "Atn(2*K)"),
    Named("Y = 1-CosK ; X = K-SinK", "Paramed", P, "1-CosK", "K-SinK"),
    Named("Y = 1-3CosK ; X = K-3SinK", "Paramed", P, "1-3*CosK", "K-3*SinK"),
};

constexpr std::array kPolarMenu{
    Polar("1 + CosK", "polar1", "1+CosK"),
    Polar("1 + SinK", "polar2", "1+SinK"),
    Polar("4 * Sin(3*K) - 1", "Polar3", "2*Sin(3*K)-1"),
    Polar("Stef(K)", "Polar4", "StefK"),
    Polar("3 + Sin(9*K)", "Polar5", "3+Sin(9*K)"),
    Polar("3 * Sin(9*K)", "Polar6", "3*Sin(9*K)"),
    Polar("Exp(0.2*K)", "Polar7", "Exp(0.2*K)"),
    Polar("Logarithmic Spiral", "Polar8", "2*2^(K/(2*pi))"),
    Polar("Limacon", "Polar9", "2*(1+2*Cos(K))"),
    Polar("Strophoid", "Polar10", "3*Cos(2*K)/cosK"),
    Polar("Trisectrix", "Polar11", "2*(4*Cos(K)-1/Cos(K))"),
    Polar("Butterfly", "Leptir", "-K^(1/3)*5*SinK*CosK"),
    Polar("Lotus", "Bulk", "4*SinK-2*Sin(4*K)"),
    Polar("Stef", "Polar14", "StefK*StefK-10", ExampleView::ZumStef),
    Polar("Ellipse", "PolElipsa", "4/(2-CosK)"),
    Polar("CrossRoad", "CrossRoad", "1/(5*Cos(K)^2-pi)"),
    Polar("Four-leaved Rose", "Polar4Rose", "4*Sin(2*K)"),
    Polar("Three-leaved Rose", "Polar3Rose", "4*Sin(3*K)"),
};

constexpr std::array kMenus{
    ExampleSubmenu{"&Common Functions", "mnuComon", kCartesian, kComon},
    ExampleSubmenu{"&Predefined Functions 1", "mnuPred", kCartesian, kPred},
    ExampleSubmenu{"P&redefined Functions 2", "mnuPred2", kCartesian, kPred2},
    ExampleSubmenu{"&Use of ^", "mnuPow", kCartesian, kPow},
    ExampleSubmenu{"P&arametric Functions 1", "mnupf1", kParametric, kPf1},
    ExampleSubmenu{"Para&metric Functions 2", "mnupf2", kParametric, kPf2},
    ExampleSubmenu{"P&olar Functions", "mnuPolar", kPolar, kPolarMenu},
};

std::vector<std::string> SplitPairs(std::string_view text) {
  constexpr std::string_view kSeparator = " ; ";
  std::vector<std::string> parts;
  std::size_t start = 0;
  while (true) {
    const std::size_t end = text.find(kSeparator, start);
    if (end == std::string_view::npos) {
      parts.emplace_back(text.substr(start));
      return parts;
    }
    parts.emplace_back(text.substr(start, end - start));
    start = end + kSeparator.size();
  }
}

void SetView(GraphWindow& window, ExampleView view) {
  switch (view) {
    case ExampleView::Keep: break;
    case ExampleView::ZumDec:
      window.ZumDec();
      window.ApplyMove(MoveDirection::Right, kDecartMove);
      break;
    case ExampleView::ZumStef: window.ZumStef(); break;
    case ExampleView::ZumGama: window.ZumGama(); break;
    case ExampleView::ZumPuding: window.ZumPuding(); break;
  }
}

}  // namespace

std::span<const ExampleSubmenu> ExampleMenus() { return kMenus; }

std::vector<std::pair<std::string, std::string>> ExampleCurves(const Example& example) {
  const std::vector<std::string> ys = SplitPairs(example.y);
  const std::vector<std::string> xs = SplitPairs(example.x);
  std::vector<std::pair<std::string, std::string>> curves;
  for (std::size_t i = 0; i < ys.size(); ++i)
    curves.emplace_back(ys[i], i < xs.size() ? xs[i] : std::string("K"));
  return curves;
}

void LoadExample(GraphWindow& window, const Example& example) {
  window.ShowLine(OverlayLine::Line1, LineControl{});
  window.optFunk(example.type);
  SetView(window, example.view);
  for (const auto& [y, x] : ExampleCurves(example)) {
    window.SetFunctionTexts(y, x);
    if (example.type == kPolar) {
      window.CrtajPolar();
    } else {
      window.CrtajFJU();
    }
  }
}

}  // namespace velmora::graph
