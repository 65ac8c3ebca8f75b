#include "tests/system/history/World.h"

#include <algorithm>

#include "tests/system/history/Tests.h"

namespace history {

int PlaceOf(const Record& record, const DocumentState& document) {
  const auto& runs = document.inFile;
  const auto found = std::find(runs.begin(), runs.end(), record.run);
  return found == runs.end() ? -1 : static_cast<int>(found - runs.begin());
}

bool InDoubt(const Record& record, const DocumentState& document) {
  const auto& runs = document.inFile;
  for (auto place = static_cast<std::size_t>(std::max(PlaceOf(record, document), 0)); place < runs.size();
       ++place) {
    const bool last = place + 1 == runs.size();
    const int after = last ? document.lastRun : document.runBefore.at(runs[place + 1]);
    if (document.changedRuns.contains(runs[place]) || after != runs[place]) return true;
  }
  return false;
}

Amount World::True(const Equipment& of, int testId, int setting) const {
  if (const auto known = equipment.find(of); known != equipment.end())
    if (const auto amount = known->second.find({testId, setting}); amount != known->second.end())
      return amount->second;
  auto amount = KindOf(testId).sound;
  // Each lead reads differently, or a wrong lead would not be noticed.
  if (setting > 0) amount.number = Decimal(11 + setting, -1);
  return amount;
}

int World::LeadsOf(const std::string& serial) const {
  const auto known = leads.find(serial);
  return known == leads.end() ? 0 : known->second;
}

}  // namespace history
