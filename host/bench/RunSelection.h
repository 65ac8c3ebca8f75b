#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"
#include "host/judge/Verdict.h"

namespace host::document {
class Document;
class Host;
}  // namespace host::document

namespace host::bench {

/// The part of a document to run.
struct RunSelection {
  std::string file;
  std::vector<std::int32_t> elements;  ///< none: all at the top
  std::vector<std::string> standards;  ///< none: all that the document names
  bool resume = false;                 ///< only what has no result yet
};

/// The elements that the selection names, in their order; else all at the top. `InputError` for one that is
/// not there.
std::vector<std::shared_ptr<orvik::ITestElement>> SelectedElements(const document::Document& document,
                                                                   const RunSelection& selection);

/// The elements with which a resumed run continues. When the last runs were not finished, those that
/// the last of them took up and that have no result since; otherwise those of which something has no current
/// result, or a doubtful one.
std::vector<std::shared_ptr<orvik::ITestElement>> Unfinished(
    const std::vector<std::shared_ptr<orvik::ITestElement>>& elements, const document::Document& document,
    const judge::JudgedDocument& judged);

/// Has the plug-in judge by the standards that the selection names, else by every one that the document
/// names. `InputError` for a standard that no limit of the document belongs to.
void SelectStandards(document::Document& document, document::Host& host, const RunSelection& selection);

/// `InputError` for a name that is not among the document's standards.
void RequireStandards(const judge::JudgedDocument& judged, const std::vector<std::string>& names,
                      const std::string& file);

/// The operator's name that was given, else that of the account; may be empty.
std::string OperatorName(const std::string& given);

}  // namespace host::bench
