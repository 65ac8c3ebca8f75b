#include "tester/TextFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <system_error>

#include "tester/Errors.h"
#include "tester/Text.h"
#include "tester/UniqueFd.h"

namespace sim {

namespace {

std::string ErrorText(int error) { return std::generic_category().message(error); }

void CheckCharacters(const std::string& name, int number, std::string_view line) {
  const bool control = std::any_of(line.begin(), line.end(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte < 0x20 && c != '\t') || byte == 0x7F;
  });
  if (control) FailAt(name, number, "the line holds a control character; remove it");
  if (!Utf8ToLatin1(line)) {
    FailAt(name, number,
           "the line is not UTF-8 text within ISO 8859-1; save the file as UTF-8 and write 'µ' as the micro "
           "sign (U+00B5)");
  }
}

}  // namespace

std::vector<TextLine> SplitTextLines(std::string_view content, const std::string& name) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (content.substr(0, kByteOrderMark.size()) == kByteOrderMark)
    content.remove_prefix(kByteOrderMark.size());

  std::vector<TextLine> lines;
  for (int number = 1; !content.empty(); ++number) {
    const std::size_t end = std::min(content.find('\n'), content.size());
    std::string_view line = content.substr(0, end);
    content.remove_prefix(std::min(end + 1, content.size()));
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    const std::string_view text = Trim(line);
    if (text.empty() || text.front() == '#') continue;
    CheckCharacters(name, number, text);
    lines.push_back({number, std::string(text)});
  }
  return lines;
}

std::string ReadTextFile(const std::string& path, std::size_t largest) {
  // Non-blocking, so that opening a pipe without a writer does not hang.
  const UniqueFd file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  if (!file) throw InputError(path + ": cannot be opened: " + ErrorText(errno));
  struct stat status {};
  if (fstat(file.Get(), &status) != 0) throw InputError(path + ": cannot be examined: " + ErrorText(errno));
  if (!S_ISREG(status.st_mode)) throw InputError(path + ": is not a regular file; name a text file");

  std::string content;
  std::array<char, 16384> buffer{};
  for (;;) {
    const ssize_t count = read(file.Get(), buffer.data(), buffer.size());
    if (count == 0) return content;
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw InputError(path + ": cannot be read: " + ErrorText(errno));
    content.append(buffer.data(), static_cast<std::size_t>(count));
    if (content.size() > largest)
      throw InputError(path + ": is larger than " + std::to_string(largest / (1024 * 1024)) +
                       " MiB; a profile, fault script or wire log is smaller");
  }
}

void FailAt(const std::string& name, int line, const std::string& message) {
  throw InputError(name + ":" + std::to_string(line) + ": " + message);
}

}  // namespace sim
