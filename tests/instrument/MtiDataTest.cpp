// What the link keeps of a reply.
#include <gtest/gtest.h>

#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostError.h"
#include "tests/instrument/LinkBench.h"

namespace instrument_test {
namespace {

using orvik::Variant;

class MtiDataTest : public testing::Test {
 protected:
  /// The MTI data after a result with those parameters.
  Texts After(const std::string& parameters) {
    auto& link = *link_.Link();
    link.ConnectMTI();
    link_.Script({{"IREM", {"irem"}}, {"STST", {"stst"}}, {"GRES", {"gres" + parameters}}});
    link.RunMtiTest(410, 0);
    Texts data;
    for (int i = 0; i < 5; ++i) data.push_back(std::get<std::string>(link.MtiData(i)));
    return data;
  }

  LinkBench link_;
};

TEST_F(MtiDataTest, StoresTheFiveParametersOfAReply) {
  EXPECT_EQ(After(",410,0,0.123,0,Ohm"), (Texts{"410", "0", "0.123", "", "Ohm"}));
}

TEST_F(MtiDataTest, MissingParametersReadNoValueExceptTheOverload) {
  EXPECT_EQ(After(""), (Texts{"NO VALUE", "NO VALUE", "NO VALUE", "", "NO VALUE"}));
  EXPECT_EQ(After(",410,0,0.123"), (Texts{"410", "0", "0.123", "", "NO VALUE"}));
  EXPECT_EQ(After(",410,0,0.123,1"), (Texts{"410", "0", "0.123", "O", "NO VALUE"}));
}

TEST_F(MtiDataTest, FurtherParametersAreIgnored) {
  EXPECT_EQ(After(",1,2,3,1,5,6,7"), (Texts{"1", "2", "3", "O", "5"}));
}

TEST_F(MtiDataTest, EmptyParametersStayEmpty) { EXPECT_EQ(After(",,,,,"), (Texts{"", "", "", "", ""})); }

TEST_F(MtiDataTest, OnlyAValueEqualToOneIsAnOverload) {
  struct Case {
    Variant written;
    std::string kept;
  };
  const Case cases[] = {
      {1, "O"},
      {1.0, "O"},
      {std::string("1"), "O"},
      {std::string("01"), "O"},
      {std::string(" 1 "), "O"},
      {std::string("1.0"), "O"},
      {std::string("+1"), "O"},
      {0, ""},
      {2, ""},
      {-1, ""},
      {1.5, ""},
      {std::string(""), ""},
      {std::string("0"), ""},
      {std::string("2"), ""},
      {std::string("10"), ""},
      {std::string("1x"), ""},
      {std::string("O"), ""},
      {std::string("NO VALUE"), ""},
      {Variant{}, ""},
      {std::vector<std::string>{"1"}, ""},
  };
  for (const auto& [written, kept] : cases) {
    link_.Link()->SetMtiData(3, written);
    EXPECT_EQ(link_.Link()->MtiData(3), Variant(kept)) << orvik::TextOf(written);
  }
}

TEST_F(MtiDataTest, OtherElementsAreStoredUnchanged) {
  for (const int index : {0, 1, 2, 4}) {
    link_.Link()->SetMtiData(index, 1);
    EXPECT_EQ(link_.Link()->MtiData(index), Variant(1)) << index;
  }
}

TEST_F(MtiDataTest, RejectsAnIndexOutsideTheRange) {
  for (const int index : {-1, 5, 1000000}) {
    for (const bool write : {false, true}) {
      try {
        if (write)
          link_.Link()->SetMtiData(index, 1);
        else
          link_.Link()->MtiData(index);
        ADD_FAILURE() << index;
      } catch (const orvik::HostError& error) {
        EXPECT_EQ(error.Number(), orvik::HostError::kSubscriptOutOfRange);
      }
    }
  }
}

}  // namespace
}  // namespace instrument_test
