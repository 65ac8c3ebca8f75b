#pragma once

#include "host/document/Document.h"

namespace CLI {
class App;
}  // namespace CLI

namespace host::cli {

/// Adds --asset, --serial, --maker and --model to the command; they are read into `equipment`, which lives as
/// long as the command.
void AddEquipmentOptions(CLI::App& command, document::Document::Equipment& equipment);

}  // namespace host::cli
