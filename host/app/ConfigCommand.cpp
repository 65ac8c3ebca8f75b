#include "host/app/ConfigCommand.h"

#include <iostream>

#include "OrvikTypeLib/IConfigData.h"
#include "host/app/InputError.h"
#include "host/app/NumberOption.h"
#include "host/document/Document.h"
#include "host/run/SavedSettings.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

/// All option bits: buttons 1 and 2, leads 4 to 2048, all leads 4096.
constexpr std::int32_t kAllOptions = 8191;

/// The settings as the element saves them now.
SavedSettings SettingsOf(const orvik::IConfigData& configuration) {
  SavedSettings saved(configuration);
  if (!saved.Settings()) throw InputError(Tr("--element: its settings cannot be changed from here"));
  return saved;
}

}  // namespace

CLI::App* ConfigCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("config", Tr("Show or change the settings of an element"));
  command->add_option("FILE", file_, Tr("The document"))->required();
  WholeNumbers(command->add_option("--element", element_, Tr("Identifier of the element")))
      ->required()
      ->type_name("ID");
  WholeNumbers(command->add_option(
                   "--options", settings_,
                   Tr("Sum of: 1 \"not applicable\" is offered, 2 \"skip\" is offered, 4 to 2048 leads 1 to "
                      "10, 4096 all leads")))
      ->type_name("N");
  command
      ->add_option("--filter", filter_,
                   Tr("How a sequence's value is made up: \"No values\", \"All values\", \"Maximum value\" "
                      "or \"Minimum value\""))
      ->type_name("NAME");
  command->footer(
      Tr("Examples:\n"
         "  orvik-bench config pump-7.orvik --element 2\n"
         "  orvik-bench config pump-7.orvik --element 2 --options 4099\n"
         "  orvik-bench config ward.orvik --element 1 --filter \"Maximum value\""));
  return command;
}

ExitStatus ConfigCommand::Run(const GlobalOptions& options) {
  if (settings_ && (*settings_ < 0 || *settings_ > kAllOptions))
    throw InputError(Tr("--options %%1: give a number from 0 to 8191", {std::to_string(*settings_)}));
  Workbench workbench(options);
  const bool changes = settings_ || filter_;
  const auto document =
      Document::Open(workbench.Host(), file_, changes ? DocumentFile::Use::kWrite : DocumentFile::Use::kRead);
  const auto element = document->Find(element_);
  if (!element)
    throw InputError(Tr("--element %%1: %%2 has no such element", {std::to_string(element_), file_}));
  const auto configuration = element->Configuration();
  if (!configuration) throw InputError(Tr("--element %%1: it has no settings", {std::to_string(element_)}));

  if (changes) {
    const auto wanted = SettingsOf(*configuration);
    if (settings_) wanted.Settings()->SetAttribute(SavedSettings::kOptions, std::to_string(*settings_));
    if (filter_) wanted.Settings()->SetAttribute(SavedSettings::kFilter, *filter_);
    configuration->Load(wanted.Node());
  }
  // What the element now says of itself is what it has taken.
  const auto taken = SettingsOf(*configuration);
  if (filter_ && taken.Settings()->Attribute(SavedSettings::kFilter) != *filter_)
    throw InputError(
        Tr("--filter %%1: give \"No values\", \"All values\", \"Maximum value\" or \"Minimum value\"",
           {*filter_}));
  if (changes) document->Save();
  std::cout << Tr("element %%1: options %%2, filter %%3",
                  {std::to_string(element_), taken.Settings()->Attribute(SavedSettings::kOptions),
                   taken.Settings()->Attribute(SavedSettings::kFilter)})
            << "\n";
  return ExitStatus::kPassed;
}

}  // namespace bench
