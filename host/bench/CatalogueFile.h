#pragma once

#include <filesystem>
#include <string>

namespace host::bench {

/// The text of a catalogue file. `InputError` naming the file, and the line where there is one, when it
/// cannot be read, is malformed, or is not a catalogue.
std::string ReadCatalogue(const std::filesystem::path& file);

}  // namespace host::bench
