#include <gtest/gtest.h>

#include "tester/ProfileFile.h"
#include "tests/unit/tester/TestTools.h"

namespace sim {
namespace {

using support::TemporaryFolder;
using test::InputErrorOf;

std::string ErrorIn(const std::string& content) {
  return InputErrorOf([&] { ParseProfile(content, "bad.profile"); });
}

TEST(ProfileFileTest, ReadsEveryKey) {
  const Profile profile = ParseProfile(
      "# a ventilator, after repair\n"
      "\n"
      "name     = Ventilator 0417\n"
      "type     = KELD(IN)\n"
      "serial   = KS, 42\n"
      "firmware = 4.01\n"
      "time     = 250 ms\n"
      "410      = 0.285 Ohm\n"
      "630      = 9999 µA overload 1200 ms\n"
      "910      = 4.5\n"
      "910/3    = 0.047 mA\n"
      "1010     = 2 overload\n"
      "1020     = 2 90 ms\n",
      "p");
  EXPECT_EQ(profile.Name(), "Ventilator 0417");
  EXPECT_EQ(profile.Who().serial, "KS, 42");
  EXPECT_EQ(profile.Who().firmware, "4.01");
  EXPECT_EQ(profile.Find(410, 0)->value, "0.285");
  EXPECT_EQ(profile.Find(410, 0)->unit, "Ohm");
  EXPECT_FALSE(profile.Find(410, 0)->overload);
  EXPECT_EQ(profile.Find(410, 0)->measuringTime.count(), 250);
  EXPECT_TRUE(profile.Find(630, 0)->overload);
  EXPECT_EQ(profile.Find(630, 0)->measuringTime.count(), 1200);
  EXPECT_EQ(profile.Find(910, 0)->unit, "µA");
  EXPECT_EQ(profile.Find(910, 3)->unit, "mA");
  EXPECT_EQ(profile.Find(910, 3)->value, "0.047");
  EXPECT_EQ(profile.Find(910, 4)->value, "4.5");
  EXPECT_TRUE(profile.Find(1010, 0)->overload);
  EXPECT_EQ(profile.Find(1010, 0)->unit, "MOhm");
  EXPECT_EQ(profile.Find(1020, 0)->measuringTime.count(), 90);
  EXPECT_EQ(profile.Find(210, 0), nullptr) << "what is not named is lacked";
}

TEST(ProfileFileTest, InheritsFromItsBase) {
  const Profile profile =
      ParseProfile("910/2 = 55\nlacks = 1220, 1245\nbased-on = sound-class-1\n410 = 0.4 Ohm\n", "mine");
  EXPECT_EQ(profile.Name(), "mine");
  EXPECT_EQ(profile.Find(410, 0)->value, "0.4");
  EXPECT_EQ(profile.Find(420, 0)->value, "0.058");
  EXPECT_EQ(profile.Find(910, 2)->value, "55");
  EXPECT_EQ(profile.Find(910, 4)->value, "3.4");
  EXPECT_EQ(profile.Find(1220, 0), nullptr);
  EXPECT_EQ(profile.Find(1245, 0), nullptr);
  EXPECT_NE(profile.Find(1240, 0), nullptr);
}

TEST(ProfileFileTest, RedefinedTest_LosesTheLeadsOfItsBase) {
  for (const char* text : {"based-on = sound-class-1\n910 = 500\n910/2 = 7\n",
                           "910/2 = 7\n910 = 500\nbased-on = sound-class-1\n"}) {
    const Profile profile = ParseProfile(text, "p");
    EXPECT_EQ(profile.Find(910, 0)->value, "500");
    EXPECT_EQ(profile.Find(910, 2)->value, "7");
    EXPECT_EQ(profile.Find(910, 4)->value, "500");
  }
}

TEST(ProfileFileTest, AcceptsCrLfAndByteOrderMark) {
  const Profile profile = ParseProfile("\xEF\xBB\xBF# x\r\n\t410 =\t0.1 Ohm \r\n420=0.2", "p");
  EXPECT_EQ(profile.Find(410, 0)->value, "0.1");
  EXPECT_EQ(profile.Find(420, 0)->value, "0.2");
}

TEST(ProfileFileTest, UnknownTest_NeedsAUnit) {
  EXPECT_EQ(ParseProfile("6150 = 3 µA", "p").Find(6150, 0)->unit, "µA");
  EXPECT_EQ(ErrorIn("6150 = 3"),
            "bad.profile:1: test 6150 has no usual unit; add one of V, mV, Ohm, mOhm, kOhm, MOhm, GOhm, µA, "
            "mA, A after "
            "the value");
}

TEST(ProfileFileTest, LimitsTextAndNumberLength) {
  const std::string text(64, 'x'), number = "0." + std::string(30, '1');
  EXPECT_EQ(ParseProfile("based-on = leaky\nserial = " + text, "p").Who().serial, text);
  EXPECT_EQ(ErrorIn("based-on = leaky\nserial = " + text + "x"),
            "bad.profile:2: 'serial' is too long; give at most 64 characters");
  EXPECT_EQ(ParseProfile("410 = " + number, "p").Find(410, 0)->value, number);
  EXPECT_EQ(ErrorIn("410 = " + number + "1"),
            "bad.profile:1: the reading has more than 32 letters; round it");
}

struct BadProfile {
  const char* line;
  const char* message;
};

class ProfileFileErrorTest : public testing::TestWithParam<BadProfile> {};

TEST_P(ProfileFileErrorTest, NamesFileLineAndRemedy) {
  EXPECT_EQ(ErrorIn(std::string("# first\n\n") + GetParam().line + "\n"),
            std::string("bad.profile:3: ") + GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, ProfileFileErrorTest,
    testing::Values(
        BadProfile{"410 0.1", "'410 0.1' has no '='; write it as: key = value"},
        BadProfile{"= 0.1", "a key is missing before the '='; write it as: key = value"},
        BadProfile{
            "colour = red",
            "'colour' is not a key; use name, based-on, type, serial, firmware, time, lacks, a test number "
            "such as "
            "410, or a test number and a lead such as 910/3"},
        BadProfile{
            "400 = 1 Ohm",
            "'400' is not a test number; use one from 1 to 32767 that is not a multiple of 100, such as 410"},
        BadProfile{"32768 = 1 Ohm",
                   "'32768' is not a test number; use one from 1 to 32767 that is not a multiple of 100, "
                   "such as 410"},
        BadProfile{
            "4x = 1 Ohm",
            "'4x' is not a test number; use one from 1 to 32767 that is not a multiple of 100, such as 410"},
        BadProfile{"serial = 4\t7\n410 = 1",
                   "'serial' holds a tab, which cannot be sent; write a blank in its place"},
        BadProfile{"910/11 = 1", "'11' is not a lead; use 0 (the test itself) or 1 to 10"},
        BadProfile{"910/ = 1", "'' is not a lead; use 0 (the test itself) or 1 to 10"},
        BadProfile{"410 = 0,12 Ohm", "'0,12' is not a number; write the reading with a point, such as 0.123"},
        BadProfile{"410 = 1e3 Ohm", "'1e3' is not a number; write the reading with a point, such as 0.123"},
        BadProfile{"410 = inf", "'inf' is not a number; write the reading with a point, such as 0.123"},
        BadProfile{"410 =", "'' is not a number; write the reading with a point, such as 0.123"},
        BadProfile{"410 = 0.1 ohm",
                   "'ohm' is not a unit of test 410; use one of Ohm, mOhm, kOhm, MOhm, GOhm"},
        BadProfile{"610 = 5 Ohm", "'Ohm' is not a unit of test 610; use one of µA, mA, A"},
        BadProfile{"610 = 5 uA", "'uA' is not a unit of test 610; use one of µA, mA, A"},
        BadProfile{"610 = 5 µA 1 ms overload",
                   "'1' is not understood; write: VALUE UNIT [overload] [N ms], such as '0.123 Ohm 900 ms'"},
        BadProfile{"610 = 5 µA 60001 ms",
                   "'60001' is not a measuring time; use whole milliseconds from 0 to 60000"},
        BadProfile{
            "based-on = leeky",
            "'leeky' is not a built-in profile; use one of sound-class-1, sound-class-2, broken-earth, "
            "leaky, overloaded"},
        BadProfile{"910/3 = 1", "test 910 has a lead but no reading of its own; add a line '910 = ...'"},
        BadProfile{"name =\n410 = 1", "the name is empty; give one or remove the line"},
        BadProfile{"lacks = 410\n410 = 1",
                   "test 410 has a reading in line 4; remove that line, or the test from 'lacks'"},
        BadProfile{
            "lacks = 410;420\n210 = 1",
            "'410;420' is not a test number; use one from 1 to 32767 that is not a multiple of 100, such as "
            "410"},
        BadProfile{"name = a\x01", "the line holds a control character; remove it"},
        BadProfile{
            "name = \xB5",
            "the line is not UTF-8 text within ISO 8859-1; save the file as UTF-8 and write 'µ' as the "
            "micro sign "
            "(U+00B5)"},
        BadProfile{
            "610 = 5 \xCE\xBC"
            "A",
            "the line is not UTF-8 text within ISO 8859-1; save the file as UTF-8 and write 'µ' as the "
            "micro sign "
            "(U+00B5)"}));

TEST(ProfileFileTest, RepeatedKey_NamesTheFirstLine) {
  EXPECT_EQ(ErrorIn("410 = 1\n\n0410/0 = 2"),
            "bad.profile:3: '0410/0' was given before, in line 1; keep one of them");
  EXPECT_EQ(ErrorIn("name = a\nname = b"),
            "bad.profile:2: 'name' was given before, in line 1; keep one of them");
}

TEST(ProfileFileTest, RefusesAFileWithoutReadings) {
  EXPECT_EQ(
      ErrorIn("# nothing\nname = empty\n"),
      "bad.profile: gives no reading; add a line such as '410 = 0.123 Ohm' or 'based-on = sound-class-1'");
}

TEST(ProfileFileTest, ReportsABadTimeThatIsNotUsed) {
  EXPECT_EQ(ErrorIn("based-on = leaky\ntime = 5 s"),
            "bad.profile:2: '5 s' is not a time; write it as: time = 700 ms");
}

TEST(ProfileFileTest, LoadsBuiltInProfilesAndFiles) {
  const TemporaryFolder folder;
  EXPECT_EQ(LoadProfile("leaky").Find(1010, 0)->value, "0.4");
  const std::string path = folder.Write("leaky", "410 = 0.5 Ohm\n");
  EXPECT_EQ(LoadProfile(path).Find(410, 0)->value, "0.5");
  EXPECT_EQ(LoadProfile(path).Name(), path);
}

TEST(ProfileFileTest, RefusesWhatIsNotAFile) {
  const TemporaryFolder folder;
  EXPECT_EQ(
      InputErrorOf([] { LoadProfile("no-such"); }),
      "profile 'no-such' is neither a file nor a built-in profile; the built-in ones are sound-class-1, "
      "sound-class-2, broken-earth, leaky, overloaded");
  EXPECT_EQ(InputErrorOf([&] { LoadProfile(folder.Path("")); }),
            folder.Path("") + ": is not a regular file; name a text file");
  EXPECT_EQ(InputErrorOf([&] { LoadProfile(folder.Write("big", std::string(1024 * 1024 + 1, '#'))); }),
            folder.Path("big") + ": is larger than 1 MiB; a profile, fault script or wire log is smaller");
}

}  // namespace
}  // namespace sim
