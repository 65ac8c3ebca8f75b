// The command line of keld-sim: a word in each line.
#include <sstream>
#include <vector>

#include "fuzz/TesterErrors.h"
#include "tester/Options.h"
#include "tester/Tester.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::vector<std::string> words;
  std::istringstream lines(fuzz::TextOf(data, size));
  // A word of the command line ends at a NUL.
  for (std::string word; std::getline(lines, word);) words.emplace_back(word.c_str());
  sim::Options options;
  if (!fuzz::IsTaken([&] { options = sim::ParseOptions(words); }, "keld-sim --help")) return 0;
  if (options.action != sim::Options::Action::Run) return 0;
  fuzz::Require(!options.link.empty(), "a tester that runs has a link");
  fuzz::Require(options.timeScale >= sim::Tester::kLowestTimeScale &&
                    options.timeScale <= sim::Tester::kHighestTimeScale,
                "the time-scale is within its bounds");
  fuzz::Require(options.FaultRate() > 0 && options.FaultRate() <= 1,
                "the share of faults is within its bounds");
  return 0;
}
