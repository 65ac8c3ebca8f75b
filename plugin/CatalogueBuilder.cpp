#include "plugin/CatalogueBuilder.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "model/CKELDSequence.h"
#include "model/CKELDTestElement.h"
#include "plugin/Attempt.h"
#include "plugin/MKELDConstants.h"
#include "plugin/MKELDGlobalVars.h"
#include "plugin/MXmlConstants.h"

namespace keld {

using orvik::ITestContainer;
using orvik::ITestElement;
using orvik::IXmlNode;
using orvik::Required;

namespace {

using NodeRef = std::shared_ptr<IXmlNode>;

void LogCatalogueFault() {
  Attempt([] {
    MKELDGlobalVars::ErrorLog()->LogEntry(MKELDConstants::kPlugInID, MKELDConstants::kErrorCatalogue,
                                          MKELDConstants::kPlugInClass, MKELDConstants::kLevelConfiguration,
                                          {}, {}, {}, {}, {});
  });
}

/// "TemplateData", or empty when the text holds none or cannot be parsed.
NodeRef TemplateData(const std::string& sXml) {
  NodeRef Found;
  Attempt([&] {
    const auto Document = MKELDGlobalVars::XmlDocument();
    if (Document->LoadFromString(sXml)) Found = Document->FindElement(MXmlConstants::kTemplateData);
  });
  return Found;
}

/// The first "TestElement" among the node and the siblings that follow it, or empty.
NodeRef EntryFrom(NodeRef Node) {
  while (Node && Node->Name() != MXmlConstants::kTestElement) Node = Node->NextSibling();
  return Node;
}

/// The number that an identifier's text starts with; 0 for a text without one or with one beyond 32 bits.
std::int32_t IdentifierOf(const std::string& sText) {
  const double rValue = std::trunc(orvik::LeadingNumber(sText));
  constexpr double rLow = std::numeric_limits<std::int32_t>::min();
  constexpr double rHigh = std::numeric_limits<std::int32_t>::max();
  return rValue >= rLow && rValue <= rHigh ? static_cast<std::int32_t>(rValue) : 0;
}

std::int32_t ReadIdentifier(const IXmlNode& Entry) {
  const std::string sID = Entry.Attribute(MXmlConstants::kID);
  if (sID.empty()) LogCatalogueFault();
  return IdentifierOf(sID);
}

/// The fields of an entry as they stand in the catalogue.
struct Fields {
  std::string sType;
  std::string sName;
  std::string sParameter;
  std::string sUnit;
};

/// Where a field goes; nothing for what is no field.
std::string* FieldOf(Fields& fields, const std::string& sName) {
  if (sName == MXmlConstants::kName) return &fields.sName;
  if (sName == MXmlConstants::kType) return &fields.sType;
  if (sName == MXmlConstants::kParameter) return &fields.sParameter;
  if (sName == MXmlConstants::kUnit) return &fields.sUnit;
  return nullptr;
}

/// A later field of the same name overwrites an earlier one.
Fields ReadFields(const IXmlNode& Entry) {
  Fields fields;
  Entry.ForEachChild([&](const std::string& sName, const NodeRef& Child) {
    Attempt([&] {
      if (std::string* psField = FieldOf(fields, sName)) *psField = Child->Attribute(MXmlConstants::kLID);
    });
  });
  return fields;
}

/// A field in the user's language; empty when it cannot be had.
std::string FieldText(const std::string& sField) {
  if (sField.empty()) return {};
  return AttemptValue(std::string(), [&] { return MKELDGlobalVars::Translated(sField); });
}

std::string DisplayName(const Fields& fields) {
  const std::string sName = FieldText(fields.sName);
  if (!sName.empty()) return sName;
  const std::string sParameter = FieldText(fields.sParameter);
  return sParameter.empty() ? FieldText(fields.sType) : FieldText(fields.sType) + " - " + sParameter;
}

/// An element of the catalogue; a sequence is its own container.
struct NewEntry {
  std::shared_ptr<ITestElement> iteElement;
  std::shared_ptr<ITestContainer> Container;
};

template <class Element>
std::shared_ptr<Element> NewElement(const Fields& fields, std::int32_t lID) {
  const auto Created = Element::Create();
  const std::shared_ptr<ITestElement> iteCreated = Created;
  Attempt([&] { Required(iteCreated).Initialize(MKELDConstants::kPlugInID, lID, lID); });
  Attempt([&] { Required(Required(iteCreated).Information()).SetDisplayName(DisplayName(fields)); });
  Attempt([&] { Required(std::shared_ptr<IKELDTest>(Created)).SetExpectedUnits(FieldText(fields.sUnit)); });
  return Created;
}

/// One entry without its members; empty when the host could not make it.
NewEntry EntryOf(const IXmlNode& Node) {
  NewEntry Entry;
  Attempt([&] {
    const std::int32_t lID = ReadIdentifier(Node);
    const Fields fields = ReadFields(Node);
    if (lID % 100 != 0) {
      Entry.iteElement = NewElement<CKELDTestElement>(fields, lID);
    } else {
      const auto Sequence = NewElement<CKELDSequence>(fields, lID);
      Entry = {Sequence, Sequence};
    }
  });
  return Entry;
}

/// A container that is being filled, and the entry that comes next in it.
struct Level {
  std::shared_ptr<ITestElement> iteContainer;
  std::shared_ptr<ITestContainer> Container;
  NodeRef NextEntry;
};

void AddTo(const Level& level, const std::shared_ptr<ITestElement>& iteEntry) {
  Attempt([&] { Required(level.Container).Add(iteEntry, {}, {}); });
}

/// Fills the root from the children of "TemplateData". A list of levels instead of recursion, so that the
/// depth of the text cannot overflow the stack; a sequence is added once it is complete, so that adding never
/// walks up a long chain of parents.
void Fill(const std::shared_ptr<ITestContainer>& Root, const IXmlNode& TemplateData) {
  std::vector<Level> aLevels;
  aLevels.push_back({nullptr, Root, EntryFrom(TemplateData.FirstChild())});
  while (true) {
    if (const NodeRef Entry = aLevels.back().NextEntry) {
      aLevels.back().NextEntry = EntryFrom(Entry->NextSibling());
      auto [iteEntry, Container] = EntryOf(*Entry);
      if (!iteEntry) continue;
      if (Container) {
        aLevels.push_back({std::move(iteEntry), std::move(Container), EntryFrom(Entry->FirstChild())});
      } else {
        AddTo(aLevels.back(), iteEntry);
      }
    } else {
      const Level Complete = std::move(aLevels.back());
      aLevels.pop_back();
      if (aLevels.empty()) return;
      AddTo(aLevels.back(), Complete.iteContainer);
    }
  }
}

}  // namespace

std::shared_ptr<ITestContainer> BuildCatalogue(const std::string& sXml) {
  const NodeRef Entries = TemplateData(sXml);
  if (!Entries) LogCatalogueFault();
  std::shared_ptr<ITestContainer> Root = CKELDSequence::Create();
  if (Entries) Attempt([&] { Fill(Root, *Entries); });
  return Root;
}

}  // namespace keld
