#pragma once

#include <gtest/gtest.h>

#include <exception>
#include <string>
#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "tests/contract/conformance/LoadedLibrary.h"

namespace conformance {

/// Whether a call succeeds, or raises a `HostError` with a description.
template <class Call>
testing::AssertionResult OnlyHostErrorCrosses(Call&& call) {
  try {
    std::forward<Call>(call)();
  } catch (const orvik::HostError& error) {
    if (error.Description().empty())
      return testing::AssertionFailure() << "a HostError without a description";
  } catch (const std::exception& error) {
    return testing::AssertionFailure() << "not a HostError: " << error.what();
  } catch (...) {
    return testing::AssertionFailure() << "not a HostError";
  }
  return testing::AssertionSuccess();
}

/// Number of the `HostError` that the call throws; 0 if it succeeds. Any other exception fails the test.
template <class Call>
std::int32_t ErrorNumberOf(Call&& call) {
  try {
    std::forward<Call>(call)();
  } catch (const orvik::HostError& error) {
    return error.Number();
  }
  return 0;
}

/// The contract's checks that every plug-in library has to pass.
class EveryPlugIn : public testing::TestWithParam<Subject> {
 protected:
  EveryPlugIn() : library_(GetParam()) {}
  LoadedLibrary library_;
};

/// Instantiates a suite of such checks for both libraries.
#define FOR_EVERY_PLUG_IN(suite)                                                                     \
  INSTANTIATE_TEST_SUITE_P(Loaded, suite,                                                            \
                           testing::Values(conformance::KeldPlugIn(), conformance::CheckerPlugIn()), \
                           [](const auto& subject) { return subject.param.name; })

/// Checks of what the KELD plug-in alone promises.
class KeldPlugInLoaded : public testing::Test {
 protected:
  KeldPlugInLoaded() : library_(KeldPlugIn()) {}
  LoadedLibrary library_;
};

}  // namespace conformance
