#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace house {

/// One place that breaks a rule of the house.
struct Finding {
  std::string where;  ///< file, or file:line
  std::string what;   ///< what is wrong there, and what to do
};

inline std::ostream& operator<<(std::ostream& stream, const Finding& finding) {
  return stream << "\n  " << finding.where << ": " << finding.what;
}

using Findings = std::vector<Finding>;

}  // namespace house
