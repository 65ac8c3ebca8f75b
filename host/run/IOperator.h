#pragma once

#include <memory>

#include "platform/IForm.h"

namespace host::run {

/// Operates the plug-in's windows during a run: the program, or a person by another medium than the window
/// itself. `OperatorEvents` calls it.
class IOperator {
 public:
  using Form = std::shared_ptr<orvik::platform::IForm>;

  IOperator() = default;
  IOperator(const IOperator&) = delete;
  IOperator& operator=(const IOperator&) = delete;
  virtual ~IOperator() = default;

  /// A window, the guide or a prompt, is visible and waits for its operator.
  virtual void OnWindowReady(const Form& form) = 0;
  /// A stop was requested: end what the visible windows do.
  virtual void OnStopRequested() = 0;
};

}  // namespace host::run
