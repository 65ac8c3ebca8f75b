#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "OrvikTypeLib/HostError.h"

namespace support {

/// The error that the step ends with; none when it goes through.
template <class Step>
std::optional<orvik::HostError> ErrorOf(Step step) {
  try {
    step();
    return {};
  } catch (const orvik::HostError& error) {
    return orvik::HostError(error);
  }
}

/// The number of the error that the step ends with; 0 when it goes through.
template <class Step>
std::int32_t ErrorNumber(Step step) {
  const auto error = ErrorOf(step);
  return error ? error->Number() : 0;
}

/// The text of the error that the step ends with; empty when it goes through.
template <class Step>
std::string ErrorText(Step step) {
  const auto error = ErrorOf(step);
  return error ? error->Description() : std::string();
}

/// Whether the text holds the part, with both in the message when it does not.
inline ::testing::AssertionResult Holds(const std::string& text, const std::string& part) {
  if (text.find(part) != std::string::npos) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "\"" << text << "\" does not hold \"" << part << "\"";
}

}  // namespace support
