#include <exception>

#include "OrvikTypeLib/HostError.h"
#include "host/base/FileErrors.h"
#include "host/bench/DesktopModule.h"
#include "host/bench/InputError.h"
#include "host/gui/DesktopProgram.h"

namespace {

using host::bench::desktop::Ending;

/// Errors of the host before the window is open come from what was given on the command line.
Ending EndingOf(const orvik::HostError& error) {
  switch (error.Number()) {
    case orvik::HostError::kPathError:
    case orvik::HostError::kInvalidArgument:
    case orvik::HostError::kTypeMismatch:
      return Ending::kBadInput;
    case orvik::HostError::kDeviceError:
      return Ending::kNotPossible;
    default:
      return Ending::kInternalError;
  }
}

}  // namespace

extern "C" {

__attribute__((visibility("default"))) const char* OrvikDesktopVersion() { return ORVIK_VERSION; }

__attribute__((visibility("default"))) Ending OrvikRunDesktop(const host::bench::DesktopOptions& options,
                                                              std::string& reason) {
  try {
    return host::gui::RunDesktop(options) ? Ending::kInOrder : Ending::kLeftOver;
  } catch (const host::bench::InputError& error) {
    reason = error.what();
    return Ending::kBadInput;
  } catch (const host::bench::IncompleteError& error) {
    reason = error.what();
    return Ending::kNotPossible;
  } catch (const host::BusyError& error) {
    reason = error.Description();
    return Ending::kBusy;
  } catch (const host::StorageError& error) {
    reason = error.Description();
    return Ending::kNotPossible;
  } catch (const orvik::HostError& error) {
    reason = error.Description();
    return EndingOf(error);
  } catch (const std::exception& error) {
    reason = error.what();
    return Ending::kInternalError;
  }
}

}  // extern "C"
