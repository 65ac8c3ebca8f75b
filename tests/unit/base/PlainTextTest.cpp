#include <gtest/gtest.h>

#include "host/base/PlainText.h"

namespace host {
namespace {

using namespace std::string_literals;

TEST(PlainText, FindsWhatIsNotPlain) {
  constexpr auto kNone = std::string_view::npos;
  for (const auto& [text, place] : {std::pair{""s, kNone},
                                    {"Gerät 7 – µA Ω \U0001F600"s, kNone},
                                    {"\xC2\xA0"s, kNone},
                                    {"\xEF\xBF\xBD"s, kNone},
                                    {"a\x01"s, std::size_t{1}},
                                    {"a\0b"s, std::size_t{1}},
                                    {"\n"s, std::size_t{0}},
                                    {"ab\t"s, std::size_t{2}},
                                    {"\x1B[1m"s, std::size_t{0}},
                                    {"a\x7F"s, std::size_t{1}},
                                    {"µ\xC2\x80"s, std::size_t{2}},
                                    {"\xC2\x9F"s, std::size_t{0}},
                                    {"a\xEF\xBF\xBE"s, std::size_t{1}},
                                    {"a\xEF\xBF\xBF"s, std::size_t{1}},
                                    {"a\xFF\x01"s, std::size_t{1}},
                                    {"a\x01\xFF"s, std::size_t{1}},
                                    {"a\xC2"s, std::size_t{1}}})
    EXPECT_EQ(FindNotPlain(text), place) << text;
}

TEST(PlainText, IsTheTextWithoutIt) {
  EXPECT_EQ(PlainTextOf("PUMP-7\r\n"), "PUMP-7");
  EXPECT_EQ(PlainTextOf("\x02µ\xC2\x9B\xC2\xB5\xEF\xBF\xBEΩ\xFFz\x01"), "µµΩz");
  EXPECT_EQ(PlainTextOf("a\0b"s), "ab");
  EXPECT_EQ(PlainTextOf("\x01\xE2\x80"), "");
}

}  // namespace
}  // namespace host
