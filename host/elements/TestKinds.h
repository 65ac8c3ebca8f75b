#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>

#include "host/elements/ElementFactory.h"

namespace bench {

/// What is known of the test that an element stands for.
struct TestKind {
  std::string fault;      ///< why it is no test of the catalogue, for people; empty when it is one
  bool readable = false;  ///< there is a class that reads what was saved
  bool sequence = false;
  std::optional<std::string> unit;  ///< that its readings are recorded in
};

/// The tests that elements stand for, each looked up once. A result of what the catalogue does not know
/// counts for nothing: nobody can say what was measured.
class TestKinds {
 public:
  explicit TestKinds(const ElementFactory& factory) : factory_(factory) {}

  /// @param classId of the element; empty when it was not told. The answer is valid as long as this object.
  const TestKind& Of(const std::string& plugInId, std::int32_t testId, const std::string& classId);

 private:
  TestKind Learned(const std::string& plugInId, std::int32_t testId, const std::string& classId) const;

  const ElementFactory& factory_;
  std::map<std::tuple<std::int32_t, std::string, std::string>, TestKind> known_;
};

}  // namespace bench
