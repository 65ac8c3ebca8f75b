#pragma once

#include <memory>
#include <vector>

#include "OrvikTypeLib/ITestContainer.h"
#include "host/elements/TestElement.h"

namespace host::elements {

class ChildList;

/// The standard element with children. A child has one container: adding it again, or to another container,
/// moves it.
class TestContainer final : public TestElement, public orvik::ITestContainer {
 public:
  explicit TestContainer(std::weak_ptr<ElementFactory> factory);
  ~TestContainer() override;

  /// Adds the element saved in the node. An unknown element is kept as it is.
  void AddSaved(const std::shared_ptr<orvik::IXmlNode>& element);
  /// Adds the child to the node, counted from 0; `HostError` when it cannot be saved.
  void SaveChild(std::size_t index, const std::shared_ptr<orvik::IXmlNode>& node) const;
  /// Adds all children to the node.
  void SaveChildren(const std::shared_ptr<orvik::IXmlNode>& node) const override;

 private:
  std::string IObject_ClassID() const override;

  void ITestContainer_Add(std::shared_ptr<orvik::ITestElement> iteElement, const orvik::Variant& vBefore,
                          const orvik::Variant& vAfter) override;
  std::int32_t ITestContainer_Count() const override;
  std::shared_ptr<orvik::ITestElement> ITestContainer_item(std::int32_t lIndex) const override;
  std::shared_ptr<orvik::ITestElement> ITestContainer_FindElement(std::int32_t lIdentifier) const override;
  std::shared_ptr<orvik::ITestEnumerator> ITestContainer_NewEnum() const override;
  void ITestContainer_Remove(std::shared_ptr<orvik::ITestElement> iteElement) override;

  std::shared_ptr<TestElement> NewOfSameClass() const override;
  bool HasChildren() const override;
  void CloneChildren(TestElement& copy) const override;
  void ClearChildren() override;
  bool LoadChild(const std::shared_ptr<orvik::IXmlNode>& node,
                 const std::shared_ptr<IObject>& context) override;
  void PrintChildren(const std::shared_ptr<orvik::IReport>& report,
                     const std::shared_ptr<IObject>& context) override;
  void OuterChanged() override;

  void RefuseCycle(const std::shared_ptr<orvik::ITestElement>& element) const;
  std::size_t PlaceFor(const orvik::Variant& before, const orvik::Variant& after) const;

  std::shared_ptr<ChildList> children_;
};

}  // namespace host::elements
