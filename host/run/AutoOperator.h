#pragma once

#include <memory>
#include <string>

#include "host/run/IOperator.h"
#include "host/run/StopRequest.h"
#include "platform/IApplication.h"
#include "platform/IForm.h"

namespace bench {

/// Operates the plug-in's windows by itself: in the guide play, then next; prompts are acknowledged. A stop
/// that is asked for presses the guide's stop.
class AutoOperator final : public IOperator {
 public:
  AutoOperator(std::shared_ptr<orvik::platform::IApplication> application, StopRequest& stop);

  /// A prompt was shown and is about to be acknowledged: its text.
  orvik::platform::Event<const std::string&>& Prompted() { return prompted_; }

 private:
  using Form = std::shared_ptr<orvik::platform::IForm>;

  void Shown(const Form& form);
  void Operate(const Form& form);
  void OperateGuide(const Form& form);
  void Acknowledge(const Form& form, const char* button);
  void PressStop();

  const std::shared_ptr<orvik::platform::IApplication> application_;
  StopRequest& stop_;
  orvik::platform::Event<const std::string&> prompted_;
  orvik::platform::Subscription shown_;
  orvik::platform::Subscription stopAsked_;
  /// Expired once this object is gone: work may still be posted then.
  std::shared_ptr<int> alive_ = std::make_shared<int>();
};

}  // namespace bench
