#pragma once

#include <memory>
#include <pugixml.hpp>
#include <vector>

#include "OrvikTypeLib/IInstrumentColl.h"
#include "host/xml/UnknownXml.h"

namespace host::instruments {

class InstrumentRecord;

/// The test instruments of a document, saved as the node "Instruments".
class InstrumentColl final : public orvik::IInstrumentColl {
 public:
  /// Replaces the records by those of the node; `XmlError` for a malformed one.
  void Load(pugi::xml_node node);
  /// Adds the node "Instruments" to the parent.
  void Save(pugi::xml_node parent) const;

 private:
  std::int32_t IInstrumentColl_Count() const override { return static_cast<std::int32_t>(records_.size()); }
  std::shared_ptr<orvik::IInstrumentRecord> IInstrumentColl_item(std::int32_t lIndex) const override;
  void IInstrumentColl_Add(std::shared_ptr<orvik::IInstrumentRecord> Record) override;

  std::vector<std::shared_ptr<InstrumentRecord>> records_;
  xml::UnknownXml leftovers_;
};

}  // namespace host::instruments
