#include "output/pagemargins.h"

#include <cmath>

#include "expr/fault.h"
#include "expr/numtext.h"
#include "platform/settingskeys.h"

namespace velmora::output {
namespace {

namespace keys = platform::keys;

// A text too large to be a number reads as no margin at all.
double Margin(const std::string& text) {
  double value = 0;
  try {
    value = expr::TextToNumber(text);
  } catch (const expr::Fault&) {
    return 0;
  }
  return std::isfinite(value) && value > 0 ? value : 0;
}

}  // namespace

MarginTexts PrintMargine::Load(platform::SettingsStore& store) {
  MarginTexts texts;
  texts.levo = platform::GetRegValue(store, keys::kPrint, keys::print::kLevo, kDefaultText);
  texts.desno = platform::GetRegValue(store, keys::kPrint, keys::print::kDesno, kDefaultText);
  texts.gore = platform::GetRegValue(store, keys::kPrint, keys::print::kGore, kDefaultText);
  texts.dole = platform::GetRegValue(store, keys::kPrint, keys::print::kDole, kDefaultText);
  return texts;
}

void PrintMargine::Save(platform::SettingsStore& store, const MarginTexts& texts) {
  platform::SetRegValue(store, keys::kPrint, keys::print::kLevo, texts.levo);
  platform::SetRegValue(store, keys::kPrint, keys::print::kDesno, texts.desno);
  platform::SetRegValue(store, keys::kPrint, keys::print::kGore, texts.gore);
  platform::SetRegValue(store, keys::kPrint, keys::print::kDole, texts.dole);
}

PageMargins PrintMargine::FromTexts(const MarginTexts& texts) {
  return {Margin(texts.levo), Margin(texts.desno), Margin(texts.gore), Margin(texts.dole)};
}

PageMargins PrintMargine::Read(platform::SettingsStore& store) { return FromTexts(Load(store)); }

}  // namespace velmora::output
