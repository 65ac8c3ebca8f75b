#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

namespace sim {

/// Who the tester says it is.
struct Identity {
  std::string type = "KELD(IN)";
  std::string serial = "SIM-0001";
  std::string firmware = "3.10";
};

/// What the tester reads in one test.
struct Reading {
  std::string value;      ///< as sent, such as "0.123"
  std::string unit;       ///< as sent, such as "Ohm"; UTF-8
  bool overload = false;  ///< the reading is beyond the tester's range
  std::chrono::milliseconds measuringTime{};
};

/// A model of the equipment under test, as the tester sees it: a reading for each test number and setting.
/// Setting 0 is the test's own (all leads); 1 to 10 are the single leads. A test without readings is one that
/// the tester lacks.
class Profile {
 public:
  static constexpr int kHighestTest = 32767;  ///< test numbers are 16-bit on both sides of the wire
  static constexpr int kHighestSetting = 10;

  explicit Profile(std::string name) : name_(std::move(name)) {}

  const std::string& Name() const { return name_; }
  void SetName(std::string name) { name_ = std::move(name); }

  const Identity& Who() const { return identity_; }
  /// Throws std::invalid_argument when a text cannot go over the wire (control character, not ISO 8859-1).
  void SetIdentity(Identity identity);

  /// Sets the reading of `test` (1...kHighestTest) in `setting` (0...kHighestSetting). Throws
  /// std::invalid_argument when a number is out of range or a text cannot go over the wire.
  void Set(int test, int setting, Reading reading);

  /// Takes `test` with all its settings away: the tester lacks it from now on.
  void Remove(int test);

  /// The reading of `test` in `setting`, or that of setting 0 when this setting has none of its own; null
  /// when the tester lacks the test. Valid until the profile changes.
  const Reading* Find(int test, int setting) const;

 private:
  static int Key(int test, int setting) { return test * (kHighestSetting + 1) + setting; }

  std::string name_;
  Identity identity_;
  std::unordered_map<int, Reading> readings_;
};

/// The unit in which the tester reports `test`: "V" for the mains voltage, "Ohm" for protective earth, "MOhm"
/// for insulation, "µA" for every leakage and auxiliary current. Empty for a number that no such test has.
std::optional<std::string> UnitOf(int test);

/// How long the tester measures in `test`; 500 ms for a number that it does not know.
std::chrono::milliseconds MeasuringTimeOf(int test);

}  // namespace sim
