#pragma once

#include <filesystem>

namespace host::document {
class Document;
}

namespace host::bench {

/// The file beside the document in which an earlier session may have left unsaved changes: FILE.unsaved.
std::filesystem::path UnsavedFile(const document::Document& document);

/// Keeps the document as it is now in that file, or, while that holds what an earlier session left, in
/// FILE.unsaved.2 and so on; the document's own file is left as it is. Returns the path. `HostError` when the
/// file cannot be written.
std::filesystem::path KeepUnsaved(const document::Document& document);

}  // namespace host::bench
