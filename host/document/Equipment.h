#pragma once

#include <string>

namespace host::document {

/// The equipment under test.
struct Equipment {
  std::string asset;
  std::string serial;
  std::string maker;
  std::string model;
  bool operator==(const Equipment&) const = default;
};

}  // namespace host::document
