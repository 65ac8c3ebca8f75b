#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

/// The content of a wire log: the commands that the tester received, and its replies to each.
struct RecordedWire {
  /// One line of the tester.
  struct Line {
    std::chrono::microseconds after{};  ///< since the command
    std::string bytes;                  ///< without its line end; good or not
  };
  struct Command {
    int number = 0;  ///< of its line in the log
    std::string bytes;
    std::vector<Line> replies;
    bool failed = false;  ///< the line to the tester failed after this command
    std::chrono::microseconds failedAfter{};
  };

  std::string name;  ///< of the log
  std::vector<Command> commands;
};

/// Reads the text of a wire log as orvik-bench writes it: "TIME sent|recv|lost|note TEXT". Throws InputError
/// naming `name` and the line that is not understood; also when the log holds no command.
RecordedWire ParseWireLog(std::string_view content, const std::string& name);

/// Reads a wire log. Throws InputError, naming file and line, when it cannot.
RecordedWire LoadWireLog(const std::string& path);

}  // namespace sim
