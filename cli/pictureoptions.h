#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace velmora::cli {

// The picture outputs a command can write: `--jpeg FILE [--quality Q]`,
// `--bmp FILE`, `--pdf FILE` (the picture printed as the program prints a
// picture: one page inside the margins of the section "Print").
struct PictureOptions {
  std::optional<std::string> jpeg;
  std::optional<std::string> bmp;
  std::optional<std::string> pdf;
  int quality = 100;  // the JPEG dialog's default

  bool Any() const { return jpeg || bmp || pdf; }
};

// Reads the picture option at args[i] (and its value, moving i past it).
// NotMine leaves i as it was; Error sets `error` to the message.
enum class OptionRead { NotMine, Read, Error };
OptionRead ReadPictureOption(const std::vector<std::string>& args, std::size_t& i, PictureOptions& options,
                             std::string& error);

// The usage words of the options.
inline constexpr const char* kPictureUsage = "[--jpeg FILE [--quality Q]] [--bmp FILE] [--pdf FILE]";

}  // namespace velmora::cli
