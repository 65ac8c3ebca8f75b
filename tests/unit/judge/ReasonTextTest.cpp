#include <gtest/gtest.h>

#include "host/judge/ReasonText.h"

namespace judge_tests {
namespace {

using host::judge::ReasonText;

TEST(ReasonText, NamesWhatTheReasonIsAbout) {
  EXPECT_EQ(host::judge::ReasonText({"above-limit", {"IEC 62353", "1850 mOhm", "300 mOhm"}}),
            "IEC 62353: 1850 mOhm exceeds the limit of 300 mOhm");
  EXPECT_EQ(host::judge::ReasonText({"other-equipment", {"3", "serial", "1", "2"}}),
            "run 3 measured other equipment: the serial number was \"1\" and is \"2\"");
  EXPECT_EQ(host::judge::ReasonText({"changed-after-finish", {"1", "3"}}),
            "the result was \"passed\" when the test had finished and was changed to \"not applicable\" "
            "afterwards");
}

TEST(ReasonText, ShowsACodeOfAnotherVersionAsItIs) {
  EXPECT_EQ(host::judge::ReasonText({"new-doubt", {"a", "b"}}), "new-doubt \"a\" \"b\"");
}

}  // namespace
}  // namespace judge_tests
