#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/bench/RunReporter.h"
#include "host/run/IOperator.h"
#include "host/run/StopRequest.h"
#include "toolkit/headless/Application.h"
#include "toolkit/loop/ILoop.h"

namespace host::cli {

/// Puts the guide's buttons and the prompts to the person at the terminal: prints the test and what can be
/// chosen, and takes a word a line from the standard input. An empty line chooses nothing. The end of the
/// input is a stop.
class AskOperator final : public run::IOperator {
 public:
  /// @param test returns number and name of the test whose guide is shown
  AskOperator(std::shared_ptr<toolkit::headless::Application> application, run::StopRequest& stop,
              bench::RunReporter& reporter, std::function<std::string()> test);
  ~AskOperator() override;

  void OnWindowReady(const Form& form) override;
  void OnStopRequested() override;

 private:
  void PutGuide(const Form& form);
  void ReadInput();
  void Choose(const std::string& word);
  void ChooseInGuide(const Form& form, const std::string& word);
  void AskNotApplicable();
  void Click(const Form& form, std::int32_t command);

  const std::shared_ptr<toolkit::headless::Application> application_;
  run::StopRequest& stop_;
  bench::RunReporter& reporter_;
  const std::function<std::string()> test_;
  std::string input_;
  /// The guide whose test is to be recorded as not applicable if the person confirms it.
  std::weak_ptr<orvik::platform::IForm> unconfirmed_;
  bool ended_ = false;
  toolkit::loop::ILoop::Id watch_ = 0;
  std::shared_ptr<int> alive_ = std::make_shared<int>();
};

}  // namespace host::cli
