#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "host/bench/LimitText.h"
#include "host/standards/LimitSet.h"

namespace host::elements {
class ElementFactory;
}

namespace host::bench {

/// The result of applying a set, a line for each element.
struct AppliedLimits {
  std::vector<std::string> applied;
  std::vector<std::string> uncovered;  ///< tests that the set has no figure for
};

/// What to do with limits from an earlier set of the same standard.
enum class EarlierSets { kReplaced, kKept };

/// Sets the limits of the set on the elements and all below them. Limits of the same set are replaced. So are
/// those of an earlier set of the same standard (such as class II before class I), unless they are kept. A
/// limit without a description was set by hand and is kept. An element that gets a limit is no longer
/// record-only. When the set covers none of the elements, nothing changes and `applied` is empty.
/// `InputError` naming the element when its unit does not fit; elements may then have changed already.
AppliedLimits ApplyLimitSet(const standards::LimitSet& set,
                            const std::vector<std::shared_ptr<orvik::ITestElement>>& elements,
                            const elements::ElementFactory& factory,
                            EarlierSets earlier = EarlierSets::kReplaced);

}  // namespace host::bench
