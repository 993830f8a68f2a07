#pragma once

#include <string>
#include <string_view>

namespace velmora::platform {

// Turns the program's filter form, "Description (*.ext)|*.ext" pairs joined
// by "|", into the form of Qt's file dialogs: "Description (*.ext)" entries
// joined by ";;". A description that does not show its patterns gets them
// added in brackets; patterns split by ";" are listed with spaces. A lone
// description with no pattern stands for every file.
std::string FilterToQt(std::string_view filter);

}  // namespace velmora::platform
