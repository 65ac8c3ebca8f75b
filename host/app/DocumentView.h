#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"
#include "host/run/ElementSummary.h"

namespace bench {

class Document;
class Host;

/// The tester that a document was measured with last.
struct InstrumentSummary {
  std::string type;
  std::string serial;
  std::string firmware;
  std::int32_t calibration = 0;  ///< resistance of the test leads, mOhm
};

/// What there is to show of a document.
struct DocumentSummary {
  std::string path;
  Outcome outcome = Outcome::kIncomplete;
  std::optional<InstrumentSummary> instrument;
  std::vector<ElementSummary> elements;
};

/// The elements at the top of the document, in order.
std::vector<std::shared_ptr<orvik::ITestElement>> TopElements(const Document& document);

/// Every standard that the limits of the document's elements name, each once, in order.
std::shared_ptr<orvik::IStandardColl> NamedStandards(const Document& document, Host& host);

/// @param standards those by which the elements are judged
DocumentSummary SummaryOf(const Document& document, const Host& host,
                          const std::shared_ptr<orvik::IStandardColl>& standards);

}  // namespace bench
