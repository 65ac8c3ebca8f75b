#pragma once

#include <pugixml.hpp>

#include "OrvikTypeLib/IAuxiliaryState.h"
#include "host/xml/Leftovers.h"

namespace bench {

/// The host's own settings of an element.
class AuxiliaryState final : public orvik::IAuxiliaryState {
 public:
  /// Whether readings of the element are recorded and never judged: a decision that somebody made and that
  /// the document keeps. Without it an element without limits is not judged.
  bool RecordOnly() const { return recordOnly_; }
  void SetRecordOnly(bool recordOnly) { recordOnly_ = recordOnly; }

  void CopyFrom(const AuxiliaryState& other);
  /// Replaces all by what an "Auxiliary" node says.
  void Load(pugi::xml_node node);
  void Save(pugi::xml_node node) const;
  /// Whether nothing differs from a new state.
  bool IsDefault() const { return printElement_ && !recordOnly_ && leftovers_.Empty(); }

 private:
  bool IAuxiliaryState_PrintElement() const override { return printElement_; }
  void IAuxiliaryState_SetPrintElement(bool fPrint) override { printElement_ = fPrint; }

  bool printElement_ = true;
  bool recordOnly_ = false;
  Leftovers leftovers_;
};

}  // namespace bench
