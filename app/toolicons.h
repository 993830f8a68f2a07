#pragma once

#include <string_view>

#include <QIcon>

namespace velmora::app {

// The picture of a toolbar button, drawn by the program itself so that it
// looks the same on every desktop theme. Known by the button's key; an
// unknown key gets a plain badge with its first letter.
QIcon ToolIcon(std::string_view key);

// The program's own window icon: a curve over axes on a light tile, the
// picture of the installed velmora.svg.
QIcon ProgramIcon();

}  // namespace velmora::app
