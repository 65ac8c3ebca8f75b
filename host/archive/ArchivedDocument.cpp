#include "host/archive/ArchivedDocument.h"

namespace bench {

bool TrendPoint::Overloaded() const {
  const auto& measurement = element.summary.measurement;
  return measurement && measurement->flags.find('O') != std::string::npos;
}

bool TrendPoint::HasValue() const {
  return element.summary.measurement && element.summary.measurement->value && !Overloaded();
}

}  // namespace bench
