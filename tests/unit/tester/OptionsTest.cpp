#include <gtest/gtest.h>

#include "tester/Options.h"
#include "tests/unit/tester/TestTools.h"

namespace sim {
namespace {

using Arguments = std::vector<std::string>;

std::string ErrorOf(const Arguments& arguments) {
  const std::string text = test::InputErrorOf([&] { ParseOptions(arguments); });
  const std::string hint = "\nTry 'keld-sim --help'.";
  if (text.size() > hint.size() && text.substr(text.size() - hint.size()) == hint) {
    return text.substr(0, text.size() - hint.size());
  }
  return "no hint: " + text;
}

TEST(OptionsTest, RequiresTheLinkOnly) {
  const Options options = ParseOptions({"--link", "/tmp/t"});
  EXPECT_EQ(options.action, Options::Action::Run);
  EXPECT_EQ(options.link, "/tmp/t");
  EXPECT_EQ(options.profile, "sound-class-1");
  EXPECT_EQ(options.timeScale, 1.0);
  EXPECT_FALSE(options.faults || options.serial || options.trace || options.exitWithParent);
}

TEST(OptionsTest, AcceptsBothForms) {
  const Options options = ParseOptions({"--link=l", "--profile", "leaky", "--faults=f", "--serial", "",
                                        "--time-scale=2.5", "--trace", "t", "--exit-with-parent"});
  EXPECT_EQ(options.link, "l");
  EXPECT_EQ(options.profile, "leaky");
  EXPECT_EQ(options.faults, "f");
  EXPECT_EQ(options.serial, "") << "a tester without serial number is possible";
  EXPECT_EQ(options.timeScale, 2.5);
  EXPECT_EQ(options.trace, "t");
  EXPECT_TRUE(options.exitWithParent);
}

TEST(OptionsTest, HelpAndVersion_NeedNoLink) {
  EXPECT_EQ(ParseOptions({"--help"}).action, Options::Action::ShowHelp);
  EXPECT_EQ(ParseOptions({"--help-man"}).action, Options::Action::ShowManual);
  EXPECT_EQ(ParseOptions({"-h"}).action, Options::Action::ShowHelp);
  EXPECT_EQ(ParseOptions({"--version"}).action, Options::Action::ShowVersion);
}

TEST(OptionsTest, BadUse_NamesTheOption) {
  EXPECT_EQ(ErrorOf({}), "--link PATH is missing: give the path for the link to the pseudo-terminal");
  EXPECT_EQ(ErrorOf({"--link"}), "option --link needs a value");
  EXPECT_EQ(ErrorOf({"--link", ""}), "--link needs a value that is not empty");
  EXPECT_EQ(ErrorOf({"--link", "l", "--colour", "red"}),
            "option --colour is unknown, ambiguous, or takes no value");
  EXPECT_EQ(ErrorOf({"--link", "l", "-x"}), "option -x is unknown, ambiguous, or takes no value");
  EXPECT_EQ(ErrorOf({"--link", "l", "--exit-with-parent=1"}),
            "option --exit-with-parent=1 is unknown, ambiguous, or takes no value");
  EXPECT_EQ(ErrorOf({"--link", "l", "extra"}),
            "'extra' is not understood; every setting is an option that begins with --");
}

TEST(OptionsTest, RefusesATimeScaleOutOfRange) {
  for (const char* text : {"", "0", "-1", "x", "1x", "nan", "inf", "1e10", "0.0001"}) {
    EXPECT_EQ(ErrorOf({"--link", "l", "--time-scale", text}),
              "--time-scale '" + std::string(text) +
                  "': give a number from 0.001 to 1000000000, such as 10 for ten times as fast");
  }
  EXPECT_EQ(ParseOptions({"--link", "l", "--time-scale", "1e9"}).timeScale, 1e9);
}

TEST(OptionsTest, RefusesAnUnsendableSerialNumber) {
  for (const std::string& text : {std::string("a\nb"), std::string("Ω"), std::string(65, '1')}) {
    EXPECT_EQ(
        ErrorOf({"--link", "l", "--serial", text}),
        "--serial '" + text + "': give at most 64 characters of ISO 8859-1, without control characters");
  }
}

TEST(OptionsTest, ReadsSeedAndRate) {
  const Options options = ParseOptions({"--link", "l", "--fault-seed", "18446744073709551615"});
  EXPECT_EQ(options.faultSeed, 18446744073709551615u);
  EXPECT_EQ(options.FaultRate(), 0.1);
  EXPECT_EQ(ParseOptions({"--link", "l", "--fault-rate=1", "--fault-seed=0"}).faultRate, 1.0);
  for (const char* text : {"", "-1", "x", "1.5", "18446744073709551616"}) {
    EXPECT_EQ(ErrorOf({"--link", "l", "--fault-seed", text}),
              "--fault-seed '" + std::string(text) + "': give a whole number from 0 to 18446744073709551615");
  }
  for (const char* text : {"", "0", "-0.1", "1.01", "nan", "x"}) {
    EXPECT_EQ(ErrorOf({"--link", "l", "--fault-seed", "1", "--fault-rate", text}),
              "--fault-rate '" + std::string(text) +
                  "': give a share above 0 and up to 1, such as 0.1 for every tenth reply");
  }
  EXPECT_EQ(ErrorOf({"--link", "l", "--fault-rate", "0.5"}),
            "--fault-rate needs --fault-seed: give a seed as well");
}

TEST(OptionsTest, ATesterGoesWrongInOneWayAlone) {
  EXPECT_EQ(ParseOptions({"--link", "l", "--replay", "w.log"}).replay, "w.log");
  const std::string message = "--faults, --fault-seed and --replay exclude each other: give one of them";
  EXPECT_EQ(ErrorOf({"--link", "l", "--replay", "w", "--faults", "f"}), message);
  EXPECT_EQ(ErrorOf({"--link", "l", "--replay", "w", "--fault-seed", "1"}), message);
  EXPECT_EQ(ErrorOf({"--link", "l", "--faults", "f", "--fault-seed", "1"}), message);
}

}  // namespace
}  // namespace sim
