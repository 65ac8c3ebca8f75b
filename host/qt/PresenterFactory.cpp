#include "host/qt/PresenterFactory.h"

#include "host/qt/ComboBoxPresenter.h"
#include "host/qt/FormPresenter.h"
#include "host/qt/ListViewPresenter.h"
#include "host/qt/SimplePresenters.h"
#include "host/qt/TabsPresenter.h"
#include "host/qt/TextBoxPresenter.h"
#include "host/qt/ToolbarPresenter.h"
#include "host/qt/TreeViewPresenter.h"
#include "toolkit/headless/ContainerSite.h"
#include "toolkit/headless/Panel.h"

namespace host::qt {
namespace {

using Made = std::unique_ptr<Presenter>;

template <class Model, class Shown>
Made MakeIf(WidgetMirror& mirror, toolkit::headless::Control& control) {
  return dynamic_cast<Model*>(&control) ? std::make_unique<Shown>(mirror, control) : nullptr;
}

// A form is a panel too, so it comes first.
constexpr Made (*kMakers[])(WidgetMirror&, toolkit::headless::Control&) = {
    MakeIf<toolkit::headless::Form, FormPresenter>,
    MakeIf<toolkit::headless::Panel, PanelPresenter>,
    MakeIf<toolkit::headless::ContainerSite, PanelPresenter>,
    MakeIf<toolkit::headless::Label, LabelPresenter>,
    MakeIf<toolkit::headless::Frame, FramePresenter>,
    MakeIf<toolkit::headless::Button, ButtonPresenter>,
    MakeIf<toolkit::headless::TextBox, TextBoxPresenter>,
    MakeIf<toolkit::headless::ComboBox, ComboBoxPresenter>,
    MakeIf<toolkit::headless::ListView, ListViewPresenter>,
    MakeIf<toolkit::headless::TreeView, TreeViewPresenter>,
    MakeIf<toolkit::headless::Toolbar, ToolbarPresenter>,
    MakeIf<toolkit::headless::ProgressBar, ProgressBarPresenter>,
    MakeIf<toolkit::headless::PictureBox, PictureBoxPresenter>,
    MakeIf<toolkit::headless::Tabs, TabsPresenter>,
};

}  // namespace

Made MakePresenter(WidgetMirror& mirror, toolkit::headless::Control& control) {
  for (const auto make : kMakers) {
    if (auto made = make(mirror, control)) return made;
  }
  return nullptr;
}

}  // namespace host::qt
