#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

/// The texts under which an element is shown to people.
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IInformationRecord : public virtual IObject {
 public:
  /// Distinguishes similar tests; often empty.
  std::string FirstText() const { return IInformationRecord_FirstText(); }
  /// Sets the first text.
  void SetFirstText(const std::string& sText) { IInformationRecord_SetFirstText(sText); }
  /// The name of the test; the display name unless another text was set.
  std::string SecondText() const { return IInformationRecord_SecondText(); }
  /// Sets the second text.
  void SetSecondText(const std::string& sText) { IInformationRecord_SetSecondText(sText); }
  /// The name shown in lists and reports.
  std::string DisplayName() const { return IInformationRecord_DisplayName(); }
  /// Sets the display name.
  void SetDisplayName(const std::string& sName) { IInformationRecord_SetDisplayName(sName); }

 private:
  virtual std::string IInformationRecord_FirstText() const = 0;
  virtual void IInformationRecord_SetFirstText(const std::string& sText) = 0;
  virtual std::string IInformationRecord_SecondText() const = 0;
  virtual void IInformationRecord_SetSecondText(const std::string& sText) = 0;
  virtual std::string IInformationRecord_DisplayName() const = 0;
  virtual void IInformationRecord_SetDisplayName(const std::string& sName) = 0;
};

}  // namespace orvik
