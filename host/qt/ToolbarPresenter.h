#pragma once

#include <QWidget>
#include <cstddef>
#include <map>
#include <vector>

#include "host/qt/Presenter.h"
#include "toolkit/headless/Toolbar.h"

class QAction;
class QToolButton;

namespace host::qt {

/// A row of buttons named "TOOLBAR.COMMAND"; buttons with entries open a menu.
class ToolbarPresenter final : public PresenterFor<toolkit::headless::Toolbar, QWidget> {
 public:
  ToolbarPresenter(WidgetMirror& mirror, toolkit::headless::Control& control);

 protected:
  void SyncOwn() override;

 private:
  void AddFrom(std::size_t first);
  void AddButton(int command);
  void AddEntry(int parent, int command);
  QString NameOf(int command) const;
  void Chosen(int command);

  std::vector<int> commands_;
  std::map<int, QToolButton*> buttons_;
  std::map<int, QAction*> entries_;
};

}  // namespace host::qt
