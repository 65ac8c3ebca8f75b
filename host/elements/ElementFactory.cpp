#include "host/elements/ElementFactory.h"

#include <algorithm>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/base/Text.h"
#include "host/elements/InformationRecord.h"
#include "host/elements/TestElement.h"

namespace host::elements {
namespace {

/// The short way to a base element: nearly every plug-in's element shows the texts of its base as its own.
const TestElement* WrappedByTexts(const orvik::ITestElement& element) {
  try {
    const auto texts = orvik::As<InformationRecord>(element.Information());
    const auto* base = texts ? texts->Element() : nullptr;
    return base && base->IsInside(element) ? base : nullptr;
  } catch (const orvik::HostError&) {
    return nullptr;  // the chain does not ask the plug-in
  }
}

}  // namespace

void ElementFactory::AddPlugIn(const std::shared_ptr<orvik::IPlugIn>& plugIn) {
  const auto id = orvik::Required(plugIn).ID();
  std::erase_if(plugIns_, [&](const auto& known) { return known->ID() == id; });
  plugIns_.push_back(plugIn);
  ForgetPrototypes();
}

std::shared_ptr<orvik::IPlugIn> ElementFactory::PlugIn(std::string_view id) const {
  const auto found =
      std::find_if(plugIns_.begin(), plugIns_.end(), [&](const auto& known) { return known->ID() == id; });
  return found == plugIns_.end() ? nullptr : *found;
}

void ElementFactory::ReleasePlugIns() {
  prototypes_.clear();
  plugIns_.clear();
}

std::shared_ptr<orvik::IObject> ElementFactory::CreateObject(const std::string& classId) const {
  try {
    return classId.empty() ? nullptr : classes_(classId);
  } catch (const orvik::HostError& error) {
    if (error.Number() == orvik::HostError::kClassNotRegistered) return nullptr;
    throw;
  }
}

std::shared_ptr<orvik::ITestElement> ElementFactory::CreateForLoad(const Identity& identity) {
  if (auto copy = FromCatalogue(identity)) return copy;
  auto created = orvik::As<orvik::ITestElement>(CreateObject(std::string(identity.classId)));
  if (created) created->Initialize(std::string(identity.plugInId), 0, identity.testId);
  return created;
}

std::shared_ptr<orvik::ITestElement> ElementFactory::FromCatalogue(const Identity& identity) {
  const auto* prototype = PrototypeOf(identity);
  if (!prototype || !prototype->element) return nullptr;
  const bool sameClass = identity.classId.empty() || SameApartFromCase(prototype->classId, identity.classId);
  return sameClass ? prototype->element->Clone() : nullptr;
}

const ElementFactory::Prototype* ElementFactory::PrototypeOf(const Identity& identity) {
  if (const auto known = prototypes_.find(identity); known != prototypes_.end()) return &known->second;
  const auto plugIn = PlugIn(identity.plugInId);
  if (!plugIn) return nullptr;
  auto& prototype = prototypes_[{identity.testId, std::string(identity.plugInId)}];
  prototype.element = plugIn->CreateTest(identity.testId);
  if (prototype.element) prototype.classId = prototype.element->ClassID();
  if (const auto container = orvik::As<orvik::ITestContainer>(prototype.element)) {
    while (container->Count() > 0) container->Remove(container->item(container->Count()));
  }
  return &prototype;
}

std::shared_ptr<orvik::IBaseElement> ElementFactory::BaseOf(
    const std::shared_ptr<orvik::ITestElement>& element) const {
  if (auto base = orvik::As<orvik::IBaseElement>(element)) return base;
  const auto* inside = element ? WrappedByTexts(*element) : nullptr;
  if (!inside) inside = wrapped_.Inside(element.get());
  return inside ? inside->Self() : nullptr;
}

}  // namespace host::elements
