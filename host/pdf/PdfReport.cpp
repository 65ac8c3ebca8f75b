#include "host/pdf/PdfReport.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QHashSeed>
#include <array>
#include <optional>
#include <stdexcept>

#include "host/pdf/PdfBlocks.h"
#include "host/pdf/PdfFile.h"
#include "host/pdf/PdfPages.h"
#include "host/pdf/PdfSections.h"
#include "host/services/Tr.h"

namespace bench {
namespace {

using namespace pdf;

/// What Qt has to say while it lives: told when something goes wrong, and not on the terminal of somebody
/// whose report is well.
class Messages {
 public:
  Messages() : before_(qInstallMessageHandler(&Take)) { Said().clear(); }
  Messages(const Messages&) = delete;
  Messages& operator=(const Messages&) = delete;
  ~Messages() { qInstallMessageHandler(before_); }

  /// The reason with what Qt said before.
  static std::runtime_error Refusal(const std::string& reason) { return std::runtime_error(reason + Said()); }

 private:
  static std::string& Said() {
    static std::string said;
    return said;
  }
  static void Take(QtMsgType, const QMessageLogContext&, const QString& message) {
    Said() += (Said().empty() ? "; " : ", ") + message.toStdString();
  }

  const QtMessageHandler before_;
};

/// Qt's application object, which fonts want; one that is there already serves as well. It needs no display.
class Session {
 public:
  Session() {
    if (!QCoreApplication::instance()) application_.emplace(count_, words_.data());
    if (QFontDatabase::families().isEmpty())
      throw Messages::Refusal(
          Marked("no fonts are installed; install a package of fonts such as fonts-liberation"));
  }

 private:
  std::array<char, 12> name_{"orvik-bench"}, option_{"-platform"}, value_{"offscreen"};
  std::array<char*, 4> words_{name_.data(), option_.data(), value_.data(), nullptr};
  int count_ = 3;
  std::optional<QGuiApplication> application_;
};

/// Room above a heading, and what must have room below it on its page.
constexpr double kAboveHeading = 560, kBelowHeading = 1200;

void PlaceHeading(PdfPages& pages, const std::string& text) {
  pages.Gap(kAboveHeading);
  const HeadingBlock heading(text);
  pages.Ensure(heading.Height() + kBelowHeading);
  heading.Place(pages);
}

/// The heading stands with the first test; the other tests follow.
void PlaceDetails(PdfPages& pages, const report::Report& report) {
  for (const auto& section : report.sections) {
    const bool first = &section == &report.sections.front();
    auto blocks = SectionBlocks(section, report.words, first);
    if (first) {
      auto heading = std::make_unique<HeadingBlock>(report.words.details);
      pages.Gap(kAboveHeading);
      pages.Ensure(heading->Height() + kBelowHeading);
      blocks.insert(blocks.begin(), std::move(heading));
    }
    PlaceTogether(blocks, pages);
  }
}

void PlaceSummary(PdfPages& pages, const report::Report& report) {
  TextBlock(report.title, {13, true, kAccent}).Place(pages);
  pages.Advance(240);
  VerdictBlock(report.verdict).Place(pages);
  for (const auto& mark : report.marks) {
    pages.Gap(200);
    TextBlock(mark.text, {11, true, mark.strong ? kInk : ColourOf(report::Standing::kOpen)}).Place(pages);
  }
  PlaceHeading(pages, report.words.summary);
  FactsBlock(report.facts)->Place(pages);
}

}  // namespace

std::string PdfReport(const report::Report& report) {
  // Fonts are written in the order of a hash table; the same each time gives the same bytes.
  QHashSeed::setDeterministicGlobalSeed();
  const Messages messages;
  const Session session;
  PdfPages pages;
  PlaceSummary(pages, report);
  PlaceHeading(pages, report.words.overview);
  if (report.overview.empty())
    TextBlock(report.words.nothing, {}).Place(pages);
  else
    OverviewBlock(report)->Place(pages);
  if (!report.runs.rows.empty()) {
    PlaceHeading(pages, report.words.runs);
    PrintedBlock(report.runs)->Place(pages);
  }
  PlaceDetails(pages, report);
  const Properties properties{report::CaptionOf(report), report.language, report.created,
                              kPageHeight / kPoint};
  return Completed(pages.Write(report), properties, pages.Bookmarks());
}

}  // namespace bench
