#include "tester/Profile.h"

#include <stdexcept>
#include <utility>

#include "tester/Text.h"

namespace sim {

namespace {

void RequireSendable(const std::string& text, const char* what) {
  if (!IsSendable(text)) {
    throw std::invalid_argument(std::string(what) +
                                " cannot be sent: it holds a control character or one outside ISO 8859-1");
  }
}

enum class Family {
  Mains,
  Earth,
  EarthLeakage,
  EnclosureLeakage,
  PatientLeakage,
  Insulation,
  AppliedPart,
  Unknown
};

Family FamilyOf(int test) {
  const bool tens = test % 10 == 0;
  const bool fives = test % 5 == 0;
  if (test == 210) return Family::Mains;
  if (test == 410 || test == 420) return Family::Earth;
  if (test >= 610 && test <= 640 && tens) return Family::EarthLeakage;
  if (test >= 710 && test <= 760 && tens) return Family::EnclosureLeakage;
  if ((test >= 910 && test <= 965 && fives) || (test >= 1110 && test <= 1165 && fives))
    return Family::PatientLeakage;
  if (test == 1010 || test == 1020) return Family::Insulation;
  if (test >= 1210 && test <= 1245 && fives) return Family::AppliedPart;
  return Family::Unknown;
}

}  // namespace

void Profile::SetIdentity(Identity identity) {
  RequireSendable(identity.type, "the tester's type");
  RequireSendable(identity.serial, "the serial number");
  RequireSendable(identity.firmware, "the firmware version");
  identity_ = std::move(identity);
}

void Profile::Set(int test, int setting, Reading reading) {
  if (test < 1 || test > kHighestTest) throw std::invalid_argument("test number out of range");
  if (setting < 0 || setting > kHighestSetting) throw std::invalid_argument("setting out of range");
  RequireSendable(reading.value, "the value");
  RequireSendable(reading.unit, "the unit");
  readings_.insert_or_assign(Key(test, setting), std::move(reading));
}

void Profile::Remove(int test) {
  for (int setting = 0; setting <= kHighestSetting; ++setting) readings_.erase(Key(test, setting));
}

const Reading* Profile::Find(int test, int setting) const {
  auto found = readings_.find(Key(test, setting));
  if (found == readings_.end()) found = readings_.find(Key(test, 0));
  return found == readings_.end() ? nullptr : &found->second;
}

std::optional<std::string> UnitOf(int test) {
  switch (FamilyOf(test)) {
    case Family::Mains:
      return "V";
    case Family::Earth:
      return "Ohm";
    case Family::Insulation:
      return "MOhm";
    case Family::Unknown:
      return std::nullopt;
    default:
      return "µA";
  }
}

std::chrono::milliseconds MeasuringTimeOf(int test) {
  using std::chrono::milliseconds;
  // All below the 2 s within which a reply must come.
  switch (FamilyOf(test)) {
    case Family::Mains:
      return milliseconds(300);
    case Family::Earth:
      return milliseconds(900);
    case Family::EarthLeakage:
    case Family::EnclosureLeakage:
      return milliseconds(700);
    case Family::PatientLeakage:
      return milliseconds(800);
    case Family::AppliedPart:
      return milliseconds(600);
    case Family::Insulation:
      return milliseconds(1500);
    case Family::Unknown:
      break;
  }
  return milliseconds(500);
}

}  // namespace sim
