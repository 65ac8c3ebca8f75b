#include "host/elements/TestContainer.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "host/base/Tr.h"
#include "host/elements/ChildList.h"
#include "host/elements/ElementTags.h"
#include "host/elements/PrintAlone.h"
#include "host/elements/UnknownElement.h"
#include "host/xml/XmlNode.h"

namespace host::elements {
namespace {

using orvik::HostError;

constexpr char kContainerSource[] = "OrvikTypeLib.TestContainer";

/// A container that is being searched, and how many of its children were visited.
struct Level {
  std::shared_ptr<const orvik::ITestContainer> container;
  std::int32_t visited = 0;
};

}  // namespace

TestContainer::TestContainer(std::weak_ptr<ElementFactory> factory)
    : TestElement(std::move(factory)), children_(std::make_shared<ChildList>()) {}

TestContainer::~TestContainer() = default;

std::string TestContainer::IObject_ClassID() const { return orvik::HostClasses::kTestContainer; }

void TestContainer::ITestContainer_Add(std::shared_ptr<orvik::ITestElement> iteElement,
                                       const orvik::Variant& vBefore, const orvik::Variant& vAfter) {
  auto& element = orvik::Required(iteElement);
  RefuseCycle(iteElement);
  auto place = PlaceFor(vBefore, vAfter);
  if (const auto present = element.Parent() == Shown() ? children_->IndexOf(iteElement) : std::nullopt) {
    children_->Erase(*present);
    if (*present < place) --place;
  } else if (const auto former = orvik::As<orvik::ITestContainer>(element.Parent())) {
    former->Remove(iteElement);
  }
  element.SetParent(Shown());
  children_->Insert(place, std::move(iteElement));
}

void TestContainer::RefuseCycle(const std::shared_ptr<orvik::ITestElement>& element) const {
  const auto self = Shown();
  bool above = element == self || element.get() == static_cast<const ITestElement*>(this);
  auto parent = self->Parent();
  if (parent && !above) {
    // Only a container with elements can be above this one.
    const auto container = orvik::As<orvik::ITestContainer>(element);
    if (!container || container->Count() == 0) return;
    for (; parent && !above; parent = parent->Parent()) above = parent == element;
  }
  if (above)
    throw HostError(HostError::kInvalidArgument, kContainerSource,
                    Tr("element %%1 cannot be placed inside itself", {std::to_string(element->ID())}));
}

std::size_t TestContainer::PlaceFor(const orvik::Variant& before, const orvik::Variant& after) const {
  const auto& wanted = orvik::IsEmpty(before) ? after : before;
  if (orvik::IsEmpty(wanted)) return children_->Size();
  const auto* id = std::get_if<std::int32_t>(&wanted);
  if (!id)
    throw HostError(HostError::kTypeMismatch, kContainerSource,
                    Tr("a place in a container is named by an identifier"));
  for (std::size_t index = 0; index < children_->Size(); ++index) {
    if (children_->At(index)->ID() == *id) return index + (&wanted == &after ? 1 : 0);
  }
  throw HostError(HostError::kInvalidArgument, kContainerSource,
                  Tr("element %%1 is not in the container", {std::to_string(*id)}));
}

std::int32_t TestContainer::ITestContainer_Count() const {
  return static_cast<std::int32_t>(children_->Size());
}

std::shared_ptr<orvik::ITestElement> TestContainer::ITestContainer_item(std::int32_t lIndex) const {
  if (lIndex < 1 || static_cast<std::size_t>(lIndex) > children_->Size())
    throw HostError(HostError::kSubscriptOutOfRange, kContainerSource,
                    Tr("element %%1 is out of range (1 to %%2)",
                       {std::to_string(lIndex), std::to_string(children_->Size())}));
  return children_->At(static_cast<std::size_t>(lIndex) - 1);
}

std::shared_ptr<orvik::ITestElement> TestContainer::ITestContainer_FindElement(
    std::int32_t lIdentifier) const {
  std::vector<Level> path{{std::dynamic_pointer_cast<const ITestContainer>(shared_from_this())}};
  while (!path.empty()) {
    auto& level = path.back();
    if (level.visited == level.container->Count()) {
      path.pop_back();
      continue;
    }
    auto child = level.container->item(++level.visited);
    if (child->ID() == lIdentifier) return child;
    if (auto inner = orvik::As<const ITestContainer>(child)) path.push_back({std::move(inner)});
  }
  return nullptr;
}

std::shared_ptr<orvik::ITestEnumerator> TestContainer::ITestContainer_NewEnum() const {
  return children_->Walk();
}

void TestContainer::ITestContainer_Remove(std::shared_ptr<orvik::ITestElement> iteElement) {
  const auto index = children_->IndexOf(iteElement);
  if (!iteElement || !index) return;
  children_->Erase(*index);
  iteElement->SetParent(nullptr);
}

std::shared_ptr<TestElement> TestContainer::NewOfSameClass() const {
  return std::make_shared<TestContainer>(Factory());
}

bool TestContainer::HasChildren() const { return children_->Size() > 0; }

void TestContainer::CloneChildren(TestElement& copy) const {
  auto& container = dynamic_cast<TestContainer&>(copy);
  for (std::size_t index = 0; index < children_->Size(); ++index) {
    const auto child = children_->At(index)->Clone();
    if (!child)
      throw HostError(HostError::kInvalidArgument, kContainerSource,
                      Tr("element %%1 could not be copied", {std::to_string(children_->At(index)->ID())}));
    container.Add(child, {}, {});
  }
}

void TestContainer::SaveChild(std::size_t index, const std::shared_ptr<orvik::IXmlNode>& node) const {
  if (!children_->At(index)->Save(node))
    throw HostError(HostError::kInvalidArgument, kContainerSource,
                    Tr("element %%1 could not be saved", {std::to_string(children_->At(index)->ID())}));
}

void TestContainer::SaveChildren(const std::shared_ptr<orvik::IXmlNode>& node) const {
  for (std::size_t index = 0; index < children_->Size(); ++index) SaveChild(index, node);
}

void TestContainer::ClearChildren() {
  for (std::size_t index = 0; index < children_->Size(); ++index) children_->At(index)->SetParent(nullptr);
  children_->Clear();
}

void TestContainer::AddSaved(const std::shared_ptr<orvik::IXmlNode>& element) { LoadChild(element, nullptr); }

bool TestContainer::LoadChild(const std::shared_ptr<orvik::IXmlNode>& node,
                              const std::shared_ptr<IObject>& context) {
  const auto raw = xml::XmlNode::Of(node).Raw();
  auto child = Factory()->CreateForLoad({.plugInId = raw.attribute(tags::kPlugInID).value(),
                                         .testId = xml::NumberAttribute(raw, tags::kTestID),
                                         .classId = raw.attribute(tags::kClass).value()});
  if (!child) child = std::make_shared<UnknownElement>(Factory());
  child->Load(node, context);
  Add(child, {}, {});
  return true;
}

void TestContainer::PrintChildren(const std::shared_ptr<orvik::IReport>& report,
                                  const std::shared_ptr<IObject>& context) {
  if (orvik::As<PrintAlone>(context)) return;
  const auto walk = NewEnum();
  while (const auto child = walk->Next()) child->PrintReport(report, context);
}

void TestContainer::OuterChanged() {
  for (std::size_t index = 0; index < children_->Size(); ++index) children_->At(index)->SetParent(Shown());
}

}  // namespace host::elements
