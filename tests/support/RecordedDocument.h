#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/document/Document.h"
#include "host/document/ElementState.h"
#include "host/document/SavedSettings.h"
#include "host/elements/ElementFactory.h"
#include "host/judge/CaseOf.h"
#include "host/run/AutoOperator.h"
#include "host/run/GuideToolbar.h"
#include "host/run/LeadCalibrations.h"
#include "tests/support/RunParts.h"
#include "tests/support/VirtualBench.h"

namespace support {

/// Replies that replace those of the simulated tester, by the beginning of the command.
class ChosenReplies final : public sim::Faults {
 public:
  /// @param command the whole command or its beginning, such as "GRES,410,"; the longest match counts
  /// @param reply a line without its end, ISO 8859-1
  void Set(const std::string& command, const std::string& reply) { replies_[command] = reply; }
  void Clear() { replies_.clear(); }

 private:
  void OnReply(const sim::Exchange& exchange, sim::Reply& reply) override {
    // From the end, since a longer beginning sorts after its own prefixes.
    for (auto chosen = replies_.rbegin(); chosen != replies_.rend(); ++chosen) {
      if (!exchange.line.starts_with(chosen->first) || reply.lines.empty()) continue;
      reply.lines.front().bytes = chosen->second + "\r\n";
      return;
    }
  }

  std::map<std::string, std::string> replies_;
};

/// Presses one button of each guide, such as "not applicable", and leaves it.
class ButtonOperator final : public host::run::IOperator {
 public:
  explicit ButtonOperator(std::int32_t button) : button_(button) {}

 private:
  void OnWindowReady(const Form& form) override {
    if (form->Name() == host::plugins::keld::guide::kYesNoForm)
      return host::run::ClickButton(*form, host::plugins::keld::guide::kYes);
    if (form->Name() == host::plugins::keld::guide::kPretestForm)
      return host::run::ClickButton(*form, host::plugins::keld::guide::kPretestOk);
    if (form->Name() == host::plugins::keld::guide::kGuideForm)
      host::run::GuideToolbar(*form)->Click(button_);
  }

  void OnStopRequested() override {}

  const std::int32_t button_;
};

/// How a document is run.
struct RunOf {
  std::vector<std::int32_t> elements = {};  ///< empty for all at the top
  std::string at = "2026-11-21T14:03:22+01:00";
  std::string by = "M. Holm";
  bool simulated = false;
  /// Pressed in every guide in the place of play and next, such as
  /// `host::plugins::keld::guide::kNotApplicable`.
  std::int32_t button = 0;
  /// The program is killed after this many saves, and the document is the one on the disk; 0: it ends
  /// normally.
  int killedAfterSaves = 0;
};

/// A document with results as from a real bench: run by the real run controller and the simulated tester in
/// memory, on the virtual clock, with replies that the test chooses.
///
///     RecordedDocument file;
///     file.Add(410);                            // element 1
///     file.Limit(1, "", "300");                 // mOhm, IEC 62353
///     file.Reads(410, "0.123,0,Ohm");           // value, overload, unit
///     file.Run({.by = "M. Holm"});
///     EXPECT_EQ(file.Judged().outcome, host::judge::Outcome::kPassed);
class RecordedDocument {
 public:
  using Element = std::shared_ptr<orvik::ITestElement>;
  using Settings = VirtualBench::Settings;

  explicit RecordedDocument(Settings settings = {}, const std::string& name = "a.orvik")
      : bench_(std::move(settings)) {
    bench_.Host().Elements()->AddPlugIn(bench_.PlugIn());
    bench_.Tester().UseFaults(replies_);
    document_ = host::document::Document::Create(bench_.Only().SharedHost(), bench_.Only().Folder() / name);
    document_->equipment = {"VENT-1", "S-2", "Maker", "Model"};
  }
  RecordedDocument(const RecordedDocument&) = delete;
  RecordedDocument& operator=(const RecordedDocument&) = delete;
  ~RecordedDocument() {
    document_.reset();
    bench_.Host().Elements()->ReleasePlugIns();
  }

  VirtualBench& Bench() { return bench_; }
  host::document::Host& Host() { return bench_.Host(); }
  host::document::Document& Document() { return *document_; }
  const std::vector<host::document::RunRecord>& Runs() const { return document_->Runs().All(); }

  /// Adds the catalogue's test, or a whole sequence, at the end.
  Element Add(std::int32_t testId) { return document_->AddTest(testId); }
  Element Find(std::int32_t element) const { return document_->Find(element); }

  /// Sets or replaces the limit of the standard on the element, and selects the standard.
  void Limit(std::int32_t element, const std::string& low, const std::string& high,
             const std::string& standard = "IEC 62353", const std::string& description = {}) {
    SetLimit(*document_, Host(), element, low, high, standard, description);
  }
  /// @param setting such as `host::document::SavedSettings::kFilter`
  void Set(std::int32_t element, const std::string& setting, const std::string& value) {
    const auto configuration = Find(element)->Configuration();
    const host::document::SavedSettings wanted(*configuration);
    wanted.Settings()->SetAttribute(setting, value);
    configuration->Load(wanted.Node());
  }
  void RecordOnly(std::int32_t element) {
    host::document::StateOf(Find(element), *Host().Elements())->SetRecordOnly(true);
  }

  /// What the tester reads from now on in the test, in any setting: "0.123,0,Ohm" is value, overload, unit.
  void Reads(std::int32_t testId, const std::string& reading) {
    for (int setting = 0; setting <= sim::Profile::kHighestSetting; ++setting) {
      const auto asked = "," + std::to_string(testId) + "," + std::to_string(setting);
      replies_->Set("GRES" + asked, "gres" + asked + "," + reading);
    }
  }
  /// The tester lacks the test.
  void Refuses(std::int32_t testId) { Answers("STST," + std::to_string(testId) + ",", "ERRM,6002"); }
  /// The reply to commands with this beginning: "IREM" with "irem,KELD(IN),S-9,3.10".
  void Answers(const std::string& command, const std::string& reply) { replies_->Set(command, reply); }
  /// Stores these test leads for the tester in the registry, 0 to 500 mOhm or an invalid value.
  /// @param measured when, as `WallClock` returns it
  void Leads(const std::string& serial, std::int32_t milliohms, const std::string& measured) {
    host::run::StoreLeads(*Host().Registry(), serial, milliohms, measured);
  }

  host::run::DocumentRunner::End Run(const RunOf& run = {}) {
    RunParts parts(bench_.Ports(), *document_);
    parts.heading = HeadingOf(run);
    parts.clock = [&] { return run.at; };
    parts.leadsMeasured = [this](const std::string& serial, std::int32_t leads) {
      return host::run::LeadsMeasured(*Host().Registry(), serial, leads).value_or("");
    };
    int saves = 0;
    parts.save = [&] {
      if (run.killedAfterSaves == 0 || saves++ < run.killedAfterSaves) document_->Save();
    };
    const host::run::OperatorEvents operating(bench_.Only().SharedApplication(), parts.stop,
                                              OperatorOf(run, parts.stop));
    const auto end = parts.Run(ElementsOf(run));
    if (run.killedAfterSaves > 0) Reopen();
    return end;
  }

  /// The document as in its file.
  void Reopen() {
    const auto path = document_->Path();
    document_.reset();
    document_ = host::document::Document::Open(bench_.Only().SharedHost(), path);
  }

  /// What counts now.
  /// @param standards to judge by; empty for all
  host::judge::JudgedDocument Judged(std::vector<std::string> standards = {}) {
    return host::judge::Judge(*document_, *Host().Elements(), std::move(standards));
  }

 private:
  host::run::RunRecorder::Heading HeadingOf(const RunOf& run) const {
    host::run::RunRecorder::Heading heading;
    heading.equipment = document_->equipment;
    heading.by = run.by;
    heading.port = VirtualBench::kDevice;
    heading.program = "orvik-bench";
    heading.simulated = run.simulated;
    return heading;
  }

  std::vector<Element> ElementsOf(const RunOf& run) const {
    if (run.elements.empty()) return TopOf(*document_);
    std::vector<Element> elements;
    for (const auto id : run.elements) elements.push_back(Find(id));
    return elements;
  }

  std::unique_ptr<host::run::IOperator> OperatorOf(const RunOf& run, host::run::StopRequest& stop) {
    if (run.button != 0) return std::make_unique<ButtonOperator>(run.button);
    return std::make_unique<host::run::AutoOperator>(bench_.Only().SharedApplication(), stop);
  }

  VirtualBench bench_;
  const std::shared_ptr<ChosenReplies> replies_ = std::make_shared<ChosenReplies>();
  std::shared_ptr<host::document::Document> document_;
};

}  // namespace support
