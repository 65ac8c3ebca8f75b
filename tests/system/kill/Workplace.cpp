#include "tests/system/kill/Workplace.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <system_error>

#include "tests/support/ReadFile.h"

namespace kill_test {

Workplace::Workplace(std::filesystem::path folder) : folder_(std::move(folder)) {
  std::filesystem::create_directories(folder_);
}

std::vector<std::string> Workplace::Words(const std::vector<std::string>& words) const {
  std::vector<std::string> all{ORVIK_BENCH_PATH, "--state", Path("state")};
  for (const auto& word : words) all.push_back(word[0] == '@' ? Path(word.substr(1)) : word);
  return all;
}

std::string Workplace::Bench(const std::vector<std::string>& words) const {
  auto ended = Run(Words(words));
  if (ended.status != 0)
    throw std::runtime_error(words[0] + " ended with " + std::to_string(ended.status) + ": " + ended.error);
  return ended.out;
}

std::string Workplace::Contents(const std::string& name) const { return support::ReadFile(Path(name)); }

Workplace Workplace::CopyTo(const std::filesystem::path& folder) const {
  std::filesystem::remove_all(folder);
  std::filesystem::copy(folder_, folder, std::filesystem::copy_options::recursive);
  return Workplace(folder);
}

FastFolder::FastFolder() {
  const std::filesystem::path memory("/dev/shm");
  const auto base =
      access(memory.c_str(), W_OK | X_OK) == 0 ? memory : std::filesystem::temp_directory_path();
  std::string pattern = (base / "orvik-kill-XXXXXX").string();
  if (!mkdtemp(pattern.data())) throw std::system_error(errno, std::generic_category(), pattern);
  path_ = pattern;
  // The simulated testers of killed programs leave their folders behind.
  const auto temporary = path_ / "tmp";
  std::filesystem::create_directory(temporary);
  setenv("TMPDIR", temporary.c_str(), 1);
}

FastFolder::~FastFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace kill_test
