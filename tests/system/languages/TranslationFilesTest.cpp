#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "tests/support/Process.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/system/languages/Languages.h"

namespace {

using languages::Entry;

struct File {
  std::string module, language;
};

std::vector<File> Files() {
  std::vector<File> files;
  for (const auto& module : languages::kModules) {
    for (const auto& language : languages::kAll) files.push_back({module, language});
  }
  return files;
}

/// How often each placeholder is in the text.
std::map<std::string, int> PlaceholdersOf(const std::string& text) {
  std::map<std::string, int> found;
  for (auto at = text.find("%%"); at != std::string::npos; at = text.find("%%", at + 2))
    ++found[text.substr(at, 3)];
  return found;
}

std::string LeadingBlanks(const std::string& text) { return text.substr(0, text.find_first_not_of(" \n")); }
std::string TrailingBlanks(const std::string& text) { return text.substr(text.find_last_not_of(" \n") + 1); }

/// Words that are the same in English and in the language, or belong to no language.
bool MayBeTheSame(const std::string& language, const std::string& text) {
  static const std::set<std::string> kEverywhere{"OK",
                                                 "&OK",
                                                 "OL",
                                                 "V",
                                                 "mOhm",
                                                 "MOhm",
                                                 "µA",
                                                 "Firmware",
                                                 "%%1 - %%2",
                                                 "calibrate: %%1",
                                                 "%%1 mOhm, %%2",
                                                 "--element %%1, --low, --high, --unit: %%2"};
  static const std::map<std::string, std::set<std::string>> kSome{
      {"de", {"Element", "Status", "Revision", "System", "Version"}},
      {"fr", {"Description", "OPTIONS", "Document", "Date", "Partial", "Type", "Version", "Configuration"}},
      {"es", {"&No", "No", "Error", "Total"}},
      {"zh", {}}};
  const auto isLetter = [](unsigned char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
  if (std::none_of(text.begin(), text.end(), isLetter)) return true;
  return kEverywhere.contains(text) || kSome.at(language).contains(text);
}

class TranslationFile : public testing::TestWithParam<File> {
 protected:
  std::filesystem::path Path() const {
    return languages::Folder() / (GetParam().module + "." + GetParam().language + ".po");
  }
  std::string Place(const Entry& entry) const {
    return Path().filename().string() + ":" + std::to_string(entry.line) + ": \"" + entry.english + "\"";
  }
};

TEST_P(TranslationFile, HasEveryTextTranslated) {
  const auto entries = languages::EntriesOf(Path());
  EXPECT_GT(entries.size(), 30U);
  for (const auto& entry : entries) {
    EXPECT_FALSE(entry.translated.empty()) << Place(entry) << " has no translation";
    EXPECT_FALSE(entry.fuzzy) << Place(entry) << " is marked as fuzzy";
  }
}

TEST_P(TranslationFile, KeepsPlaceholdersAndBlanks) {
  for (const auto& entry : languages::EntriesOf(Path())) {
    EXPECT_EQ(PlaceholdersOf(entry.translated), PlaceholdersOf(entry.english)) << Place(entry);
    EXPECT_EQ(LeadingBlanks(entry.translated), LeadingBlanks(entry.english)) << Place(entry);
    EXPECT_EQ(TrailingBlanks(entry.translated), TrailingBlanks(entry.english)) << Place(entry);
  }
}

TEST_P(TranslationFile, ClosesEveryBracket) {
  const auto count = [](const std::string& text, const std::string& bracket) {
    int found = 0;
    for (auto at = text.find(bracket); at != std::string::npos; at = text.find(bracket, at + 1)) ++found;
    return found;
  };
  for (const auto& entry : languages::EntriesOf(Path())) {
    EXPECT_EQ(count(entry.translated, "("), count(entry.translated, ")")) << Place(entry);
    EXPECT_EQ(count(entry.translated, "\uFF08"), count(entry.translated, "\uFF09")) << Place(entry);
  }
}

TEST_P(TranslationFile, TranslatesEveryText) {
  for (const auto& entry : languages::EntriesOf(Path())) {
    if (entry.translated == entry.english) {
      EXPECT_TRUE(MayBeTheSame(GetParam().language, entry.english))
          << Place(entry) << " is the same as in English";
    }
  }
}

TEST_P(TranslationFile, KeepsOptionsAndCommands) {
  for (const auto& entry : languages::EntriesOf(Path())) {
    // An option such as "--wire-log", a file's ending, a variable of the environment.
    for (auto at = entry.english.find("--"); at != std::string::npos; at = entry.english.find("--", at + 2)) {
      const auto end = entry.english.find_first_not_of("abcdefghijklmnopqrstuvwxyz-", at);
      const auto option = entry.english.substr(at, end == std::string::npos ? end : end - at);
      EXPECT_NE(entry.translated.find(option), std::string::npos) << Place(entry) << " loses " << option;
    }
    const auto command = entry.english.find("orvik-bench ");
    if (command != std::string::npos) {
      EXPECT_NE(entry.translated.find("orvik-bench "), std::string::npos) << Place(entry);
    }
  }
}

TEST_P(TranslationFile, PassesMsgfmt) {
  const auto checked =
      support::Run("/usr/bin/msgfmt", {"--check", "--output-file=/dev/null", Path().string()});
  EXPECT_EQ(checked.status, 0) << checked.error;
  EXPECT_EQ(checked.error, "");
}

INSTANTIATE_TEST_SUITE_P(All, TranslationFile, testing::ValuesIn(Files()), [](const auto& given) {
  return (given.param.module == "orvik-bench" ? "bench" : given.param.module) + "_" + given.param.language;
});

/// Units are compared: a limit in a translated unit would no longer match the reading.
TEST(Translations, KeepUnits) {
  const std::set<std::string> units{"V", "mOhm", "MOhm", "µA"};
  for (const auto& language : languages::kAll) {
    std::size_t seen = 0;
    for (const auto& entry : languages::EntriesOf(languages::Folder() / ("KELD." + language + ".po"))) {
      if (!units.contains(entry.english)) continue;
      ++seen;
      EXPECT_EQ(entry.translated, entry.english) << language << ", text " << entry.context;
    }
    EXPECT_EQ(seen, units.size()) << language;
  }
}

/// Names identify tests in lists and reports.
TEST(Translations, KeepNamesDistinct) {
  for (const auto& language : languages::kAll) {
    std::map<std::string, std::string> names;
    for (const auto& entry : languages::EntriesOf(languages::Folder() / ("KELD." + language + ".po"))) {
      if (entry.context < "21000") continue;
      const auto [known, added] = names.emplace(entry.translated, entry.english);
      EXPECT_TRUE(added) << language << ": \"" << entry.english << "\" and \"" << known->second
                         << "\" are both \"" << entry.translated << "\"";
    }
    EXPECT_GT(names.size(), 90U);
  }
}

TEST(Translations, MatchTheTextsOfTheSources) {
  support::TemporaryFolder folder;
  const auto copy = folder.Path() / "translations";
  std::filesystem::copy(languages::Folder(), copy, std::filesystem::copy_options::recursive);
  const auto collected = support::Run((languages::Folder() / "update").string(), {copy.string()});
  ASSERT_EQ(collected.status, 0) << collected.error;
  for (const auto& file : std::filesystem::directory_iterator(copy)) {
    const auto name = file.path().filename();
    if (languages::Contents(file.path()) == languages::Contents(languages::Folder() / name)) continue;
    std::set<std::string> fresh, old;
    for (const auto& entry : languages::EntriesOf(file.path())) fresh.insert(entry.context + entry.english);
    for (const auto& entry : languages::EntriesOf(languages::Folder() / name))
      old.insert(entry.context + entry.english);
    std::string texts;
    for (const auto& text : fresh) texts += old.contains(text) ? "" : "\n  missing: " + text;
    for (const auto& text : old) texts += fresh.contains(text) ? "" : "\n  no longer in the sources: " + text;
    ADD_FAILURE() << name << " is not what the sources have; run packaging/translations/update" << texts;
  }
}

TEST(Translations, AreDeliveredWithTheProgram) {
  const auto delivered = std::filesystem::path(ORVIK_BENCH_PATH).parent_path().parent_path() / "share" /
                         "orvik" / "translations";
  for (const auto& file : Files()) {
    const auto name = file.module + "." + file.language + ".po";
    EXPECT_EQ(languages::Contents(delivered / name), languages::Contents(languages::Folder() / name)) << name;
  }
}

}  // namespace
