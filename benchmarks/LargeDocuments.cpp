#include <stdexcept>
#include <string>

#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "benchmarks/ChildProcess.h"
#include "benchmarks/MeasuredDocument.h"
#include "benchmarks/Measurements.h"
#include "benchmarks/OwnProcess.h"
#include "benchmarks/Repeat.h"
#include "benchmarks/VirtualRig.h"
#include "benchmarks/YardstickXml.h"
#include "host/document/Document.h"
#include "host/elements/ElementFactory.h"
#include "plugin/ClassIdentifiers.h"

namespace benchmarks {

namespace {

constexpr int kRounds = 15;
constexpr int kLargeResults = 100'000;

/// A host with the plug-in opened, and the file of a document with 100,000 results.
class LargeDocument {
 public:
  explicit LargeDocument(const Context& context)
      : rig_(TextOf(context.Catalogue())), measured_(context), file_(measured_.Times(kLargeResults)) {
    const auto plugIn =
        orvik::As<orvik::IPlugIn>(rig_.Only().Host().CreateObject(keld::ClassIdentifiers::kPlugin));
    orvik::Required(plugIn).Initialize(nullptr);
    rig_.Only().Host().Elements()->AddPlugIn(plugIn);
  }
  LargeDocument(const LargeDocument&) = delete;
  LargeDocument& operator=(const LargeDocument&) = delete;
  ~LargeDocument() { rig_.Only().Host().Elements()->ReleasePlugIns(); }

  const std::filesystem::path& File() const { return file_; }
  std::string Text() const { return TextOf(file_); }

  std::shared_ptr<bench::Document> Open() {
    return bench::Document::Open(rig_.Only().SharedHost(), file_, bench::DocumentFile::Use::kRead);
  }

  /// The document, read and looked over.
  std::shared_ptr<bench::Document> OpenAndCheck() {
    auto document = Open();
    const auto last = document->Find(kLargeResults);
    if (document->Elements()->Count() != kLargeResults || !last || !last->Result() ||
        last->Result()->MeasurementCount() != 1)
      throw std::runtime_error("the document was not read as it was written");
    return document;
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
  return {ours / yardstick, "x", yardstick, "the XML library alone, in s", 2, Bound::kAtMost};
}

// Into memory on both sides: the disk takes what it takes.
Figure MeasureDocumentSave(const Context& context) {
  LargeDocument large(context);
  const auto document = large.OpenAndCheck();
  const auto tree = Parsed(large.Text());
  const auto [ours, yardstick] = LeastOfEach(
      kRounds, [&] { return SecondsOf([&] { return document->Text(); }); },
      [&] { return SecondsOf([&] { return Written(*tree); }); });
  return {ours / yardstick, "x", yardstick, "the XML library alone, in s", 2, Bound::kAtMost};
}

}  // namespace benchmarks
