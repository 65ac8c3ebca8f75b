#include "tests/tester/TestTools.h"

#include <stdlib.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace sim::test {

TempFolder::TempFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "keld-sim-test-XXXXXX").string();
  if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder could be made: " + pattern);
  path_ = pattern;
}

TempFolder::~TempFolder() {
  std::error_code ignored;  // a folder left behind does no harm
  std::filesystem::remove_all(path_, ignored);
}

std::string TempFolder::Write(const std::string& name, std::string_view content) const {
  std::ofstream(Path(name), std::ios::binary) << content;
  return Path(name);
}

bool Stands(const std::string& path) {
  return std::filesystem::exists(std::filesystem::symlink_status(path));
}

std::string ReadAll(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string Ask(Tester& tester, std::string_view bytes) {
  tester.Receive(bytes, Instant::zero());
  std::string said;
  while (const auto due = tester.NextDue()) said += tester.TakeDue(*due)->bytes;
  return said;
}

}  // namespace sim::test
