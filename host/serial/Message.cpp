#include "host/serial/Message.h"

#include <algorithm>

#include "OrvikTypeLib/HostError.h"
#include "host/base/Tr.h"
#include "host/serial/Latin1.h"
#include "host/serial/LineReader.h"

namespace host::serial {

namespace {

using orvik::HostError;

[[noreturn]] void RefuseText(const std::string& mnemonic, const std::string& reason) {
  throw HostError(HostError::kInvalidArgument, "OrvikComm.Port",
                  Tr("command \"%%1\" cannot be sent: %%2", {VisibleLatin1(mnemonic), reason}));
}

std::string Bytes(const std::string& mnemonic, const std::string& text) {
  auto bytes = Latin1FromUtf8(text);
  if (!bytes) RefuseText(mnemonic, Tr("\"%%1\" has a letter that is not in ISO 8859-1", {text}));
  for (const char c : *bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7F)
      RefuseText(mnemonic, Tr("\"%%1\" has a control character", {VisibleLatin1(*bytes)}));
  }
  return *std::move(bytes);
}

void AppendField(std::string& line, const std::string& field) {
  line.push_back(',');
  if (field.find_first_of(",\"") == std::string::npos) {
    line += field;
    return;
  }
  line.push_back('"');
  for (const char c : field) {
    if (c == '"') line.push_back('"');
    line.push_back(c);
  }
  line.push_back('"');
}

/// Reads the field at `at` and moves `at` to the comma after it or to the end; empty if its quotation marks
/// do not match.
std::optional<std::string> ReadField(std::string_view line, std::size_t& at) {
  std::string field;
  if (at == line.size() || line[at] != '"') {
    const std::size_t end = std::min(line.find(',', at), line.size());
    field = line.substr(at, end - at);
    at = end;
    if (field.find('"') != std::string::npos) return std::nullopt;
    return field;
  }
  for (++at; at < line.size(); ++at) {
    if (line[at] != '"') {
      field.push_back(line[at]);
    } else if (at + 1 < line.size() && line[at + 1] == '"') {
      field.push_back('"');
      ++at;
    } else {
      ++at;
      if (at < line.size() && line[at] != ',') return std::nullopt;
      return field;
    }
  }
  return std::nullopt;  // the closing mark is missing
}

}  // namespace

orvik::Variant Message::IMessage_Parameter(std::int32_t lIndex) const {
  if (lIndex < 0 || static_cast<std::size_t>(lIndex) >= parameters_.size())
    throw HostError(HostError::kSubscriptOutOfRange, "OrvikComm.Message",
                    Tr("message \"%%1\" has no parameter %%2", {mnemonic_, std::to_string(lIndex)}));
  return parameters_[static_cast<std::size_t>(lIndex)];
}

std::shared_ptr<Message> ComposeMessage(const std::string& mnemonic, std::vector<std::string> parameters) {
  if (mnemonic.empty() || mnemonic.find_first_of(",\"") != std::string::npos)
    RefuseText(mnemonic, Tr("a mnemonic needs at least one letter, no comma and no quotation mark"));
  std::string line = Bytes(mnemonic, mnemonic);
  for (const auto& parameter : parameters) AppendField(line, Bytes(mnemonic, parameter));
  if (line.size() > LineReader::kMaxLine)
    RefuseText(mnemonic,
               Tr("it is longer than %%1 bytes with its parameters", {std::to_string(LineReader::kMaxLine)}));
  return std::make_shared<Message>(mnemonic, std::move(parameters), std::move(line));
}

std::shared_ptr<Message> ParseMessage(std::string_view line) {
  std::size_t at = std::min(line.find(','), line.size());
  const auto mnemonic = line.substr(0, at);
  if (mnemonic.find('"') != std::string_view::npos) return nullptr;
  std::vector<std::string> parameters;
  while (at < line.size()) {
    ++at;  // the comma
    const auto field = ReadField(line, at);
    if (!field) return nullptr;
    parameters.push_back(Utf8FromLatin1(*field));
  }
  return std::make_shared<Message>(Utf8FromLatin1(mnemonic), std::move(parameters), std::string(line));
}

}  // namespace host::serial
