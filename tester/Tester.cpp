#include "tester/Tester.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "tester/Text.h"

namespace sim {

namespace {

struct TestAndSetting {
  int test;
  int setting;
};

/// The two parameters of STST and GRES; empty when they are not two numbers that a tester takes.
std::optional<TestAndSetting> ReadTestAndSetting(const Message& command) {
  if (command.parameters.size() != 2) return std::nullopt;
  const auto test = ParseNumber(command.parameters[0], Profile::kHighestTest);
  const auto setting = ParseNumber(command.parameters[1], Profile::kHighestSetting);
  if (!test || !setting) return std::nullopt;
  return TestAndSetting{*test, *setting};
}

/// Appends texts of the profile, which has made sure that they fit the wire.
void AppendText(std::string& line, std::string_view text) {
  AppendParameter(line, Utf8ToLatin1(text).value());
}

std::string ReplyNaming(std::string_view mnemonic, int test, int setting) {
  std::string line(mnemonic);
  AppendParameter(line, std::to_string(test));
  AppendParameter(line, std::to_string(setting));
  return line;
}

}  // namespace

Tester::Tester(Profile profile, double timeScale) : profile_(std::move(profile)), timeScale_(timeScale) {
  const bool good =
      timeScale >= kLowestTimeScale && timeScale <= kHighestTimeScale;  // false for not-a-number
  if (!good) throw std::invalid_argument("the time-scale is out of bounds");
}

void Tester::Receive(std::string_view bytes, Instant now) {
  if (hungUp_) return;
  reader_.Feed(
      bytes,
      [&](std::string_view line) {
        const bool busy = waiting_.size() >= kMaxWaiting;
        if (listener_) listener_(line, busy);
        if (busy) {
          ++lost_;
        } else {
          Obey(line, now);
        }
      },
      [&](std::string_view seen) {
        if (listener_) listener_(seen, true);
      });
}

void Tester::Obey(std::string_view line, Instant now) {
  ++commands_;
  const std::string_view command = MnemonicOf(line);
  // An error reply is never answered: on a line that echoes, two testers would talk for ever.
  if (command == "ERRM") return;

  Answer answer = AnswerTo(line);
  answer.line += kLineEnd;
  reply_.lines.clear();
  reply_.lines.push_back({std::move(answer.line), {}, false, {}});
  reply_.takes = answer.takes;
  if (faults_) Spoil({command, commands_, line});

  busyUntil_ = std::max(busyUntil_, now) + Scaled(reply_.takes);
  for (Outgoing& out : reply_.lines) {
    Output output{busyUntil_ + Scaled(out.delay), std::move(out.bytes), out.hangUp, {}};
    if (out.backAfter) output.backAfter = Scaled(*out.backAfter);
    Queue(std::move(output));
  }
}

void Tester::Spoil(const Exchange& exchange) {
  reply_.forget = false;
  reply_.notes.clear();
  faults_->OnReply(exchange, reply_);
  if (reply_.forget) LeaveRemoteMode();
  if (!noteListener_) return;
  for (const std::string& note : reply_.notes) noteListener_(note);
}

Tester::Answer Tester::AnswerTo(std::string_view line) {
  struct Command {
    std::string_view mnemonic;
    bool takesTest;  // two parameters: test number and setting; otherwise none
    bool needsRemote;
  };
  static constexpr Command kCommands[] = {
      {"IREM", false, false}, {"STST", true, true},  {"GRES", true, true},  {"EREM", false, true},
      {"QMTI", false, false}, {"#PON", false, true}, {"#POF", false, true},
  };
  const std::string_view mnemonic = MnemonicOf(line);
  const auto known = std::find_if(std::begin(kCommands), std::end(kCommands),
                                  [&](const Command& command) { return command.mnemonic == mnemonic; });
  if (known == std::end(kCommands)) return Refuse(TesterError::UnknownCommand);

  const auto command = ParseMessage(line);
  if (!command || (!known->takesTest && !command->parameters.empty()) ||
      (known->takesTest && !ReadTestAndSetting(*command))) {
    return Refuse(TesterError::BadParameter);
  }
  if (known->needsRemote && !remote_) return Refuse(TesterError::NotAllowedNow);

  if (mnemonic == "IREM") return EnterRemote();
  if (mnemonic == "STST") return StartTest(*command);
  if (mnemonic == "GRES") return GetResult(*command);
  if (mnemonic == "EREM") return LeaveRemote();
  if (mnemonic == "QMTI") return WhoAmI("qmti");
  return SwitchPower(mnemonic == "#PON");
}

Tester::Answer Tester::EnterRemote() {
  // Sent again when its reply got lost: the tester starts the session afresh and says so.
  remote_ = true;
  started_.reset();
  return WhoAmI("irem");
}

Tester::Answer Tester::StartTest(const Message& command) {
  const auto [test, setting] = ReadTestAndSetting(command).value();
  if (!profile_.Find(test, setting)) return Refuse(TesterError::NoSuchTest);
  started_ = StartedTest{test, setting};
  return {ReplyNaming("stst", test, setting), {}};
}

Tester::Answer Tester::GetResult(const Message& command) {
  const auto [test, setting] = ReadTestAndSetting(command).value();
  const Reading* reading = profile_.Find(test, setting);
  if (!reading) return Refuse(TesterError::NoSuchTest);
  if (!started_ || started_->test != test || started_->setting != setting)
    return Refuse(TesterError::NotAllowedNow);

  // The result stays: it can be asked for again when its reply got lost.
  Answer answer{ReplyNaming("gres", test, setting), reading->measuringTime};
  AppendText(answer.line, reading->value);
  AppendParameter(answer.line, reading->overload ? "1" : "0");
  AppendText(answer.line, reading->unit);
  return answer;
}

Tester::Answer Tester::LeaveRemote() {
  LeaveRemoteMode();
  return {"erem", {}};
}

void Tester::LeaveRemoteMode() {
  remote_ = false;
  powerOn_ = false;
  started_.reset();
}

Tester::Answer Tester::SwitchPower(bool on) {
  powerOn_ = on;
  return {on ? "#pon" : "#pof", {}};
}

Tester::Answer Tester::WhoAmI(std::string_view mnemonic) const {
  Answer answer{std::string(mnemonic), {}};
  AppendText(answer.line, profile_.Who().type);
  AppendText(answer.line, profile_.Who().serial);
  AppendText(answer.line, profile_.Who().firmware);
  return answer;
}

Tester::Answer Tester::Refuse(TesterError error) {
  std::string line("ERRM");
  AppendParameter(line, std::to_string(static_cast<int>(error)));
  return {std::move(line), {}};
}

std::chrono::microseconds Tester::Scaled(std::chrono::microseconds time) const {
  if (timeScale_ == 1.0) return time;
  return std::chrono::microseconds(std::llround(static_cast<double>(time.count()) / timeScale_));
}

void Tester::Queue(Output output) {
  const auto place = std::upper_bound(waiting_.begin(), waiting_.end(), output.due,
                                      [](Instant due, const Output& other) { return due < other.due; });
  waiting_.insert(place, std::move(output));
}

std::optional<Instant> Tester::NextDue() const {
  if (waiting_.empty()) return std::nullopt;
  return waiting_.front().due;
}

std::optional<Output> Tester::TakeDue(Instant now) {
  if (waiting_.empty() || waiting_.front().due > now) return std::nullopt;
  Output output = std::move(waiting_.front());
  waiting_.pop_front();
  if (output.hangUp) {
    hungUp_ = true;
    waiting_.clear();
    reader_.Restart();
  }
  return output;
}

void Tester::PlugIn() {
  hungUp_ = false;
  busyUntil_ = Instant::min();
}

}  // namespace sim
