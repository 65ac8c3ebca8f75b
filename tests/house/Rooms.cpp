#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/house/Folders.h"

namespace house {

namespace {

struct Room {
  const char* name;
  std::vector<std::string_view> beginnings;  ///< of the paths of its files
};

/// From the lowest; a file stands in the room with the longest fitting beginning.
const std::vector<Room> kRooms = {
    {"constants and services",
     {"plugin/Attempt", "plugin/ClassIdentifiers", "plugin/MKELD", "plugin/MXml", "plugin/ReportMarkup",
      "plugin/Version"}},
    {"instrument", {"instrument/"}},
    {"configuration",
     {"plugin/CKELDTestConfiguration", "plugin/Configuration", "plugin/FElementSetup", "plugin/XKELD"}},
    {"limits, measurement and results", {"instrument/CKELDMeasurement", "results/"}},
    {"the operator's windows", {"ui/"}},
    {"test model", {"model/"}},
    {"plug-in object and class library",
     {"plugin/CKELDPlugin", "plugin/Catalogue", "plugin/ClassLibrary", "plugin/EntryPoints",
      "plugin/IdentifierTable", "plugin/Picture"}},
};

std::optional<std::size_t> RoomOf(std::string_view path) {
  std::optional<std::size_t> best;
  std::size_t longest = 0;
  for (std::size_t room = 0; room < kRooms.size(); ++room) {
    for (const auto beginning : kRooms[room].beginnings) {
      if (!path.starts_with(beginning) || beginning.size() <= longest) continue;
      best = room;
      longest = beginning.size();
    }
  }
  return best;
}

/// The interface by which lower rooms drive a test.
constexpr std::string_view kForEveryRoom = "model/IKELDTest.h";

}  // namespace

Findings RoomFindings(const std::vector<SourceFile>& files) {
  Findings findings;
  for (const auto& file : files) {
    if (!IsPlugIn(file.path)) continue;
    const auto room = RoomOf(file.path);
    if (!room) {
      findings.push_back({file.path, "stands in no room: give it one in tests/house/Rooms.cpp"});
      continue;
    }
    for (const auto& include : file.includes) {
      if (!include.quoted || include.name == kForEveryRoom) continue;
      const auto included = RoomOf(include.name);
      if (included && *included > *room)
        findings.push_back({file.path + ":" + std::to_string(include.line),
                            "\"" + include.name + "\" stands higher (" + kRooms[*included].name + ") than " +
                                kRooms[*room].name + ": reach it through an interface"});
    }
  }
  return findings;
}

}  // namespace house
