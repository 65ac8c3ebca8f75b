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

enum Code {
  kLink = 'l',
  kProfile = 'p',
  kFaults = 'f',
  kFaultSeed = 'F',
  kFaultRate = 'R',
  kReplay = 'r',
  kSerial = 's',
  kTimeScale = 'x',
  kTrace = 't',
  kParent = 'e',
  kHelp = 'h',
  kManual = 'm',
  kVersion = 'V'
};

constexpr option kLongOptions[] = {
    {"link", required_argument, nullptr, kLink},
    {"profile", required_argument, nullptr, kProfile},
    {"faults", required_argument, nullptr, kFaults},
    {"fault-seed", required_argument, nullptr, kFaultSeed},
    {"fault-rate", required_argument, nullptr, kFaultRate},
    {"replay", required_argument, nullptr, kReplay},
    {"serial", required_argument, nullptr, kSerial},
    {"time-scale", required_argument, nullptr, kTimeScale},
    {"trace", required_argument, nullptr, kTrace},
    {"exit-with-parent", no_argument, nullptr, kParent},
    {"help", no_argument, nullptr, kHelp},
    {"help-man", no_argument, nullptr, kManual},
    {"version", no_argument, nullptr, kVersion},
    {nullptr, 0, nullptr, 0},
};

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

/// A tester can go wrong in one way alone.
void CheckFaults(const Options& options, bool rateGiven) {
  const int ways =
      int{options.faults.has_value()} + int{options.faultSeed.has_value()} + int{options.replay.has_value()};
  if (ways > 1) Fail("--faults, --fault-seed and --replay exclude each other: give one of them");
  if (rateGiven && !options.faultSeed) Fail("--fault-rate goes with --fault-seed: give a seed as well");
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

void Take(int code, Options& options) {
  switch (code) {
    case kLink:
      options.link = NotEmpty("--link", optarg);
      break;
    case kProfile:
      options.profile = NotEmpty("--profile", optarg);
      break;
    case kFaults:
      options.faults = NotEmpty("--faults", optarg);
      break;
    case kFaultSeed:
      options.faultSeed = ParseSeed(optarg);
      break;
    case kFaultRate:
      options.faultRate = ParseRate(optarg);
      break;
    case kReplay:
      options.replay = NotEmpty("--replay", optarg);
      break;
    case kSerial:
      options.serial = ParseSerial(optarg);
      break;
    case kTimeScale:
      options.timeScale = ParseTimeScale(optarg);
      break;
    case kTrace:
      options.trace = NotEmpty("--trace", optarg);
      break;
    case kParent:
      options.exitWithParent = true;
      break;
    case kHelp:
      options.action = Options::Action::ShowHelp;
      break;
    case kManual:
      options.action = Options::Action::ShowManual;
      break;
    case kVersion:
      options.action = Options::Action::ShowVersion;
      break;
    default:
      break;
  }
}

}  // namespace

Options ParseOptions(const std::vector<std::string>& arguments) {
  std::vector<std::string> words{"keld-sim"};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> argv;
  argv.reserve(words.size() + 1);
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  const int argc = static_cast<int>(words.size());

  Options options;
  bool rateGiven = false;
  optind = 0;  // begin afresh, also after an earlier call
  opterr = 0;  // the messages are ours
  for (;;) {
    // '+': getopt must not reorder the words; ':': it tells a missing value from an unknown option.
    const int code = getopt_long(argc, argv.data(), "+:h", kLongOptions, nullptr);
    if (code == -1) break;
    const std::string word = words[static_cast<std::size_t>(optind > 0 ? optind - 1 : 0)];
    if (code == ':') Fail("option " + word + " needs a value");
    if (code == '?') Fail("option " + word + " is unknown, ambiguous, or takes no value");
    Take(code, options);
    rateGiven |= code == kFaultRate;
    if (options.action != Options::Action::Run) return options;
  }
  if (optind < argc)
    Fail(Quoted(words[static_cast<std::size_t>(optind)]) +
         " is not understood; every setting is an option that begins with --");
  CheckFaults(options, rateGiven);
  if (options.link.empty())
    Fail("--link PATH is missing: say where the link to the pseudo-terminal is to stand");
  return options;
}

}  // namespace sim
