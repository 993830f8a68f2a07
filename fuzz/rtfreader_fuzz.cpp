// Any bytes through the RTF reader: it never crashes, hangs or throws, and
// whatever it read writes out and reads back as the same document.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "rtf/rtfreader.h"
#include "rtf/rtfwriter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const velmora::rtf::Document document = velmora::rtf::ReadRtf(bytes);
  if (document.paragraphs.empty()) std::abort();
  const std::string written = velmora::rtf::WriteRtf(document);
  if (!(velmora::rtf::ReadRtf(written) == document)) std::abort();
  return 0;
}
