#pragma once

#include <filesystem>

#include "tests/system/history/Operation.h"
#include "tests/system/history/World.h"

namespace history {

/// Changes a document's file as another program does, and the world with it. Never computes digests anew:
/// that would be forgery, which a document cannot show.
/// @return false if there was nothing of the kind to change
bool Tamper(const std::filesystem::path& file, const Tampering& tampering, DocumentState& document);

}  // namespace history
