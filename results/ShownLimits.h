#pragma once

#include <string>

namespace orvik {
class IMeasurement;
class ITestElement;
}  // namespace orvik

namespace keld::results {

/// Texts of the two limit cells of a result row; a single blank where there is no bound.
struct ShownLimits {
  std::string sHigh = " ";
  std::string sLow = " ";
};

/// The tightest bounds that the element's standard with these identifying strings holds under the
/// measurement's limit key: whole numbers with the measurement's unit. Blanks where element, limits, standard
/// or key are missing.
ShownLimits LimitsOf(const orvik::ITestElement* iteElement, const orvik::IMeasurement* Measurement,
                     const std::string& sStandardName, const std::string& sStandardText);

}  // namespace keld::results
