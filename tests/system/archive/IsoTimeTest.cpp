#include <gtest/gtest.h>

#include "host/archive/IsoTime.h"

namespace archive_tests {
namespace {

using host::archive::UtcText;

TEST(IsoTime, ConvertsToUtc) {
  EXPECT_EQ(host::archive::UtcText("2026-11-21"), "2026-11-21T00:00:00Z");
  EXPECT_EQ(host::archive::UtcText("2026-11-21T12:30"), "2026-11-21T12:30:00Z");
  EXPECT_EQ(host::archive::UtcText("2026-11-21 12:30:05.25Z"), "2026-11-21T12:30:05Z");
  EXPECT_EQ(host::archive::UtcText("2026-01-01T00:30:00+01:00"), "2025-12-31T23:30:00Z");
  EXPECT_EQ(host::archive::UtcText("2024-02-28T22:00-0330"), "2024-02-29T01:30:00Z");
}

TEST(IsoTime, RejectsOtherTexts) {
  for (const char* text :
       {"", "yesterday", "2026", "2026-13-01", "2025-02-29", "2026-11-21T", "2026-11-21T24:00",
        "2026-11-21T12:60", "2026-11-21T12:30x", "2026-11-21T12:30+1", "21.11.2026", "2026-11-21T12:30:00.Z",
        "2026-11-2", "2026-11-21T12:30:05Zx", "2026-11-21T12:30:05Z ", "2026-11-21T12:30+01:00x"})
    EXPECT_FALSE(host::archive::UtcText(text)) << text;
}

}  // namespace
}  // namespace archive_tests
