#include "tests/system/history/Model.h"

#include <algorithm>

#include "tests/system/history/Tests.h"

namespace history {
namespace {

Limit Figure(const std::string& description, std::optional<Decimal> low, std::optional<Decimal> high,
             const std::string& unit) {
  return {"House rule", description, low, high, unit};
}

bool AllThere(const Plan& plan, const std::vector<int>& elements) {
  return std::all_of(elements.begin(), elements.end(), [&](int id) { return plan.Find(id) != nullptr; });
}

bool PlaceIsThere(const Operation& operation, const Plan& plan) {
  if (operation.place.empty() || operation.place == "--to-end") return true;
  const auto* neighbour = plan.Find(operation.placeOf);
  if (!neighbour || (operation.place == "--to" && !neighbour->group)) return false;
  if (operation.kind != Operation::Kind::kMove) return true;
  const auto moved = Below(*plan.Find(operation.elements.front()));
  return std::none_of(moved.begin(), moved.end(),
                      [&](const Element* element) { return element->id == operation.placeOf; });
}

/// Puts elements where the operation says.
void Put(Plan& plan, const Operation& operation, std::vector<Element> added) {
  auto* list = &plan.elements;
  auto place = list->size();
  if (operation.place == "--to") {
    list = &plan.Find(operation.placeOf)->children;
    place = list->size();
  } else if (operation.place == "--before" || operation.place == "--after") {
    std::tie(list, place) = plan.PlaceOf(operation.placeOf);
    if (operation.place == "--after") ++place;
  }
  list->insert(list->begin() + static_cast<std::ptrdiff_t>(place), added.begin(), added.end());
}

int NextId(const DocumentState& document) {
  return std::max(document.plan.HighestId(), document.highestTaken) + 1;
}

void Add(DocumentState& document, const Operation& operation) {
  int next = NextId(document);
  std::vector<Element> added;
  for (const int testId : operation.tests) added.push_back(Plan::Made(testId, next));
  Put(document.plan, operation, added);
}

void Remove(Plan& plan, const std::vector<int>& elements) {
  for (const int id : elements) {
    const auto [list, place] = plan.PlaceOf(id);
    if (list) list->erase(list->begin() + static_cast<std::ptrdiff_t>(place));
  }
}

void Move(Plan& plan, const Operation& operation) {
  const auto moved = *plan.Find(operation.elements.front());
  Remove(plan, operation.elements);
  Put(plan, operation, {moved});
}

void Renumber(std::vector<Element>& elements, int& next) {
  for (auto& element : elements) {
    element.id = next++;
    Renumber(element.children, next);
  }
}

void ApplySet(Plan& plan, const Operation& operation) {
  const auto& sets = LimitSets();
  const auto& set = *std::find_if(sets.begin(), sets.end(),
                                  [&](const SetOfLimits& one) { return one.name == operation.set; });
  std::vector<Element*> targets;
  if (operation.elements.empty()) {
    targets = plan.All();
  } else {
    for (const int id : operation.elements)
      for (const auto* below : Below(*plan.Find(id))) targets.push_back(const_cast<Element*>(below));
  }
  for (auto* element : targets) {
    if (element->group) continue;
    if (!operation.also)
      std::erase_if(element->limits, [&](const Limit& limit) {
        return limit.standard == set.standard && !limit.description.empty() &&
               limit.description != set.description;
      });
    if (const auto* figure = set.FigureFor(element->testId)) element->SetLimit(*figure);
  }
}

bool SetCovers(const Plan& plan, const Operation& operation) {
  const auto& sets = LimitSets();
  const auto& set = *std::find_if(sets.begin(), sets.end(),
                                  [&](const SetOfLimits& one) { return one.name == operation.set; });
  const auto covers = [&](const Element& top) {
    const auto all = Below(top);
    return std::any_of(all.begin(), all.end(),
                       [&](const Element* element) { return set.FigureFor(element->testId) != nullptr; });
  };
  if (operation.elements.empty()) return std::any_of(plan.elements.begin(), plan.elements.end(), covers);
  return std::any_of(operation.elements.begin(), operation.elements.end(),
                     [&](int id) { return covers(*plan.Find(id)); });
}

void RemoveLimits(Plan& plan, const Operation& operation) {
  for (const int id : operation.elements) {
    auto& element = *plan.Find(id);
    const auto& standard = operation.limit.standard;
    std::erase_if(element.limits,
                  [&](const Limit& limit) { return standard.empty() || limit.standard == standard; });
    if (standard.empty()) element.recordOnly = false;
  }
}

bool HasLimitsToRemove(const Plan& plan, const Operation& operation) {
  const auto& standard = operation.limit.standard;
  return std::all_of(operation.elements.begin(), operation.elements.end(), [&](int id) {
    const auto& element = *plan.Find(id);
    if (standard.empty()) return !element.limits.empty() || element.recordOnly;
    return std::any_of(element.limits.begin(), element.limits.end(),
                       [&](const Limit& limit) { return limit.standard == standard; });
  });
}

bool LimitFits(const Plan& plan, const Operation& operation) {
  return std::all_of(operation.elements.begin(), operation.elements.end(), [&](int id) {
    const auto& unit = KindOf(plan.Find(id)->testId).unit;
    if (operation.limit.unit.empty()) return operation.elements.size() == 1;
    const auto own = UnitNamed(unit), given = UnitNamed(operation.limit.unit);
    return own && given && own->quantity == given->quantity;
  });
}

bool StandardIsNamed(const Plan& plan, const std::string& name) {
  const auto all = plan.All();
  return std::any_of(all.begin(), all.end(), [&](const Element* element) {
    return std::any_of(element->limits.begin(), element->limits.end(),
                       [&](const Limit& limit) { return limit.standard == name; });
  });
}

bool RunApplies(const RunSetup& run, const DocumentState& document) {
  if (document.plan.elements.empty() || !AllThere(document.plan, run.elements)) return false;
  if (document.simulated && *document.simulated != run.simulated) return false;
  return std::all_of(run.standards.begin(), run.standards.end(),
                     [&](const std::string& name) { return StandardIsNamed(document.plan, name); });
}

}  // namespace

const std::vector<SetOfLimits>& LimitSets() {
  static const std::string kMicroampere =
      "\xC2\xB5"
      "A";
  static const std::string kOne = "2020, class I", kTwo = "2020, class II";
  static const std::vector<SetOfLimits> sets{
      {"house-1",
       "House rule",
       kOne,
       R"(<LimitSet Version="1" Standard="House rule" Edition="2020" Class="I">
  <Figure Tests="410 420" High="300" Unit="mOhm" Condition="c" Source="s"/>
  <Figure Tests="1010 1020" Low="70" Unit="MOhm" Condition="c" Source="s"/>
  <Figure Tests="610 620 630 640" High="500" Unit="µA" Condition="c" Source="s"/>
</LimitSet>)",
       {{410, Figure(kOne, {}, {{300}}, "mOhm")},
        {420, Figure(kOne, {}, {{300}}, "mOhm")},
        {1010, Figure(kOne, {{70}}, {}, "MOhm")},
        {1020, Figure(kOne, {{70}}, {}, "MOhm")},
        {610, Figure(kOne, {}, {{500}}, kMicroampere)},
        {620, Figure(kOne, {}, {{500}}, kMicroampere)},
        {630, Figure(kOne, {}, {{500}}, kMicroampere)},
        {640, Figure(kOne, {}, {{500}}, kMicroampere)}}},
      {"house-2",
       "House rule",
       kTwo,
       R"(<LimitSet Version="1" Standard="House rule" Edition="2020" Class="II">
  <Figure Tests="410" High="0.2" Unit="Ohm" Condition="c" Source="s"/>
  <Figure Tests="1010" Low="100000" Unit="kOhm" Condition="c" Source="s"/>
  <Figure Tests="910 1110" High="0.01" Unit="mA" Condition="c" Source="s"/>
</LimitSet>)",
       {{410, Figure(kTwo, {}, Decimal(2, -1), "Ohm")},
        {1010, Figure(kTwo, Decimal(100000), {}, "kOhm")},
        {910, Figure(kTwo, {}, Decimal(1, -2), "mA")},
        {1110, Figure(kTwo, {}, Decimal(1, -2), "mA")}}}};
  return sets;
}

const Limit* SetOfLimits::FigureFor(int testId) const {
  const auto found = std::find_if(figures.begin(), figures.end(),
                                  [testId](const auto& figure) { return figure.first == testId; });
  return found == figures.end() ? nullptr : &found->second;
}

bool Applies(const Operation& operation, const World& world) {
  if (operation.kind == Operation::Kind::kLeads || operation.kind == Operation::Kind::kEquipmentIs)
    return true;
  const auto there = world.documents.find(operation.file);
  if (operation.kind == Operation::Kind::kNew) return there == world.documents.end();
  if (operation.kind == Operation::Kind::kNewFrom || operation.kind == Operation::Kind::kCopy)
    return there == world.documents.end() && world.documents.contains(operation.other);
  if (there == world.documents.end()) return false;
  const auto& plan = there->second.plan;
  if (!AllThere(plan, operation.elements)) return false;
  switch (operation.kind) {
    case Operation::Kind::kAdd:
    case Operation::Kind::kMove:
      return PlaceIsThere(operation, plan);
    case Operation::Kind::kLimit:
      return LimitFits(plan, operation);
    case Operation::Kind::kLimitSet:
      return SetCovers(plan, operation);
    case Operation::Kind::kLimitRemove:
      return HasLimitsToRemove(plan, operation);
    case Operation::Kind::kRecordOnly:
      return plan.Find(operation.elements.front())->limits.empty();
    case Operation::Kind::kRun:
      return RunApplies(operation.run, there->second);
    default:
      return true;
  }
}

void Apply(const Operation& operation, World& world) {
  if (operation.kind == Operation::Kind::kLeads) {
    world.leads[operation.text] = operation.number;
    return;
  }
  if (operation.kind == Operation::Kind::kEquipmentIs) {
    world.equipment[operation.equipment][{operation.testId, operation.setting}] = operation.amount;
    return;
  }
  if (operation.kind == Operation::Kind::kCopy)
    world.documents[operation.file] = world.documents.at(operation.other);
  if (operation.kind == Operation::Kind::kNewFrom)
    world.documents[operation.file].plan.elements = world.documents.at(operation.other).plan.elements;
  auto& document = world.documents[operation.file];
  auto& plan = document.plan;
  switch (operation.kind) {
    case Operation::Kind::kNewFrom: {
      int next = 1;
      Renumber(plan.elements, next);
      break;
    }
    case Operation::Kind::kNew:
    case Operation::Kind::kAdd:
      Add(document, operation);
      break;
    case Operation::Kind::kRemove:
      Remove(plan, operation.elements);
      break;
    case Operation::Kind::kMove:
      Move(plan, operation);
      break;
    case Operation::Kind::kLimit:
      for (const int id : operation.elements) {
        auto limit = operation.limit;
        if (limit.unit.empty()) limit.unit = KindOf(plan.Find(id)->testId).unit;
        plan.Find(id)->SetLimit(limit);
      }
      break;
    case Operation::Kind::kLimitSet:
      ApplySet(plan, operation);
      break;
    case Operation::Kind::kLimitRemove:
      RemoveLimits(plan, operation);
      break;
    case Operation::Kind::kRecordOnly:
      for (const int id : operation.elements) plan.Find(id)->recordOnly = true;
      break;
    case Operation::Kind::kOptions:
      plan.Find(operation.elements.front())->options = operation.number;
      break;
    case Operation::Kind::kFilter:
      plan.Find(operation.elements.front())->filter = operation.text;
      break;
    default:
      break;
  }
  for (const auto& [field, value] : operation.fields) plan.equipment[static_cast<std::size_t>(field)] = value;
}

}  // namespace history
