#pragma once

#include <memory>
#include <utility>

#include "host/run/IOperator.h"
#include "toolkit/headless/Application.h"

namespace host::bench {

/// Leaves the guide and the prompts to the person before the screen, and brings them to their end when a stop
/// is asked for.
class ScreenOperator final : public run::IOperator {
 public:
  explicit ScreenOperator(std::shared_ptr<toolkit::headless::Application> application)
      : application_(std::move(application)) {}
  ~ScreenOperator() override;

  /// Nothing to do: the person operates the window.
  void OnWindowReady(const Form&) override {}
  /// Leaves the guide and its prompts, as often as it takes.
  void OnStopRequested() override;

 private:
  const std::shared_ptr<toolkit::headless::Application> application_;
  toolkit::loop::ILoop::Id again_ = 0;
};

}  // namespace host::bench
