#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/house/Folders.h"

namespace house {

namespace {

/// A header and its source: the path without its extension.
std::string UnitOf(const std::string& path) { return path.substr(0, path.rfind('.')); }

class CircleSearch {
 public:
  explicit CircleSearch(const std::vector<SourceFile>& files) {
    for (const auto& file : files)
      for (const auto& include : file.includes)
        if (include.quoted && UnitOf(include.name) != UnitOf(file.path))
          includes_[UnitOf(file.path)].insert(UnitOf(include.name));
  }

  Findings Search() {
    for (const auto& [unit, includes] : includes_) Visit(unit);
    return findings_;
  }

 private:
  void Visit(const std::string& unit) {
    if (done_.contains(unit)) return;
    const auto onWay = std::find(way_.begin(), way_.end(), unit);
    if (onWay != way_.end()) return Report({onWay, way_.end()});
    way_.push_back(unit);
    if (const auto found = includes_.find(unit); found != includes_.end())
      for (const auto& next : found->second) Visit(next);
    way_.pop_back();
    done_.insert(unit);
  }

  void Report(const std::vector<std::string>& circle) {
    std::string way;
    for (const auto& unit : circle) way += unit + " -> ";
    findings_.push_back({circle.front(), "stands in a circle: " + way + circle.front()});
  }

  std::map<std::string, std::set<std::string>> includes_;
  std::vector<std::string> way_;
  std::set<std::string> done_;
  Findings findings_;
};

}  // namespace

Findings CircleFindings(const std::vector<SourceFile>& files) { return CircleSearch(files).Search(); }

}  // namespace house
