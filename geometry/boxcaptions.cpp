#include "geometry/boxcaptions.h"

#include <utility>

namespace velmora::geometry {
namespace {

constexpr std::pair<std::string_view, std::string_view> kCaptions[] = {
    // Triangle
    {"txtta", "a"},
    {"txttb", "b"},
    {"txttc", "c"},
    {"txtta1", "A (rad)"},
    {"txttb1", "B (rad)"},
    {"txttc1", "C (rad)"},
    {"txtts", "p"},
    {"txttarea", "S"},
    {"txttobim", "P"},
    {"txttha", "Ha"},
    {"txtthb", "Hb"},
    {"txtthc", "Hc"},
    {"txttRv", "R"},
    {"txtRm", "r"},
    // Polygon
    {"txtPN", "N"},
    {"txtPA", "a"},
    {"txtPR", "R"},
    {"txtPH", "H"},
    {"txtPArea", "Area"},
    {"txtPobim", "Perimeter"},
    {"txtPFi", "ø (deg)"},
    {"txtPalfa", "Angle (deg)"},
    {"txtpSuma", "Sum of angles"},
    {"txtPNd", "Nd"},
    {"txtPodnos", "P / 2R"},
    // Euclid
    {"txtecm", "m"},
    {"txtecn", "n"},
    {"txteca", "a"},
    {"txtecb", "b"},
    {"txtecc", "c"},
    {"txtech", "h"},
    {"txtP1", "S"},
    {"txtO1", "P"},
    // Circle, arc, ring
    {"txtKR", "R"},
    {"txtKD", "D"},
    {"txtKArea", "S"},
    {"txtKobim", "Circumference"},
    {"txtKFi", "ø (rad)"},
    {"txtKrmalo", "r (R - r)"},
    {"txtKRR", "R + r"},
    // Sphere
    {"txtSR", "R"},
    {"txtSD", "D"},
    {"txtSArea", "S"},
    {"txtSzap", "V"},
    {"txtSK1", "V / S"},
    {"txtSK2", "S / V"},
    // Frustrum
    {"txtFR", "R"},
    {"txtFH", "H"},
    {"txtFA", "a"},
    {"txtFQ", "q"},
    {"txtFArea", "S"},
    // Ellipse and ellipsoid
    {"txtRe1", "R1"},
    {"txtRe2", "R2"},
    {"txtRe3", "R3"},
    {"txtELaREA", "Area"},
    {"txtEvolume", "Perimeter"},
    // Cone
    {"txtCR", "R"},
    {"txtCH", "H"},
    {"txtCa", "a"},
    {"txtCb", "B"},
    {"txtCFi", "ø (rad)"},
    {"txtCS", "S"},
    {"txtCV", "V"},
    // Units converter, Degrees page
    {"txtDeg", "Deg"},
    {"txtMin", "Min"},
    {"txtSec", "Sec"},
    {"txtRad", "Radians"},
    {"txtGrad", "Grads"},
};

}  // namespace

std::string_view BoxCaption(std::string_view box) {
  for (const auto& [name, caption] : kCaptions) {
    if (name == box) return caption;
  }
  return {};
}

}  // namespace velmora::geometry
