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
#include "plugin/base/Attempt.h"
#include "plugin/base/MKELDConstants.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MXmlConstants.h"

namespace keld::plugin {

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

/// Finds "TemplateData"; empty if the text has none or cannot be parsed.
NodeRef TemplateData(const std::string& sXml) {
  NodeRef Found;
  Attempt([&] {
    const auto Document = MKELDGlobalVars::XmlDocument();
    if (Document->LoadFromString(sXml)) Found = Document->FindElement(MXmlConstants::kTemplateData);
  });
  return Found;
}

/// The first "TestElement" among the node and its following siblings, or empty.
NodeRef EntryFrom(NodeRef Node) {
  while (Node && Node->Name() != MXmlConstants::kTestElement) Node = Node->NextSibling();
  return Node;
}

/// The leading number of an identifier's text; 0 if there is none or it exceeds 32 bits.
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

/// The fields of an entry as the catalogue has them.
struct Fields {
  std::string sType;
  std::string sName;
  std::string sParameter;
  std::string sUnit;
};

/// The member for a field's name; null for an unknown name.
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

/// A field in the user's language; empty if it cannot be translated.
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
  Attempt([&] {
    Required(std::shared_ptr<model::IKELDTest>(Created)).SetExpectedUnits(FieldText(fields.sUnit));
  });
  return Created;
}

/// Creates one entry without its members; empty if the host cannot create it.
NewEntry EntryOf(const IXmlNode& Node) {
  NewEntry Entry;
  Attempt([&] {
    const std::int32_t lID = ReadIdentifier(Node);
    const Fields fields = ReadFields(Node);
    if (lID % 100 != 0) {
      Entry.iteElement = NewElement<model::CKELDTestElement>(fields, lID);
    } else {
      const auto Sequence = NewElement<model::CKELDSequence>(fields, lID);
      Entry = {Sequence, Sequence};
    }
  });
  return Entry;
}

/// A container being filled, and its next entry.
struct Level {
  std::shared_ptr<ITestElement> iteContainer;
  std::shared_ptr<ITestContainer> Container;
  NodeRef NextEntry;
};

void AddTo(const Level& level, const std::shared_ptr<ITestElement>& iteEntry) {
  Attempt([&] { Required(level.Container).Add(iteEntry, {}, {}); });
}

/// Fills the root from the children of "TemplateData". Uses a list of levels instead of recursion, so that
/// deep nesting cannot overflow the stack, and adds each sequence once it is complete, so that adding never
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
  std::shared_ptr<ITestContainer> Root = model::CKELDSequence::Create();
  if (Entries) Attempt([&] { Fill(Root, *Entries); });
  return Root;
}

}  // namespace keld::plugin
