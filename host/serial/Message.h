#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "OrvikTypeLib/IMessage.h"

namespace host::serial {

/// One message on the wire: a mnemonic and its parameters, as UTF-8 text.
class Message final : public orvik::IMessage {
 public:
  /// @param line the message as bytes on the wire, without its end
  Message(std::string mnemonic, std::vector<std::string> parameters, std::string line)
      : mnemonic_(std::move(mnemonic)), parameters_(std::move(parameters)), line_(std::move(line)) {}

  const std::string& MnemonicText() const { return mnemonic_; }
  const std::vector<std::string>& Parameters() const { return parameters_; }
  const std::string& Line() const { return line_; }

 private:
  std::string IMessage_Mnemonic() const override { return mnemonic_; }
  std::int32_t IMessage_ParameterCount() const override {
    return static_cast<std::int32_t>(parameters_.size());
  }
  orvik::Variant IMessage_Parameter(std::int32_t lIndex) const override;

  const std::string mnemonic_;
  const std::vector<std::string> parameters_;
  const std::string line_;
};

/// A message to send. A parameter with a comma or a quotation mark is sent in quotation marks, with inner
/// ones doubled. `HostError` 5 for a control character, a letter outside ISO 8859-1, a mnemonic that is empty
/// or has a comma or a quotation mark, and a line that is too long.
std::shared_ptr<Message> ComposeMessage(const std::string& mnemonic, std::vector<std::string> parameters);

/// Parses a line; empty if its quotation marks do not match.
std::shared_ptr<Message> ParseMessage(std::string_view line);

}  // namespace host::serial
