// velmora-cli mathpad: documents converted by name and printed as text.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/cli/clirun.h"

namespace velmora::testing {
namespace {

TEST(MathPadCli, ConvertsByNameBothWays) {
  CliScratch scratch("mathpad-cli");
  const auto rich = scratch.File("in.RTF", "{\\rtf1\\ansi {\\b Bold} caf\\'e9\\par second}");
  const CliRun toText = RunCli({"mathpad", "convert", rich.string(), scratch.Path("out.txt").string()});
  EXPECT_EQ(toText.status, 0) << toText.err;
  EXPECT_EQ(Slurp(scratch.Path("out.txt")), "Bold caf\xC3\xA9\nsecond") << "upper-case .RTF is rich text";

  const CliRun toRich =
      RunCli({"mathpad", "convert", scratch.Path("out.txt").string(), scratch.Path("back.rtf").string()});
  EXPECT_EQ(toRich.status, 0) << toRich.err;
  const std::string rtf = Slurp(scratch.Path("back.rtf"));
  EXPECT_EQ(rtf.rfind("{\\rtf1", 0), 0u) << rtf;
  EXPECT_NE(rtf.find("caf\\'e9"), std::string::npos) << rtf;

  const CliRun text = RunCli({"mathpad", "text", scratch.Path("back.rtf").string()});
  EXPECT_EQ(text.status, 0);
  EXPECT_EQ(text.out, "Bold caf\xC3\xA9\nsecond\n");
}

TEST(MathPadCli, PlainTextNamedRtfWouldBeReadAsText) {
  CliScratch scratch("mathpad-cli-plain");
  const auto plain = scratch.File("notes.txt", "{\\rtf1 not rich}");
  const CliRun run = RunCli({"mathpad", "text", plain.string()});
  EXPECT_EQ(run.out, "{\\rtf1 not rich}\n") << "a .txt name is plain text whatever it holds";
}

TEST(MathPadCli, Failures) {
  CliScratch scratch("mathpad-cli-fail");
  struct Case {
    std::vector<std::string> args;
    int status;
    const char* why;
  };
  const std::vector<Case> cases = {
      {{"mathpad"}, 2, "no verb"},
      {{"mathpad", "text"}, 2, "no file"},
      {{"mathpad", "convert", "a.rtf"}, 2, "no output"},
      {{"mathpad", "text", scratch.Path("missing.rtf").string()}, 1, "a file that cannot be read"},
      {{"mathpad", "convert", scratch.File("x.txt", "x").string(),
        scratch.Path("no/such/folder/y.rtf").string()},
       1,
       "a file that cannot be written"},
  };
  for (const Case& c : cases) EXPECT_EQ(RunCli(c.args).status, c.status) << c.why;
}

}  // namespace
}  // namespace velmora::testing
