#include "ui/TestGuideWindow.h"

#include <cstddef>
#include <string>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ICustomControl.h"
#include "OrvikTypeLib/ITgContentPane.h"
#include "OrvikTypeLib/ITgToolbar.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "platform/IUserControl.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/ClassIdentifiers.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "resources/Resources.h"
#include "results/XKELDResultView.h"

namespace keld::ui {

using orvik::As;
using orvik::Required;
namespace platform = orvik::platform;

namespace {

constexpr char kToolbarName[] = "xtbToolbar";
constexpr char kResultViewName[] = "xrvResultView";
constexpr char kWizardName[] = "xtwWizard";
constexpr char kInstrumentPaneName[] = "xstShowMTI";
constexpr char kInstrumentTab[] = "tab:MtiData";

/// Adds a control; empty if the host lacks the class.
template <class View>
std::shared_ptr<View> AddControl(platform::IForm& Form, const char* sClassID, const char* sName) {
  return AttemptValue(std::shared_ptr<View>(),
                      [&] { return As<View>(Required(Form.AddControl(sClassID, sName)).Object()); });
}

std::vector<std::byte> InstrumentPicture() {
  const auto Bitmap = FindResource(kInstrumentTab);
  return {Bitmap.begin(), Bitmap.end()};
}

/// The toolbar at the top, guidance beside the results, the instrument data below.
platform::Grid Layout() {
  platform::Grid grid;
  grid.rows = {{}, {3000, 3}, {1500, 1}};
  grid.columns = {{2700, 1}, {8100, 3}};
  grid.cells = {{kToolbarName, 0, 0, 1, 2},
                {kWizardName, 1, 0},
                {kResultViewName, 1, 1},
                {kInstrumentPaneName, 2, 0, 1, 2}};
  return grid;
}

}  // namespace

void TestGuideWindow::Build() {
  auto& Window = Required(Form);
  xtbToolbar = AddControl<orvik::ITgToolbar>(Window, orvik::HostClasses::kToolbar, kToolbarName);
  xtwWizard = AddControl<orvik::ITgContentPane>(Window, orvik::HostClasses::kContentPane, kWizardName);
  xrvResultView =
      AddControl<results::XKELDResultView>(Window, ClassIdentifiers::kResultView, kResultViewName);
  xstShowMTI =
      AddControl<orvik::ITgContentPane>(Window, orvik::HostClasses::kContentPane, kInstrumentPaneName);
  platform::Grid Placed = Layout();
  std::erase_if(Placed.cells, [&](const platform::Cell& Cell) { return !Window.Find(Cell.control); });
  Attempt([&] { Window.SetGrid(Placed); });
  Attempt([&] {
    Required(xstShowMTI)
        .AddTab(kInstrumentTab, MKELDGlobalVars::Shown(MKELDLanguageConstants::kMtiData), InstrumentPicture(),
                ClassIdentifiers::kDataControl);
  });
}

void TestGuideWindow::LockInstrumentData(bool fLocked) {
  const auto Data = As<orvik::ICustomControl>(Required(xstShowMTI).Tab(kInstrumentTab));
  if (Data) Data->SetLocked(fLocked);
}

}  // namespace keld::ui
