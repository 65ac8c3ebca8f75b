#include "host/base/ErrorLog.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <ctime>
#include <optional>
#include <system_error>

#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostError.h"
#include "host/base/FileErrors.h"
#include "host/base/Files.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"

namespace host {
namespace {

std::string UtcText(std::chrono::system_clock::time_point time) {
  const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(time.time_since_epoch()).count();
  const std::time_t seconds = static_cast<std::time_t>(milliseconds / 1000);
  std::tm utc{};
  gmtime_r(&seconds, &utc);
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d.%03dZ", utc.tm_year + 1900, utc.tm_mon + 1,
                utc.tm_mday, utc.tm_hour, utc.tm_min, utc.tm_sec, static_cast<int>(milliseconds % 1000));
  return text;
}

std::string Field(const std::string& text) {
  std::string field;
  for (const char letter : ValidUtf8(text)) {
    const auto code = static_cast<unsigned char>(letter);
    if (letter == '\\') {
      field += "\\\\";
    } else if (letter == '\n') {
      field += "\\n";
    } else if (letter == '\t') {
      field += "\\t";
    } else if (code < 0x20 || code == 0x7F) {
      char escaped[8];
      std::snprintf(escaped, sizeof escaped, "\\x%02x", code);
      field += escaped;
    } else {
      field += letter;
    }
  }
  return field;
}

std::string NumberFields(std::int32_t number) {
  char text[32];
  std::snprintf(text, sizeof text, "0x%08X\t%d", static_cast<unsigned>(number), number);
  return text;
}

std::string ValueText(const orvik::Variant& value) {
  const auto* list = std::get_if<std::vector<std::string>>(&value);
  if (!list) return orvik::TextOf(value);
  std::string text;
  for (const auto& part : *list) text += (text.empty() ? "" : ", ") + part;
  return text;
}

std::filesystem::path Numbered(const std::filesystem::path& file, int number) {
  auto numbered = file;
  numbered += "." + std::to_string(number);
  return numbered;
}

}  // namespace

ErrorLog::ErrorLog(const std::filesystem::path& folder, std::uintmax_t limit, Clock clock)
    : file_(folder.empty() ? folder : folder / "error.log"), limit_(limit), clock_(std::move(clock)) {}

void ErrorLog::IErrorLog_LogEntry(const std::string& sSource, std::int32_t lNumber, const std::string& sPlace,
                                  std::int32_t lLevel, const orvik::Variant& v1, const orvik::Variant& v2,
                                  const orvik::Variant& v3, const orvik::Variant& v4,
                                  const orvik::Variant& v5) {
  if (file_.empty()) return;
  std::string entry = "\t" + Field(sSource) + "\t" + NumberFields(lNumber) + "\t" + Field(sPlace) + "\t" +
                      std::to_string(lLevel);
  for (const auto* value : {&v1, &v2, &v3, &v4, &v5}) {
    if (!orvik::IsEmpty(*value)) entry += "\t" + Field(ValueText(*value));
  }
  // A catalogue with a hundred thousand entries of one fault must not wait for the disk as often.
  try {
    Append(UtcText(clock_()) + entry + "\n", entry != lastEntry_);
  } catch (const orvik::HostError& error) {
    failure_ = error.Description();
  }
  lastEntry_ = std::move(entry);
}

void ErrorLog::Append(const std::string& line, bool toDisk) const {
  CreateFolder(file_.parent_path());
  auto lockFile = file_;
  lockFile += ".lock";
  const FileLock lock(lockFile, kLockPatience);
  RotateBefore(line.size());
  const UniqueFd descriptor(
      open(file_.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0666));
  if (!descriptor)
    ThrowFileError(file_, Tr("%%1 cannot be opened"), errno, Tr("check the folder and your permissions"));
  WriteDescriptor(descriptor.Get(), line, file_);
  if (toDisk && fsync(descriptor.Get()) != 0)
    ThrowFileError(file_, Tr("%%1 cannot be brought to the disk"), errno, Tr("check the disk"));
}

void ErrorLog::RotateBefore(std::size_t added) const {
  std::error_code error;
  const auto size = std::filesystem::file_size(file_, error);
  if (error || size == 0 || size + added <= limit_) return;
  // The oldest file may not be there yet; a file that cannot be moved keeps growing instead of being lost.
  std::filesystem::rename(Numbered(file_, 1), Numbered(file_, 2), error);
  std::filesystem::rename(file_, Numbered(file_, 1), error);
}

}  // namespace host
