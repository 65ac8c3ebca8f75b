#pragma once

#include <optional>
#include <string>

#include "OrvikTypeLib/IInformationRecord.h"

namespace bench {

/// The texts that people are shown of an element.
class InformationRecord final : public orvik::IInformationRecord {
 public:
  /// Whether a second text was set, so that it is no longer the display name.
  bool HasSecondText() const { return secondText_.has_value(); }

 private:
  std::string IInformationRecord_FirstText() const override { return firstText_; }
  void IInformationRecord_SetFirstText(const std::string& sText) override { firstText_ = sText; }
  std::string IInformationRecord_SecondText() const override { return secondText_.value_or(displayName_); }
  void IInformationRecord_SetSecondText(const std::string& sText) override { secondText_ = sText; }
  std::string IInformationRecord_DisplayName() const override { return displayName_; }
  void IInformationRecord_SetDisplayName(const std::string& sName) override { displayName_ = sName; }

  std::string firstText_;
  std::string displayName_;
  std::optional<std::string> secondText_;
};

}  // namespace bench
