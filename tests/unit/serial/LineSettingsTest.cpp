#include <gtest/gtest.h>

#include "OrvikTypeLib/HostError.h"
#include "host/serial/LineSettings.h"

namespace host {
namespace {

TEST(LineSettings, ReadsTheTestersSettings) {
  EXPECT_EQ(serial::ParseLineSettings("9600,O,8,1"),
            (serial::LineSettings{9600, serial::Parity::kOdd, 8, serial::StopBits::kOne}));
}

TEST(LineSettings, ReadsEveryParityInEitherCase) {
  const std::pair<const char*, serial::Parity> cases[] = {{"N", serial::Parity::kNone},
                                                          {"E", serial::Parity::kEven},
                                                          {"O", serial::Parity::kOdd},
                                                          {"M", serial::Parity::kMark},
                                                          {"S", serial::Parity::kSpace}};
  for (const auto& [letter, parity] : cases) {
    const std::string upper = letter;
    const std::string lower(1, static_cast<char>(upper[0] + 32));
    EXPECT_EQ(serial::ParseLineSettings("1200," + upper + ",7,2").parity, parity);
    EXPECT_EQ(serial::ParseLineSettings("1200," + lower + ",7,2").parity, parity);
  }
}

TEST(LineSettings, ReadsRatesDataBitsAndStopBits) {
  EXPECT_EQ(serial::ParseLineSettings("4000000,N,5,1.5"),
            (serial::LineSettings{4'000'000, serial::Parity::kNone, 5, serial::StopBits::kOneAndAHalf}));
  EXPECT_EQ(serial::ParseLineSettings("1,N,6,2"),
            (serial::LineSettings{1, serial::Parity::kNone, 6, serial::StopBits::kTwo}));
}

struct BadSettings {
  const char* text;
  const char* reason;
};

class LineSettingsRefusal : public testing::TestWithParam<BadSettings> {};

TEST_P(LineSettingsRefusal, NamesTheSettingsAndTheField) {
  try {
    serial::ParseLineSettings(GetParam().text);
    FAIL() << "accepted " << GetParam().text;
  } catch (const orvik::HostError& error) {
    EXPECT_EQ(error.Number(), orvik::HostError::kInvalidArgument);
    EXPECT_NE(error.Description().find("\"" + std::string(GetParam().text) + "\""), std::string::npos);
    EXPECT_NE(error.Description().find(GetParam().reason), std::string::npos) << error.Description();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Table, LineSettingsRefusal,
    testing::Values(BadSettings{"", "four fields"}, BadSettings{"9600,O,8", "four fields"},
                    BadSettings{"9600,O,8,1,", "four fields"}, BadSettings{"x,O,8,1", "rate \"x\""},
                    BadSettings{"0,O,8,1", "rate \"0\""}, BadSettings{"-9600,O,8,1", "rate \"-9600\""},
                    BadSettings{" 9600,O,8,1", "rate \" 9600\""}, BadSettings{"99999999999,O,8,1", "rate"},
                    BadSettings{"4000001,O,8,1", "rate"}, BadSettings{"9600,X,8,1", "parity \"X\""},
                    BadSettings{"9600,,8,1", "parity \"\""}, BadSettings{"9600,O,4,1", "data bits \"4\""},
                    BadSettings{"9600,O,9,1", "data bits \"9\""},
                    BadSettings{"9600,O,88,1", "data bits \"88\""},
                    BadSettings{"9600,O,8,3", "stop bits \"3\""},
                    BadSettings{"9600,O,8,", "stop bits \"\""}));

}  // namespace
}  // namespace host
