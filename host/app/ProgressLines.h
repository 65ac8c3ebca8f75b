#pragma once

#include <iosfwd>
#include <memory>
#include <string>

#include "host/app/ExchangeView.h"
#include "host/app/RunReporter.h"
#include "host/loop/ILoop.h"

namespace bench {

/// Shows people how a run goes: plain lines, and on a terminal below them one line that is kept up to date
/// while the run waits.
class ProgressLines final : public RunReporter {
 public:
  /// @param terminal whether `out` is one
  ProgressLines(std::ostream& out, bool terminal, std::shared_ptr<ILoop> loop, double timeScale);
  ~ProgressLines() override;

  void Reached(std::size_t place, std::size_t count) override;
  void Started(const ElementSummary& element) override;
  void Finished(const ElementSummary& element) override;
  void Wire(const WireRecord& record) override;
  void Prompted(const std::string& text) override;
  void Doubted(std::int32_t element, const std::string& doubt) override;
  void Remark(const std::string& text) override;

 private:
  void Print(const std::string& line);
  void Redraw();
  void Erase();

  std::ostream& out_;
  const bool terminal_;
  const std::shared_ptr<ILoop> loop_;
  const orvik::platform::Time interval_;
  ILoop::Id next_ = 0;
  ExchangeView exchange_;
  std::string place_;
  std::string element_;
  bool drawn_ = false;
};

}  // namespace bench
