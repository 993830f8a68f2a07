#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace velmora::cli::testing {

// One run of the built velmora-cli: exit status and the two output streams.
struct CliResult {
  int status = -1;
  std::string out;
  std::string err;
};

inline std::string Slurp(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

inline std::string Quoted(const std::string& word) {
  std::string q = "'";
  for (char c : word) {
    if (c == '\'') {
      q += "'\\''";
    } else {
      q.push_back(c);
    }
  }
  return q + "'";
}

// Runs velmora-cli with the words and standard input, in a scratch folder
// that also serves for the files a test writes.
class CliRunner {
 public:
  explicit CliRunner(const std::string& name)
      : folder_(std::filesystem::temp_directory_path() / ("velmora-cli-" + name)) {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  ~CliRunner() { std::filesystem::remove_all(folder_); }
  CliRunner(const CliRunner&) = delete;
  CliRunner& operator=(const CliRunner&) = delete;

  std::filesystem::path File(const std::string& name, const std::string& bytes) const {
    const auto path = folder_ / name;
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }
  std::filesystem::path Path(const std::string& name) const { return folder_ / name; }

  CliResult Run(const std::vector<std::string>& words, const std::string& input = std::string()) const {
    const auto in = File("stdin.txt", input);
    std::string command = Quoted(VELMORA_CLI);
    for (const auto& w : words) command += " " + Quoted(w);
    command += " < " + Quoted(in.string()) + " > " + Quoted((folder_ / "stdout.txt").string()) + " 2> " +
               Quoted((folder_ / "stderr.txt").string());
    const int raw = std::system(command.c_str());
    CliResult r;
    r.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    r.out = Slurp(folder_ / "stdout.txt");
    r.err = Slurp(folder_ / "stderr.txt");
    return r;
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace velmora::cli::testing
