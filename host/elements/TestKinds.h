#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>

#include "host/elements/ElementFactory.h"

namespace host::elements {

/// What the catalogue says of an element's test.
struct TestKind {
  std::string fault;      ///< why the catalogue does not have it, as a sentence; empty when it does
  bool readable = false;  ///< a class can load the saved element
  bool sequence = false;
  std::optional<std::string> unit;  ///< in which readings are recorded
};

/// Looks up the tests of elements, each once. A result of an unknown test does not count, since it is unknown
/// what was measured.
class TestKinds {
 public:
  explicit TestKinds(const ElementFactory& factory) : factory_(factory) {}

  /// @param classId class of the element; empty when it is not saved
  /// @return valid as long as this object
  const TestKind& Of(const std::string& plugInId, std::int32_t testId, const std::string& classId);

 private:
  TestKind Learned(const std::string& plugInId, std::int32_t testId, const std::string& classId) const;

  const ElementFactory& factory_;
  std::map<std::tuple<std::int32_t, std::string, std::string>, TestKind> known_;
};

}  // namespace host::elements
