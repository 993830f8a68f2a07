#pragma once

#include <span>
#include <string>
#include <string_view>

// The chains that bring typed text into what the two engines accept. Each
// chain is a fixed list of (find, replace) pairs applied in order to the
// whole text, with no parsing: the order carries all the meaning.
namespace velmora::expr {

struct ReplacePair {
  std::string_view find;
  std::string_view replace;
};

// Which letter case a chain works in before its pairs are applied.
enum class ChainCase { AsIs, Upper, Lower };

// Converts the text to the chain's letter case (ASCII letters only), then
// applies each pair in order with the single-pass ReplaceAll.
std::string ApplyChain(std::string_view text, std::span<const ReplacePair> pairs, ChainCase letterCase);

// Brackets and spaces in standard form: " " deleted, "{" and "[" to "(",
// "}" and "]" to ")".
std::string CleanUp(std::string_view typed);

// Upper case with K as the only variable: "EXP" to "EP", "FIX" to "STL",
// "X" to "K".
std::string EvaluationForm(std::string_view cleaned);

// The constant expression (K = 1) that the evaluator tries before a draw
// ("ProveriSyn": check the syntax).
std::string ProveriSyn(std::string_view cleaned);

// The history form: the clean-up, then lower case with the variable "(x)"
// ("Zagrade": brackets).
std::string Zagrade(std::string_view text);

// The 108 pairs that turn a control's text into lower-case calls on (x), the
// spelling of diff( and the tangent routines.
std::string NormalizeShortForms(std::string_view text);

// The three pairs the tangent routine applies after NormalizeShortForms:
// "qrt" to "qr", "k" to "K", "(1)" to nothing.
std::string TangentForm(std::string_view normalized);

// Powers of K written as the program's short names, one pair at a time
// ("ZameniSve": replace all).
std::string ZameniSve(std::string_view text);

// The tool windows' text form: " " removed, brackets to "(" and ")", then on
// lower-cased text "exp" to "ep", "fix" to "stl", "k" to "x", "x" to "(x)".
std::string ToolTextForm(std::string_view typed);

// Value substitution: the value's text in brackets in place of every "K" of
// an evaluation-form text, through the evaluator's replace.
std::string SubstituteValue(std::string_view evaluationForm, double value);

// The pair tables, for tests and for the command-line front end. Case:
// clean-up, short forms, tangent and ZameniSve as is; evaluation form and
// ProveriSyn upper; ZagradePairs are Zagrade's four lower-case steps, applied
// after the clean-up pairs; the tool form is its bracket pairs as is, then
// its lower-case pairs.
std::span<const ReplacePair> CleanUpPairs();
std::span<const ReplacePair> EvaluationFormPairs();
std::span<const ReplacePair> ProveriSynPairs();
std::span<const ReplacePair> ZagradePairs();
std::span<const ReplacePair> NormalizeShortFormsPairs();
std::span<const ReplacePair> TangentFormPairs();
std::span<const ReplacePair> ZameniSvePairs();
std::span<const ReplacePair> ToolTextFormBracketPairs();
std::span<const ReplacePair> ToolTextFormLowerPairs();

}  // namespace velmora::expr
