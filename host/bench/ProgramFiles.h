#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace host::bench::files {

/// Files that come with the program, found from where the program itself lies (PREFIX/bin).

/// PREFIX/lib/orvik/orvikKELD.so
std::filesystem::path PlugInLibrary();
/// PREFIX/lib/orvik/orvikPdf.so
std::filesystem::path PdfModule();
/// PREFIX/lib/orvik/orvikDesktop.so
std::filesystem::path DesktopModule();
/// PREFIX/share/orvik/catalogue.xml
std::filesystem::path Catalogue();
/// PREFIX/share/orvik/translations
std::filesystem::path Translations();
/// PREFIX/share/orvik/standards
std::filesystem::path ShippedStandards();
/// Where sets of limits lie: the shipped ones, and the folder "standards" of the state folder for own ones.
/// @param stateOption --state, as for `FindStateFolder`
std::vector<std::filesystem::path> StandardsFolders(const std::string& stateOption);
/// PREFIX/bin/keld-sim
std::filesystem::path Simulator();

/// Where registry and error log live: `option` (--state) when it is not empty, else ORVIK_STATE, else the
/// folder "orvik" of the XDG state directory. None when the environment names none of them.
std::optional<std::filesystem::path> FindStateFolder(const std::string& option);
/// As above, but throws `InputError` if it is missing.
std::filesystem::path StateFolder(const std::string& option);

}  // namespace host::bench::files
