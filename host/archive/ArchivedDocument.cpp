#include "host/archive/ArchivedDocument.h"

namespace host::archive {

bool TrendPoint::Overloaded() const {
  const auto& measurement = element.result.measurement;
  return measurement && measurement->Overloaded();
}

std::optional<double> TrendPoint::Value() const {
  const auto& measurement = element.result.measurement;
  return measurement && !Overloaded() ? measurement->value : std::nullopt;
}

std::string TrendPoint::Unit() const {
  const auto& measurement = element.result.measurement;
  if (!measurement) return {};
  return measurement->unit.empty() ? element.result.unit : measurement->unit;
}

}  // namespace host::archive
