#pragma once

#include <pugixml.hpp>

#include "OrvikTypeLib/IAuxiliaryState.h"
#include "host/xml/UnknownXml.h"

namespace host::elements {

/// The host's own settings of an element.
class AuxiliaryState final : public orvik::IAuxiliaryState {
 public:
  /// Whether readings are recorded without being judged, as a person decided. An element without limits and
  /// without this mark is "not judged".
  bool RecordOnly() const { return recordOnly_; }
  void SetRecordOnly(bool recordOnly) { recordOnly_ = recordOnly; }

  void CopyFrom(const AuxiliaryState& other);
  /// Replaces the state by that of an "Auxiliary" node.
  void Load(pugi::xml_node node);
  void Save(pugi::xml_node node) const;
  /// Whether nothing differs from a new state.
  bool IsDefault() const { return printElement_ && !recordOnly_ && leftovers_.Empty(); }

 private:
  bool IAuxiliaryState_PrintElement() const override { return printElement_; }
  void IAuxiliaryState_SetPrintElement(bool fPrint) override { printElement_ = fPrint; }

  bool printElement_ = true;
  bool recordOnly_ = false;
  xml::UnknownXml leftovers_;
};

}  // namespace host::elements
