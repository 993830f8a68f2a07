#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/settingsstore.h"

namespace velmora::output {

// The four page margins of printing, in inches, as the section "Print" of
// the settings store holds them: `levo` left, `desno` right, `gore` top,
// `dole` bottom. Each is text; an absent one reads " 1" (one inch).
struct PageMargins {
  double left = 1;
  double right = 1;
  double top = 1;
  double bottom = 1;
};

// `frmPageSetup`'s boxes as texts, in the order left, right, top, bottom.
struct MarginTexts {
  std::string levo;
  std::string desno;
  std::string gore;
  std::string dole;
};

class PrintMargine {
 public:
  // The text a margin reads when the store has none.
  static constexpr std::string_view kDefaultText = " 1";

  // The texts as stored (the default for an absent key).
  static MarginTexts Load(platform::SettingsStore& store);
  // Writes the four texts back, as typed.
  static void Save(platform::SettingsStore& store, const MarginTexts& texts);
  // The margins as numbers: each text read by the program's leading-number
  // rule; a negative or non-finite value is taken as 0.
  static PageMargins Read(platform::SettingsStore& store);
  static PageMargins FromTexts(const MarginTexts& texts);
};

}  // namespace velmora::output
