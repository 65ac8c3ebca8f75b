#pragma once

#include <filesystem>

#include "tests/system/history/Operation.h"
#include "tests/system/history/World.h"

namespace history {

/// Changes a document's file as another program does, and the world with it. Digests are never computed anew:
/// whoever does that forges, and no document can show it.
/// @return false when there was nothing of the kind to change
bool Tamper(const std::filesystem::path& file, const Tampering& tampering, DocumentState& document);

}  // namespace history
