#include "host/app/ConfigCommand.h"

#include <iostream>

#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/app/InputError.h"
#include "host/document/Document.h"
#include "host/services/XmlDocument.h"

namespace bench {

namespace {

constexpr char kSaved[] = "KELDConfig";
constexpr char kOptions[] = "Options";
constexpr char kFilter[] = "ValueFilter";
/// All option bits: buttons 1 and 2, leads 4 to 2048, all leads 4096.
constexpr std::int32_t kAllOptions = 8191;

/// The settings as the element saves them: a document with the node "Configuration".
struct SavedSettings {
  explicit SavedSettings(const orvik::IConfigData& configuration) {
    orvik::IXmlDocument& document = *xml;
    node = document.CreateRoot("Configuration");
    configuration.Save(node);
    settings = document.FindElement(kSaved);
    if (!settings) throw InputError("--element: its settings cannot be changed from here");
  }

  std::shared_ptr<XmlDocument> xml = std::make_shared<XmlDocument>();
  std::shared_ptr<orvik::IXmlNode> node;
  std::shared_ptr<orvik::IXmlNode> settings;
};

}  // namespace

CLI::App* ConfigCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("config", "Show or change the settings of an element");
  command->add_option("FILE", file_, "The document")->required();
  command->add_option("--element", element_, "Identifier of the element")->required()->type_name("ID");
  command
      ->add_option(
          "--options", settings_,
          "Sum of: 1 \"not applicable\" is offered, 2 \"skip\" is offered, 4 to 2048 leads 1 to 10, 4096 all "
          "leads")
      ->type_name("N");
  command
      ->add_option("--filter", filter_,
                   "How a sequence's value is made up: \"No values\", \"All values\", \"Maximum value\" or "
                   "\"Minimum value\"")
      ->type_name("NAME");
  return command;
}

ExitStatus ConfigCommand::Run(const GlobalOptions& options) {
  if (settings_ && (*settings_ < 0 || *settings_ > kAllOptions))
    throw InputError("--options " + std::to_string(*settings_) + ": give a number from 0 to 8191");
  Workbench workbench(options);
  const bool changes = settings_ || filter_;
  const auto document =
      Document::Open(workbench.Host(), file_, changes ? DocumentFile::Use::kWrite : DocumentFile::Use::kRead);
  const auto element = document->Find(element_);
  if (!element)
    throw InputError("--element " + std::to_string(element_) + ": " + file_ + " has no such element");
  const auto configuration = element->Configuration();
  if (!configuration) throw InputError("--element " + std::to_string(element_) + ": it has no settings");

  if (changes) {
    const SavedSettings wanted(*configuration);
    if (settings_) wanted.settings->SetAttribute(kOptions, std::to_string(*settings_));
    if (filter_) wanted.settings->SetAttribute(kFilter, *filter_);
    configuration->Load(wanted.node);
  }
  // What the element now says of itself is what it has taken.
  const SavedSettings taken(*configuration);
  if (filter_ && taken.settings->Attribute(kFilter) != *filter_)
    throw InputError("--filter " + *filter_ +
                     ": give \"No values\", \"All values\", \"Maximum value\" or \"Minimum value\"");
  if (changes) document->Save();
  std::cout << "element " << element_ << ": options " << taken.settings->Attribute(kOptions) << ", filter "
            << taken.settings->Attribute(kFilter) << "\n";
  return ExitStatus::kPassed;
}

}  // namespace bench
