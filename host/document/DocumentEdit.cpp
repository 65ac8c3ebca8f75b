#include <limits>
#include <utility>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IPlugIn.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "OrvikTypeLib/Variant.h"
#include "host/base/Tr.h"
#include "host/document/Document.h"
#include "host/document/Host.h"
#include "host/document/SavedPlan.h"
#include "host/elements/ElementFactory.h"
#include "host/elements/ElementTags.h"
#include "host/elements/Nesting.h"
#include "host/elements/TestContainer.h"
#include "host/xml/XmlNode.h"

namespace host::document {
namespace {

using orvik::HostError;

using Element = std::shared_ptr<orvik::ITestElement>;

[[noreturn]] void Refuse(const std::string& reason) {
  throw HostError(HostError::kInvalidArgument, "orvik-bench", reason);
}

orvik::Variant IdentifierOrNone(std::int32_t id) { return id == 0 ? orvik::Variant() : orvik::Variant(id); }

}  // namespace

Element Document::AddTest(std::int32_t testId, const Element& parent) {
  return AddTest(testId, ElementPlace::AtEndOf(parent));
}

Element Document::AddTest(std::int32_t testId, const ElementPlace& place) {
  auto added = FromCatalogue(testId);
  elements::RequireShallow(added);
  GiveIdentifiers(added);
  Put(added, place);
  return added;
}

void Document::Put(const Element& element, const ElementPlace& place) {
  const auto holder = place.holder ? place.holder : orvik::As<orvik::ITestElement>(Elements());
  const auto container = orvik::As<orvik::ITestContainer>(holder);
  if (!container)
    Refuse(Tr("element %%1 is not a sequence; name one that is", {std::to_string(holder->ID())}));
  container->Add(element, IdentifierOrNone(place.before), IdentifierOrNone(place.after));
  // A plug-in's sequence may pass over an error of the container it wraps.
  if (element->Parent() != holder)
    Refuse(Tr("the test could not be added to element %%1", {std::to_string(holder->ID())}));
}

Element Document::FromCatalogue(std::int32_t testId) const {
  for (const auto& plugIn : host_->Elements()->PlugIns()) {
    auto created = plugIn->CreateTest(testId);
    if (created && created->TestID() == testId) return created;
  }
  Refuse(Tr("the catalogue has no test %%1; \"orvik-bench tests\" lists them", {std::to_string(testId)}));
}

std::int32_t Document::NextIdentifier() {
  if (highestId_ == std::numeric_limits<std::int32_t>::max())
    Refuse(Tr("the document has no identifiers left"));
  return ++highestId_;
}

void Document::GiveIdentifiers(const Element& top) {
  // Children wait in reverse order, so that identifiers are given in document order.
  std::vector<Element> waiting{top};
  while (!waiting.empty()) {
    const auto element = waiting.back();
    waiting.pop_back();
    element->SetID(NextIdentifier());
    const auto container = orvik::As<orvik::ITestContainer>(element);
    for (auto index = container ? container->Count() : 0; index > 0; --index)
      waiting.push_back(container->item(index));
  }
}

void Document::AddPlanOf(const Document& other) {
  const auto xml = std::make_shared<pugi::xml_document>();
  const auto saved = xml->append_child("Elements");
  const auto node = xml::XmlNode::Create(xml, saved);
  other.elements_->SaveChildren(node);
  KeepPlanAlone(saved);
  ForEachSavedElement(saved, [this](pugi::xml_node element) {
    element.attribute(elements::tags::kID).set_value(NextIdentifier());
  });
  auto& trouble = host_->Elements()->Trouble();
  trouble.Clear();
  node->ForEachChild([this](const std::string&, const auto& element) { elements_->AddSaved(element); });
  if (!trouble.All().empty()) Refuse(Tr("%%1: %%2", {other.Path().string(), trouble.All().front().reason}));
}

void Document::Move(const Element& element, const ElementPlace& place) {
  const auto id = element->ID();
  if (place.before == id || place.after == id)
    Refuse(Tr("element %%1 cannot be placed beside itself", {std::to_string(id)}));
  // Before anything is changed: a plug-in's sequence may pass over the refusal of the container it wraps.
  const auto holder = place.holder ? place.holder : orvik::As<orvik::ITestElement>(Elements());
  for (auto above = holder; above; above = above->Parent()) {
    if (above == element) Refuse(Tr("element %%1 cannot be placed inside itself", {std::to_string(id)}));
  }
  Put(element, place);
  UpdateReferences();
}

void Document::Remove(const Element& element) {
  const auto container = orvik::As<orvik::ITestContainer>(element->Parent());
  if (container) container->Remove(element);
  if (Find(element->ID())) Refuse(Tr("element %%1 could not be removed", {std::to_string(element->ID())}));
  UpdateReferences();
}

/// An element may refer to others by their identifiers, and some of those are gone or elsewhere now.
void Document::UpdateReferences() const {
  std::vector<std::shared_ptr<orvik::ITestEnumerator>> levels{elements_->NewEnum()};
  while (!levels.empty()) {
    const auto element = levels.back()->Next();
    if (!element) {
      levels.pop_back();
      continue;
    }
    element->UpdateReferences();
    if (const auto container = orvik::As<orvik::ITestContainer>(element))
      levels.push_back(container->NewEnum());
  }
}

Element Document::Find(std::int32_t id) const { return elements_->FindElement(id); }

}  // namespace host::document
