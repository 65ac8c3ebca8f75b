#include "host/bench/ProgramFiles.h"

#include <cstdlib>
#include <string>

#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/plugins/keld/KeldNames.h"

namespace host::bench::files {

namespace {

std::filesystem::path Prefix() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path().parent_path();
}

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

}  // namespace

std::filesystem::path PlugInLibrary() { return Prefix() / "lib" / "orvik" / plugins::keld::kLibraryFile; }

std::filesystem::path PdfModule() { return Prefix() / "lib" / "orvik" / "orvikPdf.so"; }

std::filesystem::path DesktopModule() { return Prefix() / "lib" / "orvik" / "orvikDesktop.so"; }

std::filesystem::path Catalogue() { return Prefix() / "share" / "orvik" / "catalogue.xml"; }

std::filesystem::path Translations() { return Prefix() / "share" / "orvik" / "translations"; }

std::filesystem::path ShippedStandards() { return Prefix() / "share" / "orvik" / "standards"; }

std::vector<std::filesystem::path> StandardsFolders(const std::string& stateOption) {
  std::vector<std::filesystem::path> folders{ShippedStandards()};
  if (const auto state = FindStateFolder(stateOption)) folders.push_back(*state / "standards");
  return folders;
}

std::filesystem::path Simulator() { return Prefix() / "bin" / "keld-sim"; }

std::optional<std::filesystem::path> FindStateFolder(const std::string& option) {
  if (!option.empty()) return std::filesystem::path(option);
  if (const std::filesystem::path own = Environment("ORVIK_STATE"); !own.empty()) return own;
  // The XDG rules have a relative path ignored.
  if (const std::filesystem::path xdg = Environment("XDG_STATE_HOME"); xdg.is_absolute())
    return xdg / "orvik";
  if (const auto home = Environment("HOME"); !home.empty())
    return std::filesystem::path(home) / ".local" / "state" / "orvik";
  return {};
}

std::filesystem::path StateFolder(const std::string& option) {
  if (auto folder = FindStateFolder(option)) return *std::move(folder);
  throw InputError(
      Tr("no folder for settings: ORVIK_STATE, XDG_STATE_HOME and HOME are not set; name a folder with "
         "--state"));
}

}  // namespace host::bench::files
