#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/architecture/Arrows.h"

namespace house {

namespace {

class CircleSearch {
 public:
  explicit CircleSearch(const std::vector<SourceFile>& files) {
    for (const auto& file : files)
      for (const auto& include : file.includes)
        if (include.quoted) includes_[file.path].insert(include.name);
  }

  Findings Search() {
    for (const auto& entry : includes_) Visit(entry.first);
    return findings_;
  }

 private:
  void Visit(const std::string& file) {
    if (done_.contains(file)) return;
    const auto onWay = std::find(way_.begin(), way_.end(), file);
    if (onWay != way_.end()) return Report({onWay, way_.end()});
    way_.push_back(file);
    if (const auto found = includes_.find(file); found != includes_.end())
      for (const auto& next : found->second) Visit(next);
    way_.pop_back();
    done_.insert(file);
  }

  void Report(const std::vector<std::string>& circle) {
    std::string way;
    for (const auto& file : circle) way += file + " -> ";
    findings_.push_back({circle.front(), "includes itself: " + way + circle.front()});
  }

  std::map<std::string, std::set<std::string>> includes_;
  std::vector<std::string> way_;
  std::set<std::string> done_;
  Findings findings_;
};

}  // namespace

Findings CircleFindings(const std::vector<SourceFile>& files) { return CircleSearch(files).Search(); }

}  // namespace house
