#pragma once

#include <iosfwd>
#include <nlohmann/json_fwd.hpp>

#include "host/bench/ExchangeView.h"
#include "host/bench/RunReporter.h"
#include "toolkit/loop/ILoop.h"

namespace host::cli {

/// `run --events`: one JSON object a line as things happen, each with "event" and "time" (seconds since the
/// program's start, on the clock of the run).
class EventLines final : public bench::RunReporter {
 public:
  EventLines(std::ostream& out, const toolkit::loop::ILoop& loop) : out_(out), loop_(loop) {}

  void Planned(const std::vector<std::size_t>& tests) override;
  void Reached(std::size_t place, std::size_t count) override;
  void Started(const judge::JudgedElement& element) override;
  void Finished(const judge::JudgedElement& element) override;
  void Wire(const serial::WireRecord& record) override;
  void Prompted(const std::string& text) override;
  void Doubted(std::int32_t element, const document::Reason& doubt) override;
  void Remark(const std::string& text) override;
  void Over() override {}  // "ended" follows, with the outcome
  void Ended(judge::Outcome outcome, int exitStatus) override;

 private:
  /// @param fields what the line says beside event and time
  void Print(const char* event, const nlohmann::ordered_json& fields);

  std::ostream& out_;
  const toolkit::loop::ILoop& loop_;
  bench::ExchangeView exchange_;
};

}  // namespace host::cli
