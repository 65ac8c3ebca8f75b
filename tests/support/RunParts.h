#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "host/document/Document.h"
#include "host/document/Host.h"
#include "host/instruments/InstrumentColl.h"
#include "host/judge/CaseOf.h"
#include "host/run/AutoOperator.h"
#include "host/run/DocumentRunner.h"
#include "host/run/DoubtTracker.h"
#include "host/run/LinkWatch.h"
#include "host/run/OperatorEvents.h"
#include "host/run/RunController.h"
#include "host/run/RunRecorder.h"

namespace support {

inline constexpr char kStandard[] = "IEC 62353";

/// Sets or replaces the limit of the standard on the element, and selects the standard.
inline void SetLimit(host::document::Document& document, host::document::Host& host, std::int32_t element,
                     const std::string& low, const std::string& high, const std::string& standard = kStandard,
                     const std::string& description = {}) {
  const auto limits = document.Find(element)->Limits();
  auto own = limits->Standards() ? limits->Standards()->Find(standard, description) : nullptr;
  if (!own) own = limits->CreateStandard(standard, description);
  own->Limit(1)->SetBounds(low, high);
  if (document.Standards()->Find(standard, description)) return;
  const auto selected = orvik::As<orvik::IStandard>(host.CreateObject(orvik::HostClasses::kStandard));
  selected->Initialize(standard, description, 1);
  document.Standards()->Add(selected);
}

/// The elements at the top of the document, in order.
inline std::vector<std::shared_ptr<orvik::ITestElement>> TopOf(const host::document::Document& document) {
  std::vector<std::shared_ptr<orvik::ITestElement>> elements;
  for (std::int32_t i = 1; i <= document.Elements()->Count(); ++i)
    elements.push_back(document.Elements()->item(i));
  return elements;
}

/// All parts of a document's runs beside a bench: the real parts of the host, connected as in the program.
class RunParts {
 public:
  using Elements = std::vector<std::shared_ptr<orvik::ITestElement>>;
  using End = host::run::DocumentRunner::End;
  using Application = std::shared_ptr<orvik::platform::IApplication>;

  RunParts(host::serial::PortManager& ports, host::document::Document& document)
      : doubts(*ports.TheWire()), link(ports), document_(document) {
    heading.equipment = document.equipment;
  }
  RunParts(const RunParts&) = delete;
  RunParts& operator=(const RunParts&) = delete;

  /// Runs the elements; a test must operate the guide.
  End Run(const Elements& elements) { return runner.Run(heading, elements); }
  End Run() { return Run(TopOf(document_)); }
  /// The program operates the guide.
  End RunByProgram(const Application& application, const Elements& elements) {
    const host::run::OperatorEvents program(application, stop,
                                            std::make_unique<host::run::AutoOperator>(application, stop));
    return Run(elements);
  }
  End RunByProgram(const Application& application) { return RunByProgram(application, TopOf(document_)); }

  /// Saves the document; initially to its file.
  std::function<void()> save = [this] { document_.Save(); };
  /// The time, as the record has it.
  std::function<std::string()> clock = [] { return std::string("2026-11-22T10:00:00+01:00"); };
  /// When leads were measured, as the record has it.
  std::function<std::string(const std::string& serial, std::int32_t leads)> leadsMeasured =
      [](const std::string&, std::int32_t) { return std::string(); };
  host::run::RunRecorder::Heading heading;
  host::run::StopRequest stop;
  host::run::DoubtTracker doubts;
  host::run::LinkWatch link;

 private:
  host::document::Document& document_;

 public:
  host::run::RunRecorder recorder{
      {document_.Runs(), document_.Instruments(), document_.Standards(), doubts, [this] { return clock(); },
       [this](const std::string& serial, std::int32_t leads) { return leadsMeasured(serial, leads); }}};
  const std::shared_ptr<host::run::RunController> controller =
      std::make_shared<host::run::RunController>(host::run::RunController::Parts{
          document_.Standards(), document_.Instruments(), doubts, recorder, [this] { save(); }});
  host::run::DocumentRunner runner{controller, link, stop};
};

}  // namespace support
