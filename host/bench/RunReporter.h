#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "host/judge/Verdict.h"
#include "host/serial/Wire.h"

namespace host::bench {

/// Reports the progress of a run.
class RunReporter {
 public:
  RunReporter() = default;
  RunReporter(const RunReporter&) = delete;
  RunReporter& operator=(const RunReporter&) = delete;
  virtual ~RunReporter() = default;

  /// Before the first element: the number of single tests in each element at the top.
  virtual void Planned(const std::vector<std::size_t>& tests) = 0;
  /// The run has reached an element at the top: its place from 1, the number of all.
  virtual void Reached(std::size_t place, std::size_t count) = 0;
  virtual void Started(const judge::JudgedElement& element) = 0;
  virtual void Finished(const judge::JudgedElement& element) = 0;
  virtual void Wire(const serial::WireRecord& record) = 0;
  virtual void Prompted(const std::string& text) = 0;
  virtual void Doubted(std::int32_t element, const document::Reason& doubt) = 0;
  /// A message for people.
  virtual void Remark(const std::string& text) = 0;
  /// The run is over; nothing more is waited for.
  virtual void Over() = 0;
  /// The document is judged: its outcome, and the program's exit status.
  virtual void Ended(judge::Outcome, int) {}
};

}  // namespace host::bench
