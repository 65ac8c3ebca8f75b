#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/IPlugIn.h"

namespace check {

/// The object by which the host enters the plug-in: who it is, and which tests it has.
class CPlugIn final : public orvik::IPlugIn {
 public:
  static std::shared_ptr<CPlugIn> Create();

 private:
  CPlugIn() = default;

  std::string IObject_ClassID() const override;

  std::string IPlugIn_ID() const override;
  std::string IPlugIn_Name() const override { return name_; }
  std::string IPlugIn_Version() const override { return "1.0.0"; }
  std::int32_t IPlugIn_Flags() const override { return initialized_ ? 1 : 0; }
  std::shared_ptr<orvik::ITestContainer> IPlugIn_Tests() const override { return catalogue_; }
  void IPlugIn_Initialize(std::shared_ptr<orvik::IObject> context) override;
  std::shared_ptr<orvik::ITestElement> IPlugIn_CreateTest(std::int32_t testId) override;

  // What a plug-in does not have it answers with an empty reference.
  std::shared_ptr<orvik::IPicture> IPlugIn_Icon(std::int16_t, std::int16_t) const override { return {}; }
  std::shared_ptr<orvik::IObject> IPlugIn_ControlPanel() const override { return {}; }
  std::shared_ptr<orvik::IObject> IPlugIn_CreateDUTData() const override { return {}; }
  std::shared_ptr<orvik::IObject> IPlugIn_PlugInMenu() const override { return {}; }
  std::shared_ptr<orvik::IObject> IPlugIn_Setup() const override { return {}; }

  bool initialized_ = false;
  std::string name_;
  std::shared_ptr<orvik::ITestContainer> catalogue_;
};

}  // namespace check
