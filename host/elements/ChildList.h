#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/ITestEnumerator.h"

namespace host::elements {

/// The ordered children of a container. Enumerators stay valid while children are added and removed, and keep
/// the list alive.
class ChildList : public std::enable_shared_from_this<ChildList> {
 public:
  using Child = std::shared_ptr<orvik::ITestElement>;

  ~ChildList();

  std::size_t Size() const { return children_.size(); }
  const Child& At(std::size_t index) const { return children_[index]; }
  std::optional<std::size_t> IndexOf(const Child& child) const;

  void Insert(std::size_t index, Child child);
  void Erase(std::size_t index);
  /// Releases all children one by one, without recursion at any depth.
  void Clear();

  std::shared_ptr<orvik::ITestEnumerator> Walk();

 private:
  class Walker;

  std::vector<Child> children_;
  std::vector<std::weak_ptr<Walker>> walkers_;
};

}  // namespace host::elements
