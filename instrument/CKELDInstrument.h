#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IMessage.h"
#include "OrvikTypeLib/IObject.h"
#include "OrvikTypeLib/IPort.h"
#include "OrvikTypeLib/Variant.h"
#include "instrument/FClock.h"
#include "platform/Event.h"
#include "platform/IApplication.h"

namespace keld::instrument {

/// The parameters of the tester's last accepted reply.
/// Of an identity ("irem"): 0 type, 1 serial number, 2 firmware version. Of a result ("gres"): 0 test number,
/// 1 setting, 2 value as text, 3 "O" for an overload, 4 unit.
using MtiDataArray = std::array<orvik::Variant, 5>;

/// The link to the tester.
///
/// Every operation returns when its exchanges are over, and lets the host process messages while it waits, so
/// handlers and the operator may call back into the link meanwhile:
/// - `RunMtiTest` and `DisconnectMTI` interrupt a run that is waiting. Its wait ends immediately, its
///   exchange ends with `CommsState::kNoAnswer`, and it sends nothing more.
/// - While `DisconnectMTI` is active, a second call is ignored and the first one finishes. A run started
///   meanwhile ends with `CommsState::kNoAnswer` and sends nothing, so a session is always ended.
/// - The link may be released; it lives until the operation on the stack has returned.
/// Errors of the communication library are ignored step by step.
class CKELDInstrument final : public virtual orvik::IObject {
 public:
  static std::shared_ptr<CKELDInstrument> Create();
  /// Does not close the port: call `DisconnectMTI` before releasing the link.
  ~CKELDInstrument() override;

  /// The tester's port number, narrowed to 16 bits; less than 1 when `ConnectMTI` was not called or found
  /// none.
  std::int16_t PortNumber() const;
  /// Finds the tester's port and opens it. Sends nothing.
  void ConnectMTI();
  /// Ends the session, if there is one, and closes the port.
  ///
  /// Called while "IREM" is unanswered, it first waits for the reply within the running time-out, so that a
  /// tester that has entered remote mode is not left in it.
  void DisconnectMTI();
  /// Enters remote mode if necessary, starts the test, fetches its result. The settings 99, 999 and 9999 are
  /// sent as 0.
  void RunMtiTest(std::int16_t iTestNo, std::int16_t iSetting);

  /// One element of the MTI data, "NO VALUE" when the reply had none; `HostError` 9 outside 0 to 4.
  orvik::Variant MtiData(int iIndex) const;
  /// Element 3 takes "O" for a value equal to the number 1 (also as the texts "1", "01", "1.0"), else "".
  void SetMtiData(int iIndex, const orvik::Variant& vValue);

  /// The tester has identified itself: the MTI data of its reply, unaffected by what handlers do with the
  /// link.
  orvik::platform::Event<const MtiDataArray&>& GotMtiData() { return mGotMtiData; }
  /// An exchange has ended: its `CommsState`, which a handler may change, and the test number (0 for "IREM"
  /// and "EREM").
  orvik::platform::Event<std::int32_t&, std::int16_t>& ResultReceived() { return mResultReceived; }
  /// `DisconnectMTI` found no session to end: 6, 0, 0.
  orvik::platform::Event<std::int32_t, std::int16_t, std::int16_t>& MessageSent() { return mMessageSent; }

 private:
  CKELDInstrument();

  // One exchange: CKELDInstrumentExchange.cpp.
  void SendCommand(const std::string& sCommand, std::int16_t iMessageCode, std::int32_t lSuccessState,
                   const std::string& sExpectedReply, std::int16_t iParameter1, std::int16_t iParameter2,
                   bool fWithParameters, std::int32_t& lState);
  enum class Outcome { kReply, kNoReply, kOvertaken };
  Outcome AwaitReply(const std::string& sCommand, const orvik::Variant& vParameters);
  void WaitClock(std::int16_t iMilliseconds);
  void WaitForMessage(std::int32_t& lWaiting, bool& fOpen);
  bool Pump();
  void StartClock(std::int16_t iMilliseconds);
  void StopClock();
  std::int32_t TakeReply(const std::string& sCommand, std::int32_t lSuccessState,
                         const std::string& sExpectedReply);
  std::shared_ptr<orvik::IMessage> TakeMessage();
  void StoreReplyData(const orvik::IMessage& Reply);

  void AwaitRemote();
  void ClosePort();
  void mfrmClock_ClockPulse() { fClockPulsed = true; }

  bool fRemote = false;
  std::shared_ptr<orvik::IPort> Port;
  std::int32_t lPortNumber = 0;
  bool fClockPulsed = false;
  std::shared_ptr<FClock> mfrmClock;
  MtiDataArray avData;

  const std::shared_ptr<orvik::platform::IApplication> Application;
  /// Counts runs and disconnections; an operation whose number has changed was interrupted.
  std::uint32_t lTurn = 0;
  bool fDisconnecting = false;
  /// Consecutive errors of the message pump.
  int iPumpFailures = 0;
  /// "IREM" has been sent and is not answered yet.
  bool fRemoteAsked = false;

  orvik::platform::Event<const MtiDataArray&> mGotMtiData;
  orvik::platform::Event<std::int32_t&, std::int16_t> mResultReceived;
  orvik::platform::Event<std::int32_t, std::int16_t, std::int16_t> mMessageSent;
  orvik::platform::Subscription ClockSubscription;
};

}  // namespace keld::instrument
