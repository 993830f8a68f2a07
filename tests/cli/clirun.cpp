#include "tests/cli/clirun.h"

#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>

namespace velmora::testing {
namespace {

std::string Quote(const std::string& word) {
  std::string q = "'";
  for (const char c : word) {
    if (c == '\'') {
      q += "'\\''";
    } else {
      q += c;
    }
  }
  return q + "'";
}

}  // namespace

CliRun RunCli(const std::vector<std::string>& args, const std::string& input) {
  CliRun run;
  std::string path = (std::filesystem::temp_directory_path() / "velmora-cli-XXXXXX").string();
  const int fd = mkstemp(path.data());
  if (fd < 0) {
    run.out = "cannot make a temporary file";
    return run;
  }
  close(fd);
  {
    std::ofstream f(path, std::ios::binary);
    f << input;
  }
  std::string command = Quote(VELMORA_CLI);
  for (const auto& a : args) command += " " + Quote(a);
  command += " < " + Quote(path) + " 2>/dev/null";
  const auto start = std::chrono::steady_clock::now();
  if (FILE* p = popen(command.c_str(), "r")) {
    char buf[65536];
    std::size_t n = 0;
    while ((n = fread(buf, 1, sizeof buf, p)) > 0) run.out.append(buf, n);
    run.status = pclose(p);
  }
  run.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  std::filesystem::remove(path);
  return run;
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < text.size()) {
    const std::size_t end = text.find('\n', start);
    if (end == std::string::npos) {
      lines.push_back(text.substr(start));
      break;
    }
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

}  // namespace velmora::testing
