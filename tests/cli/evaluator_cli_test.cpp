// velmora-cli evaluator and normalise, driven from outside: the case files
// in cases/ are piped through the built program, and every input line must
// get exactly its one answer. Long, deep and binary lines are generated here.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "tests/cli/badlines.h"
#include "tests/cli/clirun.h"

namespace velmora::testing {
namespace {

// A case file: "# ..." comments; "$ WORDS" starts a section run as
// `velmora-cli WORDS`; every other line is "INPUT => EXPECTED" (a line that
// begins "=> " has an empty input). Both sides take the escapes \t, \\ and
// \xHH, so tabs and stray bytes can be written.
struct Case {
  int line;
  std::string input;
  std::string expected;
};

struct Section {
  std::string file;
  std::vector<std::string> args;
  std::vector<Case> cases;
};

std::string Unescape(const std::string& s) {
  std::string out;
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (s[i] != '\\' || i + 1 >= s.size()) {
      out += s[i];
      continue;
    }
    const char e = s[++i];
    if (e == 't') {
      out += '\t';
    } else if (e == 'x' && i + 2 < s.size()) {
      out += static_cast<char>(std::stoi(s.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else {
      out += e;
    }
  }
  return out;
}

std::vector<std::string> Words(const std::string& s) {
  std::istringstream in(s);
  std::vector<std::string> words;
  for (std::string w; in >> w;) words.push_back(w);
  return words;
}

std::vector<Section> ReadCaseFile(const std::filesystem::path& path) {
  std::vector<Section> sections;
  std::ifstream in(path, std::ios::binary);
  std::string line;
  for (int number = 1; std::getline(in, line); ++number) {
    if (line.empty() || line[0] == '#') continue;
    if (line.rfind("$ ", 0) == 0) {
      sections.push_back({path.filename().string(), Words(line.substr(2)), {}});
      continue;
    }
    if (sections.empty()) {
      ADD_FAILURE() << path << ":" << number << ": a case before the first \"$\" line";
      continue;
    }
    std::string input, expected;
    if (line.rfind("=> ", 0) == 0) {
      expected = line.substr(3);
    } else {
      const std::size_t at = line.find(" => ");
      if (at == std::string::npos) {
        ADD_FAILURE() << path << ":" << number << ": no \" => \" in the case";
        continue;
      }
      input = line.substr(0, at);
      expected = line.substr(at + 4);
    }
    sections.back().cases.push_back({number, Unescape(input), Unescape(expected)});
  }
  return sections;
}

TEST(CliCaseFilesTest, EveryLineGetsItsAnswer) {
  int files = 0;
  int cases = 0;
  for (const auto& entry : std::filesystem::directory_iterator(VELMORA_CLI_CASES)) {
    if (entry.path().extension() != ".cases") continue;
    ++files;
    for (const auto& section : ReadCaseFile(entry.path())) {
      std::string input;
      for (const auto& c : section.cases) input += c.input + "\n";
      const CliRun run = RunCli(section.args, input);
      EXPECT_EQ(run.status, 0) << section.file;
      const auto got = Lines(run.out);
      ASSERT_EQ(got.size(), section.cases.size()) << section.file << ": one answer per line";
      for (std::size_t i = 0; i < got.size(); ++i) {
        const auto& c = section.cases[i];
        EXPECT_EQ(got[i], c.expected) << section.file << ":" << c.line << ": input \"" << c.input << "\"";
        ++cases;
      }
    }
  }
  EXPECT_GE(files, 3);
  EXPECT_GE(cases, 100);
}

TEST(CliUsageTest, BadArgumentsAreRefused) {
  const std::vector<std::vector<std::string>> rows = {
      {"evaluator", "--field", "txtFoo=1"},  // unknown field
      {"evaluator", "--field", "lblY3"},     // no "="
      {"evaluator", "--frobnicate"},         // unknown option
      {"normalise"},                         // no chain
      {"normalise", "upside-down"},          // unknown chain
  };
  for (const auto& args : rows) {
    const CliRun run = RunCli(args, "1\n");
    EXPECT_NE(run.status, 0) << args.back();
    EXPECT_EQ(run.out, "") << args.back();
  }
}

// ---------------------------------------------------------------------------
// Bad input: every line answered, whatever it holds (how fast:
// bench/cli_badinput_bench.cpp).

bool WellFormedEvaluatorAnswer(const std::string& a) {
  if (a == "fault") return true;
  const auto tab = a.find('\t');
  if (tab == std::string::npos) return false;
  const std::string code = a.substr(0, tab);
  return code == "0" || code == "1" || code == "2" || code == "4" || code == "8" || code == "16";
}

TEST(CliBadInputTest, EvaluatorAnswersEveryLine) {
  const auto lines = BadLines();
  const std::string input = BadInput();
  for (const bool trial : {false, true}) {
    for (const bool window : {true, false}) {
      std::vector<std::string> args = {"evaluator"};
      if (trial) args.push_back("--trial");
      if (!window) args.push_back("--no-window");
      const CliRun run = RunCli(args, input);
      EXPECT_EQ(run.status, 0);
      const auto got = Lines(run.out);
      ASSERT_EQ(got.size(), lines.size()) << "trial " << trial << " window " << window;
      for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string& expected = trial ? lines[i].trial : lines[i].evaluator;
        if (!expected.empty()) {
          EXPECT_EQ(got[i], expected) << "line " << i << " trial " << trial;
        } else if (!trial) {
          EXPECT_TRUE(WellFormedEvaluatorAnswer(got[i])) << "line " << i;
        } else {
          EXPECT_FALSE(got[i].empty()) << "line " << i;
        }
      }
    }
  }
}

TEST(CliBadInputTest, NormaliseAnswersEveryLine) {
  const auto lines = BadLines();
  const std::string input = BadInput();
  for (const auto& chain : NormaliseChains()) {
    const CliRun run = RunCli({"normalise", chain}, input);
    EXPECT_EQ(run.status, 0) << chain;
    EXPECT_EQ(Lines(run.out).size(), lines.size()) << chain;
  }
}

}  // namespace
}  // namespace velmora::testing
