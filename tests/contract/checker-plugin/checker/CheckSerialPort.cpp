#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ICommApplication.h"
#include "OrvikTypeLib/IMessage.h"
#include "OrvikTypeLib/IPort.h"
#include "OrvikTypeLib/IPortManager.h"
#include "platform/IApplication.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

constexpr char kSettings[] = "9600,O,8,1";
constexpr std::chrono::seconds kPatience{5};

/// Lets the host process messages until one has been received, or patience is at an end.
void WaitForMessage(const orvik::IPort& port) {
  const auto application = TheHost().Application();
  const auto deadline = application->Now() + kPatience;
  while (port.ReceivedCount() == 0 && application->Now() < deadline) application->WaitMessages(deadline);
}

void Conversation(Findings& findings, const std::shared_ptr<orvik::IPort>& port) {
  const auto command = port->CreateMessage("IREM", {});
  findings.Equal("IREM", command->Mnemonic(), "mnemonic of a command");
  findings.Equal(0, command->ParameterCount(), "parameters of a command without any");
  findings.Equal(0, port->ReceivedCount(), "messages received before anything was sent");
  port->Send(command);
  WaitForMessage(*port);
  if (port->ReceivedCount() == 0) return findings.Expect(false, "the instrument's reply arrives");
  const auto reply = port->TakeMessage();
  findings.Expect(!reply->Mnemonic().empty(), "a reply has a mnemonic");
  findings.Expect(reply->ParameterCount() >= 1, "the reply has a parameter");
  findings.Expect(std::holds_alternative<std::string>(reply->Parameter(0)), "a received parameter is a text");
  for (const std::int32_t index : {-1, reply->ParameterCount(), 2147483647})
    findings.Refused(
        "parameter number " + std::to_string(index), [&] { reply->Parameter(index); },
        orvik::HostError::kSubscriptOutOfRange);
  findings.Equal(0, port->ReceivedCount(), "messages waiting after the reply was taken");
  findings.Refused("taking a message when none is waiting", [&] { port->TakeMessage(); });
}

void Commands(Findings& findings, orvik::IPort& port) {
  const auto command = port.CreateMessage("STST", std::vector<std::string>{"410", "a,\"b\"", ""});
  findings.Equal(3, command->ParameterCount(), "parameters of a command");
  findings.Expect(command->Parameter(1) == orvik::Variant("a,\"b\""),
                  "a parameter may hold comma and quotes");
  for (const auto* text : {"a\r", "\n", "\t", "\x7F", "\x01"}) {
    findings.Refused("a parameter with a control character",
                     [&] { port.CreateMessage("STST", std::vector<std::string>{text}); });
  }
  findings.Refused("parameters that are no list", [&] { port.CreateMessage("STST", 2.5); });
  findings.Refused("sending nothing", [&] { port.Send(nullptr); });
}

void Closing(Findings& findings, orvik::IPort& port) {
  const auto command = port.CreateMessage("EREM", {});
  findings.Expect(port.IsOpen(), "an opened port is open");
  port.Close();
  port.Close();
  findings.Expect(!port.IsOpen(), "a closed port is closed");
  findings.Refused("sending through a closed port", [&] { port.Send(command); });
}

}  // namespace

void CheckSerialPort(Findings& findings, const HostParts& parts) {
  const auto application = NewHostObject<orvik::ICommApplication>(orvik::HostClasses::kCommApplication);
  const auto manager = application->PortManager();
  findings.Expect(manager->FindPort("no such device") < 1, "an unknown device has no port");
  const auto number = manager->FindPort(parts.device);
  if (number < 1) return findings.Expect(false, "the device " + parts.device + " has a port");
  for (const std::int32_t wrong : {0, -1, 4711})
    findings.Refused("port number " + std::to_string(wrong), [&] { manager->OpenPort(wrong, kSettings); });
  for (const auto* settings :
       {"", "9600", "9600,X,8,1", "0,O,8,1", "9600,O,9,1", "9600,O,8,7", "9600,O,8,1,1", "fast"})
    findings.Refused(std::string("the settings \"") + settings + "\"",
                     [&] { manager->OpenPort(number, settings); });

  const auto port = manager->OpenPort(number, kSettings);
  findings.Refused("opening a port twice", [&] { manager->OpenPort(number, kSettings); });
  findings.Try("a conversation", [&] { Conversation(findings, port); });
  findings.Try("commands", [&] { Commands(findings, *port); });
  findings.Try("closing", [&] { Closing(findings, *port); });
  findings.Try("opening again", [&] { manager->OpenPort(number, kSettings)->Close(); });
}

}  // namespace check
