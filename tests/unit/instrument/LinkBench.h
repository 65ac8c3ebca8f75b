#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "instrument/CKELDInstrument.h"
#include "instrument/CommsState.h"
#include "tests/support/VirtualBench.h"

namespace instrument_test {

using host::serial::WireRecord;
using std::chrono::milliseconds;
namespace CommsState = keld::instrument::CommsState;
using Texts = std::vector<std::string>;

/// A link to the tester at the other end of a line in memory, and all events that it raises.
class LinkBench {
 public:
  explicit LinkBench(support::VirtualBench::Settings settings = {})
      : bench_(std::move(settings)), link_(keld::instrument::CKELDInstrument::Create()) {
    Listen();
  }

  support::VirtualBench& Bench() { return bench_; }
  toolkit::headless::Application& Application() { return bench_.Application(); }
  /// The link; empty once released.
  std::shared_ptr<keld::instrument::CKELDInstrument>& Link() { return link_; }
  /// What the link has raised: "GotMtiData", "3 0" (status and test number), "MessageSent 6 0 0".
  const Texts& Raised() const { return raised_; }
  Texts Sent() { return bench_.Wire().Sent(); }
  milliseconds Elapsed() { return std::chrono::duration_cast<milliseconds>(Application().Now() - started_); }
  /// When the commands went out.
  std::vector<milliseconds> SentAt() {
    std::vector<milliseconds> times;
    for (const auto& line : bench_.Wire().All()) {
      if (line.kind == WireRecord::Kind::kSent)
        times.push_back(std::chrono::duration_cast<milliseconds>(line.time - started_));
    }
    return times;
  }
  /// Forgets what was raised and sent; times count from here.
  void Restart() {
    raised_.clear();
    bench_.Wire().Clear();
    started_ = Application().Now();
  }

  /// Puts a script in the tester's place: the lines with which it answers, one after the other, by command
  /// mnemonic; it does not answer other commands, nor after the end of a list. An empty line means no answer.
  void Script(std::map<std::string, Texts> answers) {
    const auto script = std::make_shared<std::map<std::string, Texts>>(std::move(answers));
    bench_.Line().AnswerBy([this, script](const std::string& command) {
      auto& left = (*script)[command.substr(0, command.find(','))];
      if (left.empty()) return;
      const std::string answer = left.front();
      left.erase(left.begin());
      if (!answer.empty()) bench_.Line().Reply(answer);
    });
  }

  /// Opens the port, with this script in the tester's place.
  void Connect(std::map<std::string, Texts> answers) {
    link_->ConnectMTI();
    Script(std::move(answers));
  }
  /// The same, and one run of test 410.
  void Run(std::map<std::string, Texts> answers) {
    Connect(std::move(answers));
    link_->RunMtiTest(410, 0);
  }

  /// Releases the link, as its owner does.
  void Release() {
    subscriptions_.clear();
    link_.reset();
  }
  /// Stops listening to the link, which stays.
  void StopListening() { subscriptions_.clear(); }

  /// Runs the action once, inside the pump, as soon as so many milliseconds have passed.
  void At(milliseconds when, std::function<void()> action) {
    Application().CallAt(Application().Now() + when, std::move(action));
  }
  /// Runs the action once, inside the pump call of that number, counted from 0. False in the returned flag:
  /// there was no such call.
  std::shared_ptr<bool> AtPump(int number, std::function<void()> action) {
    const auto done = std::make_shared<bool>(false);
    pump_ = Application().Pumped().Subscribe([this, left = number, done, act = std::move(action)]() mutable {
      if (left-- == 0) {
        *done = true;
        Application().Post(act);
      }
    });
    return done;
  }

  /// Called with each status that the link reports, before it is noted.
  std::function<void(std::int32_t&, std::int16_t)> onResult;
  std::function<void(const keld::instrument::MtiDataArray&)> onData;

 private:
  void Listen() {
    subscriptions_.push_back(
        link_->GotMtiData().Subscribe([this](const keld::instrument::MtiDataArray& data) {
          raised_.push_back("GotMtiData");
          if (onData) onData(data);
        }));
    subscriptions_.push_back(
        link_->ResultReceived().Subscribe([this](std::int32_t& state, std::int16_t test) {
          raised_.push_back(std::to_string(state) + " " + std::to_string(test));
          if (onResult) onResult(state, test);
        }));
    subscriptions_.push_back(
        link_->MessageSent().Subscribe([this](std::int32_t state, std::int16_t first, std::int16_t second) {
          raised_.push_back("MessageSent " + std::to_string(state) + " " + std::to_string(first) + " " +
                            std::to_string(second));
        }));
  }

  support::VirtualBench bench_;
  Texts raised_;
  orvik::platform::Time started_{};
  std::shared_ptr<keld::instrument::CKELDInstrument> link_;
  std::vector<orvik::platform::Subscription> subscriptions_;
  orvik::platform::Subscription pump_;
};

/// The answers of a tester without errors.
inline std::map<std::string, Texts> GoodAnswers() {
  return {{"IREM", {"irem,KELD(IN),4711,1.05"}},
          {"STST", {"stst,410,0", "stst,210,0"}},
          {"GRES", {"gres,410,0,0.123,0,Ohm"}},
          {"EREM", {"erem"}}};
}

}  // namespace instrument_test
