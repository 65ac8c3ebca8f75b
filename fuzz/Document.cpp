// A document: opened, looked through for faults, saved and opened again, shown and reported.
#include "host/document/Document.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "OrvikTypeLib/HostError.h"
#include "fuzz/Bench.h"
#include "fuzz/HostErrors.h"
#include "fuzz/Scratch.h"
#include "host/base/Text.h"
#include "host/cli/output/DocumentJson.h"
#include "host/cli/output/DocumentLines.h"
#include "host/document/DocumentCheck.h"
#include "host/report/DocumentReport.h"
#include "host/report/DocumentView.h"
#include "host/report/HtmlReport.h"
#include "host/report/TextReport.h"
#include "host/xml/XmlDocument.h"

namespace {

using fuzz::Require;
using host::document::Document;

constexpr char kFile[] = "given.orvik";

std::shared_ptr<Document> Opened(const std::filesystem::path& file) {
  return Document::Open(fuzz::TheBench().Only().SharedHost(), file, host::document::DocumentFile::Use::kRead);
}

/// Every finding has a message and names an existing line.
void CheckFindings(const std::string& text) {
  const auto lines = 1 + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  for (const auto& found : host::document::CheckDocument(text, *fuzz::TheBench().Host().Elements()))
    Require(!found.text.empty() && found.line >= 1 && found.line <= lines && found.column >= 1,
            "a finding has a message and a line of the text");
}

host::report::DocumentView View(const Document& document) {
  return host::report::ViewOf(document, fuzz::TheBench().Host());
}

std::vector<host::judge::Verdict> VerdictsOf(const host::report::DocumentView& view) {
  std::vector<host::judge::Verdict> verdicts;
  for (const auto& element : view.judged.elements) verdicts.push_back(element.verdict);
  return verdicts;
}

/// What passed was measured in a run, which is as it was written.
void CheckJudged(const Document& document, const host::report::DocumentView& view) {
  for (const auto& element : view.judged.elements) {
    if (element.verdict != host::judge::Verdict::kPassed) {
      Require(element.verdict == host::judge::Verdict::kRecorded || !element.reasons.empty(),
              "what has not passed says why");
      continue;
    }
    Require(element.run >= 1, "what passed was run");
    const auto& runs = document.Runs().All();
    Require(static_cast<std::size_t>(element.run) <= runs.size(), "what passed has a record");
    Require(runs[static_cast<std::size_t>(element.run) - 1].intact,
            "what passed has a record that is intact");
  }
}

/// Whatever the document holds can be shown, and is text everywhere, never markup.
void Show(const Document& document) {
  auto& host = fuzz::TheBench().Host();
  const auto summary = View(document);
  CheckJudged(document, summary);
  const auto json = host::cli::Indented(host::cli::JsonOf(summary));
  Require(nlohmann::json::accept(json), "shown as JSON it is JSON");
  Require(host::InvalidUtf8(json) == std::string::npos, "shown as JSON it is UTF-8");
  Require(!host::cli::TextOf(summary).empty(), "shown as text it says something");

  const auto report = host::report::ReportOf(document, host);
  const auto html = host::report::HtmlReport(report);
  pugi::xml_document xml;
  const auto parsed = xml.load_buffer(html.data(), html.size(), pugi::parse_default, pugi::encoding_utf8);
  Require(parsed, std::string("a report as HTML is well formed: ") + parsed.description());
  Require(host::InvalidUtf8(html) == std::string::npos, "a report as HTML is UTF-8");
  Require(host::InvalidUtf8(host::report::TextReport(report)) == std::string::npos,
          "a report as text is UTF-8");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::Scratch scratch;
  const auto text = fuzz::TextOf(data, size);
  CheckFindings(text);

  const auto file = scratch.Write(kFile, text);
  std::shared_ptr<Document> document;
  fuzz::RefusalOf([&] { document = Opened(file); }, orvik::HostError::kPathError, kFile);
  if (!document) return 0;

  const auto saved = document->Text();
  const auto again = Opened(scratch.Write("saved.orvik", saved));
  Require(again->Text() == saved, "what was saved and opened again is saved as the same bytes");
  Require(VerdictsOf(View(*again)) == VerdictsOf(View(*document)),
          "what was saved and opened again counts for the same");
  Show(*document);
  return 0;
}
