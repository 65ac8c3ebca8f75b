#include "host/bench/UnsavedChanges.h"

#include <string>
#include <system_error>

#include "host/base/Files.h"
#include "host/document/Document.h"

namespace host::bench {

std::filesystem::path UnsavedFile(const document::Document& document) {
  auto file = document.Path();
  file += ".unsaved";
  return file;
}

std::filesystem::path KeepUnsaved(const document::Document& document) {
  auto file = UnsavedFile(document);
  // Never overwrite what an earlier session kept.
  std::error_code none;
  for (int number = 2; std::filesystem::exists(file, none); ++number) {
    file = UnsavedFile(document);
    file += "." + std::to_string(number);
  }
  ReplaceFile(file, document.Text());
  return file;
}

}  // namespace host::bench
