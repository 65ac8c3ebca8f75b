// The verdict can be read on every screen, in every language.
#include <QLabel>
#include <QScreen>

#include "host/base/Tr.h"
#include "host/bench/ProgramFiles.h"
#include "host/gui/Signs.h"
#include "tests/system/screen/ScreenTest.h"

namespace screen_test {
namespace {

struct Place {
  QSize screen;
  std::string language;
};

void PrintTo(const Place& place, std::ostream* out) {
  *out << place.screen.width() << "x" << place.screen.height() << " " << place.language;
}

/// Chosen before the window makes its texts, and taken back after it.
class InLanguage {
 protected:
  explicit InLanguage(const std::string& language) { Choose(language); }
  ~InLanguage() { Choose({}); }

 private:
  static void Choose(const std::string& language) {
    host::ChooseLanguage(language, {host::bench::files::Translations()});
  }
};

class SizeTest : private InLanguage, public ScreenTest, public testing::WithParamInterface<Place> {
 protected:
  SizeTest() : InLanguage(GetParam().language), ScreenTest(GetParam().screen) {}

  QWidget& Inner(const char* name) { return *window_->findChild<QWidget*>(name); }
  static QRect OnScreen(const QWidget& widget) { return {widget.mapToGlobal(QPoint()), widget.size()}; }
  /// The colour on the screen.
  static QColor ColourAt(QPoint place) {
    return QColor(
        QGuiApplication::primaryScreen()->grabWindow(0, place.x(), place.y(), 1, 1).toImage().pixel(0, 0));
  }
};

TEST_P(SizeTest, VerdictFits) {
  window_->Open(NewDocument({"410", "910", "610", "210"}));
  const auto& verdict = Inner("verdict");
  const QColor colour = host::gui::ColourName(host::report::Standing::kOpen);
  const auto place = [&verdict] { return OnScreen(verdict); };
  Drive({OnTop("main"), Await("the verdict painted", [&] {
           const auto border = place();
           return ColourAt({border.center().x(), border.top() + 1}) == colour &&
                  ColourAt({border.center().x(), border.bottom() - 1}) == colour &&
                  ColourAt({border.right() - 1, border.center().y()}) == colour;
         })});
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  EXPECT_TRUE(screen.contains(place()));
  EXPECT_TRUE(screen.contains(window_->frameGeometry()));
  const auto& word = Inner("verdictWord");
  EXPECT_GE(word.width(), word.sizeHint().width());
  const auto& sentence = static_cast<QLabel&>(Inner("verdictSentence"));
  EXPECT_GE(sentence.height(), sentence.heightForWidth(sentence.width()));
}

TEST_P(SizeTest, LongVerdictFits) {
  // As a document with many doubts and failures has it.
  window_->Open(NewDocument({"410"}));
  auto& sentence = static_cast<QLabel&>(Inner("verdictSentence"));
  sentence.setText(QString("17 of 123 tests failed, 4 doubtful, 12 not tested. ").repeated(4));
  const auto& verdict = Inner("verdict");
  Drive({OnTop("main"), Await("room for all lines", [&] {
           return sentence.height() >= sentence.heightForWidth(sentence.width());
         })});
  EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(OnScreen(verdict)));
}

TEST_P(SizeTest, GuideFits) {
  DriveRun({"410", "910"}, "broken-earth",
           {Guide(kPlay), Await("a failed reading", [this] { return Cell(1, kValue) == "1850 mOhm"; }),
            Await("the whole guide on the screen", [] {
              const QRect screen = QGuiApplication::primaryScreen()->geometry();
              return screen.contains(Visible("FTestGuide")->frameGeometry());
            })});
}

INSTANTIATE_TEST_SUITE_P(Screens, SizeTest,
                         testing::Values(Place{{1024, 600}, "en"}, Place{{1024, 600}, "de"},
                                         Place{{1024, 600}, "fr"}, Place{{1366, 768}, "en"},
                                         Place{{1366, 768}, "de"}, Place{{1366, 768}, "fr"},
                                         Place{{1920, 1080}, "en"}),
                         [](const testing::TestParamInfo<Place>& tested) {
                           return "At" + std::to_string(tested.param.screen.width()) + "x" +
                                  std::to_string(tested.param.screen.height()) + tested.param.language;
                         });

}  // namespace
}  // namespace screen_test
