#pragma once

#include <array>
#include <cstdio>
#include <filesystem>
#include <regex>
#include <string>
#include <vector>

namespace velmora::testing {

// Runs a shell command line and returns what it wrote to standard output
// (standard error is dropped); `status` gets the exit code.
inline std::string RunTool(const std::string& command, int* status = nullptr) {
  std::string out;
  std::FILE* pipe = ::popen((command + " 2>/dev/null").c_str(), "r");
  if (pipe == nullptr) {
    if (status != nullptr) *status = -1;
    return out;
  }
  std::array<char, 4096> buffer{};
  std::size_t read = 0;
  while ((read = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0) out.append(buffer.data(), read);
  const int code = ::pclose(pipe);
  if (status != nullptr) *status = WIFEXITED(code) ? WEXITSTATUS(code) : -1;
  return out;
}

inline std::string Quoted(const std::filesystem::path& path) { return "'" + path.string() + "'"; }

// The size a separate JPEG decoder (djpeg) reads from a file, from the
// header of the PPM it writes: "P6\n<width> <height>\n255\n". {-1, -1} when
// it cannot decode the file.
struct DecodedSize {
  int width = -1;
  int height = -1;
};
inline DecodedSize DjpegSize(const std::filesystem::path& file) {
  int status = 0;
  const std::string ppm = RunTool("djpeg -pnm " + Quoted(file) + " | head -c 64", &status);
  DecodedSize size;
  if (ppm.rfind("P6", 0) != 0) return size;
  std::sscanf(ppm.c_str() + 2, "%d %d", &size.width, &size.height);
  return size;
}

// The first entry of the first quantisation table (DQT) of a JPEG file:
// the encoder's quality leaves its mark there (1 at quality 100, the
// standard table's 16 at quality 50). -1 when there is none.
inline int FirstQuantEntry(const std::string& bytes) {
  for (std::size_t i = 0; i + 5 < bytes.size(); ++i) {
    if (static_cast<unsigned char>(bytes[i]) == 0xFF && static_cast<unsigned char>(bytes[i + 1]) == 0xDB) {
      // FF DB, length (2 bytes), precision and table number, then 64 entries.
      return static_cast<unsigned char>(bytes[i + 5]);
    }
  }
  return -1;
}

// The page count pdfinfo reads from a PDF file; -1 when it reads none.
inline int PdfPages(const std::filesystem::path& file) {
  const std::string info = RunTool("pdfinfo " + Quoted(file));
  std::smatch match;
  if (!std::regex_search(info, match, std::regex("Pages:\\s+(\\d+)"))) return -1;
  return std::stoi(match[1]);
}

// The first picture pdfimages lists in a PDF file: its pixel size and its
// resolution on the page. All -1 when there is none.
struct PdfImage {
  int width = -1;
  int height = -1;
  int xPpi = -1;
  int yPpi = -1;
};
inline PdfImage FirstPdfImage(const std::filesystem::path& file) {
  // A line of `pdfimages -list`: page, number, "image", width, height,
  // colour, components, bits, encoding, interpolation, object, ID, x-ppi, y-ppi.
  const std::string list = RunTool("pdfimages -list " + Quoted(file));
  std::smatch match;
  PdfImage image;
  if (std::regex_search(
          list, match,
          std::regex(R"(image\s+(\d+)\s+(\d+)\s+\S+\s+\d+\s+\d+\s+\S+\s+\S+\s+\d+\s+\d+\s+(\d+)\s+(\d+))"))) {
    image = {std::stoi(match[1]), std::stoi(match[2]), std::stoi(match[3]), std::stoi(match[4])};
  }
  return image;
}

}  // namespace velmora::testing
