#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/IObject.h"

namespace orvik {
class IReport;
class IRunController;
}  // namespace orvik

namespace check {

/// What the host hands over for the subjects that need it.
struct HostParts {
  /// For "serial port": the device of an instrument that answers "IREM" with at least one parameter.
  std::string device;
  /// For "report": a report that is being printed.
  std::shared_ptr<orvik::IReport> report;
  /// For "run controller": lets everything start. One record is added to its instruments.
  std::shared_ptr<orvik::IRunController> controller;
};

/// Calls everything that a plug-in may call in a host, subject by subject: "classes", "elements",
/// "container", "standards", "language", "error log", "XML", "registry" (writes below "Software\Orvik
/// checker" only), "records", "serial port", "report", "run controller", "forms", "controls", "timers",
/// "modality", "user controls", "composite controls" and "limit view".
class IHostChecker : public virtual orvik::IObject {
 public:
  using Texts = std::vector<std::string>;

  static constexpr char kClassId[] = "orvikCheck.CHostChecker";

  /// Checks one subject and returns one line for each problem: none if the host keeps the contract. Never
  /// throws; an unknown subject is a problem.
  Texts Check(const std::string& subject, const HostParts& parts = {}) {
    return IHostChecker_Check(subject, parts);
  }

 private:
  virtual Texts IHostChecker_Check(const std::string& subject, const HostParts& parts) = 0;
};

}  // namespace check
