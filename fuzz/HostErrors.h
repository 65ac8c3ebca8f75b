#pragma once

#include <optional>
#include <string>

#include "OrvikTypeLib/HostError.h"
#include "fuzz/Promise.h"

namespace fuzz {

/// Why the step was refused; none when it went through. Requires that a refusal is a `HostError` of that
/// number and says something.
/// @param place what the text has to name: the file, or the line
template <class Step>
std::optional<std::string> RefusalOf(Step step, std::int32_t number, const std::string& place) {
  try {
    step();
    return std::nullopt;
  } catch (const orvik::HostError& error) {
    Require(error.Number() == number,
            "error " + std::to_string(error.Number()) + " is not the documented one: " + error.Description());
    Require(error.Description().find(place) != std::string::npos,
            "the error does not name " + place + ": " + error.Description());
    return error.Description();
  }
}

}  // namespace fuzz
