#pragma once

#include <QFont>
#include <QImage>
#include <QString>

#include "graph/labelstyle.h"

namespace velmora::graph_qt {

// The picture of a label's box (`picMCRBox`): the text in its font and
// colour, turned by its angle about the box's centre, over a box of the
// colour `back` sized to the turned text. The text is drawn without
// smoothing, so every pixel is either text or background and a transparent
// label can leave the background out exactly.
// The label as the dialog and the in-window panel set it up: its text, the
// chosen font with its styles, colour, angle and transparency.
graph::LabelStyle LabelStyleOf(const QString& text, const QFont& font, graph::Colour colour, double angle,
                               bool transparent);

QImage RenderLabel(const graph::LabelStyle& label, graph::Colour back);

// Copies a rendered label onto a picture with its top left at (left, top);
// `transparent` leaves out the pixels of the colour `back`.
void BurnLabelImage(QImage& picture, const QImage& label, int left, int top, bool transparent,
                    graph::Colour back);

}  // namespace velmora::graph_qt
