#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "tester/Errors.h"
#include "tester/Tester.h"

namespace sim::test {

/// A fresh folder, removed with everything in it at the end.
class TempFolder {
 public:
  TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder();

  /// The path of `name` in the folder.
  std::string Path(const std::string& name) const { return (path_ / name).string(); }

  /// Writes a file and gives its path.
  std::string Write(const std::string& name, std::string_view content) const;

 private:
  std::filesystem::path path_;
};

/// Whether there is something at the path, be it a link to nothing.
bool Stands(const std::string& path);

/// All of a file.
std::string ReadAll(const std::string& path);

/// Gives `bytes` to the tester and everything it will ever say to them, whenever it is due.
std::string Ask(Tester& tester, std::string_view bytes);

/// The message of the InputError that `work` throws; "(no InputError)" when it throws none.
template <typename Work>
std::string InputErrorOf(Work work) {
  try {
    work();
  } catch (const InputError& error) {
    return error.what();
  }
  return "(no InputError)";
}

}  // namespace sim::test
