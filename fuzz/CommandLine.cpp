// The command line of orvik-bench, a word in each line, carried out in a folder of its own.
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <vector>

#include "fuzz/Promise.h"
#include "fuzz/Scratch.h"
#include "host/cli/Program.h"

namespace {

using fuzz::Require;

/// Everything that is printed, while it lives.
class Printed {
 public:
  Printed() : out_(std::cout.rdbuf(text_.rdbuf())), error_(std::cerr.rdbuf(errors_.rdbuf())) {}
  Printed(const Printed&) = delete;
  Printed& operator=(const Printed&) = delete;
  ~Printed() {
    std::cout.rdbuf(out_);
    std::cerr.rdbuf(error_);
  }

  std::string Errors() const { return errors_.str(); }

 private:
  std::ostringstream text_, errors_;
  std::streambuf* const out_;
  std::streambuf* const error_;
};

/// The folder in which a command runs, with a document in it. The destructor leaves it, since the fuzzer
/// finds its own files by relative names.
class Workplace {
 public:
  explicit Workplace(const std::filesystem::path& outer)
      : outer_(outer), before_(std::filesystem::current_path()) {
    const auto folder = outer_ / "inner";
    std::filesystem::create_directories(folder);
    std::filesystem::copy_file(SOURCE_PATH "/fuzz/corpus/document/two-runs.orvik", folder / "a.orvik");
    std::filesystem::current_path(folder);
  }
  Workplace(const Workplace&) = delete;
  Workplace& operator=(const Workplace&) = delete;
  ~Workplace() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
    std::filesystem::remove_all(outer_, ignored);
  }

 private:
  const std::filesystem::path outer_;
  const std::filesystem::path before_;
};

/// The folder of all inputs; sets the environment for it.
const std::filesystem::path& ScratchFolder() {
  static const fuzz::Scratch scratch;
  static const bool set = [] {
    setenv("ORVIK_STATE", (scratch.Folder() / "state").c_str(), 1);
    return setenv("ORVIK_LANG", "C", 1) == 0;
  }();
  Require(set, "the environment can be set");
  return scratch.Folder();
}

std::vector<std::string> WordsOf(const std::string& text) {
  std::vector<std::string> words;
  std::istringstream lines(text);
  for (std::string word; std::getline(lines, word);) {
    for (char& c : word) {
      if (c == '/') c = '_';  // nothing outside the folder is touched
    }
    words.emplace_back(word.c_str());  // a word of the command line ends at a NUL
  }
  return words;
}

/// Whether the word starts other programs or Qt; other tests cover those.
bool IsElsewhere(const std::string& word) {
  return word == "gui" || word.starts_with("--simulate") || word.ends_with("pdf") || word.ends_with("PDF");
}

/// The exit status, for which there is a reason on the standard error unless it is 0.
int StatusOf(const std::vector<std::string>& words) {
  std::vector<const char*> arguments{"orvik-bench"};
  for (const auto& word : words) arguments.push_back(word.c_str());
  const Printed printed;
  const auto status =
      static_cast<int>(host::cli::RunProgram(static_cast<int>(arguments.size()), arguments.data()));
  Require(status != 4, "no command line is an internal error: " + printed.Errors());
  return status;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto words = WordsOf(fuzz::TextOf(data, size));
  for (const auto& word : words) {
    if (IsElsewhere(word)) return 0;
  }
  const Workplace workplace(ScratchFolder() / "outer");
  const auto status = StatusOf(words);
  Require((status >= 0 && status <= 3) || status == 5, "the exit status is one of those that are documented");
  return 0;
}
