#include "host/document/RecordedIdentifiers.h"

#include <algorithm>
#include <sstream>
#include <string>

#include "host/services/Text.h"

namespace bench {
namespace {

/// What is not a number names no element.
std::int32_t HighestIn(const std::string& identifiers) {
  std::int32_t highest = 0;
  std::istringstream words(identifiers);
  for (std::string word; words >> word;) highest = std::max(highest, WholeNumber(word).value_or(0));
  return highest;
}

}  // namespace

std::int32_t HighestRecordedIdentifier(pugi::xml_node root) {
  std::int32_t highest = 0;
  for (const auto run : root.child("Runs").children("Run")) {
    highest = std::max(highest, HighestIn(run.child("Takes").attribute("Elements").value()));
    for (const auto test : run.children("Test"))
      highest = std::max(highest, HighestIn(test.attribute("Element").value()));
  }
  return highest;
}

}  // namespace bench
