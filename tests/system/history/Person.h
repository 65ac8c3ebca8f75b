#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "host/run/IOperator.h"
#include "platform/IApplication.h"
#include "platform/IForm.h"
#include "tests/system/history/Operation.h"

namespace history {

/// Presses the guide's buttons as a history says: one entry for each guide, then play and next. Answers
/// questions with yes and acknowledges messages.
class Person final : public host::run::IOperator {
 public:
  /// Called before a button is pressed, and whether the guide waits for it.
  using Listener = std::function<void(Press press, bool inWaitingGuide)>;

  Person(std::shared_ptr<orvik::platform::IApplication> application, std::vector<Press> presses,
         Listener listener)
      : application_(std::move(application)), presses_(std::move(presses)), listener_(std::move(listener)) {}

  /// Presses abort in the guide that is shown, if there is one.
  void Abort();

 private:
  void OnWindowReady(const Form& form) override;
  void OnStopRequested() override {}
  void OperateGuide(const Form& form);
  void Click(const Form& form, std::int32_t button) const;

  const std::shared_ptr<orvik::platform::IApplication> application_;
  const std::vector<Press> presses_;
  const Listener listener_;
  std::size_t next_ = 0;
  std::shared_ptr<int> alive_ = std::make_shared<int>();
};

}  // namespace history
