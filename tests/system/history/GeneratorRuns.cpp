#include <set>

#include "tests/system/history/Generator.h"
#include "tests/system/history/Tests.h"

// Draws runs, testers and changes by other programs.
namespace history {
namespace {

constexpr int kPumpCalls = 120;  // more than a short run has
constexpr int kMostSaves = 9;

const std::vector<std::string>& OtherUnits(int testId) {
  static const std::vector<std::string> kEarth{"mOhm", "mOhm", "kOhm", "MOhm", "V"};
  static const std::vector<std::string> kInsulation{"kOhm", "Ohm", "mOhm", "A"};
  static const std::vector<std::string> kCurrent{"mA", "A", "V"};
  static const std::vector<std::string> kVoltage{"mV", "kV", "Ohm"};
  const auto& kind = KindOf(testId);
  const auto quantity = UnitNamed(kind.unit)->quantity;
  return kind.lessLeads ? kEarth : quantity == 'R' ? kInsulation : quantity == 'I' ? kCurrent : kVoltage;
}

}  // namespace

std::string Generator::Faults(const Plan& plan) {
  const auto& test = *dice_.One(plan.All());
  const auto number = std::to_string(test.group ? 410 : test.testId);
  const std::vector<std::string> faults{"drop",
                                        "delay 100",
                                        "delay 2500",
                                        "delay 6000",
                                        "double",
                                        "truncate 8",
                                        "shorten 4",
                                        "shorten 10",
                                        "garble",
                                        "noise",
                                        "stall 9 2500",
                                        "wrong-mnemonic",
                                        "error 1001",
                                        "error 1003",
                                        "error 6002",
                                        "forget",
                                        "hang-up",
                                        "hang-up",
                                        "unplug 500",
                                        "reply gres,610,0,0.001,0,Ohm",
                                        "reply gres," + number + ",0,0.001,0,A",
                                        "reply gres," + number + ",0,0.001,1,Ohm",
                                        "reply gres," + number + ",0,-0.5,0,Ohm",
                                        "reply gres," + number + ",0,9.99,0,Ohm,9"};
  std::string script;
  for (int rule = 1 + dice_.Below(2); rule > 0; --rule)
    script += "at " +
              dice_.One<std::string>({"IREM 1", "STST 1", "GRES 1", "GRES 1", "STST 2", "GRES 2", "STST 4",
                                      "STST 5", "EREM 1", "ANY"}) +
              " " + dice_.One(faults) + "\n";
  return script;
}

TesterSetup Generator::Tester(const Plan& plan) {
  TesterSetup tester;
  if (dice_.Chance(15)) tester.serial = "T-2";
  if (dice_.Chance(6)) tester.laterSerial = tester.serial == "T-1" ? "T-2" : "T-1";
  if (dice_.Chance(4)) tester.serial = "";
  if (dice_.Chance(3)) tester.type = "KELD(XX)";
  while (dice_.Chance(25)) {
    const auto& element = *dice_.One(plan.All());
    if (element.group) continue;
    Behaviour behaviour;
    behaviour.testId = element.testId;
    behaviour.kind = static_cast<Behaviour::Kind>(dice_.Below(4));
    if (behaviour.kind == Behaviour::Kind::kInUnit) behaviour.unit = dice_.One(OtherUnits(element.testId));
    tester.behaviours.push_back(behaviour);
  }
  if (dice_.Chance(12)) tester.faults = Faults(plan);
  if (dice_.Chance(10)) {
    tester.faultPercent = 5 + dice_.Below(35);
    tester.faultSeed = dice_.Next() % 100000;
  }
  return tester;
}

Operation Generator::Run(const DocumentState& document) {
  Operation operation;
  operation.kind = Operation::Kind::kRun;
  auto& run = operation.run;
  if (dice_.Chance(20))
    run.resume = true;
  else if (dice_.Chance(35))
    for (int elements = 1 + dice_.Below(2); elements > 0; --elements)
      run.elements.push_back(elements == 1 || dice_.Chance(50) ? AnyElement(document).id
                                                               : document.plan.elements.front().id);
  // The same element again: its first result no longer counts.
  if (!run.elements.empty() && dice_.Chance(25)) run.elements.push_back(run.elements.front());
  if (dice_.Chance(10)) run.standards = {dice_.One<std::string>({"IEC 62353", "House rule", "IEC 60601-1"})};
  run.simulated = document.simulated.value_or(dice_.Chance(8));
  run.newProgram = dice_.Chance(60);
  run.tester = Tester(document.plan);
  if (dice_.Chance(18))
    for (int presses = 1 + dice_.Below(4); presses > 0; --presses)
      run.presses.push_back(static_cast<Press>(dice_.Below(7)));
  else if (dice_.Chance(10))
    run.stopAt = dice_.Below(kPumpCalls);
  if (dice_.Chance(5)) run.abortAt = dice_.Below(kPumpCalls);
  if (dice_.Chance(12)) run.killedAfterSaves = dice_.Below(kMostSaves);
  return operation;
}

Operation Generator::Tampered(const DocumentState& document) {
  using Kind = Tampering::Kind;
  Operation operation;
  operation.kind = Operation::Kind::kTamper;
  auto& tampering = operation.tampering;
  tampering.kind = static_cast<Kind>(dice_.Below(static_cast<std::size_t>(Kind::kEquipment) + 1));
  // Most changes hit elements that were run.
  if (!document.records.empty() && dice_.Chance(40))
    tampering.kind = dice_.One({Kind::kResultStatus, Kind::kResultValue});
  else if (document.runs > 1 && dice_.Chance(60))
    tampering.kind = dice_.One(
        {Kind::kRunAttribute, Kind::kRunNode, Kind::kRunText, Kind::kRunRemoved, Kind::kRunsSwapped});
  tampering.element = AnyElement(document).id;
  tampering.which = static_cast<std::uint32_t>(dice_.Next() % 1000000);
  switch (tampering.kind) {
    case Kind::kResultStatus:
      tampering.value = dice_.One<std::string>({"0", "1", "1", "2", "3"});
      break;
    case Kind::kResultValue:
      tampering.value = dice_.One<std::string>({"1", "123", "58", "152", "0.4", "1850"});
      break;
    case Kind::kRunAttribute:
      tampering.value =
          dice_.One<std::string>({"1", "2", "3", "0", "123", "operator", "finished", "VENT-2", "x"});
      break;
    case Kind::kRunText:
      tampering.value =
          dice_.One<std::string>({"gres,410,0,0.001,0,Ohm", "gres,1010,0,500,0,MOhm", "ERRM,6002"});
      break;
    case Kind::kLimitBound:
      tampering.value = dice_.One<std::string>({"1", "100", "300", "9999"});
      break;
    case Kind::kLimitUnit:
      tampering.value = dice_.One<std::string>({"Ohm", "mOhm", "kOhm", "mA", "V", ""});
      break;
    case Kind::kLimitKey:
      tampering.value = "ANOTHER KEY";
      break;
    case Kind::kOptions:
      tampering.value = dice_.One<std::string>({"3", "7", "11", "4099"});
      break;
    case Kind::kEquipment:
      tampering.value = AnyField(static_cast<int>(tampering.which % 4));
      break;
    default:
      break;
  }
  return operation;
}

}  // namespace history
