#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/elements/ElementFactory.h"
#include "host/judge/CaseOf.h"
#include "host/run/GuideToolbar.h"
#include "tests/support/RecordedDocument.h"
#include "tests/support/RunParts.h"

namespace run {

using Element = std::shared_ptr<orvik::ITestElement>;
using Elements = std::vector<Element>;
using End = support::RunParts::End;
using Texts = std::vector<std::string>;
using host::judge::Verdict;

/// Presses the buttons of each guide, one guide after the other. A question is answered with yes.
class Presser {
 public:
  using Guides = std::vector<std::vector<std::int32_t>>;

  Presser(support::VirtualBench& bench, Guides guides) : guides_(std::move(guides)) {
    shown_ = bench.Application().FormShown().Subscribe(
        [this, &bench](const std::shared_ptr<orvik::platform::IForm>& form) {
          if (form->Name() == host::plugins::keld::guide::kYesNoForm)
            bench.Application().Post(
                [form] { host::run::ClickButton(*form, host::plugins::keld::guide::kYes); });
          if (form->Name() != host::plugins::keld::guide::kGuideForm || place_ >= guides_.size()) return;
          bench.Application().Post([form, buttons = guides_[place_++]] {
            for (const auto button : buttons) host::run::GuideToolbar(*form)->Click(button);
          });
        });
  }

 private:
  const Guides guides_;
  std::size_t place_ = 0;
  orvik::platform::Subscription shown_;
};

/// A document on a virtual bench, with what runs and judges it.
class RunFixture : public testing::Test {
 protected:
  RunFixture() {
    bench_.Host().Elements()->AddPlugIn(bench_.PlugIn());
    bench_.Tester().UseFaults(replies_);
  }

  /// Adds the catalogue's test at the end; identifiers count from 1.
  Element Add(std::int32_t testId) { return document_->AddTest(testId); }
  /// A test with a limit of at most 300 in its own unit.
  Element AddLimited(std::int32_t testId) {
    auto element = Add(testId);
    Limit(element->ID(), "", "300");
    return element;
  }
  void Limit(std::int32_t element, const std::string& low, const std::string& high) {
    support::SetLimit(*document_, bench_.Host(), element, low, high);
  }

  /// The tester reads this in every test: value, overload, unit.
  void ReadEverywhere(const std::string& reading) {
    for (const auto* test : {"410", "420", "510", "610", "620"}) Read(test, reading);
  }
  void Read(const std::string& test, const std::string& reading) {
    Answer("GRES," + test + ",0", "gres," + test + ",0," + reading);
  }
  void Answer(const std::string& command, const std::string& reply) { replies_->Set(command, reply); }

  /// The program operates the guide. @param ids empty for all at the top
  End Run(const std::vector<std::int32_t>& ids = {}) {
    return parts_.RunByProgram(bench_.Only().SharedApplication(), Found(ids));
  }
  /// A person does.
  End RunByHand(Presser::Guides guides) {
    const Presser person(bench_, std::move(guides));
    return parts_.Run();
  }

  const std::vector<host::document::RunRecord>& Runs() const { return document_->Runs().All(); }
  host::judge::JudgedElement Judged(std::int32_t id) { return JudgedIn(*document_, id); }
  host::judge::JudgedElement JudgedIn(const host::document::Document& document, std::int32_t id) {
    const auto judged = host::judge::Judge(document, *bench_.Host().Elements());
    const auto* found = judged.Find(id);
    if (!found) ADD_FAILURE() << "no element " << id;
    return found ? *found : host::judge::JudgedElement{};
  }
  /// "passed", or the verdict with the codes of its reasons: "doubtful: overload".
  std::string Verdict(std::int32_t id) { return VerdictIn(*document_, id); }
  std::string VerdictIn(const host::document::Document& document, std::int32_t id) {
    const auto judged = JudgedIn(document, id);
    auto text = host::judge::VerdictText(judged.verdict);
    for (const auto& reason : judged.reasons)
      text += (&reason == &judged.reasons[0] ? ": " : ", ") + reason.code;
    return text;
  }
  host::judge::Outcome Outcome() { return host::judge::Judge(*document_, *bench_.Host().Elements()).outcome; }

  /// The document as its file has it now.
  std::shared_ptr<host::document::Document> OnDisk() {
    return host::document::Document::Open(bench_.Only().SharedHost(), File(),
                                          host::document::DocumentFile::Use::kRead);
  }
  std::filesystem::path File() const { return document_->Path(); }

  support::VirtualBench bench_;
  const std::shared_ptr<support::ChosenReplies> replies_ = std::make_shared<support::ChosenReplies>();
  const std::shared_ptr<host::document::Document> document_ =
      host::document::Document::Create(bench_.Only().SharedHost(), bench_.Only().Folder() / "run.orvik");
  support::RunParts parts_{bench_.Ports(), *document_};

 private:
  Elements Found(const std::vector<std::int32_t>& ids) const {
    if (ids.empty()) return support::TopOf(*document_);
    Elements elements;
    for (const auto id : ids) elements.push_back(document_->Find(id));
    return elements;
  }
};

/// "410 status 1 by tester": the tests of a run as it took them up and finished them.
inline Texts StepsOf(const host::document::RunRecord& run) {
  Texts steps;
  for (const auto& step : run.steps) {
    if (const auto* takes = std::get_if<host::document::RecordedTakes>(&step)) {
      std::string text = "takes";
      for (const auto id : takes->elements) text += " " + std::to_string(id);
      steps.push_back(text);
      continue;
    }
    const auto& test = std::get<host::document::RecordedTest>(step);
    steps.push_back(std::to_string(test.element) + " status " + std::to_string(test.status) +
                    (test.by == host::document::RecordedTest::By::kTester ? " by tester" : " by operator"));
  }
  return steps;
}

/// The last that the run recorded of the element.
inline const host::document::RecordedTest& TestOf(const host::document::RunRecord& run,
                                                  std::int32_t element) {
  for (auto step = run.steps.rbegin(); step != run.steps.rend(); ++step)
    if (const auto* test = std::get_if<host::document::RecordedTest>(&*step))
      if (test->element == element) return *test;
  throw std::logic_error("the run has not finished element " + std::to_string(element));
}

}  // namespace run
