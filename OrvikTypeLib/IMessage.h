#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IObject.h"
#include "OrvikTypeLib/Variant.h"

namespace orvik {

/// One message to or from an instrument.
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IMessage : public virtual IObject {
 public:
  /// The mnemonic.
  std::string Mnemonic() const { return IMessage_Mnemonic(); }
  /// Number of parameters.
  std::int32_t ParameterCount() const { return IMessage_ParameterCount(); }
  /// The parameter at the index, counted from 0; `HostError` 9 outside.
  Variant Parameter(std::int32_t lIndex) const { return IMessage_Parameter(lIndex); }

 private:
  virtual std::string IMessage_Mnemonic() const = 0;
  virtual std::int32_t IMessage_ParameterCount() const = 0;
  virtual Variant IMessage_Parameter(std::int32_t lIndex) const = 0;
};

}  // namespace orvik
