#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "host/xml/XmlEncoding.h"
#include "tests/support/Errors.h"

namespace host {
namespace {

using namespace std::string_literals;
using support::Holds;

/// The text in UTF-16 or UTF-32; of ASCII and Latin-1 letters.
std::string Wide(std::string_view latin1, std::size_t width, bool bigEndian) {
  std::string wide;
  for (const char letter : latin1) {
    std::string unit(width, '\0');
    unit[bigEndian ? width - 1 : 0] = letter;
    wide += unit;
  }
  return wide;
}

struct Encoded {
  const char* name;
  std::string bytes;
  std::string text;
};

class XmlEncodingTest : public ::testing::TestWithParam<Encoded> {};

TEST_P(XmlEncodingTest, IsConvertedToUtf8) {
  const auto decoded = xml::Decode(GetParam().bytes);
  EXPECT_EQ(decoded.fault.reason, "");
  EXPECT_EQ(decoded.text, GetParam().text);
}

constexpr char kLatin1[] = "<a b='\xB5\xDF'/>";
constexpr char kUtf8[] = "<a b='µß'/>";

std::string Declared(const std::string& encoding) {
  return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>\n";
}

INSTANTIATE_TEST_SUITE_P(
    Files, XmlEncodingTest,
    ::testing::Values(
        Encoded{"Empty", "", ""}, Encoded{"Undeclared", kUtf8, kUtf8},
        Encoded{"Utf8", Declared("UTF-8") + kUtf8, Declared("UTF-8") + kUtf8},
        Encoded{"Utf8WithMark", "\xEF\xBB\xBF"s + kUtf8, kUtf8},
        Encoded{"MarkBeforeAnotherName", "\xEF\xBB\xBF" + Declared("iso-8859-1") + kUtf8,
                Declared("iso-8859-1") + kUtf8},
        Encoded{"Ascii", Declared("us-ascii") + "<a/>", Declared("us-ascii") + "<a/>"},
        Encoded{"Latin1", Declared("iso-8859-1") + kLatin1, Declared("iso-8859-1") + kUtf8},
        Encoded{"Latin1InCapitalsAndOtherQuotes", "<?xml version='1.0' encoding = 'ISO-8859-1' ?>"s + kLatin1,
                "<?xml version='1.0' encoding = 'ISO-8859-1' ?>"s + kUtf8},
        Encoded{"Latin9", Declared("ISO-8859-15") + "<a b='\xA4'/>", Declared("ISO-8859-15") + "<a b='€'/>"},
        Encoded{"Windows1252", Declared("windows-1252") + "<a b='\x80 \x96 \xB5'/>",
                Declared("windows-1252") + "<a b='€ – µ'/>"},
        Encoded{"Windows1250", Declared("Windows-1250") + "<a b='\xE8'/>",
                Declared("Windows-1250") + "<a b='č'/>"},
        Encoded{"Utf16Little", "\xFF\xFE" + Wide(Declared("utf-16") + kLatin1, 2, false),
                Declared("utf-16") + kUtf8},
        Encoded{"Utf16Big", "\xFE\xFF" + Wide(Declared("UTF-16") + kLatin1, 2, true),
                Declared("UTF-16") + kUtf8},
        Encoded{"Utf16LittleWithoutMark", Wide(Declared("utf-16") + kLatin1, 2, false),
                Declared("utf-16") + kUtf8},
        Encoded{"Utf16BigWithoutMark", Wide(Declared("utf-16be") + kLatin1, 2, true),
                Declared("utf-16be") + kUtf8},
        Encoded{"Utf32", "\xFF\xFE\0\0"s + Wide(kLatin1, 4, false), kUtf8},
        Encoded{"LongerThanABlock", Declared("iso-8859-1") + std::string(200'000, '\xB5'),
                [] {
                  auto text = Declared("iso-8859-1");
                  for (int i = 0; i < 200'000; ++i) text += "µ";
                  return text;
                }()}),
    [](const auto& tested) { return std::string(tested.param.name); });

TEST(XmlEncoding, RejectsInvalidBytesWithTheirPlace) {
  const struct {
    std::string bytes;
    std::size_t line;
    const char* reason;
  } kRefused[] = {
      {"<a>\n\xB5</a>", 2, "not UTF-8 text"},
      {Declared("utf-8") + "<a>\n\xE4</a>", 3, "encoding=\"windows-1252\""},
      {Declared("us-ascii") + "<a>\xE4</a>", 2, "not UTF-8 text"},
      {Declared("windows-1252") + "<a>\n\x81</a>", 3, "not text in the encoding \"windows-1252\""},
      {"\xFF\xFE" + Wide("<a>\n", 2, false) + "x", 2, "not text in the encoding \"UTF-16LE\""},
      {"\xFF\xFE" + Wide("<a>\n", 2, false) + "\x01\xD8<\0"s, 2, "not text in the encoding \"UTF-16LE\""},
      {"<?xml version='1.0'\nencoding='utf-16'?><a/>", 2, "declared as \"utf-16\""},
      {Declared("shift_jis") + "<a/>", 1, "declared as \"shift_jis\""},
      {Declared("iso-8859-17") + "<a/>", 1, "declared as \"iso-8859-17\""},
      {Declared("../../x") + "<a/>", 1, "declared as \"../../x\""},
      {Declared("") + "<a/>", 1, "declared as \"\""},
  };
  for (const auto& refused : kRefused) {
    const auto decoded = xml::Decode(refused.bytes);
    EXPECT_TRUE(support::Holds(decoded.fault.reason, refused.reason));
    EXPECT_EQ(xml::LineOf(decoded.text, decoded.fault.offset), refused.line) << refused.reason;
  }
}

}  // namespace
}  // namespace host
