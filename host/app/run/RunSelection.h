#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"

namespace bench {

class Document;
class Host;

/// What of a document is to be run.
struct RunSelection {
  std::string file;
  std::vector<std::int32_t> elements;  ///< none: all at the top
  std::vector<std::string> standards;  ///< none: all that the document names
  bool resume = false;                 ///< only what has no result yet
};

/// The elements that the selection names, in their order; else all at the top. `InputError` for one that is
/// not there.
std::vector<std::shared_ptr<orvik::ITestElement>> SelectedElements(const Document& document,
                                                                   const RunSelection& selection);

/// Those of the elements that have no result yet, or one that does not count, which a resumed run goes on
/// with.
/// @param standards those by which the document is judged
std::vector<std::shared_ptr<orvik::ITestElement>> WithoutResult(
    const std::vector<std::shared_ptr<orvik::ITestElement>>& elements, const Host& host,
    const std::shared_ptr<orvik::IStandardColl>& standards);

/// Has the document judge by the standards that the selection names, else by every one that it names itself.
/// `InputError` for a standard that no limit of the document belongs to.
void SelectStandards(Document& document, Host& host, const RunSelection& selection);

/// The operator's name that was given, else that of the account; may be empty.
std::string OperatorName(const std::string& given);

}  // namespace bench
