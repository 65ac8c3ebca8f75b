#include "instrument/ErrorReply.h"

#include "OrvikTypeLib/IMessage.h"
#include "instrument/Commands.h"
#include "instrument/CommsState.h"
#include "instrument/Number.h"
#include "plugin/base/Attempt.h"

namespace keld::instrument {

namespace {

constexpr std::int16_t kNotAllowedNow = 1003;
constexpr std::int16_t kNoSuchTest = 6002;

std::int16_t ErrorNumber(const orvik::IMessage& Reply) {
  std::int16_t iNumber = 0;
  Attempt([&] {
    const std::int32_t lIndex = Reply.ParameterCount() == 1 ? 0 : 1;
    iNumber = static_cast<std::int16_t>(IntegerIn(Reply.Parameter(lIndex), INT16_MIN, INT16_MAX));
  });
  return iNumber;
}

}  // namespace

std::int32_t StateOfErrorReply(const orvik::IMessage& Reply, const std::string& sCommand) {
  const std::int16_t iNumber = ErrorNumber(Reply);
  if (iNumber == kNotAllowedNow)
    return sCommand == Commands::kStartTest ? CommsState::kTestNotSupported : CommsState::kRefused;
  if (iNumber == kNoSuchTest) return CommsState::kTestNotSupported;
  return CommsState::kInstrumentError;
}

}  // namespace keld::instrument
