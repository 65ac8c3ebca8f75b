// The data of a reply that the link stores.
#include <gtest/gtest.h>

#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostError.h"
#include "tests/unit/instrument/LinkBench.h"

namespace instrument_test {
namespace {

using orvik::Variant;

class MtiDataTest : public testing::Test {
 protected:
  /// The MTI data after a result with those parameters.
  Texts After(const std::string& parameters) {
    auto& link = *link_.Link();
    link_.Run({{"IREM", {"irem"}}, {"STST", {"stst"}}, {"GRES", {"gres" + parameters}}});
    Texts data;
    for (int i = 0; i < 5; ++i) data.push_back(std::get<std::string>(link.MtiData(i)));
    return data;
  }

  LinkBench link_;
};

TEST_F(MtiDataTest, StoresTheParametersOfAReply) {
  const std::pair<std::string, Texts> cases[] = {
      {",410,0,0.123,0,Ohm", {"410", "0", "0.123", "", "Ohm"}},
      {"", {"NO VALUE", "NO VALUE", "NO VALUE", "", "NO VALUE"}},
      {",410,0,0.123", {"410", "0", "0.123", "", "NO VALUE"}},
      {",410,0,0.123,1", {"410", "0", "0.123", "O", "NO VALUE"}},
      {",1,2,3,1,5,6,7", {"1", "2", "3", "O", "5"}},
      {",,,,,", {"", "", "", "", ""}},
  };
  for (const auto& [parameters, data] : cases) EXPECT_EQ(After(parameters), data) << parameters;
}

TEST_F(MtiDataTest, OnlyAValueEqualToOneIsAnOverload) {
  using T = std::string;
  const Variant overloads[] = {1, 1.0, T("1"), T("01"), T(" 1 "), T("1.0"), T("+1")};
  const Variant others[] = {0,
                            2,
                            -1,
                            1.5,
                            T(""),
                            T("0"),
                            T("2"),
                            T("10"),
                            T("1x"),
                            T("O"),
                            T("NO VALUE"),
                            Variant{},
                            std::vector<T>{"1"}};
  const auto kept = [this](const Variant& written) {
    link_.Link()->SetMtiData(3, written);
    return link_.Link()->MtiData(3);
  };
  for (const auto& written : overloads) EXPECT_EQ(kept(written), Variant(T("O"))) << orvik::TextOf(written);
  for (const auto& written : others) EXPECT_EQ(kept(written), Variant(T())) << orvik::TextOf(written);
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
