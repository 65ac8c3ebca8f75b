#include "tests/system/fuzz/Targets.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace fuzz {

namespace {

const std::filesystem::path kRoot = SOURCE_PATH;

std::string ContentOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error(file.string() + " cannot be read");
  std::ostringstream content;
  content << stream.rdbuf();
  return content.str();
}

/// The lines of fuzz/targets.txt that describe a target.
std::vector<std::string> DescribedTargets() {
  std::vector<std::string> described;
  std::istringstream lines(ContentOf(kRoot / "fuzz" / "targets.txt"));
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty() && line.front() != '#') described.push_back(line);
  }
  return described;
}

std::string FirstWord(const std::string& line) { return line.substr(0, line.find(' ')); }

int HexValue(char digit) { return digit <= '9' ? digit - '0' : (digit | 0x20) - 'a' + 10; }

/// A word as dictionaries have it: between quotation marks, with \\, \" and \xNN.
std::string WordOf(const std::string& line) {
  std::string word;
  for (std::size_t i = line.find('"') + 1; i + 1 < line.size(); ++i) {
    if (line[i] != '\\') {
      word += line[i];
    } else if (line[i + 1] != 'x') {
      word += line[++i];
    } else {
      word += static_cast<char>(HexValue(line.at(i + 2)) * 16 + HexValue(line.at(i + 3)));
      i += 3;
    }
  }
  return word;
}

std::vector<std::string> Dictionary(const std::string& name) {
  std::vector<std::string> words;
  std::istringstream lines(ContentOf(kRoot / "fuzz" / "dictionaries" / (name + ".dict")));
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty() && line.front() != '#') words.push_back(WordOf(line));
  }
  return words;
}

/// The files of the folder, by name, so that a seed always means the same.
std::vector<std::string> Corpus(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  std::vector<std::string> corpus;
  for (const auto& file : files) corpus.push_back(ContentOf(file));
  return corpus;
}

}  // namespace

std::vector<std::string> TargetNames() {
  std::vector<std::string> names;
  for (const auto& line : DescribedTargets()) names.push_back(FirstWord(line));
  return names;
}

Target LoadTarget(const std::string& name) {
  for (const auto& line : DescribedTargets()) {
    if (FirstWord(line) != name) continue;
    Target target;
    std::string dictionary;
    std::istringstream words(line);
    words >> target.name >> target.rounds >> dictionary;
    target.function = FunctionOf(name);
    target.dictionary = Dictionary(dictionary);
    target.corpus = Corpus(kRoot / "fuzz" / "corpus" / name);
    for (std::string file; words >> file;) target.corpus.push_back(ContentOf(kRoot / file));
    return target;
  }
  throw std::runtime_error("fuzz/targets.txt has no target " + name);
}

}  // namespace fuzz
