#include "host/toolkit/qt/PresenterFactory.h"

#include "host/toolkit/headless/ContainerSite.h"
#include "host/toolkit/headless/PictureBox.h"
#include "host/toolkit/headless/ProgressBar.h"
#include "host/toolkit/headless/Timer.h"
#include "host/toolkit/qt/ButtonPresenter.h"
#include "host/toolkit/qt/ComboBoxPresenter.h"
#include "host/toolkit/qt/FormPresenter.h"
#include "host/toolkit/qt/LabelPresenter.h"
#include "host/toolkit/qt/ListViewPresenter.h"
#include "host/toolkit/qt/PanelPresenter.h"
#include "host/toolkit/qt/PictureBoxPresenter.h"
#include "host/toolkit/qt/ProgressBarPresenter.h"
#include "host/toolkit/qt/TabsPresenter.h"
#include "host/toolkit/qt/TextBoxPresenter.h"
#include "host/toolkit/qt/ToolbarPresenter.h"
#include "host/toolkit/qt/TreeViewPresenter.h"

namespace bench::qt {
namespace {

using Made = std::unique_ptr<Presenter>;

template <class Model, class Shown>
bool Try(Stage& stage, headless::Control& control, Made& made) {
  if (!made && dynamic_cast<Model*>(&control)) made = std::make_unique<Shown>(stage, control);
  return made != nullptr;
}

}  // namespace

Made MakePresenter(Stage& stage, headless::Control& control) {
  Made made;
  // A form is a panel too, so it comes first.
  Try<headless::Form, FormPresenter>(stage, control, made) ||
      Try<headless::Panel, PanelPresenter>(stage, control, made) ||
      Try<headless::ContainerSite, PanelPresenter>(stage, control, made) ||
      Try<headless::Label, LabelPresenter>(stage, control, made) ||
      Try<headless::Frame, FramePresenter>(stage, control, made) ||
      Try<headless::Button, ButtonPresenter>(stage, control, made) ||
      Try<headless::TextBox, TextBoxPresenter>(stage, control, made) ||
      Try<headless::ComboBox, ComboBoxPresenter>(stage, control, made) ||
      Try<headless::ListView, ListViewPresenter>(stage, control, made) ||
      Try<headless::TreeView, TreeViewPresenter>(stage, control, made) ||
      Try<headless::Toolbar, ToolbarPresenter>(stage, control, made) ||
      Try<headless::ProgressBar, ProgressBarPresenter>(stage, control, made) ||
      Try<headless::PictureBox, PictureBoxPresenter>(stage, control, made) ||
      Try<headless::Tabs, TabsPresenter>(stage, control, made);
  return made;
}

}  // namespace bench::qt
