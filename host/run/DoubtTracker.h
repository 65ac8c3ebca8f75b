#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "host/serial/Message.h"
#include "host/serial/Wire.h"

namespace bench {

/// Watches the wire for what makes a result doubtful, and notes it for the element that runs.
class DoubtTracker {
 public:
  explicit DoubtTracker(Wire& wire);

  /// The element runs from now on; what was noted for it before is forgotten.
  void ElementStarts(std::int32_t id);
  /// Forgets what was noted for the element.
  void Forget(std::int32_t id) { doubts_.erase(id); }
  /// Notes something that was not seen on the wire.
  void Add(std::int32_t id, const std::string& doubt);
  /// What was noted, oldest first, each once.
  const std::vector<std::string>& Of(std::int32_t id) const;

  /// The last reading in ohms that the tester told of the running element, before any correction.
  std::optional<double> LastOhms() const { return lastOhms_; }

  /// Raised when something is noted: element, text.
  orvik::platform::Event<std::int32_t, const std::string&>& Noted() { return noted_; }

 private:
  void Watch(const WireRecord& record);
  void Note(const std::string& doubt);

  std::optional<std::int32_t> running_;
  std::optional<Message> lastCommand_;
  std::optional<double> lastOhms_;
  std::map<std::int32_t, std::vector<std::string>> doubts_;
  orvik::platform::Event<std::int32_t, const std::string&> noted_;
  orvik::platform::Subscription watch_;
};

}  // namespace bench
