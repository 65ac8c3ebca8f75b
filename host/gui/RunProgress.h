#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "host/bench/ExchangeView.h"
#include "host/bench/RunEstimate.h"
#include "host/bench/RunReporter.h"
#include "toolkit/loop/ILoop.h"

namespace host::gui {

/// The progress of a run, for a window to show.
class RunProgress final : public bench::RunReporter {
 public:
  /// @param changed called when an element has started, finished or become doubtful
  /// @param remark called with notices for the user
  RunProgress(const toolkit::loop::ILoop& loop, double timeScale, std::function<void()> changed,
              std::function<void(const std::string&)> remark);

  /// "[2/3] GRES,610,0, attempt 1 of 3: reply within 1.8 s | about 0:10 left | 610 Earth leakage, NC".
  std::string Text() const;
  /// The element that runs; 0 for none.
  std::int32_t Running() const { return running_; }
  /// The elements that have finished in the guide that is open, in this order.
  const std::vector<std::int32_t>& FinishedInGuide() const { return finished_; }
  /// Its place among all that are run, from 1, and how many those are; 0 before the first.
  std::size_t Place() const { return place_; }
  std::size_t Count() const { return count_; }

  void Planned(const std::vector<std::size_t>& tests) override { estimate_.Plan(tests); }
  void Reached(std::size_t place, std::size_t count) override;
  void Started(const judge::JudgedElement& element) override;
  void Finished(const judge::JudgedElement& element) override;
  void Wire(const serial::WireRecord& record) override;
  void Prompted(const std::string&) override {}  // the prompt is a window of its own
  void Doubted(std::int32_t element, const document::Reason& doubt) override;
  void Remark(const std::string& text) override { remark_(text); }
  void Over() override;

 private:
  const toolkit::loop::ILoop& loop_;
  const double timeScale_;
  const std::function<void()> changed_;
  const std::function<void(const std::string&)> remark_;
  bench::ExchangeView exchange_;
  bench::RunEstimate estimate_;
  std::size_t place_ = 0;
  std::size_t count_ = 0;
  std::int32_t running_ = 0;
  std::vector<std::int32_t> finished_;
  std::string element_;
};

}  // namespace host::gui
