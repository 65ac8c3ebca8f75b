#include <gtest/gtest.h>

#include <random>

#include "OrvikTypeLib/HostError.h"
#include "host/serial/Latin1.h"
#include "host/serial/Message.h"
#include "tests/support/Seed.h"

namespace host {
namespace {

using orvik::HostError;
using Texts = std::vector<std::string>;

std::string LineOf(const std::string& mnemonic, const Texts& parameters) {
  return serial::ComposeMessage(mnemonic, parameters)->Line();
}

void ExpectRefused(const std::string& mnemonic, const Texts& parameters, const std::string& reason) {
  try {
    serial::ComposeMessage(mnemonic, parameters);
    FAIL() << "accepted " << mnemonic;
  } catch (const HostError& error) {
    EXPECT_EQ(error.Number(), HostError::kInvalidArgument);
    EXPECT_NE(error.Description().find(reason), std::string::npos) << error.Description();
  }
}

TEST(Message, ComposesMnemonicAndParameters) {
  EXPECT_EQ(LineOf("IREM", {}), "IREM");
  EXPECT_EQ(LineOf("STST", {"410", "0"}), "STST,410,0");
  EXPECT_EQ(LineOf("X", {""}), "X,");
}

TEST(Message, QuotesCommasAndQuotationMarksOnly) {
  EXPECT_EQ(LineOf("X", {"a,b", "say \"hi\"", " c "}), "X,\"a,b\",\"say \"\"hi\"\"\", c ");
}

TEST(Message, IsSentAsLatin1) {
  EXPECT_EQ(LineOf("X", {"\u00B5A"}),
            "X,\xB5"
            "A");
}

TEST(Message, RejectsControlCharacters) {
  for (int byte = 0; byte < 0x20; ++byte)
    ExpectRefused("X", {std::string("a") + static_cast<char>(byte)}, "control character");
  ExpectRefused("X", {"\x7F"}, "control character");
  ExpectRefused("A\r\nB", {}, "control character");
}

TEST(Message, RejectsTextThatCannotBeSent) {
  ExpectRefused("X", {"10 k\u03A9"}, "not in ISO 8859-1");
  ExpectRefused("X", {"\xFF"}, "not in ISO 8859-1");
  ExpectRefused("", {}, "mnemonic");
  ExpectRefused("A,B", {}, "mnemonic");
  ExpectRefused("\"A\"", {}, "mnemonic");
}

TEST(Message, RejectsALineThatIsTooLong) {
  EXPECT_EQ(LineOf("X", {std::string(1022, 'a')}).size(), 1024u);
  ExpectRefused("X", {std::string(1023, 'a')}, "1024");
}

TEST(Message, ReadsAReply) {
  const auto message = serial::ParseMessage("gres,410,0,0.123,0,Ohm");
  ASSERT_TRUE(message);
  EXPECT_EQ(message->Mnemonic(), "gres");
  ASSERT_EQ(message->ParameterCount(), 5);
  EXPECT_EQ(std::get<std::string>(message->Parameter(0)), "410");
  EXPECT_EQ(std::get<std::string>(message->Parameter(4)), "Ohm");
  EXPECT_EQ(message->Line(), "gres,410,0,0.123,0,Ohm");
}

TEST(Message, RejectsAnInvalidIndex) {
  const auto message = serial::ParseMessage("irem,a");
  for (const std::int32_t index : {-1, 1, 1000}) {
    try {
      message->Parameter(index);
      FAIL() << index;
    } catch (const HostError& error) {
      EXPECT_EQ(error.Number(), HostError::kSubscriptOutOfRange);
    }
  }
}

TEST(Message, ReadsEmptyAndQuotedParameters) {
  EXPECT_EQ(serial::ParseMessage("x")->Parameters(), Texts{});
  EXPECT_EQ(serial::ParseMessage("x,")->Parameters(), Texts{""});
  EXPECT_EQ(serial::ParseMessage("x,,")->Parameters(), (Texts{"", ""}));
  EXPECT_EQ(serial::ParseMessage("x,\"a,\"\"b\"\"\",\"\"")->Parameters(), (Texts{"a,\"b\"", ""}));
  EXPECT_EQ(serial::ParseMessage("x,\xB5")->Parameters(), Texts{"\u00B5"});
}

TEST(Message, RejectsUnbalancedQuotationMarks) {
  for (const char* line :
       {"x,\"", "x,\"a", "x,a\"b", "x,\"a\"b", "x,\"a\"\"", "\"x\",1", "x\",1", "x,\"a\" ,b"})
    EXPECT_FALSE(serial::ParseMessage(line)) << line;
}

// Whatever can be sent arrives as it was.
TEST(Message, ParsesEverythingItComposes) {
  std::mt19937 random(support::Seed());
  for (int round = 0; round < 2000; ++round) {
    Texts parameters(random() % 6);
    for (auto& parameter : parameters) {
      std::string bytes(random() % 20, ' ');
      for (auto& c : bytes) {
        do {
          c = random() % 3 == 0 ? (random() % 2 == 0 ? ',' : '"') : static_cast<char>(random() % 256);
        } while (static_cast<unsigned char>(c) < 0x20 || c == 0x7F);
      }
      parameter = serial::Utf8FromLatin1(bytes);
    }
    const auto sent = serial::ComposeMessage("CMD", parameters);
    const auto received = serial::ParseMessage(sent->Line());
    ASSERT_TRUE(received) << serial::VisibleLatin1(sent->Line());
    EXPECT_EQ(received->Mnemonic(), "CMD");
    EXPECT_EQ(received->Parameters(), parameters) << serial::VisibleLatin1(sent->Line());
  }
}

}  // namespace
}  // namespace host
