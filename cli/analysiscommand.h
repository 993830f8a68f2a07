#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velmora::cli {

// The analysis tools on arguments, printing what their boxes, grid and log
// show: grid rows and log lines one a line (cells tab-separated), box values
// as name=value, message boxes as "message: TEXT".
//
// velmora-cli table [--type cartesian|parametric|polar] --y TEXT [--x TEXT]
//     [--xmin T] [--xmax T] [--step T] [--accuracy N] [--text] [--html FILE]
int RunTable(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);
// velmora-cli zeros FUNCTION (--guess G | --range XMIN XMAX) [--accurate]
int RunZeros(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);
// velmora-cli intersect F1 F2 (--guess G | --range XMIN XMAX) [--accurate]
int RunIntersect(const std::vector<std::string>& args, std::istream& in, std::ostream& out,
                 std::ostream& err);
// velmora-cli point FUNCTION (--x X | --y Y --range XMIN XMAX) [--accurate]
int RunPoint(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);
// velmora-cli integral FUNCTION MIN MAX [--segments N] [--trapezoid] [--average] [--accuracy N]
// velmora-cli integral --derivative FUNCTION POINT [--accuracy N]
int RunIntegral(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);
// velmora-cli critical FUNCTION [XMIN XMAX] [--accurate]
// velmora-cli critical FUNCTION XMIN XMAX --scan [--zoom Z] [--places N]: the
// graph window's derivative scan, one sample a pixel column
int RunCritical(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);
// velmora-cli evaluate: one expression a line, optionally a tab and a value
// for X; prints the result label, a tab and the history line.
int RunEvaluate(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace velmora::cli
