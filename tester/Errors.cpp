#include "tester/Errors.h"

#include <system_error>

namespace sim {

SystemFailure::SystemFailure(const std::string& what, int error)
    : std::runtime_error(what + ": " + std::generic_category().message(error)) {}

}  // namespace sim
