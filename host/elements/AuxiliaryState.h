#pragma once

#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/IAuxiliaryState.h"

namespace bench {

/// The host's own settings of an element, and what it holds against the element's result.
class AuxiliaryState final : public orvik::IAuxiliaryState {
 public:
  /// Why the result must not be relied on, for people to read; none when nothing speaks against it. Set by
  /// the host, which watched the wire while the element ran; the result's own status says nothing of it.
  const std::vector<std::string>& Doubts() const { return doubts_; }
  void SetDoubts(std::vector<std::string> doubts) { doubts_ = std::move(doubts); }

 private:
  bool IAuxiliaryState_PrintElement() const override { return printElement_; }
  void IAuxiliaryState_SetPrintElement(bool fPrint) override { printElement_ = fPrint; }

  bool printElement_ = true;
  std::vector<std::string> doubts_;
};

}  // namespace bench
