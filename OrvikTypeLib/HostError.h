#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

namespace orvik {

/// The one exception that crosses the boundary between host and plug-in.
class HostError : public std::runtime_error {
 public:
  static constexpr std::int32_t kInvalidArgument = 5;
  static constexpr std::int32_t kSubscriptOutOfRange = 9;
  static constexpr std::int32_t kTypeMismatch = 13;
  static constexpr std::int32_t kDeviceError = 57;
  static constexpr std::int32_t kPathError = 75;
  static constexpr std::int32_t kEmptyReference = 91;
  static constexpr std::int32_t kClassNotRegistered = 429;
  static constexpr std::int32_t kNoSuchProperty = 438;

  /// @param lNumber error number, one of the above or the reporting object's own
  /// @param sSource the reporting object, for example "OrvikComm.Port"
  /// @param sDescription what is wrong and what to do about it, in English
  HostError(std::int32_t lNumber, std::string sSource, const std::string& sDescription)
      : std::runtime_error(sDescription), lNumber_(lNumber), sSource_(std::move(sSource)) {}

  std::int32_t Number() const { return lNumber_; }
  const std::string& Source() const { return sSource_; }
  std::string Description() const { return what(); }

 private:
  std::int32_t lNumber_;
  std::string sSource_;
};

}  // namespace orvik
