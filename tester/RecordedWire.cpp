#include "tester/RecordedWire.h"

#include <algorithm>
#include <array>
#include <optional>

#include "tester/Errors.h"
#include "tester/LineReader.h"
#include "tester/Message.h"
#include "tester/Text.h"
#include "tester/TextFile.h"

namespace sim {

namespace {

using std::chrono::microseconds;

// As orvik-bench notes it.
constexpr std::string_view kFailedNote = "the line has failed";

/// One line of the log, taken apart.
struct LogEntry {
  microseconds time{};
  std::string_view direction;
  std::string text;  ///< as bytes of the wire
};

/// Cuts the word before the next blank, and that blank, off `text`. Any further blank is part of a message.
std::string_view CutWord(std::string_view& text) {
  const std::size_t end = std::min(text.find(' '), text.size());
  const std::string_view word = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return word;
}

/// "2026-03-01T12:34:56.123456Z" since the epoch.
std::optional<microseconds> ParseTime(std::string_view text) {
  constexpr std::string_view kForm = "0000-00-00T00:00:00.000000Z";
  if (text.size() != kForm.size()) return std::nullopt;
  std::array<int, 7> numbers{};
  std::size_t which = 0;
  for (std::size_t i = 0; i < kForm.size(); ++i) {
    if (kForm[i] != '0') {
      if (text[i] != kForm[i]) return std::nullopt;
      ++which;
      continue;
    }
    if (text[i] < '0' || text[i] > '9') return std::nullopt;
    numbers[which] = numbers[which] * 10 + (text[i] - '0');
  }
  using namespace std::chrono;
  const year_month_day day{year(numbers[0]), month(static_cast<unsigned>(numbers[1])),
                           std::chrono::day(static_cast<unsigned>(numbers[2]))};
  if (!day.ok() || numbers[3] > 23 || numbers[4] > 59 || numbers[5] > 60) return std::nullopt;
  return sys_days(day).time_since_epoch() + hours(numbers[3]) + minutes(numbers[4]) + seconds(numbers[5]) +
         microseconds(numbers[6]);
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

/// The bytes that the log shows as text: "\x1B" is one byte, "\\" a backslash.
std::optional<std::string> HiddenBytes(std::string_view text) {
  const auto latin1 = Utf8ToLatin1(text);
  if (!latin1) return std::nullopt;
  std::string bytes;
  for (std::size_t i = 0; i < latin1->size(); ++i) {
    if ((*latin1)[i] != '\\') {
      bytes.push_back((*latin1)[i]);
      continue;
    }
    const std::string_view rest = std::string_view(*latin1).substr(i + 1);
    if (!rest.empty() && rest[0] == '\\') {
      bytes.push_back('\\');
      i += 1;
    } else if (rest.size() >= 3 && rest[0] == 'x' && HexDigit(rest[1]) >= 0 && HexDigit(rest[2]) >= 0) {
      bytes.push_back(static_cast<char>(HexDigit(rest[1]) * 16 + HexDigit(rest[2])));
      i += 3;
    } else {
      return std::nullopt;
    }
  }
  return bytes;
}

bool IsCommandOfATester(std::string_view bytes) {
  constexpr std::array<std::string_view, 4> kCommands{"IREM", "STST", "GRES", "EREM"};
  return std::find(kCommands.begin(), kCommands.end(), MnemonicOf(bytes)) != kCommands.end();
}

class Reader {
 public:
  explicit Reader(const std::string& name) { wire_.name = name; }

  void Take(const TextLine& line) {
    const LogEntry entry = TakenApart(line);
    if (entry.direction == "sent") {
      if (entry.text.empty()) Fail(line, "'sent' has no command after it");
      wire_.commands.push_back({line.number, entry.text, std::move(early_), false, {}});
      early_.clear();
      sentAt_ = entry.time;
    } else if (entry.direction == "note") {
      if (entry.text == kFailedNote && !wire_.commands.empty()) NoteFailure(entry.time);
    } else {
      TakeReply(line, entry);
    }
  }

  RecordedWire End() {
    if (wire_.commands.empty())
      throw InputError(wire_.name +
                       ": it has no sent command; give the wire log that orvik-bench wrote in a run");
    return std::move(wire_);
  }

 private:
  [[noreturn]] void Fail(const TextLine& line, const std::string& message) const {
    FailAt(wire_.name, line.number, message);
  }

  LogEntry TakenApart(const TextLine& line) const {
    std::string_view rest = line.text;
    const auto time = ParseTime(CutWord(rest));
    if (!time)
      Fail(line,
           "no time such as 2026-03-01T12:34:56.123456Z at its beginning; give the wire log that "
           "orvik-bench wrote, as it is");
    const std::string_view direction = CutWord(rest);
    if (direction != "sent" && direction != "recv" && direction != "lost" && direction != "note")
      Fail(line,
           Quoted(direction) + " is not a direction of a wire log; there are sent, recv, lost and note");
    if (direction == "note") return {*time, direction, std::string(rest)};
    auto bytes = HiddenBytes(rest);
    if (!bytes)
      Fail(line, Quoted(rest) +
                     " is not written as orvik-bench writes it: UTF-8 within ISO 8859-1, control bytes "
                     "as \\xNN, a backslash as two");
    return {*time, direction, *std::move(bytes)};
  }

  void TakeReply(const TextLine& line, const LogEntry& entry) {
    if (IsCommandOfATester(entry.text))
      Fail(line,
           "a command was received: this is keld-sim's own trace; give the wire log that orvik-bench "
           "wrote");
    RecordedWire::Line reply{entry.time - sentAt_, entry.text};
    // Of an overlong line the log keeps what fits into one; it is to be too long again.
    if (entry.direction == "lost" && reply.bytes.size() == LineReader::kMaxLine) reply.bytes.push_back('?');
    if (wire_.commands.empty()) {
      reply.after = microseconds::zero();  // before the first command the time is unknown
      early_.push_back(reply);
      return;
    }
    reply.after = std::max(reply.after, microseconds::zero());  // the computer's clock may have been set back
    wire_.commands.back().replies.push_back(reply);
  }

  void NoteFailure(microseconds time) {
    auto& command = wire_.commands.back();
    command.failed = true;
    command.failedAfter = std::max(time - sentAt_, microseconds::zero());
  }

  RecordedWire wire_;
  std::vector<RecordedWire::Line> early_;
  microseconds sentAt_{};
};

}  // namespace

RecordedWire ParseWireLog(std::string_view content, const std::string& name) {
  Reader reader(name);
  for (int number = 1; !content.empty(); ++number) {
    const std::size_t end = std::min(content.find('\n'), content.size());
    std::string_view line = content.substr(0, end);
    content.remove_prefix(std::min(end + 1, content.size()));
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);  // as it comes back by mail
    if (!line.empty()) reader.Take({number, std::string(line)});
  }
  return reader.End();
}

RecordedWire LoadWireLog(const std::string& path) {
  return ParseWireLog(ReadTextFile(path, kLargestWireLog), path);
}

}  // namespace sim
