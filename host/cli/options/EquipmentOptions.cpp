#include "host/cli/options/EquipmentOptions.h"

#include <CLI/CLI.hpp>

#include "host/base/Tr.h"

namespace host::cli {

void AddEquipmentOptions(CLI::App& command, document::Document::Equipment& equipment) {
  for (auto* option :
       {command.add_option("--asset", equipment.asset, Tr("Asset number of the equipment under test")),
        command.add_option("--serial", equipment.serial, Tr("Its serial number")),
        command.add_option("--maker", equipment.maker, Tr("Its maker")),
        command.add_option("--model", equipment.model, Tr("Its model"))})
    option->type_name("TEXT");
}

}  // namespace host::cli
