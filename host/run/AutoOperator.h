#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "host/run/IOperator.h"
#include "host/run/StopRequest.h"
#include "platform/IApplication.h"

namespace host::run {

/// Operates the plug-in's windows by itself: play, then next in the guide; prompts are acknowledged.
class AutoOperator final : public IOperator {
 public:
  /// @param stop must outlive this object
  /// @param prompted receives the text of each prompt before it is acknowledged
  AutoOperator(std::shared_ptr<orvik::platform::IApplication> application, const StopRequest& stop,
               std::function<void(const std::string&)> prompted = {})
      : application_(std::move(application)), stop_(stop), prompted_(std::move(prompted)) {}

  void OnWindowReady(const Form& form) override;
  void OnStopRequested() override;

 private:
  void OperateGuide(const Form& form);
  void Acknowledge(const Form& form, const char* button);

  const std::shared_ptr<orvik::platform::IApplication> application_;
  const StopRequest& stop_;
  const std::function<void(const std::string&)> prompted_;
  /// Expires with this object, so that a posted call does nothing afterwards.
  const std::shared_ptr<int> alive_ = std::make_shared<int>();
};

}  // namespace host::run
