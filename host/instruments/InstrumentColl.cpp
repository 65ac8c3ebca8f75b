#include "host/instruments/InstrumentColl.h"

#include "OrvikTypeLib/As.h"
#include "host/base/Tr.h"
#include "host/instruments/InstrumentRecord.h"

namespace host::instruments {
namespace {

using orvik::HostError;

constexpr char kInstrumentsSource[] = "OrvikTypeLib.InstrumentColl";
constexpr char kInstruments[] = "Instruments";
constexpr char kInstrument[] = "Instrument";

}  // namespace

std::shared_ptr<orvik::IInstrumentRecord> InstrumentColl::IInstrumentColl_item(std::int32_t lIndex) const {
  if (lIndex < 1 || static_cast<std::size_t>(lIndex) > records_.size())
    throw HostError(HostError::kSubscriptOutOfRange, kInstrumentsSource,
                    Tr("instrument %%1 is out of range (1 to %%2)",
                       {std::to_string(lIndex), std::to_string(records_.size())}));
  return records_[static_cast<std::size_t>(lIndex) - 1];
}

void InstrumentColl::IInstrumentColl_Add(std::shared_ptr<orvik::IInstrumentRecord> Record) {
  const auto record = orvik::As<InstrumentRecord>(Record);
  if (!record)
    throw HostError(HostError::kTypeMismatch, kInstrumentsSource,
                    Tr("only a record of the class \"OrvikTypeLib.InstrumentRecord\" can be added"));
  records_.push_back(record);
}

void InstrumentColl::Load(pugi::xml_node node) {
  records_.clear();
  for (const auto child : node.children(kInstrument)) {
    const auto record = std::make_shared<InstrumentRecord>();
    record->Load(child);
    records_.push_back(record);
  }
  leftovers_.Take(node, {}, {kInstrument});
}

void InstrumentColl::Save(pugi::xml_node parent) const {
  const auto node = parent.append_child(kInstruments);
  for (const auto& record : records_) record->Save(node);
  leftovers_.Restore(node);
}

}  // namespace host::instruments
