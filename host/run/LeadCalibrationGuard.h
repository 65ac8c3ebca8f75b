#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "OrvikTypeLib/Variant.h"
#include "host/base/WallClock.h"
#include "host/run/LeadCalibrations.h"
#include "host/serial/PortManager.h"
#include "platform/IApplication.h"

namespace host::run {

/// Stores only valid measurements of the test leads, no matter where the plug-in's dialog is opened: by the
/// command, the window's menu or the guide.
///
/// The dialog accepts any number. The guard reads the wire itself and closes the dialog when the measurement
/// is unusable. It executes the plug-in's write of the value once the session with the tester is closed,
/// reads the value back, and records the date. Any other write of such a value is refused.
class LeadCalibrationGuard {
 public:
  struct Parts {
    orvik::platform::IApplication& application;
    serial::PortManager& ports;
    RegistryStore& registry;
    WallClock clock = LocalTimeText;
  };

  /// @param parts must outlive the guard
  explicit LeadCalibrationGuard(Parts parts);
  LeadCalibrationGuard(const LeadCalibrationGuard&) = delete;
  LeadCalibrationGuard& operator=(const LeadCalibrationGuard&) = delete;
  ~LeadCalibrationGuard();

  /// Raised when the dialog has closed: a value was stored, or was not, with the reason as a sentence. A
  /// cancelled dialog raises neither.
  orvik::platform::Event<const LeadCalibration&>& Stored() { return stored_; }
  orvik::platform::Event<const std::string&>& Refused() { return refused_; }

  /// The value that the last dialog stored, as read back; none when it stored nothing.
  const std::optional<LeadCalibration>& Value() const { return value_; }
  /// Why it stored nothing; empty when it did or was cancelled.
  const std::string& Reason() const { return reason_; }
  /// Whether that is because another program was using the registry.
  bool RegistryWasBusy() const { return registryWasBusy_; }

  /// Closes the dialog without storing anything.
  void Cancel();

 private:
  struct Dialog;

  void Shown(const std::shared_ptr<orvik::platform::IForm>& form);
  void Watch(const serial::WireRecord& record);
  void MeasurementOver();
  void SaveClicked();
  void Closed();
  void Refuse(const std::string& reason);
  std::string Doubt() const;
  std::string Obstacle() const;
  std::int32_t Measured() const;
  void Write(const std::string& serial, const orvik::Variant& value);
  void Save(const std::string& serial);
  void Store(const std::string& serial);

  const Parts parts_;
  std::shared_ptr<Dialog> dialog_;  ///< while it is loaded
  std::optional<LeadCalibration> value_;
  std::string reason_;
  bool cancelled_ = false;
  bool registryWasBusy_ = false;
  orvik::platform::Event<const LeadCalibration&> stored_;
  orvik::platform::Event<const std::string&> refused_;
  orvik::platform::Subscription shown_;
  orvik::platform::Subscription writing_;
};

}  // namespace host::run
