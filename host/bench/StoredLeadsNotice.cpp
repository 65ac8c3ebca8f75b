#include "host/bench/StoredLeadsNotice.h"

#include <algorithm>

#include "host/base/Tr.h"
#include "host/bench/StoredLeadsView.h"
#include "host/document/ElementWalk.h"
#include "host/plugins/keld/KeldProtocol.h"
#include "host/plugins/keld/KeldTests.h"
#include "host/serial/Message.h"

namespace host::bench {

namespace {

using Elements = std::vector<std::shared_ptr<orvik::ITestElement>>;

/// Whether the plug-in corrects a reading of these elements by the test leads.
bool MeasuresProtectiveEarth(const Elements& elements) {
  bool found = false;
  for (const auto& top : elements)
    document::WalkElements(top, [&](const std::shared_ptr<orvik::ITestElement>& element) {
      found = found || plugins::keld::CorrectedByLeads(element->TestID());
    });
  return found;
}

}  // namespace

StoredLeadsNotice::StoredLeadsNotice(serial::Wire& wire, const RegistryStore& registry,
                                     const Elements& elements, std::function<void(const std::string&)> warn)
    : registry_(registry), warn_(std::move(warn)) {
  if (MeasuresProtectiveEarth(elements))
    watch_ = wire.Subscribe([this](const serial::WireRecord& record) { Watch(record); });
}

void StoredLeadsNotice::Watch(const serial::WireRecord& record) {
  if (record.kind != serial::WireRecord::Kind::kReceived ||
      record.message->MnemonicText() != plugins::keld::kIdentity)
    return;
  const auto& identity = record.message->Parameters();
  if (identity.size() < 2 || identity[1] == known_) return;
  known_ = identity[1];
  const auto stored = run::StoredLeadsOf(registry_, known_);
  const auto remark = stored ? LeadsRemark(*stored) : std::string();
  if (remark.empty()) return;
  const auto number = stored->milliohms ? std::to_string(*stored->milliohms) + " mOhm" : "-";
  warn_(Tr("Test leads of tester %%1: %%2 (%%3), %%4.",
           {known_, number, run::MeasuredText(stored->measured), remark}));
}

}  // namespace host::bench
