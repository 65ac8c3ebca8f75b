#pragma once

#include <string>

namespace host {

/// The C library's English text of an error number (`errno`).
std::string SystemError(int error);

}  // namespace host
