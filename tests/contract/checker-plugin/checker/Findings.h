#pragma once

#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/HostError.h"

namespace check {

/// The problems found while a subject is checked.
class Findings {
 public:
  /// What must hold, in words.
  void Expect(bool holds, const std::string& what) {
    if (!holds) found_.push_back("does not hold: " + what);
  }

  /// Two texts or numbers that must be the same.
  void Equal(const std::string& expected, const std::string& actual, const std::string& what) {
    if (expected != actual)
      found_.push_back(what + ": expected \"" + expected + "\", but it is \"" + actual + "\"");
  }
  void Equal(std::int64_t expected, std::int64_t actual, const std::string& what) {
    Equal(std::to_string(expected), std::to_string(actual), what);
  }

  /// A step that the host must refuse with a `HostError`, of that number where the contract names one.
  template <class Step>
  void Refused(const std::string& what, Step&& step, std::optional<std::int32_t> number = {}) {
    try {
      std::forward<Step>(step)();
      found_.push_back("is not refused: " + what);
    } catch (const orvik::HostError& error) {
      if (number && error.Number() != *number)
        found_.push_back(what + " is refused with number " + std::to_string(error.Number()) + " instead of " +
                         std::to_string(*number));
      if (error.Description().empty()) found_.push_back(what + " is refused without a description");
    } catch (const std::exception& error) {
      found_.push_back(what + " throws something other than HostError: " + error.what());
    } catch (...) {
      found_.push_back(what + " throws something other than HostError");
    }
  }

  /// A step that must go through; what else it finds is kept.
  template <class Step>
  void Try(const std::string& what, Step&& step) {
    try {
      std::forward<Step>(step)();
    } catch (const orvik::HostError& error) {
      found_.push_back(what + " fails: " + error.Source() + " " + std::to_string(error.Number()) + ": " +
                       error.Description());
    } catch (const std::exception& error) {
      found_.push_back(what + " throws something other than HostError: " + error.what());
    } catch (...) {
      found_.push_back(what + " throws something other than HostError");
    }
  }

  std::vector<std::string> Take() { return std::move(found_); }

 private:
  std::vector<std::string> found_;
};

}  // namespace check
