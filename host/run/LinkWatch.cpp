#include "host/run/LinkWatch.h"

#include "host/base/Tr.h"
#include "host/plugins/keld/KeldProtocol.h"
#include "host/serial/Message.h"

namespace host::run {

LinkWatch::LinkWatch(serial::PortManager& ports)
    : ports_(ports),
      watch_(ports.TheWire()->Subscribe([this](const serial::WireRecord& record) { Watch(record); })) {}

std::string LinkWatch::Loss() const {
  if (!ports_.LastError().empty()) return ports_.LastError();
  if (failed_) return Tr("the tester's cable was unplugged or its port has failed");
  if (sessionRequested_) return Tr("no tester answers; check that it is switched on and connected");
  return {};
}

void LinkWatch::Watch(const serial::WireRecord& record) {
  switch (record.kind) {
    case serial::WireRecord::Kind::kOpened:
      failed_ = false;
      sessionRequested_ = false;
      break;
    case serial::WireRecord::Kind::kSent:
      if (record.message->MnemonicText() == plugins::keld::kBeginSession) sessionRequested_ = true;
      break;
    case serial::WireRecord::Kind::kReceived:
    case serial::WireRecord::Kind::kDropped:
      sessionRequested_ = false;
      break;
    case serial::WireRecord::Kind::kFailed:
      failed_ = true;
      break;
    case serial::WireRecord::Kind::kClosed:
      break;
  }
}

}  // namespace host::run
