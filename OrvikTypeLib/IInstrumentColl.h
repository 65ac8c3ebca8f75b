#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

class IInstrumentRecord;

/// The test instruments of a document, in order.
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IInstrumentColl : public virtual IObject {
 public:
  /// Number of records.
  std::int32_t Count() const { return IInstrumentColl_Count(); }
  /// The record at the index, counted from 1; `HostError` 9 outside.
  std::shared_ptr<IInstrumentRecord> item(std::int32_t lIndex) const { return IInstrumentColl_item(lIndex); }
  /// Adds a record at the end.
  void Add(std::shared_ptr<IInstrumentRecord> Record) { IInstrumentColl_Add(std::move(Record)); }

 private:
  virtual std::int32_t IInstrumentColl_Count() const = 0;
  virtual std::shared_ptr<IInstrumentRecord> IInstrumentColl_item(std::int32_t lIndex) const = 0;
  virtual void IInstrumentColl_Add(std::shared_ptr<IInstrumentRecord> Record) = 0;
};

}  // namespace orvik
