#pragma once

#include <optional>
#include <pugixml.hpp>
#include <string>

#include "OrvikTypeLib/IInformationRecord.h"
#include "host/xml/UnknownXml.h"

namespace host::elements {

class TestElement;

/// The texts by which an element is shown. The second one is the display name until it is set.
class InformationRecord final : public orvik::IInformationRecord {
 public:
  /// @param element whose texts they are; null for a record on its own
  explicit InformationRecord(TestElement* element = nullptr) : element_(element) {}

  /// Null once the element is gone: the record does not keep it alive.
  TestElement* Element() const { return element_; }
  void ForgetElement() { element_ = nullptr; }

  void CopyFrom(const InformationRecord& other);
  /// Replaces the texts by those of an "Information" node.
  void Load(pugi::xml_node node);
  void Save(pugi::xml_node node) const;

 private:
  std::string IInformationRecord_FirstText() const override { return firstText_; }
  void IInformationRecord_SetFirstText(const std::string& sText) override { firstText_ = sText; }
  std::string IInformationRecord_SecondText() const override { return secondText_.value_or(displayName_); }
  void IInformationRecord_SetSecondText(const std::string& sText) override { secondText_ = sText; }
  std::string IInformationRecord_DisplayName() const override { return displayName_; }
  void IInformationRecord_SetDisplayName(const std::string& sName) override { displayName_ = sName; }

  TestElement* element_;
  std::string firstText_;
  std::string displayName_;
  std::optional<std::string> secondText_;
  xml::UnknownXml leftovers_;
};

}  // namespace host::elements
