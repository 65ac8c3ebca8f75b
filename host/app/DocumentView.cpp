#include "host/app/DocumentView.h"

#include <charconv>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IInstrumentRecord.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "host/Host.h"
#include "host/document/Document.h"
#include "host/instruments/InstrumentColl.h"
#include "host/run/ElementWalk.h"

namespace bench {

namespace {

std::optional<InstrumentSummary> LastInstrument(const orvik::IInstrumentColl& instruments) {
  if (instruments.Count() == 0) return std::nullopt;
  const auto record = instruments.item(instruments.Count());
  InstrumentSummary summary{record->MTIType(), record->SerialNumber(), record->FirmwareVersion(), 0};
  if (summary.type.empty()) summary.type = record->TypeName();
  const auto calibration = record->Property("calib");
  std::from_chars(calibration.data(), calibration.data() + calibration.size(), summary.calibration);
  return summary;
}

}  // namespace

std::vector<std::shared_ptr<orvik::ITestElement>> TopElements(const Document& document) {
  std::vector<std::shared_ptr<orvik::ITestElement>> elements;
  const auto walk = document.Elements()->NewEnum();
  while (auto element = walk->Next()) elements.push_back(std::move(element));
  return elements;
}

std::shared_ptr<orvik::IStandardColl> NamedStandards(const Document& document, Host& host) {
  auto named = orvik::As<orvik::IStandardColl>(host.CreateObject(orvik::HostClasses::kStandardColl));
  const auto take = [&](const orvik::IStandard& standard) {
    if (named->Find(standard.Name(), standard.Description())) return;
    const auto copy = orvik::As<orvik::IStandard>(host.CreateObject(orvik::HostClasses::kStandard));
    copy->Initialize(standard.Name(), standard.Description(), standard.Number());
    named->Add(copy);
  };
  for (const auto& top : TopElements(document)) {
    WalkElements(top, [&](const std::shared_ptr<orvik::ITestElement>& element) {
      const auto limits = element->Limits();
      const auto standards = limits ? limits->Standards() : nullptr;
      for (std::int32_t i = 1; standards && i <= standards->Count(); ++i) take(*standards->item(i));
    });
  }
  return named;
}

DocumentSummary SummaryOf(const Document& document, const Host& host,
                          const std::shared_ptr<orvik::IStandardColl>& standards) {
  DocumentSummary summary;
  summary.path = document.Path().string();
  const std::shared_ptr<orvik::IInstrumentColl> instruments = document.Instruments();
  summary.instrument = LastInstrument(*instruments);
  summary.elements = Summarise(TopElements(document), *host.Elements(), standards);
  summary.outcome = OutcomeOf(summary.elements);
  return summary;
}

}  // namespace bench
