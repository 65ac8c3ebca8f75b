#pragma once

#include <memory>
#include <vector>

#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"
#include "host/app/run/RunOptions.h"

namespace bench {

class Document;
class Host;

/// The elements that the options name, in their order; else all at the top. `InputError` for one that is not
/// there.
std::vector<std::shared_ptr<orvik::ITestElement>> SelectedElements(const Document& document,
                                                                   const RunOptions& options);

/// Those of the elements that have no result yet, or one that does not count, which a resumed run goes on
/// with.
/// @param standards those by which the document is judged
std::vector<std::shared_ptr<orvik::ITestElement>> WithoutResult(
    const std::vector<std::shared_ptr<orvik::ITestElement>>& elements, const Host& host,
    const std::shared_ptr<orvik::IStandardColl>& standards);

/// Has the document judge by the standards that the options name, else by every one that it names itself.
/// `InputError` for a standard that no limit of the document belongs to.
void SelectStandards(Document& document, Host& host, const RunOptions& options);

}  // namespace bench
