#include "geometry/catalogue.h"

#include <array>
#include <vector>

#include "geometry/circle.h"
#include "geometry/cone.h"
#include "geometry/ellipsoid.h"
#include "geometry/euclid.h"
#include "geometry/polygon.h"
#include "geometry/sphere.h"
#include "geometry/triangle.h"

namespace velmora::geometry {
namespace {

constexpr std::array<std::string_view, 8> kPages = {"Triangle", "Polygon",  "Euclid",    "Circle",
                                                    "Sphere",   "Frustrum", "Ellipsoid", "Cone"};

const std::vector<FigureKind>& Kinds() {
  static const std::vector<FigureKind> kinds = {
      {"triangle", "Triangle", "", "mnuTrougao", kTriangleBoxes, GeneralTriangleMenu(),
       GeneralTriangleHelp()},
      {"triangle", "Triangle", "Right-angled", "mnuprav", kTriangleBoxes, RightTriangleMenu(),
       RightTriangleHelp()},
      {"triangle", "Triangle", "Equilateral", "mnujednako", kTriangleBoxes, EquilateralTriangleMenu(),
       EquilateralTriangleHelp()},
      {"polygon", "Polygon", "", "", kPolygonBoxes, PolygonMenu(), PolygonHelp()},
      {"euclid", "Euclid", "", "", kEuclidBoxes, EuclidMenu(), EuclidHelp()},
      {"circle", "Circle", "Circle", "mnukrug", kCircleBoxes, CircleMenu(), CircleHelp()},
      {"arc", "Circle", "Arc", "mnuluk", kCircleBoxes, ArcMenu(), ArcHelp()},
      {"ring", "Circle", "Ring", "mnuprsten", kCircleBoxes, RingMenu(), RingHelp()},
      {"sphere", "Sphere", "", "mnulopta", kSphereBoxes, SphereMenu(), SphereHelp()},
      {"cfrustrum", "Frustrum", "Cone", "mnufrusrumcone", kFrustrumBoxes, ConeFrustrumMenu(),
       ConeFrustrumHelp()},
      {"sfrustrum", "Frustrum", "Sphere", "mnufrustrumsphere", kFrustrumBoxes, SphereFrustrumMenu(),
       SphereFrustrumHelp()},
      {"ellipse", "Ellipsoid", "Ellipse", "mnuelipsa", kEllipseBoxes, EllipseMenu(), EllipseHelp()},
      {"ellipsoid", "Ellipsoid", "Ellipsoid", "mnuElipsoid", kEllipsoidBoxes, EllipsoidMenu(),
       EllipsoidHelp()},
      {"cone", "Cone", "", "mnuKupa", kConeBoxes, ConeMenu(), ConeHelp()},
  };
  return kinds;
}

}  // namespace

std::span<const FigureKind> FigureKinds() { return Kinds(); }

std::span<const std::string_view> PageCaptions() { return kPages; }

const MenuEntry* FindEntry(std::string_view word, std::string_view entry, const FigureKind** kind) {
  for (const auto& k : Kinds()) {
    if (k.word != word) continue;
    for (const auto& e : k.entries) {
      if (e.name == entry) {
        if (kind != nullptr) *kind = &k;
        return &e;
      }
    }
  }
  return nullptr;
}

}  // namespace velmora::geometry
