#pragma once

#include <cstdint>
#include <string>

#include "OrvikTypeLib/Variant.h"

namespace orvik {
class ITestElement;
}

namespace keld::results::ResultValueText {

/// The value text of an element's service record.
///
/// The element's value filter decides: 0 and 3 the largest of its values, 4 the smallest, 2 the whole list,
/// any other nothing. An element that is not applicable has no value text. The leading "/" is part of the
/// text.
/// @param vOwnValue the value of the result's own measurement, which a single test lists; empty when there is
/// none
/// @throws orvik::HostError for an element without result or without the plug-in's configuration, and
/// for any error of the host
std::string ValueText(const orvik::ITestElement& iteElement, const orvik::Variant& vOwnValue);

/// The element's values, each after a "/": those of the children's results for a sequence, `vOwnValue` for a
/// single test. An element without a value adds only the "/".
std::string CollectedList(const orvik::ITestElement& iteElement, const orvik::Variant& vOwnValue);

/// The largest or smallest piece of a collected list, after a "/". Pieces are read by their leading number,
/// and a piece without one counts as 0; a list without any value (empty or exactly "/") gives the empty text.
std::string Largest(const std::string& sList);
std::string Smallest(const std::string& sList);

}  // namespace keld::results::ResultValueText
