// The state that each error reply of the tester gives.
#include <gtest/gtest.h>

#include "instrument/ErrorReply.h"
#include "tests/unit/instrument/LinkBench.h"

namespace instrument_test {
namespace {

struct Case {
  std::string reply;
  std::string toStart;  ///< state when it answers "STST"
  std::string toOthers;
};

const Case kCases[] = {
    // The error number is the only parameter, or the second of several.
    {"ERRM,1003", "6002", "8"},
    {"ERRM,6002", "6002", "6002"},
    {"ERRM,410,1003", "6002", "8"},
    {"ERRM,410,6002", "6002", "6002"},
    {"ERRM,1003,0", "0", "0"},
    {"ERRM,0,6002,1003,5,6,7", "6002", "6002"},
    {"ERRM", "0", "0"},
    {"ERRM,", "0", "0"},
    {"ERRM,,1003", "6002", "8"},
    // Other numbers.
    {"ERRM,0", "0", "0"},
    {"ERRM,1001", "0", "0"},
    {"ERRM,-1003", "0", "0"},
    // Converted to 16 bits: rounded, and 0 if it does not fit or is not a number.
    {"ERRM,01003", "6002", "8"},
    {"ERRM, 1003 ", "6002", "8"},
    {"ERRM,1003.4", "6002", "8"},
    {"ERRM,1002.6", "6002", "8"},
    {"ERRM,66539", "0", "0"},  // 1003 in the low 16 bits
    {"ERRM,71538", "0", "0"},
    {"ERRM,99999999999999999999", "0", "0"},
    {"ERRM,1003x", "0", "0"},
    {"ERRM,nan", "0", "0"},
    {"ERRM,E1003", "0", "0"},
};

TEST(ErrorReplyTest, GivesTheStateForEachReplyAndCommand) {
  for (const auto& [reply, toStart, toOthers] : kCases) {
    LinkBench link;
    link.Link()->ConnectMTI();
    link.Script({{"IREM", {reply}}});
    link.Link()->RunMtiTest(410, 0);
    EXPECT_EQ(link.Raised(), (Texts{toOthers + " 0"})) << reply;

    // The remote flag keeps its value: not remote after IREM, remote after the others.
    auto answers = GoodAnswers();
    answers["STST"] = {reply};
    link.Script(answers);
    link.Restart();
    link.Link()->RunMtiTest(410, 0);
    EXPECT_EQ(link.Raised(), (Texts{"GotMtiData", "3 0", toStart + " 410"})) << reply;

    answers = GoodAnswers();
    answers["GRES"] = {reply};
    link.Script(answers);
    link.Restart();
    link.Link()->RunMtiTest(410, 0);
    EXPECT_EQ(link.Raised(), (Texts{"4 410", toOthers + " 410"})) << reply;

    link.Script({{"STST", {reply}}, {"EREM", {reply}}});
    link.Restart();
    link.Link()->DisconnectMTI();
    EXPECT_EQ(link.Sent(), (Texts{"STST,210,0", "EREM"})) << reply;
    EXPECT_EQ(link.Raised(), (Texts{toStart + " 210", toOthers + " 0"})) << reply;
  }
}

}  // namespace
}  // namespace instrument_test
