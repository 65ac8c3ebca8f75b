#include "host/base/SystemError.h"

#include <system_error>

namespace host {

std::string SystemError(int error) { return std::system_category().message(error); }

}  // namespace host
