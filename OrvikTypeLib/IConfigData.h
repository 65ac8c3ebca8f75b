#pragma once

#include <memory>
#include <utility>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

class IDialog;
class IReport;
class IXmlNode;

/// The settings that a user attaches to one element.
///
/// Implemented by: the host and the plug-in. Mandatory. Since contract version 1. User-interface thread only.
class IConfigData : public virtual IObject {
 public:
  /// A copy without an owner.
  std::shared_ptr<IConfigData> Clone() const { return IConfigData_Clone(); }
  /// The dialog that edits the settings, or empty.
  std::shared_ptr<IDialog> CreateDialog() { return IConfigData_CreateDialog(); }
  /// Whether `CreateDialog` returns a dialog.
  bool HasDialog() const { return IConfigData_HasDialog(); }
  /// Reads the settings from the host's configuration record (the node "Configuration").
  void Load(std::shared_ptr<IXmlNode> Node) { IConfigData_Load(std::move(Node)); }
  /// Writes the settings into the host's configuration record.
  void Save(std::shared_ptr<IXmlNode> Node) const { IConfigData_Save(std::move(Node)); }
  /// Adds the settings to the report.
  void PrintReport(std::shared_ptr<IReport> Report) const { IConfigData_PrintReport(std::move(Report)); }

 private:
  virtual std::shared_ptr<IConfigData> IConfigData_Clone() const = 0;
  virtual std::shared_ptr<IDialog> IConfigData_CreateDialog() = 0;
  virtual bool IConfigData_HasDialog() const = 0;
  virtual void IConfigData_Load(std::shared_ptr<IXmlNode> Node) = 0;
  virtual void IConfigData_Save(std::shared_ptr<IXmlNode> Node) const = 0;
  virtual void IConfigData_PrintReport(std::shared_ptr<IReport> Report) const = 0;
};

}  // namespace orvik
