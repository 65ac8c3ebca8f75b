#include "instrument/CKELDInstrument.h"

#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IPortManager.h"
#include "instrument/Commands.h"
#include "instrument/CommsState.h"
#include "instrument/Number.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/MKELDConstants.h"
#include "plugin/base/MKELDGlobalVars.h"

namespace keld::instrument {

using orvik::Required;

namespace {

/// 9,600 baud, odd parity, 8 data bits, 1 stop bit.
constexpr char kLineSettings[] = "9600,O,8,1";
constexpr std::size_t kOverloadIndex = 3;
constexpr char kOverloaded[] = "O";

std::size_t Checked(int iIndex) {
  if (iIndex < 0 || iIndex >= static_cast<int>(MtiDataArray{}.size()))
    throw orvik::HostError(orvik::HostError::kSubscriptOutOfRange, MKELDConstants::kPlugInID,
                           "there is no MTI data element " + std::to_string(iIndex) + ", only 0 to 4");
  return static_cast<std::size_t>(iIndex);
}

}  // namespace

std::shared_ptr<CKELDInstrument> CKELDInstrument::Create() {
  return std::shared_ptr<CKELDInstrument>(new CKELDInstrument);
}

CKELDInstrument::CKELDInstrument()
    : mfrmClock(FClock::Create()), Application(MKELDGlobalVars::Application()) {
  mfrmClock->Load();
  ClockSubscription = mfrmClock->ClockPulse().Subscribe([this] { mfrmClock_ClockPulse(); });
  avData.fill(MKELDConstants::kNoValue);
}

CKELDInstrument::~CKELDInstrument() {
  Attempt([&] { mfrmClock->Unload(); });
}

std::int16_t CKELDInstrument::PortNumber() const { return orvik::Narrow16(lPortNumber); }

void CKELDInstrument::ConnectMTI() {
  std::shared_ptr<orvik::IPortManager> PortManager;
  Attempt([&] { PortManager = Required(MKELDGlobalVars::CommApplication()).PortManager(); });
  Attempt([&] { lPortNumber = Required(PortManager).FindPort(MKELDConstants::kPlugInID); });
  if (lPortNumber < 1) return;
  Attempt([&] { Port = Required(PortManager).OpenPort(lPortNumber, kLineSettings); });
}

void CKELDInstrument::RunMtiTest(std::int16_t iTestNo, std::int16_t iSetting) {
  const auto Self = shared_from_this();
  if (fDisconnecting) {
    std::int32_t lRefused = CommsState::kNoAnswer;
    Attempt([&] { mResultReceived.Raise(lRefused, iTestNo); });
    return;
  }
  const std::uint32_t lOwnTurn = ++lTurn;
  if (iSetting == 999 || iSetting == 9999 || iSetting == 99) iSetting = 0;

  std::int32_t lState = CommsState::kRemoteOpen;
  if (!fRemote)
    SendCommand(Commands::kEnterRemote, Commands::kEnterRemoteCode, CommsState::kRemoteOpen,
                Commands::kRemoteEntered, 0, 0, false, lState);
  if (lTurn != lOwnTurn || !fRemote || lState != CommsState::kRemoteOpen) return;

  SendCommand(Commands::kStartTest, Commands::kStartTestCode, CommsState::kTestStarted,
              Commands::kTestStarted, iTestNo, iSetting, true, lState);
  if (lTurn != lOwnTurn || !fRemote || lState != CommsState::kTestStarted) return;

  SendCommand(Commands::kGetResult, Commands::kGetResultCode, CommsState::kResultReceived, Commands::kResult,
              iTestNo, iSetting, true, lState);
}

void CKELDInstrument::DisconnectMTI() {
  const auto Self = shared_from_this();
  if (fDisconnecting) return;
  fDisconnecting = true;
  ++lTurn;
  if (!fRemote && fRemoteAsked) AwaitRemote();

  if (fRemote) {
    // Both are sent, whatever the result of the first.
    std::int32_t lState = 0;
    SendCommand(Commands::kStartTest, Commands::kStartTestCode, CommsState::kTestStarted,
                Commands::kTestStarted, Commands::kClosingTest, 0, true, lState);
    SendCommand(Commands::kEndRemote, Commands::kEndRemoteCode, CommsState::kRemoteEnded,
                Commands::kRemoteEnded, 0, 0, false, lState);
  } else {
    Attempt([&] { mMessageSent.Raise(CommsState::kNoSession, 0, 0); });
  }
  ClosePort();
  fRemote = false;
  fDisconnecting = false;
}

void CKELDInstrument::AwaitRemote() {
  std::int32_t lWaiting = 0;
  bool fOpen = false;
  while (!fRemote) {
    WaitForMessage(lWaiting, fOpen);
    if (lWaiting <= 0) break;
    const auto Reply = TakeMessage();
    // A library that fails to hand over its messages would report one forever.
    if (!Reply) break;
    Attempt([&] { fRemote = Reply->Mnemonic() == Commands::kRemoteEntered; });
  }
  fRemoteAsked = false;
}

void CKELDInstrument::ClosePort() {
  bool fOpen = true;
  Attempt([&] { fOpen = Required(Port).IsOpen(); });
  if (fOpen) Attempt([&] { Required(Port).Close(); });
}

orvik::Variant CKELDInstrument::MtiData(int iIndex) const { return avData[Checked(iIndex)]; }

void CKELDInstrument::SetMtiData(int iIndex, const orvik::Variant& vValue) {
  const std::size_t lIndex = Checked(iIndex);
  if (lIndex == kOverloadIndex) {
    avData[lIndex] = NumberIn(vValue) == 1.0 ? kOverloaded : "";
  } else {
    avData[lIndex] = vValue;
  }
}

}  // namespace keld::instrument
