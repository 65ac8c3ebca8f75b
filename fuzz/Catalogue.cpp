// A catalogue of tests: the file that is named with --catalogue, and the plug-in that builds tests of its
// text.
#include <vector>

#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "fuzz/Bench.h"
#include "fuzz/Promise.h"
#include "fuzz/Scratch.h"
#include "host/base/RegistryStore.h"
#include "host/bench/CatalogueFile.h"
#include "host/bench/InputError.h"
#include "host/elements/Nesting.h"
#include "host/xml/XmlDocument.h"

namespace {

using fuzz::Require;
namespace constants = keld::MKELDConstants;

/// Whether the program takes the text for a catalogue; what it does not take it has to say.
bool IsTaken(const std::string& text) {
  static const fuzz::Scratch scratch;
  const auto file = scratch.Write("catalogue.xml", text);
  try {
    Require(host::bench::ReadCatalogue(file) == text, "a catalogue is read as it is in the file");
    return true;
  } catch (const host::bench::InputError& error) {
    Require(std::string(error.what()).find(file.string()) != std::string::npos, "a refusal names the file");
    return false;
  }
}

/// A new plug-in object whose settings hold the text.
std::shared_ptr<orvik::IPlugIn> PlugInWith(const std::string& text) {
  auto& host = fuzz::TheBench().Host();
  host.Registry()->StandIn(constants::kHive, constants::kSettingsKey, constants::kConfigurationValue, text);
  auto plugIn = orvik::As<orvik::IPlugIn>(host.CreateObject(keld::ClassIdentifiers::kPlugin));
  plugIn->Initialize(nullptr);
  return plugIn;
}

/// The identifiers of all entries, at any depth.
std::vector<std::int32_t> EntriesOf(const std::shared_ptr<orvik::ITestContainer>& tests) {
  std::vector<std::int32_t> entries;
  std::vector<std::shared_ptr<orvik::ITestEnumerator>> levels{tests->NewEnum()};
  while (!levels.empty()) {
    const auto element = levels.back()->Next();
    if (!element) {
      levels.pop_back();
      continue;
    }
    entries.push_back(element->TestID());
    if (const auto container = orvik::As<orvik::ITestContainer>(element))
      levels.push_back(container->NewEnum());
  }
  return entries;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto text = fuzz::TextOf(data, size);
  const bool taken = IsTaken(text);

  const auto plugIn = PlugInWith(text);
  const auto tests = plugIn->Tests();
  Require(tests != nullptr, "there always is a catalogue");
  const auto entries = EntriesOf(tests);
  Require(taken || entries.empty(), "what the program refuses gives no tests");
  Require(entries.size() * sizeof "<TestElement" <= size, "there are no more tests than entries");

  // The first ones are used as a document would: created and saved. What may be nested too deeply is left
  // out.
  if (entries.size() > host::elements::kDeepestNesting) return 0;
  constexpr std::size_t kUsed = 3;
  for (std::size_t i = 0; i < entries.size() && i < kUsed; ++i) {
    const auto element = plugIn->CreateTest(entries[i]);
    Require(element && element->TestID() == entries[i], "every test of the catalogue can be created");
    host::xml::XmlDocument saved;
    Require(element->Save(saved.CreateRoot("Elements")) != nullptr,
            "every test of the catalogue can be saved");
  }
  return 0;
}
