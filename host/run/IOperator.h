#pragma once

namespace bench {

/// Who operates the windows of a run. Works for as long as it lives.
class IOperator {
 public:
  IOperator() = default;
  IOperator(const IOperator&) = delete;
  IOperator& operator=(const IOperator&) = delete;
  virtual ~IOperator() = default;
};

}  // namespace bench
