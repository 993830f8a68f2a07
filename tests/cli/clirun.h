#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace velmora::testing {

// What one run of velmora-cli gave back.
struct CliRun {
  int status = -1;  // the exit code; -1 when the program did not exit normally
  std::string out;  // standard output (and standard error, when joined)
  std::string err;  // standard error, unless joined to `out`
};

// How a run is made beyond its words.
struct CliOptions {
  std::string input;                     // standard input
  std::vector<std::string> environment;  // "NAME=value" for this run only
  bool joinErrorToOutput = false;        // both streams into `out`, in the order written
};

// Runs the built velmora-cli with the words of `args`, each passed as one
// argument whatever it holds. The streams go through files in a temporary
// folder, so output of any size and any bytes comes back whole.
CliRun RunCli(const std::vector<std::string>& args, const CliOptions& options);
CliRun RunCli(const std::vector<std::string>& args, const std::string& input = std::string());

// The lines of a text, each without its "\n"; a last line without one
// counts too.
std::vector<std::string> Lines(const std::string& text);

// The whole content of a file, or "" when it cannot be read.
std::string Slurp(const std::filesystem::path& path);

// A scratch folder for the files a run reads and writes, removed with the
// object; Run is RunCli.
class CliScratch {
 public:
  explicit CliScratch(const std::string& name);
  ~CliScratch();
  CliScratch(const CliScratch&) = delete;
  CliScratch& operator=(const CliScratch&) = delete;

  // Writes `bytes` to a file of the folder and returns its path.
  std::filesystem::path File(const std::string& name, const std::string& bytes) const;
  std::filesystem::path Path(const std::string& name) const { return folder_ / name; }
  const std::filesystem::path& Folder() const { return folder_; }

  CliRun Run(const std::vector<std::string>& args, const std::string& input = std::string()) const {
    return RunCli(args, input);
  }

  // Runs plot with the folder's settings file and history file (unless
  // `ownFiles` is false), both streams joined. The user's folders point into
  // the folder too, so no run touches the real ones.
  CliRun Plot(const std::vector<std::string>& args, bool ownFiles = true) const;
  std::filesystem::path Settings() const { return Path("settings.ini"); }
  std::filesystem::path History() const { return Path("GraphLog.txt"); }

 private:
  std::filesystem::path folder_;
};

}  // namespace velmora::testing
