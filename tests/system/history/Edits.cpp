#include "tests/system/history/Edits.h"

#include <filesystem>

#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/ILimitData.h"
#include "host/bench/DocumentElements.h"
#include "host/bench/RecordOnlyMark.h"
#include "host/bench/SetOfLimits.h"
#include "host/document/SavedSettings.h"
#include "host/plugins/keld/KeldNames.h"
#include "host/report/DocumentView.h"
#include "host/run/LeadCalibrations.h"
#include "host/standards/ElementLimits.h"
#include "host/standards/LimitSets.h"

namespace history {
namespace {

void SetFields(const Operation& operation, host::document::Equipment& equipment) {
  for (const auto& [field, value] : operation.fields) {
    std::string* const fields[] = {&equipment.asset, &equipment.serial, &equipment.maker, &equipment.model};
    *fields[field] = value;
  }
}

host::document::ElementPlace PlaceIn(const host::document::Document& document, const Operation& operation) {
  const auto neighbour = document.Find(operation.placeOf);
  if (operation.place == "--before") return host::document::ElementPlace::Before(*neighbour);
  if (operation.place == "--after") return host::document::ElementPlace::After(*neighbour);
  return host::document::ElementPlace::AtEndOf(operation.place == "--to" ? neighbour : nullptr);
}

}  // namespace

void EditsOf::Perform(const Operation& operation) {
  switch (operation.kind) {
    case Operation::Kind::kNew:
    case Operation::Kind::kNewFrom:
      return Make(operation);
    case Operation::Kind::kCopy:
      std::filesystem::copy_file(folder_ + operation.other, folder_ + operation.file);
      return;
    case Operation::Kind::kLeads:
      return StoreLeads(operation);
    case Operation::Kind::kEquipmentIs:
      return;
    default:
      break;
  }
  const auto document = host::document::Document::Open(bench_.Only().SharedHost(), folder_ + operation.file);
  Change(operation, *document);
  document->Save();
}

void EditsOf::StoreLeads(const Operation& operation) {
  auto& registry = *bench_.Host().Registry();
  if (operation.number >= 0 && operation.number <= host::plugins::keld::kMostLeadMilliohms)
    host::run::StoreLeads(registry, operation.text, operation.number, "2026-11-22T09:00:00+01:00");
  else  // which no program of this system does
    registry.Write(host::plugins::keld::kRegistryHive, host::plugins::keld::kLeadsKey, operation.text,
                   operation.number);
}

void EditsOf::Make(const Operation& operation) {
  const auto host = bench_.Only().SharedHost();
  const auto document = host::document::Document::Create(host, folder_ + operation.file);
  SetFields(operation, document->equipment);
  if (operation.kind == Operation::Kind::kNewFrom)
    document->AddPlanOf(*host::document::Document::Open(host, folder_ + operation.other,
                                                        host::document::DocumentFile::Use::kRead));
  for (const int testId : operation.tests) document->AddTest(testId);
  document->Save();
}

void EditsOf::Change(const Operation& operation, host::document::Document& document) {
  const auto elements = host::bench::ElementsFor(document, "--element", operation.elements);
  switch (operation.kind) {
    case Operation::Kind::kAdd:
      return Add(operation, document);
    case Operation::Kind::kRemove:
      for (const auto& element : elements)
        if (document.Find(element->ID()) == element) document.Remove(element);
      return;
    case Operation::Kind::kMove:
      return document.Move(elements.front(), PlaceIn(document, operation));
    case Operation::Kind::kEdit:
      return SetFields(operation, document.equipment);
    case Operation::Kind::kLimit:
      return SetLimits(operation, elements);
    case Operation::Kind::kLimitSet:
      return ApplySet(operation, document);
    case Operation::Kind::kLimitRemove:
      return RemoveLimits(operation, elements);
    case Operation::Kind::kRecordOnly:
      for (const auto& element : elements)
        host::bench::MarkRecordOnly(element, *bench_.Host().Elements(), true);
      return;
    case Operation::Kind::kOptions:
    case Operation::Kind::kFilter:
      return Configure(operation, *elements.front());
    default:
      throw std::logic_error("no such edit");
  }
}

void EditsOf::Add(const Operation& operation, host::document::Document& document) {
  auto place = PlaceIn(document, operation);
  for (const int testId : operation.tests) {
    const auto added = document.AddTest(testId, place);
    if (place.after != 0) place = host::document::ElementPlace::After(*added);
  }
}

void EditsOf::SetLimits(const Operation& operation, const Elements& elements) {
  const auto& limit = operation.limit;
  for (const auto& element : elements) {
    host::standards::SetLimit(*element->Limits(), {limit.standard, limit.description, operation.lowText,
                                                   operation.highText, limit.unit});
    if (host::bench::IsRecordOnly(element, *bench_.Host().Elements()))
      host::bench::MarkRecordOnly(element, *bench_.Host().Elements(), false);
  }
}

void EditsOf::ApplySet(const Operation& operation, const host::document::Document& document) {
  const auto set = host::standards::LimitSets({}).Find(folder_ + operation.set + ".xml");
  host::bench::ApplyLimitSet(
      set,
      operation.elements.empty() ? host::report::TopElements(document)
                                 : host::bench::ElementsFor(document, "--element", operation.elements),
      *bench_.Host().Elements(),
      operation.also ? host::bench::EarlierSets::kKept : host::bench::EarlierSets::kReplaced);
}

void EditsOf::RemoveLimits(const Operation& operation, const Elements& elements) {
  const auto& name = operation.limit.standard;
  for (const auto& element : elements) {
    host::standards::RemoveStandards(*element->Limits(), [&](const orvik::IStandard& standard) {
      return name.empty() || standard.Name() == name;
    });
    if (name.empty()) host::bench::MarkRecordOnly(element, *bench_.Host().Elements(), false);
  }
}

void EditsOf::Configure(const Operation& operation, orvik::ITestElement& element) {
  const auto configuration = element.Configuration();
  const host::document::SavedSettings wanted(*configuration);
  if (operation.kind == Operation::Kind::kOptions)
    wanted.Settings()->SetAttribute(host::document::SavedSettings::kOptions,
                                    std::to_string(operation.number));
  else
    wanted.Settings()->SetAttribute(host::document::SavedSettings::kFilter, operation.text);
  configuration->Load(wanted.Node());
}

}  // namespace history
