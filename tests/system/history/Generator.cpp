#include "tests/system/history/Generator.h"

#include <array>
#include <stdexcept>

#include "tests/system/history/Model.h"
#include "tests/system/history/Tests.h"

namespace history {
namespace {

constexpr int kAttempts = 1000;

}  // namespace

Operation Generator::Next(const World& world) {
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    auto operation = Draw(world);
    if (!Applies(operation, world)) continue;
    ++drawn_;
    return operation;
  }
  throw std::logic_error("nothing can be done in this world");
}

Operation Generator::Draw(const World& world) {
  if (world.documents.empty()) return New(world);
  auto document = world.documents.begin();
  std::advance(document, dice_.Below(world.documents.size()));
  file_ = document->first;
  const auto& state = document->second;
  Operation operation;
  if (state.plan.elements.empty()) {
    operation = OfPlan(state);
    operation.file = file_;
    return operation;
  }
  // First a plan with limits, then a run, then any operation.
  const bool planning = state.runs == 0 && drawn_ < 4;
  const std::array<std::pair<int, int>, 7> weights{{{0, planning ? 5 : 6},    // plan
                                                    {0, planning ? 12 : 14},  // limits
                                                    {0, planning ? 4 : 10},   // world
                                                    {0, planning ? 0 : 7},    // equipment fields
                                                    {0, planning ? 4 : 30},   // run
                                                    {0, planning ? 0 : 11},   // tampering
                                                    {0, planning ? 0 : 3}}};  // another document
  switch (dice_.ByWeight(weights)) {
    case 0:
      operation = OfPlan(state);
      break;
    case 1:
      operation = OfLimits(state);
      break;
    case 2:
      operation = OfWorld(world, state);
      break;
    case 3:
      operation = Edit();
      break;
    case 4:
      operation = Run(state);
      break;
    case 5:
      operation = Tampered(state);
      break;
    default:
      return New(world);
  }
  operation.file = file_;
  return operation;
}

Operation Generator::New(const World& world) {
  Operation operation;
  operation.file = world.documents.empty() ? "d.orvik" : world.documents.size() == 1 ? "e.orvik" : "f.orvik";
  for (int field = 0; field < 4; ++field)
    if (dice_.Chance(60)) operation.fields.emplace_back(field, AnyField(field));
  if (world.documents.empty()) {
    static const std::vector<std::vector<int>> kPlans{
        {410},      {400},  {410, 1010}, {1000},     {600},       {910, 410}, {1300},
        {210, 400}, {1110}, {420, 610},  {410, 410}, {400, 1010}, {1020, 910}};
    operation.tests = dice_.One(kPlans);
    return operation;
  }
  operation.kind = dice_.Chance(60) ? Operation::Kind::kCopy : Operation::Kind::kNewFrom;
  if (operation.kind == Operation::Kind::kCopy) operation.fields.clear();
  operation.other = file_;
  return operation;
}

Operation Generator::OfPlan(const DocumentState& document) {
  Operation operation;
  const bool planning = document.runs == 0;
  const std::array<std::pair<int, int>, 5> weights{{{0, 4}, {0, 3}, {0, 3}, {0, 5}, {0, planning ? 25 : 8}}};
  auto which = document.plan.elements.empty() ? 0 : dice_.ByWeight(weights);
  if (which == 0) {
    operation.kind = Operation::Kind::kAdd;
    operation.tests = {dice_.One({410, 420, 210, 1010, 610, 910, 1110, 400, 1000})};
  } else {
    operation.elements = {AnyElement(document).id};
  }
  if (which <= 1 && !document.plan.elements.empty() && dice_.Chance(70)) {
    operation.place = dice_.One<std::string>({"--before", "--after", "--to"});
    operation.placeOf = AnyElement(document).id;
  } else if (which == 1) {
    operation.place = "--to-end";
  }
  if (which == 1 && operation.place == "--to") operation.place = "--after";
  if (which == 1) operation.kind = Operation::Kind::kMove;
  if (which == 2) operation.kind = Operation::Kind::kRemove;
  if (which == 3) {
    operation.kind = Operation::Kind::kOptions;
    operation.number = dice_.One({3, 4, 7, 8, 11, 35, 4096, 4099, 0, 1, 2});
  }
  if (which == 4) {
    const auto& element = AnyElement(document);
    if (!element.group) return OfPlan(document);
    operation.kind = Operation::Kind::kFilter;
    operation.elements = {element.id};
    operation.text = dice_.One<std::string>(
        {"Maximum value", "Maximum value", "Minimum value", "No values", "All values"});
  }
  return operation;
}

Operation Generator::HandLimit(const Element& element) {
  struct Bound {
    const char *low, *high, *unit;
  };
  static const std::string kMicro =
      "\xC2\xB5"
      "A";
  static const std::vector<Bound> kEarth{{"", "300", "mOhm"}, {"", "300", "mOhm"},    {"", "200", "mOhm"},
                                         {"", "100", "mOhm"}, {"", "123", "mOhm"},    {"", "0.3", "Ohm"},
                                         {"", "0.2", "Ohm"},  {"", "0.0003", "kOhm"}, {"50", "300", "mOhm"},
                                         {"", "1850", ""},    {"", "0.123", "Ohm"}};
  static const std::vector<Bound> kInsulation{
      {"70", "", "MOhm"},      {"70", "", ""},    {"152", "", "MOhm"}, {"70000", "", "kOhm"},
      {"128", "1000", "MOhm"}, {"7", "", "MOhm"}, {"", "1000", ""},    {"200", "", "MOhm"}};
  static const std::vector<Bound> kCurrent{{"", "500", kMicro.c_str()},
                                           {"", "0.5", "mA"},
                                           {"", "10", kMicro.c_str()},
                                           {"", "0.182", "mA"},
                                           {"", "341", ""},
                                           {"", "0.0005", "A"},
                                           {"1", "500", kMicro.c_str()},
                                           {"", "1.5", kMicro.c_str()}};
  static const std::vector<Bound> kVoltage{
      {"207", "253", "V"}, {"", "0.25", "kV"}, {"", "231400", "mV"}, {"200", "", ""}, {"", "231.4", "V"}};
  static const std::vector<Bound> kNone{{"", "300", ""}};
  const auto unit = UnitNamed(KindOf(element.testId).unit).value_or(Unit{});
  const auto& bounds = unit.quantity == 'I'   ? kCurrent
                       : unit.quantity == 'U' ? kVoltage
                       : unit.quantity != 'R' ? kNone
                       : unit.exponent == -3  ? kEarth
                                              : kInsulation;
  const auto& bound = dice_.One(bounds);
  Operation operation;
  operation.kind = Operation::Kind::kLimit;
  operation.elements = {element.id};
  operation.lowText = bound.low;
  operation.highText = bound.high;
  operation.limit.low = Decimal::Parsed(bound.low);
  operation.limit.high = Decimal::Parsed(bound.high);
  operation.limit.unit = bound.unit;
  static const std::vector<std::pair<std::string, std::string>> kStandards{{"IEC 62353", ""},
                                                                           {"IEC 62353", ""},
                                                                           {"IEC 62353", "class I, BF"},
                                                                           {"IEC 60601-1", ""},
                                                                           {"House rule", ""}};
  std::tie(operation.limit.standard, operation.limit.description) = dice_.One(kStandards);
  return operation;
}

Operation Generator::OfLimits(const DocumentState& document) {
  Operation operation;
  const std::array<std::pair<int, int>, 4> weights{{{0, 7}, {0, 5}, {0, 3}, {0, 4}}};
  switch (dice_.ByWeight(weights)) {
    case 0:
      return HandLimit(dice_.Chance(35) ? document.plan.elements.front() : AnyElement(document));
    case 1:
      operation.kind = Operation::Kind::kLimitSet;
      operation.set = dice_.One(LimitSets()).name;
      operation.also = dice_.Chance(25);
      if (dice_.Chance(30)) operation.elements = {AnyElement(document).id};
      break;
    case 2:
      operation.kind = Operation::Kind::kLimitRemove;
      operation.elements = {AnyElement(document).id};
      if (dice_.Chance(50))
        operation.limit.standard = dice_.One<std::string>({"IEC 62353", "House rule", "IEC 60601-1"});
      break;
    default:
      operation.kind = Operation::Kind::kRecordOnly;
      operation.elements = {AnyTest(document).id};
      if (document.plan.Find(operation.elements.front())->group) return HandLimit(AnyElement(document));
  }
  return operation;
}

Amount Generator::AnyAmount(int testId) {
  const auto& unit = KindOf(testId).unit;
  const auto quantity = UnitNamed(unit)->quantity;
  if (quantity == 'I') {
    static const std::vector<Decimal> kValues{{4, -1}, {15, -1}, {10},  {34, -1}, {182},
                                              {341},   {500},    {501}, {5480}};
    return {dice_.One(kValues), unit};
  }
  if (quantity == 'U') {
    static const std::vector<Decimal> kValues{{2314, -1}, {2315, -1}, {253}, {207}, {0}, {240}};
    return {dice_.One(kValues), unit};
  }
  if (KindOf(testId).lessLeads) {
    static const std::vector<Decimal> kValues{{0},   {10},  {35},  {50},       {123}, {158},  {200},
                                              {235}, {300}, {335}, {3351, -1}, {400}, {1850}, {-5}};
    return {dice_.One(kValues), unit};
  }
  static const std::vector<Decimal> kValues{{4, -1}, {7}, {70}, {699, -1}, {128}, {152}, {200}, {1001}};
  return {dice_.One(kValues), unit};
}

Operation Generator::OfWorld(const World&, const DocumentState& document) {
  Operation operation;
  if (dice_.Chance(40)) {
    operation.kind = Operation::Kind::kLeads;
    operation.text = dice_.Chance(75) ? "T-1" : "T-2";
    operation.number =
        dice_.Chance(80) ? dice_.One({0, 35, 35, 100, 110, 290, 499}) : dice_.One({-5, 501, 600});
    return operation;
  }
  const auto& test = AnyTest(document);
  if (test.group) return Edit();
  operation.kind = Operation::Kind::kEquipmentIs;
  operation.equipment = document.plan.equipment;
  operation.testId = test.testId;
  operation.setting = SettingOf(test.options);
  operation.amount = AnyAmount(test.testId);
  return operation;
}

std::string Generator::AnyField(int field) {
  static const std::array<std::vector<std::string>, 4> kValues{
      {{"VENT-1", "VENT-1", "VENT-2"}, {"S-1", "S-1", "S-2"}, {"Maker", ""}, {"X", "X", "Y"}}};
  return dice_.One(kValues[static_cast<std::size_t>(field)]);
}

Operation Generator::Edit() {
  Operation operation;
  operation.kind = Operation::Kind::kEdit;
  const int field = dice_.Below(4);
  operation.fields.emplace_back(field, AnyField(field));
  return operation;
}

const Element& Generator::AnyElement(const DocumentState& document) {
  return *dice_.One(document.plan.All());
}

const Element& Generator::AnyTest(const DocumentState& document) {
  for (int attempt = 0; attempt < kAttempts; ++attempt)
    if (const auto& element = AnyElement(document); !element.group) return element;
  return AnyElement(document);
}

}  // namespace history
