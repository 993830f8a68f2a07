#include "graph/functionnames.h"

namespace velmora::graph {
namespace {

constexpr std::string_view kNames[] = {
    "Exp",  "Ln",   "Log",   "Sqr",  "Sin",   "Cos",   "Tan",   "Cot",   "Sec",   "Csc",
    "Rad",  "Deg",  "Asin",  "Acos", "Atan",  "Acot",  "Asec",  "Acsc",  "HSin",  "HCos",
    "HTan", "HSec", "HCsc",  "HCot", "HAsin", "HAcos", "HAtan", "HAsec", "HAcsc", "HAcot",
    "Stef", "Four", "Gamma", "Beta", "Blanc", "Abs",   "Int",   "Fac",   "Cel",   "Fah",
};

}  // namespace

std::span<const std::string_view> FunctionNames() { return kNames; }

}  // namespace velmora::graph
