#pragma once

#include <QImage>

namespace velmora::graph_qt {

// The pictures of the three graph papers in Plotting Options, drawn by the
// graph paper itself on a small image surface: 0 Standard, 1 Polar, 2 Trig.
QImage PaperPicture(int type, int width = 120, int height = 90);

}  // namespace velmora::graph_qt
