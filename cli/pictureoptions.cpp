#include "cli/pictureoptions.h"

#include <charconv>

namespace velmora::cli {

OptionRead ReadPictureOption(const std::vector<std::string>& args, std::size_t& i, PictureOptions& options,
                             std::string& error) {
  const std::string& word = args[i];
  if (word != "--jpeg" && word != "--bmp" && word != "--pdf" && word != "--quality")
    return OptionRead::NotMine;
  if (i + 1 >= args.size()) {
    error = word + " needs a value";
    return OptionRead::Error;
  }
  const std::string& value = args[++i];
  if (word == "--quality") {
    int quality = 0;
    const auto [end, code] = std::from_chars(value.data(), value.data() + value.size(), quality);
    if (code != std::errc() || end != value.data() + value.size() || quality < 0 || quality > 100) {
      error = "--quality must be a whole number from 0 to 100";
      return OptionRead::Error;
    }
    options.quality = quality;
  } else {
    (word == "--jpeg" ? options.jpeg : word == "--bmp" ? options.bmp : options.pdf) = value;
  }
  return OptionRead::Read;
}

}  // namespace velmora::cli
