#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/app/run/RunReporter.h"
#include "host/loop/ILoop.h"
#include "host/run/IOperator.h"
#include "host/run/StopRequest.h"
#include "host/toolkit/headless/Application.h"

namespace bench {

/// Puts the guide's buttons and the prompts to the person at the terminal: prints what can be chosen, and
/// takes a word a line from the standard input. The end of the input is a stop.
class AskOperator final : public IOperator {
 public:
  AskOperator(std::shared_ptr<headless::Application> application, StopRequest& stop, RunReporter& reporter);
  ~AskOperator() override;

 private:
  using Form = std::shared_ptr<orvik::platform::IForm>;

  void Put(const Form& form);
  void PutGuide(const Form& form);
  void ReadInput();
  void Choose(const std::string& word);
  void ChooseInGuide(const Form& form, const std::string& word);

  const std::shared_ptr<headless::Application> application_;
  StopRequest& stop_;
  RunReporter& reporter_;
  std::string input_;
  bool ended_ = false;
  ILoop::Id watch_ = 0;
  orvik::platform::Subscription shown_;
  orvik::platform::Subscription stopAsked_;
  std::shared_ptr<int> alive_ = std::make_shared<int>();
};

}  // namespace bench
