#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace house {

/// A 64-bit ELF file of this machine's byte order, as the loader sees it.
class ElfFile {
 public:
  /// @throws std::runtime_error naming the file when it cannot be read or is cut short or of another kind
  static ElfFile Read(const std::filesystem::path& file);

  /// Names of the symbols that others may link to, sorted.
  const std::vector<std::string>& ExportedSymbols() const { return exportedSymbols_; }
  /// Names of the libraries that are loaded with it, in order.
  const std::vector<std::string>& NeededLibraries() const { return neededLibraries_; }
  /// Bytes of the file without the symbol table and the debugger's sections, as `strip` leaves it.
  std::uint64_t StrippedSize() const { return strippedSize_; }

 private:
  friend class ElfReader;

  std::vector<std::string> exportedSymbols_;
  std::vector<std::string> neededLibraries_;
  std::uint64_t strippedSize_ = 0;
};

}  // namespace house
