#include "host/cli/commands/ConfigCommand.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <iostream>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/bench/Consequences.h"
#include "host/bench/DocumentElements.h"
#include "host/bench/InputError.h"
#include "host/bench/TestOptions.h"
#include "host/cli/help/Examples.h"
#include "host/cli/options/NumberOption.h"
#include "host/document/Document.h"
#include "host/document/SavedSettings.h"

namespace host::cli {

namespace {

constexpr char kOptions[] = "--options";
constexpr char kLeads[] = "--leads";
constexpr char kFilter[] = "--filter";

/// A flag that sets or clears one bit of the settings.
struct Button {
  const char* flag;
  std::int32_t bit;
  bool offered;
};
constexpr std::array<Button, 4> kButtons{{{"--allow-na", orvik::OptionBits::kOffersNotApplicable, true},
                                          {"--no-na", orvik::OptionBits::kOffersNotApplicable, false},
                                          {"--allow-skip", orvik::OptionBits::kOffersSkip, true},
                                          {"--no-skip", orvik::OptionBits::kOffersSkip, false}}};

/// The settings as the element saves them now.
document::SavedSettings SettingsOf(const orvik::IConfigData& configuration) {
  document::SavedSettings saved(configuration);
  if (!saved.Settings())
    throw bench::InputError(Tr("--element: this element has no settings that can be changed here"));
  return saved;
}

std::int32_t OptionBitsOf(const document::SavedSettings& saved) {
  return WholeNumber(saved.Settings()->Attribute(document::SavedSettings::kOptions)).value_or(0);
}

std::string Answer(const orvik::ITestElement& element, const document::SavedSettings& saved,
                   bool withFilter) {
  const auto set = OptionBitsOf(saved);
  auto text = Tr("element %%1: options %%2 (%%3)", {std::to_string(element.ID()), std::to_string(set),
                                                    bench::options::InWords(set, element.TestID())});
  if (withFilter) text += Tr(", filter %%1", {saved.Settings()->Attribute(document::SavedSettings::kFilter)});
  return text + "\n";
}

}  // namespace

bool ConfigCommand::Given(const char* option) const { return command_->count(option) > 0; }

CLI::App* ConfigCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("config", Tr("Show or change the settings of an element"));
  command->add_option("FILE", file_, Tr("The document"))->required();
  WholeNumbers(command->add_option("--element", element_, Tr("Identifier of the element")))
      ->required()
      ->type_name("ID");
  auto* leads = command->add_option(
      kLeads, leads_, Tr("Leads that the test measures: all of them at once, one lead, or none"));
  leads->type_name("all|none|1|2|3|4|5|6|7|8|9|10");
  auto* allowNa = command->add_flag("--allow-na")->description(Tr("Offer \"not applicable\" in the guide"));
  auto* noNa = command->add_flag("--no-na")->description(Tr("Do not offer \"not applicable\""));
  auto* allowSkip = command->add_flag("--allow-skip")->description(Tr("Offer \"skip\" in the guide"));
  auto* noSkip = command->add_flag("--no-skip")->description(Tr("Do not offer \"skip\""));
  allowNa->excludes(noNa);
  allowSkip->excludes(noSkip);
  auto* sum = WholeNumbers(
      command->add_option(kOptions, settings_,
                          Tr("All of these as one number, the sum of: 1 to offer \"not applicable\", 2 to "
                             "offer \"skip\", 4 to 2048 for leads 1 to 10, 4096 for all leads")));
  sum->type_name("N");
  for (auto* word : {leads, allowNa, noNa, allowSkip, noSkip}) sum->excludes(word);
  command
      ->add_option(kFilter, filter_,
                   Tr("How a sequence computes its value: \"No values\", \"All values\", \"Maximum value\" "
                      "or \"Minimum value\""))
      ->type_name("NAME");
  command->footer(Examples({"orvik-bench config pump-7.orvik --element 2",
                            "orvik-bench config pump-7.orvik --element 2 --leads all --no-skip",
                            "orvik-bench config pump-7.orvik --element 2 --options 4099",
                            "orvik-bench config ward.orvik --element 1 --filter \"Maximum value\""}));
  command_ = command;
  return command;
}

bool ConfigCommand::ChangesOptions() const {
  return Given(kOptions) || Given(kLeads) ||
         std::any_of(kButtons.begin(), kButtons.end(),
                     [this](const Button& button) { return Given(button.flag); });
}

std::int32_t ConfigCommand::Changed(std::int32_t settings, std::int32_t testId) const {
  if (Given(kOptions)) return settings_;
  if (Given(kLeads)) settings = bench::options::WithLeads(settings, testId, leads_);
  for (const auto& button : kButtons) {
    if (Given(button.flag)) settings = button.offered ? settings | button.bit : settings & ~button.bit;
  }
  return settings;
}

bench::ExitStatus ConfigCommand::Run(const bench::GlobalOptions& options) {
  if (settings_ < 0 || settings_ > orvik::OptionBits::kEveryOption)
    throw bench::InputError(Tr("--options %%1: give a number from 0 to 8191", {std::to_string(settings_)}));
  bench::Workbench workbench(options);
  const bool changes = ChangesOptions() || Given(kFilter);
  const auto document = document::Document::Open(
      workbench.Host(), file_,
      changes ? document::DocumentFile::Use::kWrite : document::DocumentFile::Use::kRead);
  const auto element = bench::ElementFor(*document, "--element", element_);
  const auto configuration = element->Configuration();
  if (!configuration)
    throw bench::InputError(Tr("--element %%1: it has no settings", {std::to_string(element_)}));
  const bool withFilter = Given(kFilter) || orvik::As<orvik::ITestContainer>(element);
  if (!changes) {
    std::cout << Answer(*element, SettingsOf(*configuration), withFilter);
    return bench::ExitStatus::kPassed;
  }

  const bench::Consequences consequences(*document, *workbench.Host());
  const auto wanted = SettingsOf(*configuration);
  if (ChangesOptions())
    wanted.Settings()->SetAttribute(document::SavedSettings::kOptions,
                                    std::to_string(Changed(OptionBitsOf(wanted), element->TestID())));
  if (Given(kFilter)) wanted.Settings()->SetAttribute(document::SavedSettings::kFilter, filter_);
  configuration->Load(wanted.Node());
  // What the element now says of itself is what it has taken.
  const auto taken = SettingsOf(*configuration);
  if (Given(kFilter) &&
      (filter_.empty() || taken.Settings()->Attribute(document::SavedSettings::kFilter) != filter_))
    throw bench::InputError(
        Tr("--filter %%1: give \"No values\", \"All values\", \"Maximum value\" or \"Minimum value\"",
           {filter_}));
  document->Save();
  std::cout << Answer(*element, taken, withFilter) << consequences.Text();
  return bench::ExitStatus::kPassed;
}

}  // namespace host::cli
