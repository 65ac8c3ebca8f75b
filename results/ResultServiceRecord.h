#pragma once

#include <cstdint>
#include <memory>

#include "OrvikTypeLib/Variant.h"

namespace orvik {
class IServiceRecord;
class ITestElement;
}  // namespace orvik

namespace keld::results {

/// The host's summary of an element's result: the element's information record, the code and the value text.
/// @param lStatus result status; decides the code by `orvik::ServiceCode::Of`
/// @param vOwnValue the value of the result's own measurement; empty when there is none
/// @return the record, or empty when the status has none
/// @throws orvik::HostError when the host cannot make the record, or the element has no information record
std::shared_ptr<orvik::IServiceRecord> MakeServiceRecord(
    const std::shared_ptr<orvik::ITestElement>& iteElement, std::int32_t lStatus,
    const orvik::Variant& vOwnValue);

}  // namespace keld::results
