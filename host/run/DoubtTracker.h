#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "host/document/Reason.h"
#include "host/serial/Message.h"
#include "host/serial/Wire.h"

namespace bench {

/// Watches the wire for the element that runs: what the tester says of it, and what makes its result
/// doubtful.
class DoubtTracker {
 public:
  explicit DoubtTracker(Wire& wire);

  /// The element runs from now on; what was noted for it before is forgotten.
  void ElementStarts(std::int32_t id);
  /// Forgets what was noted for the element.
  void Forget(std::int32_t id);
  /// Notes something that was not seen on the wire.
  void Add(std::int32_t id, const Reason& doubt);
  /// What was noted, oldest first, each once.
  const std::vector<Reason>& Of(std::int32_t id) const;
  /// The results and refusals that came in while the element ran, as UTF-8, oldest first; at most a few.
  const std::vector<std::string>& Said(std::int32_t id) const;

  /// The last reading in ohms that the tester told of the running element, before any correction.
  std::optional<double> LastOhms() const { return lastOhms_; }

  /// Raised when something is noted: element, reason.
  orvik::platform::Event<std::int32_t, const Reason&>& Noted() { return noted_; }

 private:
  void Watch(const WireRecord& record);
  void TakeReply(const Message& reply);
  void Note(const Reason& doubt);

  std::optional<std::int32_t> running_;
  std::optional<Message> lastCommand_;
  std::optional<double> lastOhms_;
  std::map<std::int32_t, std::vector<Reason>> doubts_;
  std::map<std::int32_t, std::vector<std::string>> said_;
  /// What is wrong with the tester itself: it holds for every element of its session.
  std::vector<Reason> session_;
  orvik::platform::Event<std::int32_t, const Reason&> noted_;
  orvik::platform::Subscription watch_;
};

}  // namespace bench
