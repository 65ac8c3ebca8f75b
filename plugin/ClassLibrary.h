#pragma once

#include "OrvikTypeLib/IClassLibrary.h"

namespace keld::plugin {

/// The classes that the host can create by identifier.
class ClassLibrary final : public virtual orvik::IClassLibrary {
 private:
  std::int32_t IClassLibrary_Count() const override;
  std::string IClassLibrary_ClassIdentifier(std::int32_t lIndex) const override;
  std::string IClassLibrary_Purpose(std::int32_t lIndex) const override;
  std::shared_ptr<orvik::IObject> IClassLibrary_CreateObject(const std::string& sClassID) override;
};

}  // namespace keld::plugin
