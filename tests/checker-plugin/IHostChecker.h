#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/IObject.h"

namespace orvik {
class IReport;
class IRunController;
}  // namespace orvik

namespace check {

/// Asks the host everything that a plug-in may ask, subject by subject. Each operation answers what it found
/// wrong, one line each; nothing when the host keeps the contract. None of them throws.
class IHostChecker : public virtual orvik::IObject {
 public:
  using Texts = std::vector<std::string>;

  static constexpr char kClassId[] = "orvikCheck.CHostChecker";

  /// Creating the host's classes, by any case of letters, and refusing unknown ones.
  Texts Classes() { return IHostChecker_Classes(); }
  /// The standard element: identity, texts, parts, parent, saving, loading, cloning.
  Texts Elements() { return IHostChecker_Elements(); }
  /// The standard container: order, places, finding, walking, removing, circles.
  Texts Container() { return IHostChecker_Container(); }
  /// Limits, standards and their collection.
  Texts Standards() { return IHostChecker_Standards(); }
  /// The language service.
  Texts Language() { return IHostChecker_Language(); }
  /// The error log. Entries are written under the source "CHECK".
  Texts ErrorLog() { return IHostChecker_ErrorLog(); }
  /// XML documents and nodes.
  Texts Xml() { return IHostChecker_Xml(); }
  /// The registry; writes below "Software\Orvik checker" only.
  Texts Registry() { return IHostChecker_Registry(); }
  /// Persistence of values and states, service records, instrument records.
  Texts Records() { return IHostChecker_Records(); }
  /// The serial port of the device, with an instrument behind it that answers "IREM" with at least one
  /// parameter.
  Texts SerialPort(const std::string& device) { return IHostChecker_SerialPort(device); }
  /// A report that is being printed.
  Texts Report(std::shared_ptr<orvik::IReport> report) { return IHostChecker_Report(std::move(report)); }
  /// The controller of a run that lets everything start. Adds one record to its instruments.
  Texts RunController(std::shared_ptr<orvik::IRunController> controller) {
    return IHostChecker_RunController(std::move(controller));
  }
  /// Windows: loading, showing, activating, keys, closing.
  Texts Forms() { return IHostChecker_Forms(); }
  /// Every kind of control.
  Texts Controls() { return IHostChecker_Controls(); }
  /// Timers, posted work and the clock.
  Texts Timers() { return IHostChecker_Timers(); }
  /// Windows that hold the operator.
  Texts Modality() { return IHostChecker_Modality(); }
  /// User controls by class identifier, and docking them.
  Texts UserControls() { return IHostChecker_UserControls(); }
  /// The host's own composite controls: toolbar, content pane, progress bar.
  Texts CompositeControls() { return IHostChecker_CompositeControls(); }
  /// The control that edits limits.
  Texts LimitView() { return IHostChecker_LimitView(); }

 private:
  virtual Texts IHostChecker_Classes() = 0;
  virtual Texts IHostChecker_Elements() = 0;
  virtual Texts IHostChecker_Container() = 0;
  virtual Texts IHostChecker_Standards() = 0;
  virtual Texts IHostChecker_Language() = 0;
  virtual Texts IHostChecker_ErrorLog() = 0;
  virtual Texts IHostChecker_Xml() = 0;
  virtual Texts IHostChecker_Registry() = 0;
  virtual Texts IHostChecker_Records() = 0;
  virtual Texts IHostChecker_SerialPort(const std::string& device) = 0;
  virtual Texts IHostChecker_Report(std::shared_ptr<orvik::IReport> report) = 0;
  virtual Texts IHostChecker_RunController(std::shared_ptr<orvik::IRunController> controller) = 0;
  virtual Texts IHostChecker_Forms() = 0;
  virtual Texts IHostChecker_Controls() = 0;
  virtual Texts IHostChecker_Timers() = 0;
  virtual Texts IHostChecker_Modality() = 0;
  virtual Texts IHostChecker_UserControls() = 0;
  virtual Texts IHostChecker_CompositeControls() = 0;
  virtual Texts IHostChecker_LimitView() = 0;
};

}  // namespace check
