#include "tester/ProfileFile.h"

#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "tester/BuiltInProfiles.h"
#include "tester/Errors.h"
#include "tester/Text.h"
#include "tester/TextFile.h"

namespace sim {

namespace {

constexpr int kLongestMeasuringTime = 60000;  // ms
constexpr std::size_t kLongestNumber = 32;    // letters; with them no answer outgrows the wire's line
constexpr std::size_t kLongestText = 64;

struct Entry {
  int line;
  std::string value;
};

bool IsNumber(std::string_view text) {
  double number = 0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
  // from_chars takes "inf" and "nan" too.
  return error == std::errc() && end == text.data() + text.size() &&
         text.find_first_not_of("-.0123456789") == std::string_view::npos;
}

/// The units of the same quantity as `unit`; every known unit when `unit` is empty.
std::vector<std::string> UnitsLike(const std::optional<std::string>& unit) {
  static const std::vector<std::vector<std::string>> quantities = {
      {"V", "mV"}, {"Ohm", "mOhm", "kOhm", "MOhm", "GOhm"}, {"µA", "mA", "A"}};
  std::vector<std::string> all;
  for (const auto& units : quantities) {
    if (unit && std::find(units.begin(), units.end(), *unit) != units.end()) return units;
    all.insert(all.end(), units.begin(), units.end());
  }
  return all;
}

std::string Join(const std::vector<std::string>& words) {
  std::string text;
  for (const auto& word : words) text += (text.empty() ? "" : ", ") + word;
  return text;
}

std::vector<std::string> BuiltInNames() {
  std::vector<std::string> names;
  for (const auto& known : BuiltInProfiles()) names.emplace_back(known.name);
  return names;
}

std::vector<std::string> Words(std::string_view text) {
  std::vector<std::string> words;
  while (!(text = Trim(text)).empty()) {
    const std::size_t end = std::min(text.find_first_of(" \t"), text.size());
    words.emplace_back(text.substr(0, end));
    text.remove_prefix(end);
  }
  return words;
}

/// Builds one profile from the lines of one file.
class Parser {
 public:
  explicit Parser(const std::string& name) : name_(name) {}

  Profile Parse(std::string_view content) {
    for (const TextLine& line : SplitTextLines(content, name_)) ReadLine(line);
    if (readings_.empty() && !Setting("based-on")) {
      // Such a tester would refuse every test, and a run of nothing but refused tests looks like a good one.
      throw InputError(
          name_ + ": gives no reading; add a line such as '410 = 0.123 Ohm' or 'based-on = sound-class-1'");
    }
    if (Setting("time")) MeasuringTime(0);  // reports a bad time even if no reading uses it
    Profile profile = Base();
    SetIdentity(profile);
    Lack(profile);
    // A test's own reading replaces those of its leads, so the given leads come second.
    for (const bool leads : {false, true}) {
      for (const auto& [key, entry] : readings_) {
        if ((key.second != 0) == leads) SetReading(profile, key.first, key.second, entry);
      }
    }
    return profile;
  }

 private:
  [[noreturn]] void Fail(int line, const std::string& message) const { FailAt(name_, line, message); }

  void ReadLine(const TextLine& line) {
    const std::size_t equals = line.text.find('=');
    if (equals == std::string::npos)
      Fail(line.number, Quoted(line.text) + " has no '='; write it as: key = value");
    const std::string key(Trim(std::string_view(line.text).substr(0, equals)));
    const Entry entry{line.number, std::string(Trim(std::string_view(line.text).substr(equals + 1)))};
    if (key.empty()) Fail(line.number, "a key is missing before the '='; write it as: key = value");

    if (key.front() >= '0' && key.front() <= '9') {
      Remember(readings_, TestAndSetting(line.number, key), key, entry);
    } else if (key == "name" || key == "based-on" || key == "type" || key == "serial" || key == "firmware" ||
               key == "time" || key == "lacks") {
      Remember(settings_, key, key, entry);
    } else {
      Fail(line.number,
           Quoted(key) +
               " is not a key; use name, based-on, type, serial, firmware, time, lacks, a test number such "
               "as 410, or a test number and a lead such as 910/3");
    }
  }

  template <typename Key>
  void Remember(std::map<Key, Entry>& entries, const Key& key, const std::string& text, const Entry& entry) {
    const auto [place, isNew] = entries.emplace(key, entry);
    if (!isNew) {
      Fail(entry.line, Quoted(text) + " was given before, in line " + std::to_string(place->second.line) +
                           "; keep one of them");
    }
  }

  int TestNumber(int line, std::string_view text) const {
    const auto test = ParseNumber(text, Profile::kHighestTest);
    if (!test || *test % 100 == 0) {
      Fail(line,
           Quoted(text) +
               " is not a test number; use one from 1 to 32767 that is not a multiple of 100, such as 410");
    }
    return *test;
  }

  std::pair<int, int> TestAndSetting(int line, const std::string& key) const {
    const std::size_t slash = key.find('/');
    const int test = TestNumber(line, Trim(std::string_view(key).substr(0, slash)));
    if (slash == std::string::npos) return {test, 0};
    const auto setting = ParseNumber(Trim(std::string_view(key).substr(slash + 1)), Profile::kHighestSetting);
    if (!setting)
      Fail(line, Quoted(key.substr(slash + 1)) + " is not a lead; use 0 (the test itself) or 1 to 10");
    return {test, *setting};
  }

  const Entry* Setting(const std::string& key) const {
    const auto found = settings_.find(key);
    return found == settings_.end() ? nullptr : &found->second;
  }

  Profile Base() const {
    Profile profile(name_);
    if (const Entry* base = Setting("based-on")) {
      auto builtIn = MakeBuiltInProfile(base->value);
      if (!builtIn) {
        Fail(base->line,
             Quoted(base->value) + " is not a built-in profile; use one of " + Join(BuiltInNames()));
      }
      profile = *std::move(builtIn);
      profile.SetName(name_);
    }
    if (const Entry* given = Setting("name")) {
      if (given->value.empty()) Fail(given->line, "the name is empty; give one or remove the line");
      profile.SetName(given->value);
    }
    return profile;
  }

  void SetIdentity(Profile& profile) const {
    Identity identity = profile.Who();
    TakeText("type", identity.type);
    TakeText("serial", identity.serial);
    TakeText("firmware", identity.firmware);
    profile.SetIdentity(std::move(identity));
  }

  /// Takes the text of the setting, when it is given.
  void TakeText(const std::string& key, std::string& text) const {
    const Entry* given = Setting(key);
    if (!given) return;
    if (!IsSendable(given->value))
      Fail(given->line, Quoted(key) + " holds a tab, which cannot be sent; write a blank in its place");
    if (Utf8ToLatin1(given->value).value().size() > kLongestText)
      Fail(given->line,
           Quoted(key) + " is too long; give at most " + std::to_string(kLongestText) + " characters");
    text = given->value;
  }

  void Lack(Profile& profile) const {
    const Entry* lacks = Setting("lacks");
    if (!lacks) return;
    std::string list = lacks->value;
    std::replace(list.begin(), list.end(), ',', ' ');
    for (const std::string& word : Words(list)) {
      const int test = TestNumber(lacks->line, word);
      const auto reading = readings_.lower_bound({test, 0});
      if (reading != readings_.end() && reading->first.first == test) {
        Fail(lacks->line, "test " + word + " has a reading in line " + std::to_string(reading->second.line) +
                              "; remove that line, or the test from 'lacks'");
      }
      profile.Remove(test);
    }
  }

  void SetReading(Profile& profile, int test, int setting, const Entry& entry) const {
    if (setting == 0) {
      profile.Remove(test);
    } else if (!profile.Find(test, 0)) {
      Fail(entry.line, "test " + std::to_string(test) +
                           " has a lead but no reading of its own; add a line '" + std::to_string(test) +
                           " = ...'");
    }
    profile.Set(test, setting, ParseReading(test, entry));
  }

  /// VALUE [UNIT] [overload] [N ms], in this order.
  Reading ParseReading(int test, const Entry& entry) const {
    const std::vector<std::string> words = Words(entry.value);
    std::size_t next = 0;
    const auto word = [&] { return next < words.size() ? words[next] : std::string(); };

    Reading reading;
    reading.value = word();
    if (!IsNumber(reading.value)) {
      Fail(entry.line,
           Quoted(reading.value) + " is not a number; write the reading with a point, such as 0.123");
    }
    if (reading.value.size() > kLongestNumber) {
      Fail(entry.line, "the reading has more than " + std::to_string(kLongestNumber) + " letters; round it");
    }
    ++next;
    reading.unit = ParseUnit(test, entry.line, words, next);
    if (word() == "overload") {
      reading.overload = true;
      ++next;
    }
    reading.measuringTime = MeasuringTime(test);
    if (next + 2 == words.size() && words[next + 1] == "ms") {
      reading.measuringTime = Milliseconds(entry.line, words[next]);
      next += 2;
    }
    if (next < words.size()) {
      Fail(entry.line, Quoted(words[next]) +
                           " is not understood; write: VALUE UNIT [overload] [N ms], such as " +
                           "'0.123 Ohm 900 ms'");
    }
    return reading;
  }

  std::string ParseUnit(int test, int line, const std::vector<std::string>& words, std::size_t& next) const {
    const auto usual = UnitOf(test);
    const auto units = UnitsLike(usual);
    if (next < words.size()) {
      const std::string& word = words[next];
      if (std::find(units.begin(), units.end(), word) != units.end()) {
        ++next;
        return word;
      }
      const bool isUnit = word != "overload" && !(next + 2 == words.size() && words[next + 1] == "ms");
      if (isUnit) {
        Fail(line,
             Quoted(word) + " is not a unit of test " + std::to_string(test) + "; use one of " + Join(units));
      }
    }
    if (!usual) {
      Fail(line, "test " + std::to_string(test) + " has no usual unit; add one of " + Join(units) +
                     " after the value");
    }
    return *usual;
  }

  std::chrono::milliseconds MeasuringTime(int test) const {
    const Entry* time = Setting("time");
    if (!time) return MeasuringTimeOf(test);
    const auto words = Words(time->value);
    if (words.size() != 2 || words[1] != "ms")
      Fail(time->line, Quoted(time->value) + " is not a time; write it as: time = 700 ms");
    return Milliseconds(time->line, words[0]);
  }

  std::chrono::milliseconds Milliseconds(int line, const std::string& text) const {
    const auto time = ParseNumber(text, kLongestMeasuringTime);
    if (!time) Fail(line, Quoted(text) + " is not a measuring time; use whole milliseconds from 0 to 60000");
    return std::chrono::milliseconds(*time);
  }

  const std::string& name_;
  std::map<std::string, Entry> settings_;
  std::map<std::pair<int, int>, Entry> readings_;
};

}  // namespace

Profile ParseProfile(std::string_view content, const std::string& name) {
  return Parser(name).Parse(content);
}

Profile LoadProfile(const std::string& nameOrPath) {
  if (auto builtIn = MakeBuiltInProfile(nameOrPath)) return *std::move(builtIn);
  if (access(nameOrPath.c_str(), F_OK) != 0) {
    throw InputError("profile '" + nameOrPath +
                     "' is neither a file nor a built-in profile; the built-in ones are " +
                     Join(BuiltInNames()));
  }
  return ParseProfile(ReadTextFile(nameOrPath), nameOrPath);
}

}  // namespace sim
