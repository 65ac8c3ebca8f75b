#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IRegistryReader.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

constexpr auto kLocalMachine = static_cast<std::int32_t>(0x80000002);
constexpr char kPath[] = "Software\\Orvik checker";

std::shared_ptr<orvik::IRegistryReader> NewReader() {
  return NewHostObject<orvik::IRegistryReader>(orvik::HostClasses::kRegistryReader);
}

void Closed(Findings& findings) {
  const auto reader = NewReader();
  findings.Expect(!reader->IsOpen(), "a new reader has no key open");
  findings.Expect(orvik::IsEmpty(reader->ReadValue("a")), "without a key a value is empty");
  findings.Expect(reader->ValueNames().empty(), "without a key there are no names");
  findings.Refused("writing without a key", [&] { reader->WriteValue("a", "b"); });
  findings.Expect(!reader->OpenKey(kLocalMachine, "Software\\No such key"), "a missing key does not open");
  findings.Expect(!reader->IsOpen(), "a key that did not open is not open");
}

void Values(Findings& findings) {
  const auto writer = NewReader();
  findings.Expect(writer->CreateKey(kLocalMachine, kPath), "a key is created");
  findings.Expect(writer->IsOpen(), "a created key is open");
  const std::string text = "<xml a=\"\xC2\xB5\">\r\n\t</xml>";
  writer->WriteValue("text", text);
  writer->WriteValue("number", std::int32_t{-2147483647 - 1});
  writer->WriteValue("a name with \\ and \"quotes\"", "");

  const auto reader = NewReader();
  findings.Expect(reader->OpenKey(kLocalMachine, kPath), "a created key opens");
  findings.Expect(reader->ReadValue("text") == orvik::Variant(text), "a text is read back unchanged");
  findings.Expect(reader->ReadValue("number") == orvik::Variant(std::int32_t{-2147483647 - 1}),
                  "a number is read back");
  findings.Expect(reader->ReadValue("a name with \\ and \"quotes\"") == orvik::Variant(std::string()),
                  "an empty text is a value");
  findings.Expect(orvik::IsEmpty(reader->ReadValue("missing")), "a missing value is empty");
  findings.Expect(
      reader->ValueNames() == std::vector<std::string>{"a name with \\ and \"quotes\"", "number", "text"},
      "names come in alphabetical order");
  writer->WriteValue("text", std::int32_t{1});
  findings.Expect(reader->ReadValue("text") == orvik::Variant(std::int32_t{1}),
                  "a value is replaced for all");
  findings.Refused("a value of another kind", [&] { writer->WriteValue("double", 2.5); });
  findings.Refused("a list of texts", [&] { writer->WriteValue("list", std::vector<std::string>{"a"}); });
  findings.Expect(!reader->OpenKey(kLocalMachine, "Software\\No such key") && !reader->IsOpen(),
                  "opening a missing key leaves none open");
}

}  // namespace

void CheckRegistry(Findings& findings, const HostParts&) {
  RunSteps(findings, {{"a reader without key", Closed}, {"values", Values}});
}

}  // namespace check
