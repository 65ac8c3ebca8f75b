#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

/// The classes of a plug-in library.
///
/// Implemented by: the plug-in. Mandatory. Since contract version 1. User-interface thread only.
class IClassLibrary : public virtual IObject {
 public:
  /// Number of registered classes.
  std::int32_t Count() const { return IClassLibrary_Count(); }
  /// Identifier at the index, counted from 1, for example "orvikKELD.CKELDPlugin".
  std::string ClassIdentifier(std::int32_t lIndex) const { return IClassLibrary_ClassIdentifier(lIndex); }
  /// One line on what the class is for.
  std::string Purpose(std::int32_t lIndex) const { return IClassLibrary_Purpose(lIndex); }
  /// A new object of the class; empty for an identifier that is not registered. Identifiers are matched
  /// without regard to case.
  std::shared_ptr<IObject> CreateObject(const std::string& sClassID) {
    return IClassLibrary_CreateObject(sClassID);
  }

 private:
  virtual std::int32_t IClassLibrary_Count() const = 0;
  virtual std::string IClassLibrary_ClassIdentifier(std::int32_t lIndex) const = 0;
  virtual std::string IClassLibrary_Purpose(std::int32_t lIndex) const = 0;
  virtual std::shared_ptr<IObject> IClassLibrary_CreateObject(const std::string& sClassID) = 0;
};

}  // namespace orvik
