#include "host/report/pdf/PdfReport.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QHashSeed>
#include <array>
#include <optional>
#include <stdexcept>

#include "host/base/Tr.h"
#include "host/report/pdf/PdfFile.h"
#include "host/report/pdf/PdfPages.h"
#include "host/report/pdf/PdfSections.h"

namespace host::report::pdf {
namespace {

using namespace pdf;

/// Keeps what Qt prints off the terminal, and adds it to the reason of a failure.
class Messages {
 public:
  Messages() : before_(qInstallMessageHandler(&Take)) { Said().clear(); }
  Messages(const Messages&) = delete;
  Messages& operator=(const Messages&) = delete;
  ~Messages() { qInstallMessageHandler(before_); }

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

/// Qt's application object, which fonts need; the window's own when there is one. It needs no display.
class Session {
 public:
  Session() {
    if (!QCoreApplication::instance()) application_.emplace(count_, words_.data());
    if (QFontDatabase::families().isEmpty())
      throw Messages::Refusal(
          TrNoop("no fonts are installed; install a package of fonts such as fonts-liberation"));
  }

 private:
  std::array<char, 12> name_{"orvik-bench"}, option_{"-platform"}, value_{"offscreen"};
  std::array<char*, 4> words_{name_.data(), option_.data(), value_.data(), nullptr};
  int count_ = 3;
  std::optional<QGuiApplication> application_;
};

/// A heading stays on the page of what it heads.
void Place(PdfPages& pages, const std::string& title, const PdfTable& table) {
  constexpr double kLeast = 2400;
  const auto heading = HeadingPart(title);
  pages.Ensure(kLeast);
  PlaceTogether({heading, {120, table}}, pages);
}

}  // namespace

std::string PdfReport(const report::Report& report) {
  // Qt writes fonts in the order of a hash table; a fixed seed gives the same bytes each time.
  QHashSeed::setDeterministicGlobalSeed();
  const Messages messages;
  const Session session;
  PdfPages pages;
  PlaceTogether(VerdictParts(report), pages);
  Place(pages, report.words.summary, FactsTable(report.facts));
  Place(pages, report.words.overview, OverviewTable(report));
  if (!report.runs.rows.empty()) Place(pages, report.words.runs, PrintedTable(report.runs));
  for (const auto& section : report.sections) {
    auto parts = SectionParts(section, report.words);
    parts.front().gap = 420;
    parts.front().line = &section != &report.sections.front();
    if (!parts.front().line) parts.insert(parts.begin(), HeadingPart(report.words.details));
    PlaceTogether(parts, pages);
  }
  return Completed(pages.Write(report),
                   {report.language, report.created, drawing::kPageHeight / drawing::kPoint},
                   pages.Bookmarks());
}

}  // namespace host::report::pdf
