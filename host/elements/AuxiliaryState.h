#pragma once

#include "OrvikTypeLib/IAuxiliaryState.h"

namespace bench {

/// The host's own settings of an element.
class AuxiliaryState final : public orvik::IAuxiliaryState {
 private:
  bool IAuxiliaryState_PrintElement() const override { return printElement_; }
  void IAuxiliaryState_SetPrintElement(bool fPrint) override { printElement_ = fPrint; }

  bool printElement_ = true;
};

}  // namespace bench
