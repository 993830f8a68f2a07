#include "expr/normalise.h"

#include <array>

#include "base/asciicase.h"
#include "expr/evaluator.h"
#include "expr/numtext.h"
#include "expr/replacetext.h"

namespace velmora::expr {
namespace {

using P = ReplacePair;

constexpr std::array kCleanUp = {
    P{" ", ""}, P{"{", "("}, P{"}", ")"}, P{"[", "("}, P{"]", ")"},
};

// On upper-case text. The first two hide the X of EXP and FIX from the third.
constexpr std::array kEvaluationForm = {
    P{"EXP", "EP"},
    P{"FIX", "STL"},
    P{"X", "K"},
};

// On upper-case text: constants get their dummy argument, exp becomes a
// power of e, and the variable becomes 1 ((1) for K, ((1)) for X).
constexpr std::array kProveriSyn = {
    P{"EXP", "E(1)^"}, P{"E^", "E(1)^"}, P{"E*", "E(1)*"}, P{"E+", "E(1)+"}, P{"E/", "E(1)/"},
    P{"E-", "E(1)-"},  P{"QVD", "QVT"},  P{"D", "D(1)"},   P{"FIX", "FI"},   P{"PI", "PI(1)"},
    P{"X", "(K)"},     P{"K", "(K)"},    P{"K", "1"},
};

// On lower-case text, after the clean-up.
constexpr std::array kZagrade = {
    P{"exp", "ep"},
    P{"fix", "stl"},
    P{"k", "x"},
    P{"x", "(x)"},
};

// The short forms a user types ("SinX", "x^2", "Pi(1)") as lower-case calls
// on (x). Applied to the text as it stands, in this order.
constexpr std::array kShortForms = {
    // The variable.
    P{"X", "x"},
    P{"K", "x"},
    P{"k", "x"},
    // A name followed by x becomes a call.
    P{"Nilx", "nil(x)"},
    P{"nilx", "nil(x)"},
    P{"Cubx", "cub(x)"},
    P{"cubx", "cub(x)"},
    P{"Logx", "log(x)"},
    P{"logx", "log(x)"},
    P{"Lnx", "ln(x)"},
    P{"lnx", "ln(x)"},
    P{"Binx", "bin(x)"},
    P{"binx", "bin(x)"},
    P{"Sqrx", "sqr(x)"},
    P{"sqrx", "sqr(x)"},
    P{"sqrtx", "sqr(x)"},
    P{"Sqrtx", "sqr(x)"},
    P{"Sinx", "sin(x)"},
    P{"sinx", "sin(x)"},
    P{"Gammax", "gamma(x)"},
    P{"gammax", "gamma(x)"},
    P{"Cosx", "cos(x)"},
    P{"cosx", "cos(x)"},
    P{"Atnx", "atn(x)"},
    P{"atnx", "atn(x)"},
    P{"Stefx", "stef(x)"},
    P{"stefx", "stef(x)"},
    P{"Expx", "exp(x)"},
    P{"expx", "exp(x)"},
    // Whatever is left of exp is a power of e.
    P{"Exp", "e^"},
    P{"exp", "e^"},
    P{"Cbrx", "cbr(x)"},
    P{"cbrx", "cbr(x)"},
    P{"Qvrx", "qvr(x)"},
    P{"qvrx", "qvr(x)"},
    P{"Pbrx", "pbr(x)"},
    P{"pbrx", "pbr(x)"},
    P{"Qvdx", "qvd(x)"},
    P{"qvdx", "qvd(x)"},
    P{"Pntx", "pnt(x)"},
    P{"pntx", "pnt(x)"},
    P{"Tanx", "tan(x)"},
    P{"tanx", "tan(x)"},
    // Cotangent.
    P{"Cotanx", "cot(x)"},
    P{"cotanx", "cot(x)"},
    P{"cotan(x)", "cot(x)"},
    P{"Cotan(x)", "cot(x)"},
    P{"Absx", "abs(x)"},
    P{"absx", "abs(x)"},
    P{"Arcsinx", "arcsin(x)"},
    P{"arcsinx", "arcsin(x)"},
    P{"Arccosx", "arccos(x)"},
    P{"arccosx", "arccos(x)"},
    P{"Arcsecx", "arcsec(x)"},
    P{"arcsecx", "arcsec(x)"},
    P{"Arccosecx", "arccosec(x)"},
    P{"arccosecx", "arccosec(x)"},
    // Inverse cotangent.
    P{"Arccotanx", "arccot(x)"},
    P{"arccotanx", "arccot(x)"},
    P{"arccotan(x)", "arccot(x)"},
    P{"Arccotan(x)", "arccot(x)"},
    P{"Secx", "sec(x)"},
    P{"secx", "sec(x)"},
    P{"Cosecx", "cosec(x)"},
    P{"cosecx", "cosec(x)"},
    P{"HSinx", "hsin(x)"},
    P{"hsinx", "hsin(x)"},
    P{"HCosx", "hcos(x)"},
    P{"hcosx", "hcos(x)"},
    P{"HTanx", "htan(x)"},
    P{"htanx", "htan(x)"},
    P{"HSecx", "hsec(x)"},
    P{"hsecx", "hsec(x)"},
    P{"HCosecx", "hcosec(x)"},
    P{"hcosecx", "hcosec(x)"},
    // Hyperbolic cotangent.
    P{"HCotanx", "hcot(x)"},
    P{"HCotan(x)", "hcot(x)"},
    P{"hcotanx", "hcot(x)"},
    P{"hcotan(x)", "hcot(x)"},
    P{"HArcsinx", "harcsin(x)"},
    P{"harcsinx", "harcsin(x)"},
    P{"HArccosx", "harccos(x)"},
    P{"harccosx", "harccos(x)"},
    P{"HArctanx", "harctan(x)"},
    P{"harctanx", "harctan(x)"},
    P{"HArcsecx", "harcsec(x)"},
    P{"harcsecx", "harcsec(x)"},
    P{"HArccosecx", "harccosec(x)"},
    P{"harccosecx", "harccosec(x)"},
    // Inverse hyperbolic cotangent.
    P{"HArccotanx", "harccot(x)"},
    P{"harccotanx", "harccot(x)"},
    P{"harccotan(x)", "harccot(x)"},
    P{"HArccotan(x)", "harccot(x)"},
    // Constants lose their dummy argument.
    P{"Pi(1)", "pi"},
    P{"pi(1)", "pi"},
    P{"e(1)", "e"},
    P{"E(1)", "e"},
    // A sign before a power of the variable must not bind to the base.
    P{"-x^2", "-(x^2)"},
    P{"-x^3", "-(x^3)"},
    P{"-x^4", "-(x^4)"},
    P{"-x^5", "-(x^5)"},
    P{"x^2", "(x^2)"},
    P{"x^3", "(x^3)"},
    P{"x^4", "(x^4)"},
    P{"x^5", "(x^5)"},
    // Every variable in brackets, and the double bracket of the calls undone.
    P{"x", "(x)"},
    P{"X", "(x)"},
    P{"((x))", "(x)"},
};

constexpr std::array kTangentForm = {
    P{"qrt", "qr"},
    P{"k", "K"},
    P{"(1)", ""},
};

// The fifth pair takes every K^4, so the seventh never fires; no pair covers
// K^(1/4). Both are the program's own.
constexpr std::array kZameniSve = {
    P{"K^3", "CubK"}, P{"K^2", "BinK"}, P{"K^(2/3)", "NilK"}, P{"K^(1/3)", "CbrK"},
    P{"K^4", "QvdK"}, P{"K^5", "PntK"}, P{"K^4", "QvrK"},     P{"K^(1/5)", "PbrK"},
};

// The tool windows' form: brackets first, then on lower-case text.
constexpr std::array kToolBrackets = {
    P{" ", ""}, P{"{", "("}, P{"[", "("}, P{"}", ")"}, P{"]", ")"},
};
constexpr std::array kToolLower = {
    P{"exp", "ep"},
    P{"fix", "stl"},
    P{"k", "x"},
    P{"x", "(x)"},
};

void ToCase(std::string& text, ChainCase letterCase) {
  if (letterCase == ChainCase::Upper) text = base::UpperCase(text);
  if (letterCase == ChainCase::Lower) text = base::LowerCase(text);
}

}  // namespace

std::string ApplyChain(std::string_view text, std::span<const ReplacePair> pairs, ChainCase letterCase) {
  std::string out(text);
  ToCase(out, letterCase);
  for (const auto& pair : pairs) ReplaceAllInPlace(out, pair.find, pair.replace);
  return out;
}

std::string CleanUp(std::string_view typed) { return ApplyChain(typed, kCleanUp, ChainCase::AsIs); }

std::string EvaluationForm(std::string_view cleaned) {
  return ApplyChain(cleaned, kEvaluationForm, ChainCase::Upper);
}

std::string ProveriSyn(std::string_view cleaned) {
  return ApplyChain(cleaned, kProveriSyn, ChainCase::Upper);
}

std::string Zagrade(std::string_view text) {
  return ApplyChain(ApplyChain(text, kCleanUp, ChainCase::AsIs), kZagrade, ChainCase::Lower);
}

std::string NormalizeShortForms(std::string_view text) {
  return ApplyChain(text, kShortForms, ChainCase::AsIs);
}

std::string TangentForm(std::string_view normalized) {
  return ApplyChain(normalized, kTangentForm, ChainCase::AsIs);
}

std::string ZameniSve(std::string_view text) { return ApplyChain(text, kZameniSve, ChainCase::AsIs); }

std::string ToolTextForm(std::string_view typed) {
  return ApplyChain(ApplyChain(typed, kToolBrackets, ChainCase::AsIs), kToolLower, ChainCase::Lower);
}

std::string SubstituteValue(std::string_view evaluationForm, double value) {
  std::string bracketed = "(";
  bracketed += NumberToText(value);
  bracketed += ')';
  return Evaluator::ReplaceText(evaluationForm, "K", bracketed);
}

std::span<const ReplacePair> CleanUpPairs() { return kCleanUp; }
std::span<const ReplacePair> EvaluationFormPairs() { return kEvaluationForm; }
std::span<const ReplacePair> ProveriSynPairs() { return kProveriSyn; }
std::span<const ReplacePair> ZagradePairs() { return kZagrade; }
std::span<const ReplacePair> NormalizeShortFormsPairs() { return kShortForms; }
std::span<const ReplacePair> TangentFormPairs() { return kTangentForm; }
std::span<const ReplacePair> ZameniSvePairs() { return kZameniSve; }
std::span<const ReplacePair> ToolTextFormBracketPairs() { return kToolBrackets; }
std::span<const ReplacePair> ToolTextFormLowerPairs() { return kToolLower; }

}  // namespace velmora::expr
