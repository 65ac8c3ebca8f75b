#pragma once

#include <string>
#include <vector>

namespace sim {

/// What there is to say about the program: one text for --help and for the manual page.
struct Manual {
  /// A word and what it means.
  struct Entry {
    std::string term;
    std::string text;
  };
  /// A paragraph, or lines that stay as they are, or a list: one of the three is filled.
  struct Block {
    std::string paragraph;
    std::vector<std::string> example;
    std::vector<Entry> list;
  };
  struct Section {
    std::string title;
    std::vector<Block> blocks;
  };

  std::string purpose;   ///< in one line, after the program's name
  std::string synopsis;  ///< how to call it
  std::vector<Section> sections;
};

/// The text.
Manual TheManual();

/// The text of --help.
std::string HelpText();

/// The manual page keld-sim(1), for man.
std::string ManualPage();

/// The text of --version, one line.
std::string VersionText();

}  // namespace sim
