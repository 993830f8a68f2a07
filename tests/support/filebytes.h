#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace velmora::testing {

// The whole content of a file as bytes; empty when it cannot be read.
inline std::string ReadFileBytes(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

// Writes bytes as the whole content of a file, replacing what was there.
inline void WriteFileBytes(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << bytes;
}

}  // namespace velmora::testing
