#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velmora::cli {

// velmora-cli geo FIGURE CASE VALUES... [--yes|--no]: one solver of the
// Geometry Calculator. Prints the messages as they come ("message: ",
// "question: "), then each box of the page as name=text and the result line
// of rtG as result=text, one such line per line of the box. With
// --jpeg FILE [--quality Q], --bmp FILE or --pdf FILE the figure the
// calculator draws from the solved record (--width, --height, --shade)
// is saved too; the PDF takes its margins from "Print" in the settings
// (--settings FILE names another file).
int RunGeo(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

// velmora-cli convert PAGE FROM TO VALUE: the units converter; PAGE is
// angles, areas or lengths, FROM and TO a unit key or list position. For
// PAGE degrees the three words are degrees, minutes and seconds.
int RunConvert(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

// velmora-cli base INDEX VALUE: a result into another number base (0
// decimal, 1 binary, 2 hexadecimal, 3 octal).
int RunBase(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace velmora::cli
