#pragma once

#include <iosfwd>
#include <memory>
#include <string>

#include "host/bench/ExchangeView.h"
#include "host/bench/RunEstimate.h"
#include "host/bench/RunReporter.h"
#include "toolkit/loop/ILoop.h"

namespace host::cli {

/// Prints the progress of a run in lines; on a terminal, also one line below them that is updated while the
/// run waits.
class ProgressLines final : public bench::RunReporter {
 public:
  /// @param descriptor the one that `out` writes to
  ProgressLines(std::ostream& out, int descriptor, std::shared_ptr<toolkit::loop::ILoop> loop,
                double timeScale);
  ~ProgressLines() override;

  void Planned(const std::vector<std::size_t>& tests) override { estimate_.Plan(tests); }
  void Reached(std::size_t place, std::size_t count) override;
  void Started(const judge::JudgedElement& element) override;
  void Finished(const judge::JudgedElement& element) override;
  void Wire(const serial::WireRecord& record) override;
  void Prompted(const std::string& text) override;
  void Doubted(std::int32_t element, const document::Reason& doubt) override;
  void Remark(const std::string& text) override;
  void Over() override;

 private:
  void Print(const std::string& line);
  void Redraw();
  void Erase();

  std::ostream& out_;
  const bool terminal_;
  const bool coloured_;
  const std::shared_ptr<toolkit::loop::ILoop> loop_;
  const double timeScale_;
  const orvik::platform::Time interval_;
  toolkit::loop::ILoop::Id next_ = 0;
  bench::ExchangeView exchange_;
  bench::RunEstimate estimate_;
  std::string place_;
  std::string element_;
  bool drawn_ = false;
};

}  // namespace host::cli
