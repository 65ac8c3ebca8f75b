#include <gmock/gmock.h>

#include "tests/system/cli/CliTest.h"

// French has a no-break space before the colon and Chinese has its own colon, so joining a label and its
// value in a report is a translated text, too.
namespace {

using testing::HasSubstr;
using testing::Not;

struct Colon {
  const char* language;
  const char* sign;       ///< with the blanks around it
  const char* equipment;  ///< the label
};

class Colons : public cli::CliTest, public testing::WithParamInterface<Colon> {
 protected:
  std::string Report(const std::string& file, const std::string& name) const {
    Done({"report", file, "--to", Path(name), "--lang", GetParam().language});
    return Contents(Path(name));
  }
};

TEST_P(Colons, MatchTheLanguageInReports) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "300");
  ASSERT_EQ(RunSound(file).status, 0);
  const std::string sign = GetParam().sign;

  const auto page = Report(file, "d.html");
  EXPECT_THAT(page, HasSubstr("<span>" + std::string(GetParam().equipment) + sign));
  const auto from = page.find("<div class=\"running\"");
  auto header = page.substr(from, page.find("</p>", from) - from);
  int facts = 0;
  for (auto at = header.find(sign); at != std::string::npos; at = header.find(sign), ++facts)
    header.erase(at, sign.size());
  EXPECT_EQ(facts, 4);
  EXPECT_THAT(header, Not(HasSubstr(": "))) << "an English colon";
  const auto title = page.substr(page.find("<title>"), page.find("</title>") - page.find("<title>"));
  EXPECT_THAT(title, HasSubstr(sign + "d.orvik"));

  EXPECT_THAT(Report(file, "d.txt"), HasSubstr("IEC 62353" + sign));
  EXPECT_THAT(Bench({"show", file, "--lang", GetParam().language}).out,
              testing::StartsWith("d.orvik" + sign));
}

INSTANTIATE_TEST_SUITE_P(Languages, Colons,
                         testing::Values(Colon{"fr", "\u00a0: ", "Appareil en essai"},
                                         Colon{"zh", "：", "被测设备"}),
                         [](const auto& tested) { return std::string(tested.param.language); });

}  // namespace
