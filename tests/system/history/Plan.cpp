#include "tests/system/history/Plan.h"

#include <algorithm>
#include <utility>

#include "tests/system/history/Tests.h"

namespace history {
namespace {

void Gather(const Element& top, std::vector<const Element*>& all) {
  all.push_back(&top);
  for (const auto& child : top.children) Gather(child, all);
}

bool FindIn(std::vector<Element>& list, int id, std::pair<std::vector<Element>*, std::size_t>& place) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (list[i].id == id) {
      place = {&list, i};
      return true;
    }
    if (FindIn(list[i].children, id, place)) return true;
  }
  return false;
}

}  // namespace

std::optional<bool> Limit::BrokenBy(const Amount& amount) const {
  const auto number = amount.In(unit);
  if (!number) return {};
  return (low && *number < *low) || (high && *number > *high);
}

void Element::SetLimit(const Limit& limit) {
  const auto found = std::find_if(limits.begin(), limits.end(), [&](const Limit& other) {
    return other.standard == limit.standard && other.description == limit.description;
  });
  if (found == limits.end())
    limits.push_back(limit);
  else
    *found = limit;
  recordOnly = false;
}

std::vector<const Element*> Below(const Element& top) {
  std::vector<const Element*> all;
  Gather(top, all);
  return all;
}

std::pair<std::vector<Element>*, std::size_t> Plan::PlaceOf(int id) {
  std::pair<std::vector<Element>*, std::size_t> place{nullptr, 0};
  FindIn(elements, id, place);
  return place;
}

Element* Plan::Find(int id) {
  const auto [list, place] = PlaceOf(id);
  return list ? &(*list)[place] : nullptr;
}

std::vector<const Element*> Plan::All() const {
  std::vector<const Element*> all;
  for (const auto& top : elements) Gather(top, all);
  return all;
}

std::vector<Element*> Plan::All() {
  std::vector<Element*> all;
  for (const auto* element : std::as_const(*this).All()) all.push_back(const_cast<Element*>(element));
  return all;
}

const Element* Plan::ParentOf(int id) const {
  for (const auto* element : All())
    for (const auto& child : element->children)
      if (child.id == id) return element;
  return nullptr;
}

int Plan::HighestId() const {
  int highest = 0;
  for (const auto* element : All()) highest = std::max(highest, element->id);
  return highest;
}

Element Plan::Made(int testId, int& next) {
  const auto& kind = KindOf(testId);
  Element made;
  made.id = next++;
  made.testId = testId;
  made.group = !kind.children.empty();
  made.options = kind.options;
  for (const int child : kind.children) made.children.push_back(Made(child, next));
  return made;
}

}  // namespace history
