#include "tester/Options.h"

#include <getopt.h>

#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>

#include "tester/Errors.h"
#include "tester/Tester.h"
#include "tester/Text.h"

namespace sim {

namespace {

constexpr std::size_t kLongestSerial = 64;

[[noreturn]] void Fail(const std::string& message) { throw InputError(message + "\nTry 'keld-sim --help'."); }

/// The whole of `text` as a number of its type; empty when it is none.
template <class Number>
std::optional<Number> WholeIn(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

double ParseTimeScale(std::string_view text) {
  const auto scale = WholeIn<double>(text);
  if (!scale || !(*scale >= Tester::kLowestTimeScale && *scale <= Tester::kHighestTimeScale)) {
    Fail("--time-scale '" + std::string(text) +
         "': give a number from 0.001 to 1000000000, such as 10 for ten times as fast");
  }
  return *scale;
}

std::uint64_t ParseSeed(std::string_view text) {
  const auto seed = WholeIn<std::uint64_t>(text);
  if (!seed) Fail("--fault-seed " + Quoted(text) + ": give a whole number from 0 to 18446744073709551615");
  return *seed;
}

double ParseRate(std::string_view text) {
  const auto rate = WholeIn<double>(text);
  if (!rate || !(*rate > 0 && *rate <= 1))
    Fail("--fault-rate " + Quoted(text) +
         ": give a share above 0 and up to 1, such as 0.1 for every tenth reply");
  return *rate;
}

/// Faults come from one source only.
void CheckFaults(const Options& options) {
  const int ways =
      int{options.faults.has_value()} + int{options.faultSeed.has_value()} + int{options.replay.has_value()};
  if (ways > 1) Fail("--faults, --fault-seed and --replay exclude each other: give one of them");
  if (options.faultRate && !options.faultSeed) Fail("--fault-rate needs --fault-seed: give a seed as well");
}

std::string ParseSerial(const std::string& text) {
  if (!IsSendable(text) || text.size() > kLongestSerial) {
    Fail("--serial '" + text + "': give at most 64 characters of ISO 8859-1, without control characters");
  }
  return text;
}

std::string NotEmpty(const char* name, const char* text) {
  if (*text == '\0') Fail(std::string(name) + " needs a value that is not empty");
  return text;
}

struct Known {
  const char* name;
  bool needsValue;
  void (*take)(Options& options, const char* value);
};

constexpr Known kKnown[] = {
    {"link", true, [](Options& to, const char* value) { to.link = NotEmpty("--link", value); }},
    {"profile", true, [](Options& to, const char* value) { to.profile = NotEmpty("--profile", value); }},
    {"faults", true, [](Options& to, const char* value) { to.faults = NotEmpty("--faults", value); }},
    {"fault-seed", true, [](Options& to, const char* value) { to.faultSeed = ParseSeed(value); }},
    {"fault-rate", true, [](Options& to, const char* value) { to.faultRate = ParseRate(value); }},
    {"replay", true, [](Options& to, const char* value) { to.replay = NotEmpty("--replay", value); }},
    {"serial", true, [](Options& to, const char* value) { to.serial = ParseSerial(value); }},
    {"time-scale", true, [](Options& to, const char* value) { to.timeScale = ParseTimeScale(value); }},
    {"trace", true, [](Options& to, const char* value) { to.trace = NotEmpty("--trace", value); }},
    {"exit-with-parent", false, [](Options& to, const char*) { to.exitWithParent = true; }},
    {"help", false, [](Options& to, const char*) { to.action = Options::Action::ShowHelp; }},
    {"help-man", false, [](Options& to, const char*) { to.action = Options::Action::ShowManual; }},
    {"version", false, [](Options& to, const char*) { to.action = Options::Action::ShowVersion; }},
};

}  // namespace

Options ParseOptions(const std::vector<std::string>& arguments) {
  std::vector<std::string> words{"keld-sim"};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> argv;
  argv.reserve(words.size() + 1);
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  const int argc = static_cast<int>(words.size());

  std::vector<option> known;
  for (const auto& one : kKnown)
    known.push_back({one.name, one.needsValue ? required_argument : no_argument, nullptr, 0});
  known.push_back({});

  Options options;
  optind = 0;  // begin afresh, also after an earlier call
  opterr = 0;  // the messages are ours
  for (;;) {
    // '+': getopt must not reorder the words; ':': distinguishes a missing value from an unknown option.
    int which = 0;
    const int code = getopt_long(argc, argv.data(), "+:h", known.data(), &which);
    if (code == -1) break;
    const std::string word = words[static_cast<std::size_t>(optind > 0 ? optind - 1 : 0)];
    if (code == ':') Fail("option " + word + " needs a value");
    if (code == '?') Fail("option " + word + " is unknown, ambiguous, or takes no value");
    if (code == 'h')
      options.action = Options::Action::ShowHelp;
    else
      kKnown[which].take(options, optarg);
    if (options.action != Options::Action::Run) return options;
  }
  if (optind < argc)
    Fail(Quoted(words[static_cast<std::size_t>(optind)]) +
         " is not understood; every setting is an option that begins with --");
  CheckFaults(options);
  if (options.link.empty()) Fail("--link PATH is missing: give the path for the link to the pseudo-terminal");
  return options;
}

}  // namespace sim
