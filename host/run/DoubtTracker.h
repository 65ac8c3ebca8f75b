#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "host/document/Reason.h"
#include "host/serial/Message.h"
#include "host/serial/Wire.h"

namespace host::run {

/// Watches the wire and notes, for the running element, the tester's results and what makes them doubtful.
class DoubtTracker {
 public:
  explicit DoubtTracker(serial::Wire& wire);

  /// The element runs from now on. Drops its earlier notes; doubts about the tester itself apply to it, too.
  void ElementStarts(std::int32_t id);
  /// Drops what was noted for the element.
  void Forget(std::int32_t id);
  /// Notes a doubt that was not seen on the wire.
  void Add(std::int32_t id, const document::Reason& doubt);
  /// The element's doubts, oldest first, each once.
  const std::vector<document::Reason>& Of(std::int32_t id) const;
  /// The results and refusals received while the element ran, as UTF-8, oldest first; the first eight only.
  const std::vector<std::string>& Said(std::int32_t id) const;

  /// A doubt was noted: element, reason.
  orvik::platform::Event<std::int32_t, const document::Reason&>& Noted() { return noted_; }

 private:
  void OnWire(const serial::WireRecord& record);
  void OnCommand(const serial::WireRecord& command);
  void OnReply(const serial::Message& reply);
  void Note(const document::Reason& doubt);

  std::optional<std::int32_t> running_;
  std::optional<serial::Message> lastCommand_;  ///< of the open session
  std::map<std::int32_t, std::vector<document::Reason>> doubts_;
  std::map<std::int32_t, std::vector<std::string>> said_;
  /// Doubts about the tester itself: they apply to every element of its session.
  std::vector<document::Reason> session_;
  orvik::platform::Event<std::int32_t, const document::Reason&> noted_;
  orvik::platform::Subscription watch_;
};

}  // namespace host::run
