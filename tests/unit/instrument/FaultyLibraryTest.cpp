// A communication library that fails: call by call, once or permanently.
#include <gtest/gtest.h>

#include <set>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IPortManager.h"
#include "instrument/CKELDInstrument.h"
#include "tests/unit/instrument/LinkBench.h"

namespace instrument_test {
namespace {

/// The calls that fail now, by name; shared by all objects of the library.
class Faults {
 public:
  void Check(const std::string& call) const {
    if (failing.contains(call))
      throw orvik::HostError(orvik::HostError::kDeviceError, "OrvikComm", call + " fails");
    if (alien.contains(call)) throw 42;  // not even an exception of the contract
  }
  std::set<std::string> failing;
  std::set<std::string> alien;
};

/// The real library with faults in front of it.
class FaultyMessage final : public orvik::IMessage {
 public:
  FaultyMessage(std::shared_ptr<Faults> faults, std::shared_ptr<orvik::IMessage> inner)
      : faults_(std::move(faults)), inner_(std::move(inner)) {}
  const std::shared_ptr<orvik::IMessage>& Inner() const { return inner_; }

 private:
  std::string IMessage_Mnemonic() const override {
    faults_->Check("Mnemonic");
    return inner_->Mnemonic();
  }
  std::int32_t IMessage_ParameterCount() const override {
    faults_->Check("ParameterCount");
    return inner_->ParameterCount();
  }
  orvik::Variant IMessage_Parameter(std::int32_t lIndex) const override {
    faults_->Check("Parameter");
    return inner_->Parameter(lIndex);
  }

  std::shared_ptr<Faults> faults_;
  std::shared_ptr<orvik::IMessage> inner_;
};

class FaultyPort final : public orvik::IPort {
 public:
  FaultyPort(std::shared_ptr<Faults> faults, std::shared_ptr<orvik::IPort> inner)
      : faults_(std::move(faults)), inner_(std::move(inner)) {}

 private:
  std::shared_ptr<orvik::IMessage> IPort_CreateMessage(const std::string& sMnemonic,
                                                       const orvik::Variant& vParameters) override {
    faults_->Check("CreateMessage");
    return inner_->CreateMessage(sMnemonic, vParameters);
  }
  void IPort_Send(std::shared_ptr<orvik::IMessage> Message) override {
    faults_->Check("Send");
    inner_->Send(std::move(Message));
  }
  std::int32_t IPort_ReceivedCount() const override {
    faults_->Check("ReceivedCount");
    return inner_->ReceivedCount();
  }
  bool IPort_IsOpen() const override {
    faults_->Check("IsOpen");
    return inner_->IsOpen();
  }
  std::shared_ptr<orvik::IMessage> IPort_TakeMessage() override {
    faults_->Check("TakeMessage");
    return std::make_shared<FaultyMessage>(faults_, inner_->TakeMessage());
  }
  void IPort_Close() override {
    faults_->Check("Close");
    inner_->Close();
  }

  std::shared_ptr<Faults> faults_;
  std::shared_ptr<orvik::IPort> inner_;
};

class FaultyLibrary final : public orvik::ICommApplication, public orvik::IPortManager {
 public:
  FaultyLibrary(std::shared_ptr<Faults> faults, host::serial::PortManager& inner)
      : faults_(std::move(faults)), inner_(inner) {}

 private:
  std::shared_ptr<orvik::IPortManager> ICommApplication_PortManager() const override {
    faults_->Check("PortManager");
    return std::dynamic_pointer_cast<orvik::IPortManager>(
        std::const_pointer_cast<orvik::IObject>(shared_from_this()));
  }
  std::int32_t IPortManager_FindPort(const std::string& sDevice) const override {
    faults_->Check("FindPort");
    return static_cast<orvik::IPortManager&>(inner_).FindPort(sDevice);
  }
  std::shared_ptr<orvik::IPort> IPortManager_OpenPort(std::int32_t lPort,
                                                      const std::string& sSettings) override {
    faults_->Check("OpenPort");
    return std::make_shared<FaultyPort>(faults_,
                                        static_cast<orvik::IPortManager&>(inner_).OpenPort(lPort, sSettings));
  }

  std::shared_ptr<Faults> faults_;
  host::serial::PortManager& inner_;
};

class FaultyLibraryTest : public testing::Test {
 protected:
  FaultyLibraryTest() {
    const auto library = std::make_shared<FaultyLibrary>(faults_, link_.Bench().Ports());
    link_.Bench().Host().Register(orvik::HostClasses::kCommApplication, [library] { return library; });
  }
  keld::instrument::CKELDInstrument& Link() { return *link_.Link(); }

  const std::shared_ptr<Faults> faults_ = std::make_shared<Faults>();
  LinkBench link_;
};

TEST_F(FaultyLibraryTest, CompletesARunWithoutFaults) {
  Link().ConnectMTI();
  Link().RunMtiTest(410, 0);
  EXPECT_EQ(link_.Raised(), (Texts{"GotMtiData", "3 0", "4 410", "5 410"}));
}

TEST_F(FaultyLibraryTest, FailingLookUpLeavesNoPort) {
  for (const std::string call : {"PortManager", "FindPort"}) {
    faults_->failing = {call};
    Link().ConnectMTI();
    EXPECT_EQ(Link().PortNumber(), 0) << call;
  }
}

TEST_F(FaultyLibraryTest, FailingOpenCountsAsAClosedPort) {
  faults_->failing = {"OpenPort"};
  Link().ConnectMTI();
  EXPECT_EQ(Link().PortNumber(), 1);
  Link().RunMtiTest(410, 0);
  EXPECT_EQ(link_.Raised(), (Texts{"7 0"}));
}

TEST_F(FaultyLibraryTest, AnyFailingCallEndsTheRunWithoutAResult) {
  struct Case {
    std::string call;
    Texts raised;
    milliseconds elapsed;
  };
  const Case cases[] = {
      {"CreateMessage", {"7 0"}, milliseconds(16500)}, {"Send", {"7 0"}, milliseconds(16500)},
      {"ReceivedCount", {"7 0"}, milliseconds(16500)}, {"IsOpen", {"7 0"}, milliseconds(3500)},
      {"TakeMessage", {"1 0"}, milliseconds(3500)},    {"Mnemonic", {"1 0"}, milliseconds(3500)},
  };
  for (const auto& [call, raised, elapsed] : cases) {
    for (const bool alien : {false, true}) {
      SCOPED_TRACE(call);
      faults_->failing.clear();
      faults_->alien.clear();
      Link().DisconnectMTI();
      Link().ConnectMTI();
      // Mute but for one command at most, so that every call is reached.
      if (call == "IsOpen")
        link_.Script({});
      else
        link_.Script(GoodAnswers());
      link_.Restart();
      (alien ? faults_->alien : faults_->failing) = {call};
      Link().RunMtiTest(410, 0);
      EXPECT_EQ(link_.Raised(), raised);
      EXPECT_EQ(link_.Elapsed(), elapsed);
    }
  }
}

TEST_F(FaultyLibraryTest, FailingIsOpenKeepsTheLastState) {
  link_.Connect({});
  link_.At(milliseconds(4000), [&] { faults_->failing = {"IsOpen"}; });
  Link().RunMtiTest(410, 0);
  EXPECT_EQ(link_.Raised(), (Texts{"7 0"}));
  EXPECT_EQ(link_.Elapsed(), milliseconds(16500));
}

TEST_F(FaultyLibraryTest, UnreadableParametersGiveNoErrorNumber) {
  for (const std::string call : {"ParameterCount", "Parameter"}) {
    faults_->failing = {call};
    Link().ConnectMTI();
    link_.Restart();
    link_.Script({{"IREM", {"ERRM,1003"}}});
    Link().RunMtiTest(410, 0);
    EXPECT_EQ(link_.Raised(), (Texts{"0 0"})) << call;
    faults_->failing.clear();
    Link().DisconnectMTI();
  }
}

TEST_F(FaultyLibraryTest, AnUnreadableCountReadsAsNoParameters) {
  link_.Connect(GoodAnswers());
  link_.onResult = [&](std::int32_t& state, std::int16_t) {
    if (state == keld::instrument::CommsState::kTestStarted) faults_->failing = {"ParameterCount"};
  };
  Link().RunMtiTest(410, 0);
  EXPECT_EQ(Link().MtiData(2), orvik::Variant(std::string("NO VALUE")));
}

TEST_F(FaultyLibraryTest, DisconnectEndsForAnyFailingCall) {
  for (const std::string call : {"CreateMessage", "Send", "ReceivedCount", "IsOpen", "TakeMessage",
                                 "Mnemonic", "Parameter", "Close"}) {
    SCOPED_TRACE(call);
    faults_->failing.clear();
    Link().DisconnectMTI();
    link_.Run(GoodAnswers());
    link_.Restart();
    faults_->failing = {call};
    Link().DisconnectMTI();
    EXPECT_LE(link_.Elapsed(), milliseconds(33000));
    EXPECT_EQ(link_.Bench().Line().Line()->Connected(), call == "Close");
    link_.Restart();
    Link().DisconnectMTI();
    EXPECT_EQ(link_.Raised(), (Texts{"MessageSent 6 0 0"}));
  }
}

TEST_F(FaultyLibraryTest, HandlerThatThrowsDoesNotBreakTheLink) {
  Link().ConnectMTI();
  link_.onData = [](const keld::instrument::MtiDataArray&) { throw 42; };
  link_.onResult = [](std::int32_t&, std::int16_t) { throw 42; };
  Link().RunMtiTest(410, 0);
  EXPECT_EQ(link_.Raised(), (Texts{"GotMtiData", "3 0", "4 410", "5 410"}));
  Link().DisconnectMTI();
  EXPECT_FALSE(link_.Bench().Tester().InRemoteMode());
}

TEST_F(FaultyLibraryTest, FailingTakeMessageEndsTheWaitForIrem) {
  link_.Connect({});
  link_.At(milliseconds(4000), [&] {
    faults_->failing = {"TakeMessage"};
    link_.Bench().Line().Reply("stst");
    Link().DisconnectMTI();
  });
  Link().RunMtiTest(410, 0);
  EXPECT_EQ(link_.Elapsed(), milliseconds(4000));
  EXPECT_FALSE(link_.Bench().Line().Line()->Connected());
}

TEST_F(FaultyLibraryTest, PumpErrorEndsNoPauseAndNoWait) {
  // In the pause, while the reply is waited for, and several in a row.
  for (const int errors : {1, 20}) {
    LinkBench link;
    link.Link()->ConnectMTI();
    link.Bench().Line().AnswerBy([&](const std::string& command) {
      if (command == "IREM") link.Bench().Line().Reply("irem,KELD(IN),4711,1.05", milliseconds(1500));
    });
    for (const int when : {1000, 4000}) {
      link.At(milliseconds(when), [&] {
        for (int i = 0; i < errors; ++i) link.Application().Post([] { throw 42; });
      });
    }
    link.onResult = [](std::int32_t& state, std::int16_t) {
      state = keld::instrument::CommsState::kInstrumentError;
    };
    link.Link()->RunMtiTest(410, 0);
    EXPECT_EQ(link.SentAt(), (std::vector{milliseconds(3500)})) << errors;
    EXPECT_EQ(link.Raised(), (Texts{"GotMtiData", "3 0"})) << errors;
    EXPECT_EQ(link.Elapsed(), milliseconds(5000)) << errors;
  }
}

TEST_F(FaultyLibraryTest, PumpThatAlwaysFailsEndsTheWaits) {
  link_.Connect({});
  std::function<void()> fail = [&] {
    link_.Application().Post(fail);
    throw 42;
  };
  link_.At(milliseconds(1000), fail);
  Link().RunMtiTest(410, 0);
  EXPECT_EQ(link_.Raised(), (Texts{"7 0"}));
  EXPECT_EQ(link_.Elapsed(), milliseconds(1000));
}

TEST_F(FaultyLibraryTest, UnloadedClockEndsTheWaits) {
  link_.Connect({});
  link_.At(milliseconds(1000), [&] {
    for (const auto& form : link_.Application().Forms()) form->Unload();
  });
  Link().RunMtiTest(410, 0);
  EXPECT_EQ(link_.Raised(), (Texts{"7 0"}));
  EXPECT_EQ(link_.Elapsed(), milliseconds(1000));
}

}  // namespace
}  // namespace instrument_test
