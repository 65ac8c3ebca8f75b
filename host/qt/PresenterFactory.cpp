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

namespace bench::qt {
namespace {

using Made = std::unique_ptr<Presenter>;

template <class Model, class Shown>
Made MakeIf(WidgetMirror& mirror, headless::Control& control) {
  return dynamic_cast<Model*>(&control) ? std::make_unique<Shown>(mirror, control) : nullptr;
}

// A form is a panel too, so it comes first.
constexpr Made (*kMakers[])(WidgetMirror&, headless::Control&) = {
    MakeIf<headless::Form, FormPresenter>,
    MakeIf<headless::Panel, PanelPresenter>,
    MakeIf<headless::ContainerSite, PanelPresenter>,
    MakeIf<headless::Label, LabelPresenter>,
    MakeIf<headless::Frame, FramePresenter>,
    MakeIf<headless::Button, ButtonPresenter>,
    MakeIf<headless::TextBox, TextBoxPresenter>,
    MakeIf<headless::ComboBox, ComboBoxPresenter>,
    MakeIf<headless::ListView, ListViewPresenter>,
    MakeIf<headless::TreeView, TreeViewPresenter>,
    MakeIf<headless::Toolbar, ToolbarPresenter>,
    MakeIf<headless::ProgressBar, ProgressBarPresenter>,
    MakeIf<headless::PictureBox, PictureBoxPresenter>,
    MakeIf<headless::Tabs, TabsPresenter>,
};

}  // namespace

Made MakePresenter(WidgetMirror& mirror, headless::Control& control) {
  for (const auto make : kMakers) {
    if (auto made = make(mirror, control)) return made;
  }
  return nullptr;
}

}  // namespace bench::qt
