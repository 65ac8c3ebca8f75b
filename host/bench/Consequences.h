#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace host::document {
class Document;
class Host;
}  // namespace host::document

namespace host::bench {

/// What a change of a document does to the results that counted before it. Every command that changes a
/// document prints it, so that the report holds no surprise.
class Consequences {
 public:
  /// Judges the document as it is before the change.
  Consequences(const document::Document& document, document::Host& host);

  /// Judges it again: a line for each element whose result no longer counts, counts now or counts as
  /// something else, with the reasons, and one when the outcome of the document has changed. Empty when
  /// nothing has.
  std::string Text() const;

 private:
  struct Verdict {
    std::string name;     ///< of the element
    std::string verdict;  ///< "passed", in English
    bool counts = false;  ///< measured or decided, and not doubtful
    std::string reasons;  ///< for people; why it does not count, or which limits it exceeds
  };
  struct Judgement {
    std::string outcome;  ///< of the document, in English
    std::map<std::int32_t, Verdict> elements;
  };

  Judgement Now() const;
  /// The line for an element that is still there; empty when nothing has changed.
  static std::string LineOf(std::int32_t id, const Verdict& before, const Verdict& after);

  const document::Document& document_;
  document::Host& host_;
  Judgement before_;
};

}  // namespace host::bench
