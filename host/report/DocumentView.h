#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"
#include "host/document/Document.h"
#include "host/judge/Verdict.h"

namespace host::document {
class Host;
}

namespace host::report {

/// What there is to show of a document.
struct DocumentView {
  std::string path;
  document::Equipment equipment;
  std::string comment;  ///< a remark about the document; may be empty
  /// The tester of the last run that had one.
  std::optional<document::RecordedTester> instrument;
  judge::JudgedDocument judged;
};

/// The document and what counts of it now.
/// @param standards names of those to judge by; empty for every one that an element names
DocumentView ViewOf(const document::Document& document, const document::Host& host,
                    std::vector<std::string> standards = {});

/// What counts of these elements and all below them, as if the document had no others.
judge::JudgedDocument JudgedPart(const judge::JudgedDocument& judged,
                                 const std::vector<std::shared_ptr<orvik::ITestElement>>& elements);

/// The elements at the top of the document, in order.
std::vector<std::shared_ptr<orvik::ITestElement>> TopElements(const document::Document& document);

/// Every standard that the limits of the document's elements name, each once, in order.
std::shared_ptr<orvik::IStandardColl> NamedStandards(const document::Document& document,
                                                     document::Host& host);

}  // namespace host::report
