#include "tests/cli/clirun.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace velmora::testing {
namespace {

// Single quotes keep every character of a word from the shell.
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

// A fresh private folder for one run's streams.
std::filesystem::path MakeRunFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "velmora-cli-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) return {};
  return pattern;
}

}  // namespace

CliRun RunCli(const std::vector<std::string>& args, const CliOptions& options) {
  CliRun run;
  const std::filesystem::path folder = MakeRunFolder();
  if (folder.empty()) {
    run.err = "cannot make a temporary folder";
    return run;
  }
  const auto in = folder / "stdin";
  const auto out = folder / "stdout";
  const auto err = folder / "stderr";
  std::ofstream(in, std::ios::binary) << options.input;

  std::string command;
  for (const auto& variable : options.environment) {
    const auto eq = variable.find('=');
    command += variable.substr(0, eq) + "=" + Quote(variable.substr(eq + 1)) + " ";
  }
  command += Quote(VELMORA_CLI);
  for (const auto& a : args) command += " " + Quote(a);
  command += " < " + Quote(in.string()) + " > " + Quote(out.string());
  command += options.joinErrorToOutput ? std::string(" 2>&1") : " 2> " + Quote(err.string());

  const int raw = std::system(command.c_str());
  run.status = (raw != -1 && WIFEXITED(raw)) ? WEXITSTATUS(raw) : -1;
  run.out = Slurp(out);
  run.err = Slurp(err);
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
  return run;
}

CliRun RunCli(const std::vector<std::string>& args, const std::string& input) {
  CliOptions options;
  options.input = input;
  return RunCli(args, options);
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

std::string Slurp(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

CliScratch::CliScratch(const std::string& name)
    : folder_(std::filesystem::temp_directory_path() /
              ("velmora-cli-" + name + "-" + std::to_string(static_cast<long>(getpid())))) {
  std::filesystem::remove_all(folder_);
  std::filesystem::create_directories(folder_);
}

CliScratch::~CliScratch() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

CliRun CliScratch::Plot(const std::vector<std::string>& args, bool ownFiles) const {
  CliOptions options;
  options.environment = {"HOME=" + folder_.string(), "XDG_CONFIG_HOME=" + (folder_ / "config").string(),
                         "XDG_DATA_HOME=" + (folder_ / "data").string()};
  options.joinErrorToOutput = true;
  std::vector<std::string> words = {"plot"};
  if (ownFiles)
    words.insert(words.end(), {"--settings", Settings().string(), "--history", History().string()});
  words.insert(words.end(), args.begin(), args.end());
  return RunCli(words, options);
}

std::filesystem::path CliScratch::File(const std::string& name, const std::string& bytes) const {
  const auto path = folder_ / name;
  std::ofstream(path, std::ios::binary) << bytes;
  return path;
}

}  // namespace velmora::testing
