#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/qt/Screen.h"
#include "tests/unit/qt/Person.h"
#include "tests/unit/qt/WidgetDifferences.h"
#include "tests/unit/toolkit/ToolkitTest.h"

namespace toolkit::headless {

/// Windows on the screen.
class ScreenTest : public ToolkitTest {
 protected:
  ScreenTest() { screen = onScreen; }

  /// Processes and shows everything that is pending.
  void Pump() const {
    for (int turn = 0; turn < 3; ++turn) app->ProcessMessages();
    onScreen->Update();
  }
  /// The widget of a control that is on the screen.
  template <class Widget = QWidget>
  Widget& WidgetOf(const platform::IControl& control) const {
    auto* widget = dynamic_cast<Widget*>(onScreen->WidgetOf(control));
    if (!widget) throw std::runtime_error(control.Name() + " is not on the screen");
    return *widget;
  }
  bool IsOnScreen(const platform::IControl& control) const {
    const QWidget* widget = onScreen->WidgetOf(control);
    return widget && widget->isVisible();
  }
  void ExpectMirrored() const {
    const auto finder = [this](const auto& control) { return onScreen->WidgetOf(control); };
    EXPECT_EQ(support::Differences(finder, *app), std::vector<std::string>{});
  }

  /// Shows the newest form with the controls below each other.
  std::shared_ptr<platform::IForm> Column(const std::string& name, const std::vector<std::string>& controls) {
    auto form = forms_.back();
    form->SetGrid(OneColumn(controls, {4500, 1}));
    form->SetCaption(name);
    form->Show();
    Pump();
    return form;
  }
  /// Creates a form without showing it.
  platform::IForm& NewForm(const std::string& name) {
    forms_.push_back(app->CreateForm(name));
    return *forms_.back();
  }

  /// The form that was created last.
  std::shared_ptr<platform::IForm> Newest() const { return forms_.back(); }
  void ReleaseForms() { forms_.clear(); }

  std::shared_ptr<host::qt::Screen> onScreen = std::make_shared<host::qt::Screen>(app);

 private:
  std::vector<std::shared_ptr<platform::IForm>> forms_;
};

}  // namespace toolkit::headless
