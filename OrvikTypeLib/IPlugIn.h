#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

class IPicture;
class ITestContainer;
class ITestElement;

/// The object that the host creates first (class "orvikKELD.CKELDPlugin").
///
/// Implemented by: the plug-in. Mandatory. Since contract version 1. User-interface thread only.
class IPlugIn : public virtual IObject {
 public:
  /// The plug-in's identifier.
  std::string ID() const { return IPlugIn_ID(); }
  /// The picture of a test: style 0 small, 1 wide; test 0 is the plug-in itself. Empty when there is none.
  std::shared_ptr<IPicture> Icon(std::int16_t iTestID, std::int16_t iStyle) const {
    return IPlugIn_Icon(iTestID, iStyle);
  }
  /// The plug-in's display name, translated.
  std::string Name() const { return IPlugIn_Name(); }
  /// 0 before `Initialize`, 1 after it.
  std::int32_t Flags() const { return IPlugIn_Flags(); }
  /// A control panel, or empty.
  std::shared_ptr<IObject> ControlPanel() const { return IPlugIn_ControlPanel(); }
  /// Data of the equipment under test, or empty.
  std::shared_ptr<IObject> CreateDUTData() const { return IPlugIn_CreateDUTData(); }
  /// The catalogue of tests.
  std::shared_ptr<ITestContainer> Tests() const { return IPlugIn_Tests(); }
  /// Version text.
  std::string Version() const { return IPlugIn_Version(); }
  /// A menu, or empty.
  std::shared_ptr<IObject> PlugInMenu() const { return IPlugIn_PlugInMenu(); }
  /// Builds the plug-in; the first call the host makes. May be called again and rebuilds everything.
  void Initialize(std::shared_ptr<IObject> Context) { IPlugIn_Initialize(std::move(Context)); }
  /// A copy of the catalogue entry with that identifier, or empty. It belongs to the host.
  std::shared_ptr<ITestElement> CreateTest(std::int32_t lTestID) { return IPlugIn_CreateTest(lTestID); }
  /// A set-up object, or empty.
  std::shared_ptr<IObject> Setup() const { return IPlugIn_Setup(); }

 private:
  virtual std::string IPlugIn_ID() const = 0;
  virtual std::shared_ptr<IPicture> IPlugIn_Icon(std::int16_t iTestID, std::int16_t iStyle) const = 0;
  virtual std::string IPlugIn_Name() const = 0;
  virtual std::int32_t IPlugIn_Flags() const = 0;
  virtual std::shared_ptr<IObject> IPlugIn_ControlPanel() const = 0;
  virtual std::shared_ptr<IObject> IPlugIn_CreateDUTData() const = 0;
  virtual std::shared_ptr<ITestContainer> IPlugIn_Tests() const = 0;
  virtual std::string IPlugIn_Version() const = 0;
  virtual std::shared_ptr<IObject> IPlugIn_PlugInMenu() const = 0;
  virtual void IPlugIn_Initialize(std::shared_ptr<IObject> Context) = 0;
  virtual std::shared_ptr<ITestElement> IPlugIn_CreateTest(std::int32_t lTestID) = 0;
  virtual std::shared_ptr<IObject> IPlugIn_Setup() const = 0;
};

}  // namespace orvik
