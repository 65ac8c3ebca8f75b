#pragma once

#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/bench/ScreenOperator.h"
#include "host/elements/ElementFactory.h"
#include "host/run/GuideToolbar.h"
#include "host/run/OperatorEvents.h"
#include "host/run/StopSignals.h"
#include "tests/support/RunParts.h"
#include "tests/support/VirtualBench.h"
#include "tests/unit/model/GuideOperator.h"

namespace support {

/// A simulated tester that answers nothing any more from a certain command on.
class MuteFrom final : public sim::Faults {
 public:
  /// @param command counted from 1
  explicit MuteFrom(std::uint64_t command) : command_(command) {}

  void OnReply(const sim::Exchange& exchange, sim::Reply& reply) override {
    if (exchange.index >= command_) reply.lines.clear();
  }

 private:
  std::uint64_t command_;
};

/// Who, or what, ends the run.
enum class Ending {
  kStop,            ///< a person presses the guide's stop
  kAbort,           ///< ... or abort, and says yes
  kCloseWindow,     ///< ... or closes the guide, and says yes
  kSignal,          ///< SIGINT, while the program operates the guide
  kSignalAtScreen,  ///< SIGINT, while a person does
};

/// The run of a whole document, a single test and a sequence of two, on a bench of its own, which is ended on
/// the way: real plug-in, host and tester, virtual clock.
class StoppedRun {
 public:
  using Time = orvik::platform::Time;

  struct Settings {
    Ending ending = Ending::kStop;
    /// How long the person thinks about each question.
    std::chrono::milliseconds thinks{0};
    /// The tester answers nothing any more from that command on; 0: it answers all.
    std::uint64_t muteFrom = 0;
  };

  /// How things stood at the moment from which the run is to end: when the stop was asked for or, where a
  /// question stands between, when that was answered.
  struct Moment {
    Time time{};
    std::size_t wire = 0;  ///< how many lines the wire had seen
    bool running = false;  ///< the guide said that a test was running
  };
  struct Outcome {
    std::optional<Moment> moment;  ///< empty: nothing was to be ended any more
    std::vector<WireLine> wire;
    std::vector<Time> pumps;  ///< when messages were pumped
    Time ended{};
    bool stalled = false;
    bool leftPort = false;
    bool leftRemote = false;  ///< the tester was left in remote mode
  };

  explicit StoppedRun(Settings settings) : settings_(settings) {
    bench_.Host().Elements()->AddPlugIn(bench_.PlugIn());
    bench_.Application().SetStallHandler([this] {
      outcome_.stalled = true;
      throw std::logic_error("the run waits for ever");
    });
    if (settings.muteFrom > 0) bench_.Tester().UseFaults(std::make_shared<MuteFrom>(settings.muteFrom));
    for (const std::int32_t testId : {410, 400}) document_->AddTest(testId);
    parts_.save = [] {};
  }

  /// Nobody ends it.
  Outcome Perform() { return Run(); }
  /// It is ended at that call of the message pump.
  Outcome EndAtPump(std::size_t pump) {
    endAtPump_ = pump;
    return Run();
  }
  /// It is ended at that time.
  Outcome EndAt(Time time) {
    bench_.Application().CallAt(time, [this] { End(); });
    return Run();
  }

 private:
  Outcome Run() {
    const auto pumped = bench_.Application().Pumped().Subscribe([this] {
      outcome_.pumps.push_back(bench_.Application().Now());
      if (endAtPump_ && outcome_.pumps.size() == *endAtPump_ + 1) End();
    });
    const host::run::StopSignals signals(bench_.Application(), [this](int) { parts_.stop.Ask(); });
    std::unique_ptr<GuideOperator> person;
    const auto application = bench_.Only().SharedApplication();
    std::unique_ptr<host::run::IOperator> program;
    if (settings_.ending == Ending::kSignal) {
      program = std::make_unique<host::run::AutoOperator>(application, parts_.stop);
    } else {
      person = std::make_unique<GuideOperator>(bench_.Application());
      person->thinks = settings_.thinks;
      person->onAnswer = [this](const std::string& form) {
        if (form == host::plugins::keld::guide::kYesNoForm) NoteMoment();
      };
      program = std::make_unique<host::bench::ScreenOperator>(application);
    }
    person_ = person.get();
    const host::run::OperatorEvents operating(application, parts_.stop, std::move(program));
    parts_.Run();
    outcome_.ended = bench_.Application().Now();
    outcome_.wire = bench_.Wire().All();
    outcome_.leftPort = bench_.Line().Line()->Connected();
    outcome_.leftRemote = bench_.Tester().InRemoteMode();
    return outcome_;
  }

  bool Asks() const { return settings_.ending == Ending::kAbort || settings_.ending == Ending::kCloseWindow; }

  void End() {
    switch (settings_.ending) {
      case Ending::kStop:
        NoteMoment();
        return person_->Press(GuideOperator::kStop);
      case Ending::kAbort:
        return person_->Press(GuideOperator::kAbort);
      case Ending::kCloseWindow:
        return person_->CloseGuide();
      case Ending::kSignal:
      case Ending::kSignalAtScreen:
        NoteMoment();
        std::raise(SIGINT);
        return;
    }
  }

  void NoteMoment() {
    outcome_.moment = Moment{bench_.Application().Now(), bench_.Wire().All().size(), Running()};
  }

  bool Running() {
    for (const auto& form : bench_.Application().Forms()) {
      if (form->Name() != host::plugins::keld::guide::kGuideForm || !form->Visible()) continue;
      const auto toolbar = host::run::GuideToolbar(*form);
      return toolbar && toolbar->IsEnabled(host::plugins::keld::guide::kStop);
    }
    return false;
  }

  const Settings settings_;
  VirtualBench bench_;
  const std::shared_ptr<host::document::Document> document_ =
      host::document::Document::Create(bench_.Only().SharedHost(), bench_.Only().Folder() / "run.orvik");
  RunParts parts_{bench_.Ports(), *document_};
  GuideOperator* person_ = nullptr;
  std::optional<std::size_t> endAtPump_;
  Outcome outcome_;
};

}  // namespace support
