#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "host/base/Files.h"

namespace host::document {

/// The file of a document. Whoever may write it holds it alone: a lock lies on the file itself and moves to
/// each new file that takes its place, so two programs never overwrite each other. Reading needs no lock,
/// since a file is only ever replaced as a whole.
///
/// All errors are `HostError` 75 naming the file; `BusyError` when another program holds it.
class DocumentFile {
 public:
  enum class Use { kRead, kWrite };

  /// A file that is there. For writing it must not be open in another program, nor write-protected.
  static DocumentFile Existing(const std::filesystem::path& file, Use use);
  /// A file that is created by the first write. Refused when it is there already.
  static DocumentFile New(const std::filesystem::path& file);

  const std::filesystem::path& Path() const { return path_; }

  std::string Read() const;

  /// Replaces the content; a crash leaves the old or the new one. Refused when another program has changed
  /// the file meanwhile. When only the flush of the folder fails, the file has its new content all the same.
  void Write(std::string_view contents);

 private:
  /// Tells one state of a file from another.
  struct Stamp {
    std::uint64_t device = 0, inode = 0, size = 0;
    std::int64_t seconds = 0, nanoseconds = 0;
    bool operator==(const Stamp&) const = default;
  };

  static std::optional<Stamp> StampOf(const std::filesystem::path& file);
  static std::optional<Stamp> StampOf(int descriptor);

  bool TryOpen(Use use);
  void Lock(int descriptor) const;

  std::filesystem::path path_;
  UniqueFd descriptor_;
  Use use_ = Use::kRead;
  /// The file as this object left it; none while it has not been created.
  std::optional<Stamp> stamp_;
};

}  // namespace host::document
