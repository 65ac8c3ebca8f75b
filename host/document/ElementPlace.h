#pragma once

#include <cstdint>
#include <memory>

#include "OrvikTypeLib/ITestElement.h"

namespace host::document {

/// Where an element of a document is placed: at the end of a sequence or of the document, or beside another
/// element. The order of elements is the order of testing.
struct ElementPlace {
  /// @param sequence null for the document itself
  static ElementPlace AtEndOf(std::shared_ptr<orvik::ITestElement> sequence) {
    return {std::move(sequence), 0, 0};
  }
  /// @param neighbour an element of the document
  static ElementPlace Before(const orvik::ITestElement& neighbour) {
    return {neighbour.Parent(), neighbour.ID(), 0};
  }
  /// @param neighbour an element of the document
  static ElementPlace After(const orvik::ITestElement& neighbour) {
    return {neighbour.Parent(), 0, neighbour.ID()};
  }

  /// What holds the element; null for the document itself.
  std::shared_ptr<orvik::ITestElement> holder;
  std::int32_t before = 0;  ///< identifier of the next element; 0 for none
  std::int32_t after = 0;   ///< identifier of the element in front; 0 for none
};

}  // namespace host::document
