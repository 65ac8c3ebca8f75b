#include "tests/house/ElfFile.h"

#include <elf.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "tests/house/SourceTree.h"

namespace house {

class ElfReader {
 public:
  explicit ElfReader(std::string bytes) : bytes_(std::move(bytes)) {}

  ElfFile Read() {
    ReadSections();
    elf_.strippedSize_ = bytes_.size();
    for (const auto& section : sections_) {
      if (section.sh_type == SHT_DYNSYM) ReadSymbols(section);
      if (section.sh_type == SHT_DYNAMIC) ReadDynamic(section);
      if (IsStripped(section)) elf_.strippedSize_ -= section.sh_size;
    }
    std::sort(elf_.exportedSymbols_.begin(), elf_.exportedSymbols_.end());
    return std::move(elf_);
  }

 private:
  template <class Value>
  Value At(std::uint64_t offset) const {
    Value value;
    if (offset > bytes_.size() || sizeof value > bytes_.size() - offset)
      throw std::runtime_error("the file is cut short");
    std::memcpy(&value, bytes_.data() + offset, sizeof value);
    return value;
  }

  void ReadSections() {
    const auto header = At<Elf64_Ehdr>(0);
    if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_ident[EI_CLASS] != ELFCLASS64)
      throw std::runtime_error("it is no 64-bit ELF file");
    for (unsigned index = 0; index < header.e_shnum; ++index)
      sections_.push_back(At<Elf64_Shdr>(header.e_shoff + std::uint64_t{index} * header.e_shentsize));
    names_ = sections_.at(header.e_shstrndx);
  }

  /// The text at `offset` in a section of texts.
  std::string Text(const Elf64_Shdr& texts, std::uint64_t offset) const {
    const std::uint64_t begin = texts.sh_offset + offset;
    const std::size_t end = bytes_.find('\0', begin);
    if (end == std::string::npos) throw std::runtime_error("the file is cut short");
    return bytes_.substr(begin, end - begin);
  }

  void ReadSymbols(const Elf64_Shdr& section) {
    for (std::uint64_t at = 0; at < section.sh_size; at += sizeof(Elf64_Sym)) {
      const auto symbol = At<Elf64_Sym>(section.sh_offset + at);
      if (symbol.st_shndx == SHN_UNDEF || ELF64_ST_BIND(symbol.st_info) == STB_LOCAL) continue;
      elf_.exportedSymbols_.push_back(Text(sections_.at(section.sh_link), symbol.st_name));
    }
  }

  void ReadDynamic(const Elf64_Shdr& section) {
    for (std::uint64_t at = 0; at < section.sh_size; at += sizeof(Elf64_Dyn)) {
      const auto entry = At<Elf64_Dyn>(section.sh_offset + at);
      if (entry.d_tag == DT_NEEDED)
        elf_.neededLibraries_.push_back(Text(sections_.at(section.sh_link), entry.d_un.d_val));
    }
  }

  bool IsStripped(const Elf64_Shdr& section) const {
    const std::string name = Text(names_, section.sh_name);
    return name == ".symtab" || name == ".strtab" || name.starts_with(".debug");
  }

  std::string bytes_;
  std::vector<Elf64_Shdr> sections_;
  Elf64_Shdr names_ = {};
  ElfFile elf_;
};

ElfFile ElfFile::Read(const std::filesystem::path& file) {
  try {
    return ElfReader(ReadText(file)).Read();
  } catch (const std::exception& error) {
    throw std::runtime_error(file.string() + ": " + error.what());
  }
}

}  // namespace house
