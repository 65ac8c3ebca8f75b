#include "tester/BuiltInProfiles.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace sim {

namespace {

struct Row {
  int test;
  const char* value;  ///< in the unit of the test, see UnitOf
};

// Equipment of protection class I with type CF applied parts, in good order. Every figure keeps the strictest
// bound in use: protective earth 0.2 Ohm with the mains cable (IEC 60601-1, 8.6.4), earth leakage 500 µA (IEC
// 62353, equipment leakage of class I), enclosure leakage 100 µA, patient leakage and auxiliary current 10 µA
// (IEC 60601-1, 8.7.3, normal condition, CF), insulation 70 MOhm (IEC 62353, applied parts).
// clang-format off
constexpr Row kSoundClass1[] = {
    // mains voltage, protective earth
    {210, "231.4"}, {410, "0.123"}, {420, "0.058"},
    // earth leakage
    {610, "182"}, {620, "176"}, {630, "341"}, {640, "328"},
    // enclosure leakage
    {710, "18"}, {720, "17"}, {730, "34"}, {740, "36"}, {750, "62"}, {760, "58"},
    // patient leakage
    {910, "3.4"}, {915, "0.4"}, {920, "3.2"}, {925, "0.4"}, {930, "5.6"}, {935, "0.7"},
    {940, "5.3"}, {945, "0.6"}, {950, "7.1"}, {955, "0.9"}, {960, "6.8"}, {965, "0.8"},
    // insulation
    {1010, "152"}, {1020, "128"},
    // patient leakage
    {1110, "3.9"}, {1115, "0.5"}, {1120, "3.7"}, {1125, "0.5"}, {1130, "6.2"}, {1135, "0.8"},
    {1140, "5.9"}, {1145, "0.7"}, {1150, "8.3"}, {1155, "1.1"}, {1160, "7.9"}, {1165, "1.0"},
    // applied-part leakage, patient auxiliary current
    {1210, "8.8"}, {1220, "8.1"}, {1230, "2.3"}, {1235, "0.2"}, {1240, "3.1"}, {1245, "0.3"},
};
// clang-format on

// Class II: no protective earth; what would flow there flows through the enclosure, still below 100 µA.
constexpr Row kClass2Changes[] = {
    {710, "21"}, {720, "20"}, {730, "38"},   {740, "39"},
    {750, "71"}, {760, "66"}, {1010, "210"}, {1020, "187"},
};

// A corroded earth contact: 1.85 Ohm in the protective conductor, and the current looks for other ways.
constexpr Row kBrokenEarthChanges[] = {
    {410, "1.85"}, {420, "1.78"}, {610, "5480"}, {620, "5310"}, {630, "10820"}, {640, "10610"},
    {710, "214"},  {720, "206"},  {730, "572"},  {740, "588"},  {750, "811"},   {760, "794"},
};

// Wet insulation: protective earth is sound, every leakage current is beyond even the widest bound of its
// kind (earth 5 and 10 mA, enclosure 100 and 500 µA, patient 100 and 500 µA, insulation 2 MOhm).
constexpr Row kLeakyChanges[] = {
    {610, "6240"},  {620, "6110"},  {630, "11900"}, {640, "11650"}, {710, "262"},   {720, "255"},
    {730, "618"},   {740, "633"},   {750, "874"},   {760, "852"},   {910, "164"},   {915, "138"},
    {920, "161"},   {925, "135"},   {930, "574"},   {935, "541"},   {940, "569"},   {945, "536"},
    {950, "618"},   {955, "572"},   {960, "611"},   {965, "566"},   {1010, "0.4"},  {1020, "0.3"},
    {1110, "176"},  {1115, "149"},  {1120, "171"},  {1125, "144"},  {1130, "5480"}, {1135, "5210"},
    {1140, "5460"}, {1145, "5190"}, {1150, "5910"}, {1155, "5620"}, {1160, "5880"}, {1165, "5590"},
    {1210, "5240"}, {1220, "5170"}, {1230, "128"},  {1235, "119"},  {1240, "547"},  {1245, "531"},
};

// Readings beyond the range show the range's end with the overload mark.
constexpr Row kOverloads[] = {
    {410, "19.99"},  {640, "19999"}, {760, "9999"},  {910, "9999"},  {965, "9999"},
    {1020, "199.9"}, {1130, "9999"}, {1210, "9999"}, {1245, "9999"},
};

constexpr int kClass2Lacks[] = {410, 420, 610, 620, 630, 640};

/// The share of a patient leakage that each single lead carries, in hundredths; lead 4 is the worst one.
constexpr int kLeadShares[] = {62, 71, 68, 100, 83, 77, 65, 59, 74, 88};

bool HasLeads(int test) { return (test >= 910 && test <= 965) || (test >= 1110 && test <= 1165); }

/// `value` times `hundredths`/100, with one decimal and independent of the locale.
std::string Share(std::string_view value, int hundredths) {
  double number = 0;
  std::from_chars(value.data(), value.data() + value.size(), number);
  char text[32];
  const auto end =
      std::to_chars(text, text + sizeof text, number * hundredths / 100.0, std::chars_format::fixed, 1);
  return std::string(text, end.ptr);
}

void Put(Profile& profile, const Row& row, bool overload) {
  Reading reading;
  reading.value = row.value;
  reading.unit = UnitOf(row.test).value();
  reading.overload = overload;
  reading.measuringTime = MeasuringTimeOf(row.test);
  profile.Set(row.test, 0, reading);
  if (!HasLeads(row.test)) return;
  for (int lead = 1; lead <= Profile::kHighestSetting; ++lead) {
    // An overloaded reading cannot be divided: each lead shows the end of the range too.
    if (!overload) reading.value = Share(row.value, kLeadShares[lead - 1]);
    profile.Set(row.test, lead, reading);
  }
}

template <std::size_t count>
void PutAll(Profile& profile, const Row (&rows)[count], bool overload = false) {
  for (const Row& row : rows) Put(profile, row, overload);
}

}  // namespace

const std::vector<BuiltInProfile>& BuiltInProfiles() {
  static const std::vector<BuiltInProfile> profiles = {
      {"sound-class-1", "protection class I in good order: every test passes"},
      {"sound-class-2",
       "protection class II in good order; refuses the protective-earth and earth-leakage tests"},
      {"broken-earth", "1.85 Ohm in the protective earth; earth and enclosure leakage too high"},
      {"leaky", "sound earth, but insulation and every leakage and auxiliary current fail"},
      {"overloaded", "as sound-class-1, with some readings beyond the tester's range"},
  };
  return profiles;
}

std::optional<Profile> MakeBuiltInProfile(std::string_view name) {
  const auto& known = BuiltInProfiles();
  if (std::none_of(known.begin(), known.end(), [&](const BuiltInProfile& p) { return p.name == name; }))
    return {};

  Profile profile{std::string(name)};
  PutAll(profile, kSoundClass1);
  if (name == "sound-class-2") {
    PutAll(profile, kClass2Changes);
    for (const int test : kClass2Lacks) profile.Remove(test);
  } else if (name == "broken-earth") {
    PutAll(profile, kBrokenEarthChanges);
  } else if (name == "leaky") {
    PutAll(profile, kLeakyChanges);
  } else if (name == "overloaded") {
    PutAll(profile, kOverloads, true);
  }
  return profile;
}

const std::vector<int>& AllTests() {
  static const std::vector<int> tests = [] {
    std::vector<int> numbers;
    std::transform(std::begin(kSoundClass1), std::end(kSoundClass1), std::back_inserter(numbers),
                   [](const Row& row) { return row.test; });
    return numbers;
  }();
  return tests;
}

}  // namespace sim
