#include "host/cli/commands/EditCommand.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/cli/commands/ChangeDocument.h"
#include "host/cli/help/Examples.h"
#include "host/cli/options/EquipmentOptions.h"

namespace host::cli {

namespace {

std::string FieldsOf(const document::Document& document) {
  const auto& equipment = document.equipment;
  const auto shown = [](const std::string& value) {
    return value.empty() ? std::string("-") : host::VisibleText(value);
  };
  return Columned({{Tr("Asset number"), shown(equipment.asset)},
                   {Tr("Serial number"), shown(equipment.serial)},
                   {Tr("Maker"), shown(equipment.maker)},
                   {Tr("Model"), shown(equipment.model)},
                   {Tr("Comment"), shown(document.comment)}});
}

}  // namespace

bool EditCommand::Given(const char* option) const { return command_->count(option) > 0; }

CLI::App* EditCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand(
      "edit", Tr("Show or change the equipment under test and the comment of a document"));
  command->add_option("FILE", file_, Tr("The document"))->required();
  AddEquipmentOptions(*command, equipment_);
  command->add_option("--comment", comment_, Tr("A comment on the document; it does not affect results"))
      ->type_name("TEXT");
  command->footer(Examples(
      {"orvik-bench edit pump-7.orvik", "orvik-bench edit pump-7.orvik --asset PUMP-7 --serial 2209-117",
       "orvik-bench edit pump-7.orvik --comment \"after repair of the mains inlet\"",
       "orvik-bench edit pump-7.orvik --comment \"\""},
      Tr("A result counts only for the equipment it was measured on: after a change of asset number, serial "
         "number, maker or model it no longer counts. To test the next device, use \"new "
         "--from\".")));
  command_ = command;
  return command;
}

void EditCommand::Change(document::Document& document) const {
  if (Given("--asset")) document.equipment.asset = equipment_.asset;
  if (Given("--serial")) document.equipment.serial = equipment_.serial;
  if (Given("--maker")) document.equipment.maker = equipment_.maker;
  if (Given("--model")) document.equipment.model = equipment_.model;
  if (Given("--comment")) document.comment = comment_;
}

bench::ExitStatus EditCommand::Run(const bench::GlobalOptions& options) {
  bool changes = false;
  for (const auto* option : {"--asset", "--serial", "--maker", "--model", "--comment"})
    changes = changes || Given(option);
  if (changes)
    return ChangeDocument(options, file_, [&](auto&, auto& document) {
      Change(document);
      return FieldsOf(document);
    });
  bench::Workbench workbench(options);
  std::cout << FieldsOf(
      *document::Document::Open(workbench.Host(), file_, document::DocumentFile::Use::kRead));
  return bench::ExitStatus::kPassed;
}

}  // namespace host::cli
