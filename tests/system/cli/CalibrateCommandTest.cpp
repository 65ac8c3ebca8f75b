#include <gmock/gmock.h>

#include "host/plugins/keld/KeldNames.h"
#include "host/run/LeadCalibrations.h"
#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

constexpr char kSerial[] = "SIM-0001";

class CalibrateCommandTest : public CliTest {
 protected:
  host::RegistryStore Registry() const { return host::RegistryStore(Path("state")); }
  std::optional<host::run::LeadCalibration> Stored(const std::string& serial = kSerial) const {
    return host::run::StoredLeadsOf(Registry(), serial);
  }
  /// As another program does.
  void Store(const std::string& serial, const orvik::Variant& value) const {
    Registry().Write(host::plugins::keld::kRegistryHive, host::plugins::keld::kLeadsKey, serial, value);
  }
  /// Calibrates with a tester that reads this as test 410.
  Finished Calibrate(const std::string& reading, const Words& more = {}) const {
    Write("leads", "based-on = sound-class-1\n410 = " + reading + "\n");
    return CalibrateWith(Path("leads"), more);
  }
  Finished CalibrateWith(const std::string& profile, const Words& more = {}) const {
    return Bench(Join({"calibrate", "--simulate", profile, "--time-scale", kTimeScale}, more));
  }
};

TEST_F(CalibrateCommandTest, StoresTheValueAndCorrectsReadings) {
  const auto done = CalibrateWith("sound-class-1");
  EXPECT_EQ(done.status, 0) << done.error;
  EXPECT_THAT(done.out, testing::MatchesRegex("The test leads of tester SIM-0001 have 123 mOhm, measured "
                                              "....-..-.. ..:..\\.\n"));
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "200");
  EXPECT_EQ(RunSound(file).status, 0);
  const auto shown = Show(file);
  EXPECT_EQ(shown["instrument"]["calibration"], 123);
  EXPECT_EQ(shown["elements"][0]["measurement"]["value"], 0.0);
}

// The plug-in rounds halves to the even neighbour.
TEST_F(CalibrateCommandTest, JsonShowsTheStoredNumberAndDate) {
  for (const auto& [reading, stored] : std::map<std::string, int>{{"0.1255 Ohm", 126}, {"124.5 mOhm", 124}}) {
    const auto done = Calibrate(reading, {"--json"});
    ASSERT_EQ(done.status, 0) << done.error;
    const auto instrument = nlohmann::json::parse(done.out)["instrument"];
    EXPECT_EQ(instrument["calibration"], stored) << reading;
    ASSERT_TRUE(Stored());
    EXPECT_EQ(Stored()->milliohms, stored) << reading;
    EXPECT_EQ(instrument["measured"], Stored()->measured.value());
    EXPECT_EQ(instrument["serial"], kSerial);
    EXPECT_EQ(instrument["type"], "KELD(IN)");
  }
}

TEST_F(CalibrateCommandTest, StoresUnderAnotherSerialNumber) {
  const auto done = CalibrateWith("sound-class-1", {"--serial", "KS-42", "--json"});
  ASSERT_EQ(done.status, 0) << done.error;
  EXPECT_EQ(nlohmann::json::parse(done.out)["instrument"]["serial"], "KS-42");
  EXPECT_EQ(Stored("KS-42")->milliohms, 123);
  EXPECT_FALSE(Stored());
}

TEST_F(CalibrateCommandTest, NeedsASerialNumber) {
  Write("none", "based-on = sound-class-1\nserial =\n");
  const auto refused = CalibrateWith(Path("none"));
  EXPECT_EQ(refused.status, 2);
  EXPECT_THAT(refused.error, HasSubstr("give one with --serial"));
  EXPECT_EQ(CalibrateWith(Path("none"), {"--serial", "KS-42"}).status, 0);
}

TEST_F(CalibrateCommandTest, StoresOnlyPossibleResistances) {
  const std::pair<const char*, const char*> cases[] = {
      {"1.85 Ohm", "1850 mOhm is more than test leads have"},
      {"150 kOhm", "not in Ohm or mOhm"},
  };
  for (const auto& [reading, reason] : cases) {
    const auto refused = Calibrate(reading);
    EXPECT_EQ(refused.status, 2) << reading;
    EXPECT_THAT(refused.error, HasSubstr(reason));
    EXPECT_EQ(refused.out, "");
    EXPECT_FALSE(Stored()) << reading;
  }
}

TEST_F(CalibrateCommandTest, TesterWithoutTheTest_IsReported) {
  const auto refused = CalibrateWith("sound-class-2");
  EXPECT_EQ(refused.status, 2);
  EXPECT_THAT(refused.error, HasSubstr("does not have the test 410"));
  EXPECT_FALSE(Stored());
}

/// A tester of its own program, with faults.
class FaultyTester {
 public:
  FaultyTester(const std::string& link, const std::string& faults, const char* timeScale)
      : program_(KELD_SIM_PATH, {"--link", link, "--faults", faults, "--time-scale", timeScale}) {
    if (!program_.AwaitOutput("ready")) throw std::runtime_error("keld-sim does not start");
  }

 private:
  support::Process program_;
};

TEST_F(CalibrateCommandTest, DoubtfulExchange_StoresNothing) {
  Write("faults", "at GRES 1 double\n");
  const FaultyTester tester(Path("line"), Path("faults"), kTimeScale);
  const auto refused = Bench({"calibrate", "--port", Path("line"), "--time-scale", kTimeScale});
  EXPECT_EQ(refused.status, 2);
  EXPECT_THAT(refused.error, HasSubstr("doubtful and was not stored"));
  EXPECT_FALSE(Stored());
}

// The reading is there already, and the tester is slow to end the session.
TEST_F(CalibrateCommandTest, StopWhileClosingTheSession_StoresNothing) {
  Write("faults", "at EREM drop\n");
  const FaultyTester tester(Path("line"), Path("faults"), kTimeScale);
  for (const int signal : {SIGINT, SIGTERM}) {
    const auto running = Start({"calibrate", "--port", Path("line"), "--time-scale", kTimeScale});
    ASSERT_TRUE(running->AwaitError("EREM, attempt 1"));
    running->Signal(signal);
    const auto stopped = running->Wait();
    EXPECT_EQ(stopped.status, 2);
    EXPECT_THAT(stopped.error, HasSubstr("stopped; nothing was stored"));
    EXPECT_EQ(stopped.out, "");
    EXPECT_FALSE(Stored());
  }
}

TEST_F(CalibrateCommandTest, StopWhileMeasuring_StoresNothing) {
  Write("faults", "at GRES drop\n");
  const FaultyTester tester(Path("line"), Path("faults"), kTimeScale);
  const auto running = Start({"calibrate", "--port", Path("line"), "--time-scale", kTimeScale});
  ASSERT_TRUE(running->AwaitError("GRES,410,0, attempt 1"));
  running->Signal(SIGINT);
  const auto stopped = running->Wait();
  EXPECT_EQ(stopped.status, 2);
  EXPECT_THAT(stopped.error, HasSubstr("stopped; nothing was stored"));
  EXPECT_FALSE(Stored());
}

// A folder in the place of the lock file keeps even the superuser from writing.
TEST_F(CalibrateCommandTest, UnwritableRegistry_IsAnError) {
  ASSERT_EQ(Calibrate("0.09 Ohm").status, 0);
  std::filesystem::remove(Path("state/registry.lock"));
  std::filesystem::create_directory(Path("state/registry.lock"));
  const auto refused = Calibrate("0.08 Ohm", {"--json"});
  EXPECT_EQ(refused.status, 2);
  EXPECT_EQ(refused.out, "");
  EXPECT_THAT(refused.error, HasSubstr("80 mOhm was not stored for tester SIM-0001"));
  EXPECT_THAT(refused.error, HasSubstr("still corrected by 90 mOhm (measured "));
  EXPECT_EQ(Stored()->milliohms, 90);
}

TEST_F(CalibrateCommandTest, List_ShowsEachTesterAndItsProblem) {
  ASSERT_EQ(CalibrateWith("sound-class-1").status, 0);
  Store("A-900", std::int32_t{900});
  Store("B-minus", std::int32_t{-5});
  Store("C-text", "much");
  Store("D-500", std::int32_t{500});
  const auto text = Bench({"calibrate", "--list"});
  EXPECT_EQ(text.status, 0) << text.error;
  EXPECT_THAT(text.out, testing::MatchesRegex(
                            "Serial number +mOhm\n"
                            "A-900 +900 +date not known +above 500 mOhm: [^\n]*measure the leads of this "
                            "tester again\n"
                            "B-minus +-5 +date not known +below 0: [^\n]*again\n"
                            "C-text +- +date not known +the stored value is not a number [^\n]*\n"
                            "D-500 +500 +date not known\n"
                            "SIM-0001 +123 +measured [-0-9]+ [:0-9]+\n"));
  const auto listed = Bench({"calibrate", "--list", "--json"});
  EXPECT_EQ(listed.status, 0) << listed.error;
  const auto testers = nlohmann::json::parse(listed.out)["instruments"];
  ASSERT_EQ(testers.size(), 5u);
  EXPECT_EQ(testers[0].dump(),
            R"({"calibration":900,"measured":null,"problem":"too-high","serial":"A-900"})");
  EXPECT_EQ(testers[1]["problem"], "negative");
  EXPECT_EQ(testers[2]["problem"], "not-a-number");
  EXPECT_TRUE(testers[2]["calibration"].is_null());
  EXPECT_TRUE(testers[3]["problem"].is_null());
  EXPECT_EQ(testers[4]["measured"], Stored()->measured.value());
}

TEST_F(CalibrateCommandTest, List_NeedsNoTesterAndNoState) {
  const auto none = Bench({"calibrate", "--list"});
  EXPECT_EQ(none.status, 0) << none.error;
  EXPECT_THAT(none.out, HasSubstr("No test leads have been measured yet"));
  EXPECT_EQ(Bench({"calibrate", "--list", "--json"}).out, "{\n  \"instruments\": []\n}\n");
  EXPECT_FALSE(std::filesystem::exists(Path("state")));
  EXPECT_EQ(Bench({"calibrate", "--list", "--simulate"}).status, 3);
  EXPECT_EQ(Bench({"calibrate", "--list", "--serial", "A"}).status, 3);
}

TEST_F(CalibrateCommandTest, Run_WarnsOfAnImpossibleResistance) {
  Bench({"tests"});
  Store(kSerial, std::int32_t{600});
  const auto earth = NewDocument({"400"});
  const auto warned = RunSound(earth);
  EXPECT_THAT(warned.out,
              HasSubstr("Test leads of tester SIM-0001: 600 mOhm (date not known), above 500 mOhm"));
  EXPECT_LT(warned.out.find("Test leads of tester"), warned.out.find("STST,410,0"));
  EXPECT_EQ(warned.out.find("Test leads of tester"), warned.out.rfind("Test leads of tester"));
  std::filesystem::remove(earth);
  const auto leakage = RunSound(NewDocument({"610"}));
  EXPECT_THAT(leakage.out, Not(HasSubstr("Test leads of")));
}

}  // namespace
}  // namespace cli
