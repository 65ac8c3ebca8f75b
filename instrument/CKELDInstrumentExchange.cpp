// One command and its reply.
#include <chrono>
#include <string>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "instrument/CKELDInstrument.h"
#include "instrument/Commands.h"
#include "instrument/CommsState.h"
#include "instrument/ErrorReply.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/MKELDConstants.h"

namespace keld::instrument {

using orvik::Required;

namespace {

/// The tester needs this long between a reply and the next command.
constexpr std::int16_t kPauseMilliseconds = 3500;
constexpr std::int16_t kReplyMilliseconds = 2000;
constexpr int kMaxAttempts = 3;
/// The pump passes on the error of any handler, and the wait continues. A pump that always fails does not
/// wait, so the wait ends.
constexpr int kMaxPumpFailures = 100;
/// The clock ends every wait; the pump's deadline is later than any pulse.
constexpr std::chrono::milliseconds kBeyondPulse{kPauseMilliseconds};

}  // namespace

// The message code of a command is not used.
void CKELDInstrument::SendCommand(const std::string& sCommand, std::int16_t /*iMessageCode*/,
                                  std::int32_t lSuccessState, const std::string& sExpectedReply,
                                  std::int16_t iParameter1, std::int16_t iParameter2, bool fWithParameters,
                                  std::int32_t& lState) {
  orvik::Variant vParameters;
  if (fWithParameters)
    vParameters = std::vector<std::string>{std::to_string(iParameter1), std::to_string(iParameter2)};

  lState = CommsState::kInstrumentError;
  switch (AwaitReply(sCommand, vParameters)) {
    case Outcome::kReply:
      lState = TakeReply(sCommand, lSuccessState, sExpectedReply);
      break;
    case Outcome::kNoReply:
      lState = CommsState::kNoAnswer;
      fRemote = false;
      break;
    case Outcome::kOvertaken:
      // The interrupting operation has set whether a session is open.
      lState = CommsState::kNoAnswer;
      break;
  }
  fRemoteAsked = false;
  Attempt([&] { mResultReceived.Raise(lState, iParameter1); });
}

CKELDInstrument::Outcome CKELDInstrument::AwaitReply(const std::string& sCommand,
                                                     const orvik::Variant& vParameters) {
  const std::uint32_t lOwnTurn = lTurn;
  std::int32_t lWaiting = 0;
  bool fOpen = false;
  for (int iAttempt = 1; iAttempt <= kMaxAttempts; ++iAttempt) {
    std::shared_ptr<orvik::IMessage> Command;
    Attempt([&] { Command = Required(Port).CreateMessage(sCommand, vParameters); });
    WaitClock(kPauseMilliseconds);
    if (lTurn != lOwnTurn) return Outcome::kOvertaken;
    Attempt([&] {
      if (!Command) return;
      Required(Port).Send(Command);
      fRemoteAsked = sCommand == Commands::kEnterRemote;
    });

    StartClock(kReplyMilliseconds);
    Attempt([&] { Application->ProcessMessages(); });
    WaitForMessage(lWaiting, fOpen);
    StopClock();
    if (lTurn != lOwnTurn) return Outcome::kOvertaken;
    if (lWaiting > 0) return Outcome::kReply;
    if (!fOpen) return Outcome::kNoReply;
  }
  return Outcome::kNoReply;
}

void CKELDInstrument::WaitClock(std::int16_t iMilliseconds) {
  const std::uint32_t lOwnTurn = lTurn;
  StartClock(iMilliseconds);
  while (!fClockPulsed && lTurn == lOwnTurn && Pump()) {
  }
  StopClock();
  fClockPulsed = false;
}

void CKELDInstrument::WaitForMessage(std::int32_t& lWaiting, bool& fOpen) {
  const std::uint32_t lOwnTurn = lTurn;
  do {
    Attempt([&] { lWaiting = Required(Port).ReceivedCount(); });
    Attempt([&] { fOpen = Required(Port).IsOpen(); });
  } while (lWaiting <= 0 && !fClockPulsed && fOpen && lTurn == lOwnTurn && Pump());
}

bool CKELDInstrument::Pump() {
  // A stopped clock never pulses, so the wait ends.
  if (!mfrmClock->Running()) return false;
  const bool fPumped = Attempt([&] { Application->WaitMessages(Application->Now() + kBeyondPulse); });
  iPumpFailures = fPumped ? 0 : iPumpFailures + 1;
  return iPumpFailures < kMaxPumpFailures;
}

void CKELDInstrument::StartClock(std::int16_t iMilliseconds) {
  fClockPulsed = false;
  iPumpFailures = 0;
  Attempt([&] { mfrmClock->StartClock(iMilliseconds); });
}

void CKELDInstrument::StopClock() {
  Attempt([&] { mfrmClock->StopClock(); });
}

std::int32_t CKELDInstrument::TakeReply(const std::string& sCommand, std::int32_t lSuccessState,
                                        const std::string& sExpectedReply) {
  const auto Reply = TakeMessage();
  std::string sMnemonic;
  Attempt([&] { sMnemonic = Required(Reply).Mnemonic(); });

  if (sMnemonic == sExpectedReply) {
    StoreReplyData(*Reply);
    fRemote = true;
    if (sMnemonic == Commands::kRemoteEntered) {
      const MtiDataArray avIdentity = avData;
      Attempt([&] { mGotMtiData.Raise(avIdentity); });
    } else if (sMnemonic == Commands::kRemoteEnded) {
      fRemote = false;
    }
    return lSuccessState;
  }
  if (sMnemonic == Commands::kError) return StateOfErrorReply(*Reply, sCommand);
  return CommsState::kUnexpectedReply;
}

std::shared_ptr<orvik::IMessage> CKELDInstrument::TakeMessage() {
  std::shared_ptr<orvik::IMessage> Message;
  Attempt([&] { Message = Required(Port).TakeMessage(); });
  return Message;
}

void CKELDInstrument::StoreReplyData(const orvik::IMessage& Reply) {
  std::int32_t lCount = 0;
  Attempt([&] { lCount = Reply.ParameterCount(); });
  for (int i = 0; i < static_cast<int>(avData.size()); ++i) {
    if (i < lCount) {
      Attempt([&] { SetMtiData(i, Reply.Parameter(i)); });
    } else {
      SetMtiData(i, MKELDConstants::kNoValue);
    }
  }
}

}  // namespace keld::instrument
