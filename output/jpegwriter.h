#pragma once

#include <string>
#include <string_view>

#include "output/cdibsection.h"

namespace velmora::output {

// What a JPEG write ended with. On failure `error` holds the encoder's own
// words ("Failed to save to JPG " with the code and the library's text, or
// the file that could not be opened).
struct JpegResult {
  bool ok = false;
  std::string error;
};

// The JPEG writer over libjpeg-turbo: the picture's padded BGR rows are
// handed to the encoder as they are held, with the quality given (0 to 100;
// it reaches the encoder unchanged, which itself treats 0 as its lowest
// setting, 1). Baseline, 4:2:0 as the encoder chooses for the quality. A
// failed write may leave a partial file behind.
JpegResult SaveJPG(const cDIBSection& picture, const std::string& fileName, int quality);

// The same into memory, for the dialog's preview and for measuring.
JpegResult EncodeJPG(const cDIBSection& picture, int quality, std::string& bytes);

// The message the JPEG dialog shows when the writer fails.
std::string SaveFailedText(std::string_view fileName);

}  // namespace velmora::output
