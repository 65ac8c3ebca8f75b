#include "host/standards/LimitSets.h"

#include <algorithm>
#include <system_error>

#include "OrvikTypeLib/HostError.h"
#include "host/base/FileErrors.h"
#include "host/base/Files.h"
#include "host/base/Tr.h"

namespace host::standards {
namespace {

constexpr char kEnding[] = ".xml";

[[noreturn]] void RefuseSet(const std::string& reason) {
  throw orvik::HostError(orvik::HostError::kInvalidArgument, "orvik-bench", reason);
}

}  // namespace

std::vector<std::filesystem::path> LimitSets::Files() const {
  std::vector<std::filesystem::path> files;
  for (const auto& folder : folders_) {
    std::error_code error;
    if (!std::filesystem::exists(folder, error)) continue;
    std::vector<std::filesystem::path> here;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
      if (entry->path().extension() == kEnding) here.push_back(entry->path());
    }
    if (error)
      ThrowFileError(folder, Tr("%%1 cannot be read"), error.value(),
                     Tr("check the folder and your permissions"));
    std::sort(here.begin(), here.end());
    files.insert(files.end(), here.begin(), here.end());
  }
  return files;
}

std::vector<LimitSets::Entry> LimitSets::All() const {
  std::vector<Entry> entries;
  for (const auto& file : Files()) {
    Entry entry{file, {}, {}};
    try {
      entry.set = ReadLimitSet(file);
    } catch (const orvik::HostError& error) {
      entry.fault = error.Description();
    }
    entries.push_back(std::move(entry));
  }
  return entries;
}

LimitSet LimitSets::Find(const std::string& nameOrPath) const {
  const std::filesystem::path asPath(nameOrPath);
  if (asPath.has_parent_path() || asPath.extension() == kEnding) return ReadLimitSet(asPath);
  std::vector<std::filesystem::path> found;
  for (const auto& file : Files()) {
    if (file.stem() == nameOrPath) found.push_back(file);
  }
  if (found.empty())
    RefuseSet(Tr("unknown set of limits \"%%1\"; \"orvik-bench standards\" lists them", {nameOrPath}));
  if (found.size() > 1)
    RefuseSet(Tr("the set of limits \"%%1\" exists twice, as %%2 and %%3; give the path of one",
                 {nameOrPath, found[0].string(), found[1].string()}));
  return ReadLimitSet(found[0]);
}

}  // namespace host::standards
