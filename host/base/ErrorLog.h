#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

#include "OrvikTypeLib/IErrorLog.h"

namespace host {

/// The file "error.log" in the state folder, one line an entry, fields separated by tabs: time (UTC), source,
/// number in hexadecimal and signed decimal, place, level, values. Tabs, line ends and other control
/// characters in a field are written as "\t", "\n", "\x1b"; a backslash is doubled.
///
/// An entry is flushed to disk when the call returns. A repetition of the entry before it is written, but
/// not flushed. A full file becomes "error.log.1", that one "error.log.2"; the oldest
/// is deleted. Several programs may write at once. An entry that cannot be written is lost, and `Failure`
/// says why: logging never throws.
class ErrorLog final : public orvik::IErrorLog {
 public:
  using Clock = std::function<std::chrono::system_clock::time_point()>;

  static constexpr std::uintmax_t kDefaultLimit = 1024 * 1024;

  /// @param folder where the file is; empty when there is no state folder: entries are dropped
  /// @param limit bytes after which a new file is begun
  explicit ErrorLog(const std::filesystem::path& folder, std::uintmax_t limit = kDefaultLimit,
                    Clock clock = &std::chrono::system_clock::now);

  const std::filesystem::path& File() const { return file_; }
  /// Why an entry could not be written; empty as long as all could.
  const std::string& Failure() const { return failure_; }

 private:
  void IErrorLog_LogEntry(const std::string& sSource, std::int32_t lNumber, const std::string& sPlace,
                          std::int32_t lLevel, const orvik::Variant& v1, const orvik::Variant& v2,
                          const orvik::Variant& v3, const orvik::Variant& v4,
                          const orvik::Variant& v5) override;

  void Append(const std::string& line, bool toDisk) const;
  void RotateBefore(std::size_t added) const;

  std::filesystem::path file_;
  std::uintmax_t limit_;
  Clock clock_;
  std::string failure_;
  std::string lastEntry_;  ///< without its time
};

}  // namespace host
