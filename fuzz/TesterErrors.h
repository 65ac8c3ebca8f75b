#pragma once

#include <string>

#include "fuzz/Promise.h"
#include "tester/Errors.h"

namespace fuzz {

/// Runs `step`; true if accepted. A rejection must name `place` in its message.
template <class Step>
bool IsTaken(Step step, const std::string& place) {
  try {
    step();
    return true;
  } catch (const sim::InputError& error) {
    const std::string text = error.what();
    Require(text.find(place) != std::string::npos && text.size() > place.size(),
            "the error does not name " + place + ": " + text);
    return false;
  }
}

}  // namespace fuzz
