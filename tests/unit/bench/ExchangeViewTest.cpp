#include <gtest/gtest.h>

#include "host/bench/ExchangeView.h"
#include "tests/unit/bench/VirtualLine.h"

namespace host {
namespace {

class ExchangeViewTest : public testing::Test {
 protected:
  int AttemptAfterSending(const std::vector<std::string>& parameters) {
    line_.Send("STST", parameters);
    return view_.Attempt();
  }

  app::VirtualLine line_;
  host::bench::ExchangeView view_;
  orvik::platform::Subscription heard_ =
      line_.Wire().Subscribe([this](const serial::WireRecord& record) { view_.Take(record); });
};

TEST_F(ExchangeViewTest, CountsUnansweredAttempts) {
  line_.Open();
  EXPECT_EQ(AttemptAfterSending({"410", "0"}), 1);
  EXPECT_EQ(AttemptAfterSending({"410", "0"}), 2);
  line_.Answer("stst,410,0");
  EXPECT_EQ(AttemptAfterSending({"410", "0"}), 1) << "the reply has come, so this is another command";
  EXPECT_EQ(AttemptAfterSending({"420", "0"}), 1);
}

// Test 210 is ended by the command that starts it.
TEST_F(ExchangeViewTest, NeverShowsAFourthAttempt) {
  line_.Open();
  for (const int attempt : {1, 2, 3, 1, 2, 3}) EXPECT_EQ(AttemptAfterSending({"210", "0"}), attempt);
}

}  // namespace
}  // namespace host
