// Any bytes through the numeric text conversions: they may fault (the
// program's trapped run-time error) but never crash, and a finite value's
// text must read back to a value that prints the same.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "expr/fault.h"
#include "expr/numtext.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  try {
    const double v = velmora::expr::TextToNumber(text);
    const auto printed = velmora::expr::NumberToText(v);
    if (velmora::expr::NumberToText(velmora::expr::TextToNumber(printed)) != printed) std::abort();
    (void)velmora::expr::RoundTo(v, static_cast<int>(size % 16));
    (void)velmora::expr::ToShort(v);
  } catch (const velmora::expr::Fault&) {
  }
  return 0;
}
