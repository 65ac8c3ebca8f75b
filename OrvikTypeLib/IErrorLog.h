#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IObject.h"
#include "OrvikTypeLib/Variant.h"

namespace orvik {

/// The host's durable error log (class "OrvikTypeLib.ErrorLog").
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IErrorLog : public virtual IObject {
 public:
  /// Records an error: reporting plug-in, error number, class name of the reporting object, level (3
  /// configuration fault), five optional values (empty when missing).
  void LogEntry(const std::string& sSource, std::int32_t lNumber, const std::string& sPlace,
                std::int32_t lLevel, const Variant& v1, const Variant& v2, const Variant& v3,
                const Variant& v4, const Variant& v5) {
    IErrorLog_LogEntry(sSource, lNumber, sPlace, lLevel, v1, v2, v3, v4, v5);
  }

 private:
  virtual void IErrorLog_LogEntry(const std::string& sSource, std::int32_t lNumber, const std::string& sPlace,
                                  std::int32_t lLevel, const Variant& v1, const Variant& v2,
                                  const Variant& v3, const Variant& v4, const Variant& v5) = 0;
};

}  // namespace orvik
