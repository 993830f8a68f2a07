#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora::graph {

// GraphLog.txt, the history of drawn functions that every graph window
// appends to and shows. Lines are written in an 8-bit encoding (ISO 8859-1:
// a character beyond it is written "?") and ended by CR LF; the file is
// opened for append for each record and closed again. A record that cannot
// be written is lost without a word: the history never stops a plot.
class HistoryLog {
 public:
  explicit HistoryLog(std::string path) : path_(std::move(path)) {}

  // The log of the user: <data folder>/Velmora/GraphLog.txt, where the data
  // folder is $XDG_DATA_HOME or ~/.local/share.
  static std::string DefaultPath();

  const std::string& Path() const { return path_; }
  // Appends lines; creates the file (and its folder) on first use.
  // Returns false when the record could not be written.
  bool Append(const std::vector<std::string>& lines) const;
  // The whole file as UTF-8 text with "\n" line ends; empty when it is missing.
  std::string ReadAll() const;
  // Empties the file.
  void Clear() const;

 private:
  std::string path_;
};

// The 8-bit form of a UTF-8 text and back. Latin-1 keeps the C1 controls
// (U+0080 to U+009F): the log is read back as Latin-1, so they round-trip.
std::string ToLatin1(std::string_view utf8);
std::string FromLatin1(std::string_view latin1);

}  // namespace velmora::graph
