#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

namespace conformance {

/// A plug-in library under test, and the facts that its checks need.
struct Subject {
  std::string name;
  std::string path;
  std::string plugInId;
  /// Replaces the settings value "Configuration"; none for a plug-in without settings.
  std::optional<std::string> catalogue;
  /// A test of its catalogue that can be run alone.
  std::int32_t testId = 0;
};

/// The KELD plug-in, with a small catalogue: the group 400 of 410 and 420, the test 210.
Subject KeldPlugIn();
/// The checker plug-in, which is also the template for authors.
Subject CheckerPlugIn();

/// A text that a test is given, under a name that says what is wrong with it.
struct NamedText {
  const char* name;
  const char* text;
};

inline void PrintTo(const NamedText& text, std::ostream* stream) { *stream << text.name; }

inline void PrintTo(const Subject& subject, std::ostream* stream) { *stream << subject.name; }

}  // namespace conformance
