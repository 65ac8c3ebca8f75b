#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/IObject.h"
#include "platform/Event.h"
#include "platform/IListView.h"
#include "platform/IUserControl.h"

namespace orvik {
class IMeasurement;
class ITestElement;
}  // namespace orvik

namespace orvik::platform {
class IPanel;
}

namespace keld::results {

/// The list of the tests run so far: one row for each element, with the measured value and the limits of one
/// selected standard. Host and list errors pass to the caller; missing data are shown as a single blank.
class XKELDResultView final : public virtual orvik::IObject, public orvik::platform::IUserControl {
 public:
  static std::shared_ptr<XKELDResultView> Create();

  void AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>& site) override;

  /// Removes all rows.
  void ClearDisplay();
  /// Shows the limits of the standard with these identifying strings from now on; the text is also the limit
  /// cells' tool tip. An empty name selects none.
  void SelectStandard(const std::string& sName, const std::string& sText);
  /// Adds or updates the element's row, and selects it. An element without a measurement is not shown.
  void ShowResult(const std::shared_ptr<orvik::ITestElement>& iteElement);
  /// Creates the columns, once, when the control is placed.
  void ShowLimitsInRow();

  /// A mouse button was released over the list: button (1 left, 2 right), shift state, place in twips.
  orvik::platform::Event<int, int, orvik::platform::Twips, orvik::platform::Twips>& MouseUp() {
    return mMouseUp;
  }

 private:
  std::string IObject_ClassID() const override;
  void FillPanel(const std::weak_ptr<orvik::platform::IPanel>& Panel);
  orvik::platform::IListView& List() const;
  void AddRow(const std::string& sRow, const std::shared_ptr<orvik::ITestElement>& iteElement,
              const std::string& sValue, const std::shared_ptr<orvik::IMeasurement>& Measurement);
  void ReplaceValue(const std::string& sRow, const std::string& sValue);
  void StyleRow(const std::string& sRow, bool fFailed);
  void FillLimitCells(const std::string& sRow);

  std::string sStandardName;
  std::string sStandardText;
  std::shared_ptr<orvik::platform::IListView> lvwResults;
  orvik::platform::Event<int, int, orvik::platform::Twips, orvik::platform::Twips> mMouseUp;
  orvik::platform::Subscription mListMouseUp;
  orvik::platform::Subscription mResized;
};

}  // namespace keld::results
