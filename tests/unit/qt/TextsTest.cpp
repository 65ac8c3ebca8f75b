#include <gtest/gtest.h>

#include "host/qt/Conversions.h"
#include "host/qt/FontMetrics.h"
#include "host/qt/Units.h"
#include "toolkit/headless/IMetrics.h"

namespace host::qt {
namespace {

TEST(TextsOnScreen, HaveAccessKeysBeforeLettersAndDigits) {
  EXPECT_EQ(WithAccessKey("&Save && close"), "&Save && close");
  EXPECT_EQ(WithoutAccessKey("&Save && close"), "Save & close");
  EXPECT_EQ(WithoutAccessKey("lead & clamp"), "lead & clamp");
  EXPECT_EQ(WithAccessKey("lead & clamp"), "lead && clamp");
  EXPECT_EQ(WithoutAccessKey("lead &"), "lead &");
  EXPECT_EQ(WithAccessKey("Prüfung &ändern"), "Prüfung &ändern");
}

TEST(UnitsOnScreen, HaveAnInchOf1440Twips) {
  const Units units;
  EXPECT_EQ(units.Pixels(1440), 96);
  EXPECT_EQ(units.Twips(96), 1440);
  // Neighbours stay neighbours.
  EXPECT_EQ(units.Pixels(orvik::platform::Rect{7, 0, 15, 15}).right() + 1,
            units.Pixels(orvik::platform::Rect{22, 0, 15, 15}).left());
}

TEST(FontMetricsOnScreen, LongerTextsAreLarger) {
  const FontMetrics metrics;
  EXPECT_LT(metrics.Line("i").width, metrics.Line("WWW").width);
  EXPECT_EQ(metrics.Line("&Go").width, metrics.Line("Go").width);
  EXPECT_GT(metrics.Wrapped(std::string(200, 'x') + " " + std::string(200, 'y')).height,
            metrics.Line("x").height);
  EXPECT_LE(
      metrics.Wrapped("many words " + std::string(40, ' ') + "more words and still more words to come here")
          .width,
      62 * metrics.Character().width);
  for (const auto part : {toolkit::headless::Part::kButton, toolkit::headless::Part::kComboBox,
                          toolkit::headless::Part::kToolButton})
    EXPECT_GT(metrics.Padding(part).width, 0);
}

}  // namespace
}  // namespace host::qt
