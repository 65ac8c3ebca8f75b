#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IPlugIn.h"

namespace keld::plugin {

/// The host's entry to the plug-in: identity, icons, the catalogue of tests, and new tests.
///
/// No operation raises an error: a value that is not available is an empty text, an empty reference or 0.
/// Faults in the settings and the catalogue are written to the host's error log.
class CKELDPlugin final : public virtual orvik::IPlugIn {
 public:
  static std::shared_ptr<CKELDPlugin> Create();

  /// The object viewed as a container, or empty.
  std::shared_ptr<orvik::ITestContainer> Cast_ITestContainer(
      const std::shared_ptr<orvik::IObject>& Object) const;

 private:
  CKELDPlugin() = default;

  std::string IObject_ClassID() const override;
  std::string IPlugIn_ID() const override;
  std::shared_ptr<orvik::IPicture> IPlugIn_Icon(std::int16_t iTestID, std::int16_t iStyle) const override;
  std::string IPlugIn_Name() const override;
  std::int32_t IPlugIn_Flags() const override;
  std::shared_ptr<orvik::IObject> IPlugIn_ControlPanel() const override;
  std::shared_ptr<orvik::IObject> IPlugIn_CreateDUTData() const override;
  std::shared_ptr<orvik::ITestContainer> IPlugIn_Tests() const override;
  std::string IPlugIn_Version() const override;
  std::shared_ptr<orvik::IObject> IPlugIn_PlugInMenu() const override;
  void IPlugIn_Initialize(std::shared_ptr<orvik::IObject> Context) override;
  std::shared_ptr<orvik::ITestElement> IPlugIn_CreateTest(std::int32_t lTestID) override;
  std::shared_ptr<orvik::IObject> IPlugIn_Setup() const override;

  std::int32_t mlFlags = 0;
  std::shared_ptr<orvik::ITestContainer> mCatalogue;
  std::string msName;
};

}  // namespace keld::plugin
