#include <stdexcept>
#include <string>
#include <utility>

#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "benchmarks/MeasuredDocument.h"
#include "benchmarks/Measurements.h"
#include "benchmarks/OwnProcess.h"
#include "benchmarks/Repeat.h"
#include "benchmarks/VirtualRig.h"
#include "benchmarks/YardstickXml.h"
#include "host/document/Document.h"
#include "host/elements/ElementFactory.h"
#include "host/judge/CaseOf.h"
#include "plugin/base/ClassIdentifiers.h"
#include "tests/support/ReadFile.h"

namespace benchmarks {

namespace {

constexpr int kRounds = 15;
constexpr int kJudgeRounds = 5;
constexpr int kLargeResults = 100'000;

/// A host with the plug-in opened, and the file of a document with 100,000 results.
class LargeDocument {
 public:
  explicit LargeDocument(const Context& context, int results = kLargeResults)
      : rig_(support::ReadFile(context.Catalogue())), measured_(context), file_(measured_.Times(results)) {
    const auto plugIn =
        orvik::As<orvik::IPlugIn>(rig_.Only().Host().CreateObject(keld::ClassIdentifiers::kPlugin));
    orvik::Required(plugIn).Initialize(nullptr);
    rig_.Only().Host().Elements()->AddPlugIn(plugIn);
  }
  LargeDocument(const LargeDocument&) = delete;
  LargeDocument& operator=(const LargeDocument&) = delete;
  ~LargeDocument() { rig_.Only().Host().Elements()->ReleasePlugIns(); }

  const std::filesystem::path& File() const { return file_; }
  std::string Text() const { return support::ReadFile(file_); }

  std::shared_ptr<host::document::Document> Open() {
    return host::document::Document::Open(rig_.Only().SharedHost(), file_,
                                          host::document::DocumentFile::Use::kRead);
  }

  /// The document, read and looked over.
  std::shared_ptr<host::document::Document> OpenAndCheck() {
    auto document = Open();
    const auto last = document->Find(kLargeResults);
    if (document->Elements()->Count() != kLargeResults || !last || !last->Result() ||
        last->Result()->MeasurementCount() != 1)
      throw std::runtime_error("the document was not read as it was written");
    return document;
  }

  /// The least that judging and that loading took.
  std::pair<double, double> SecondsToJudgeAndLoad() {
    const auto document = Open();
    const auto& elements = *rig_.Only().Host().Elements();
    if (host::judge::Judge(*document, elements).outcome != host::judge::Outcome::kPassed)
      throw std::runtime_error("the copied document is not judged passed like the measured one");
    const auto [judged, loaded] = LeastOfEach(
        kJudgeRounds, [&] { return SecondsOf([&] { return host::judge::Judge(*document, elements); }); },
        [&] { return SecondsOf([&] { return Open(); }); });
    return {judged, loaded};
  }

 private:
  VirtualRig rig_;
  const MeasuredDocument measured_;
  const std::filesystem::path file_;
};

}  // namespace

Figure MeasureDocumentLoad(const Context& context) {
  LargeDocument large(context);
  SecondsInOwnProcess([&] { return SecondsOf([&] { return large.OpenAndCheck(); }); });
  const auto [ours, yardstick] = LeastOfEach(
      kRounds, [&] { return SecondsInOwnProcess([&] { return SecondsOf([&] { return large.Open(); }); }); },
      [&] {
        return SecondsInOwnProcess([&] { return SecondsOf([&] { return ReadAndVisited(large.File()); }); });
      });
  return {ours / yardstick, "x", yardstick, "the XML library alone, in s", 3, Bound::kAtMost};
}

// Into memory on both sides: the disk takes what it takes.
Figure MeasureDocumentSave(const Context& context) {
  LargeDocument large(context);
  const auto document = large.OpenAndCheck();
  const auto tree = Parsed(large.Text());
  const auto [ours, yardstick] = LeastOfEach(
      kRounds, [&] { return SecondsOf([&] { return document->Text(); }); },
      [&] { return SecondsOf([&] { return Written(*tree); }); });
  return {ours / yardstick, "x", yardstick, "the XML library alone, in s", 3, Bound::kAtMost};
}

// Beside the loading of the same document, in one process.
Figure MeasureJudge(const Context& context) {
  LargeDocument large(context);
  const auto [ours, yardstick] = large.SecondsToJudgeAndLoad();
  return {ours / yardstick, "x", yardstick, "loading the document, in s", 0.5, Bound::kAtMost};
}

// The time for an element in a document of 100,000, beside that in one of 10,000.
Figure MeasureJudgeGrowth(const Context& context) {
  LargeDocument large(context);
  LargeDocument small(context, kLargeResults / 10);
  const auto ofLarge = large.SecondsToJudgeAndLoad().first / kLargeResults;
  const auto ofSmall = small.SecondsToJudgeAndLoad().first / (kLargeResults / 10);
  return {ofLarge / ofSmall, "x", ofSmall * 1e6, "an element of 10,000, in us", 2, Bound::kAtMost};
}

}  // namespace benchmarks
