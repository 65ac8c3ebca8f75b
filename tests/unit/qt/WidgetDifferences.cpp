#include "tests/unit/qt/WidgetDifferences.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTabBar>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>

#include "host/qt/Conversions.h"
#include "toolkit/headless/Application.h"
#include "toolkit/headless/Button.h"
#include "toolkit/headless/ComboBox.h"
#include "toolkit/headless/Form.h"
#include "toolkit/headless/Label.h"
#include "toolkit/headless/ListView.h"
#include "toolkit/headless/PictureBox.h"
#include "toolkit/headless/ProgressBar.h"
#include "toolkit/headless/Tabs.h"
#include "toolkit/headless/TextBox.h"
#include "toolkit/headless/Timer.h"
#include "toolkit/headless/Toolbar.h"
#include "toolkit/headless/TreeView.h"

namespace support {
namespace {

namespace headless = toolkit::headless;
namespace platform = orvik::platform;
using host::qt::FromQt;
using host::qt::WithAccessKey;
using host::qt::WithoutAccessKey;

std::string Text(const std::string& text) { return text; }
std::string Text(const QString& text) { return host::qt::FromQt(text); }
std::string Text(bool value) { return value ? "true" : "false"; }
std::string Text(int value) { return std::to_string(value); }

/// Holds the widgets of one application against its windows.
class Mirror {
 public:
  Mirror(const WidgetFinder& widgetOf, const toolkit::headless::Application& application)
      : widgetOf_(widgetOf), application_(application) {}

  std::vector<std::string> Look() {
    for (const auto& form : application_.Forms()) {
      const auto window = std::dynamic_pointer_cast<toolkit::headless::Form>(form);
      QWidget* widget = widgetOf_(*window);
      if (window->Visible() && !widget) differences_.push_back("form " + window->Name() + " is not shown");
      if (widget) LookAtForm(*window, *widget);
    }
    return differences_;
  }

 private:
  template <class Model, class Shown>
  void Compare(const std::string& what, const Model& expected, const Shown& shown) {
    if (Text(expected) != Text(shown))
      differences_.push_back(where_ + " " + what + ": \"" + Text(expected) + "\" is shown as \"" +
                             Text(shown) + "\"");
  }

  void LookAtForm(toolkit::headless::Form& form, QWidget& widget) {
    where_ = form.Name();
    Compare("visible", form.Visible(), !widget.isHidden());
    Compare("title", host::qt::WithoutAccessKey(form.Caption()), widget.windowTitle());
    Compare("topmost", form.Topmost(), widget.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    if (form.Visible()) Compare("modal", application_.IsModal(form), widget.windowModality() != Qt::NonModal);
    LookInside(form);
  }

  void LookInside(const toolkit::headless::Control& outer) {
    for (const auto& control : application_.WindowsInside(outer)) {
      QWidget* widget = widgetOf_(*control);
      where_ = outer.Name() + "." + control->Name();
      if (std::dynamic_pointer_cast<toolkit::headless::Timer>(control)) continue;
      if (!widget) {
        differences_.push_back(where_ + " is not shown");
        continue;
      }
      LookAt(*control, *widget);
      Compare("inside", true, widget->parentWidget() == widgetOf_(outer));
      LookInside(*control);
    }
  }

  void LookAt(toolkit::headless::Control& control, QWidget& widget) {
    Compare("name", control.Name(), widget.objectName());
    Compare("visible", control.Visible(), !widget.isHidden());
    Compare("enabled", control.Enabled(), widget.testAttribute(Qt::WA_ForceDisabled) == false);
    CompareSizes(control, widget);
    if (const auto* label = dynamic_cast<toolkit::headless::Label*>(&control)) LookAtLabel(*label, widget);
    if (const auto* frame = dynamic_cast<toolkit::headless::Frame*>(&control))
      Compare("title", host::qt::WithAccessKey(frame->Caption()), dynamic_cast<QGroupBox&>(widget).title());
    if (const auto* button = dynamic_cast<toolkit::headless::Button*>(&control))
      Compare("caption", host::qt::WithAccessKey(button->Caption()),
              dynamic_cast<QPushButton&>(widget).text());
    if (const auto* box = dynamic_cast<toolkit::headless::TextBox*>(&control)) LookAtText(*box, widget);
    if (const auto* box = dynamic_cast<toolkit::headless::ComboBox*>(&control)) LookAtCombo(*box, widget);
    if (const auto* bar = dynamic_cast<toolkit::headless::ProgressBar*>(&control))
      LookAtProgress(*bar, widget);
    if (const auto* list = dynamic_cast<toolkit::headless::ListView*>(&control)) LookAtList(*list, widget);
    if (const auto* tree = dynamic_cast<toolkit::headless::TreeView*>(&control)) LookAtTree(*tree, widget);
    if (const auto* toolbar = dynamic_cast<toolkit::headless::Toolbar*>(&control))
      LookAtToolbar(*toolbar, widget);
    if (const auto* tabs = dynamic_cast<toolkit::headless::Tabs*>(&control)) LookAtTabs(*tabs, widget);
    if (const auto* box = dynamic_cast<toolkit::headless::PictureBox*>(&control))
      Compare("picture", box->NaturalSize() != platform::Size{},
              !dynamic_cast<QLabel&>(widget).pixmap(Qt::ReturnByValue).isNull());
  }

  void CompareSizes(const toolkit::headless::Control& control, const QWidget& widget) {
    const platform::Rect place = control.Bounds();
    const int pixel = platform::kTwipsPerPixel;
    // Within a pixel: edges are rounded.
    Compare("left", true, std::abs(widget.x() * pixel - place.left) <= pixel);
    Compare("top", true, std::abs(widget.y() * pixel - place.top) <= pixel);
    Compare("width", true, std::abs(widget.width() * pixel - place.width) <= pixel);
    Compare("height", true, std::abs(widget.height() * pixel - place.height) <= pixel);
  }

  void LookAtLabel(const toolkit::headless::Label& label, const QWidget& widget) {
    const auto& shown = dynamic_cast<const QLabel&>(widget);
    Compare("caption",
            shown.buddy() ? host::qt::WithAccessKey(label.Caption())
                          : host::qt::WithoutAccessKey(label.Caption()),
            shown.text());
  }

  void LookAtText(const toolkit::headless::TextBox& box, const QWidget& widget) {
    if (const auto* lines = qobject_cast<const QPlainTextEdit*>(&widget)) {
      Compare("several lines", box.MultiLine(), true);
      Compare("text", box.Text(), lines->toPlainText());
      return Compare("locked", box.Locked(), lines->isReadOnly());
    }
    Compare("several lines", box.MultiLine(), false);
    Compare("text", box.Text(), dynamic_cast<const QLineEdit&>(widget).text());
    Compare("locked", box.Locked(), dynamic_cast<const QLineEdit&>(widget).isReadOnly());
  }

  void LookAtCombo(const toolkit::headless::ComboBox& box, const QWidget& widget) {
    const auto& shown = dynamic_cast<const QComboBox&>(widget);
    Compare("entries", static_cast<int>(box.Items().size()), shown.count());
    for (int index = 0; index < shown.count(); ++index)
      Compare("entry", box.Items()[static_cast<std::size_t>(index)], shown.itemText(index));
    Compare("selected", box.SelectedIndex(), shown.currentIndex());
    Compare("editable", box.Editable(), shown.isEditable());
    Compare("text", box.Text(), shown.currentText());
  }

  void LookAtProgress(const toolkit::headless::ProgressBar& bar, const QWidget& widget) {
    const auto& shown = dynamic_cast<const QProgressBar&>(widget);
    Compare("minimum", bar.Minimum(), shown.minimum());
    Compare("value", bar.Value(), shown.value());
  }

  void LookAtList(const toolkit::headless::ListView& list, const QWidget& widget) {
    const auto& view = dynamic_cast<const QTreeView&>(widget);
    const QAbstractItemModel& shown = *view.model();
    Compare("rows", list.RowCount(), shown.rowCount());
    Compare("columns", static_cast<int>(list.Columns().size()), shown.columnCount());
    Compare("selected row", list.SelectedPlace(), view.currentIndex().row());
    for (int row = 0; row < std::min(list.RowCount(), shown.rowCount()); ++row) {
      for (const auto& column : list.Columns()) LookAtCell(list, shown, row, column);
    }
  }

  void LookAtCell(const toolkit::headless::ListView& list, const QAbstractItemModel& shown, int row,
                  const platform::ListColumn& wanted) {
    int column = 0;
    while (list.Columns()[static_cast<std::size_t>(column)].key != wanted.key) ++column;
    const auto cell = list.Cell(list.RowKeyAt(row), wanted.key);
    const QModelIndex index = shown.index(row, column);
    Compare("cell", cell.text, index.data().toString());
    Compare("bold", cell.bold, index.data(Qt::FontRole).value<QFont>().bold());
    Compare("red", cell.color == platform::kRed,
            index.data(Qt::ForegroundRole).value<QColor>() == QColor(Qt::red));
  }

  void LookAtTree(const toolkit::headless::TreeView& tree, const QWidget& widget) {
    const auto& shown = dynamic_cast<const QTreeWidget&>(widget);
    const auto keys = tree.NodeKeys();
    Compare("nodes", static_cast<int>(keys.size()), shown.topLevelItemCount());
    for (int place = 0; place < shown.topLevelItemCount(); ++place) {
      const auto& key = keys[static_cast<std::size_t>(place)];
      Compare("node", tree.NodeCaption(key), shown.topLevelItem(place)->text(0));
      Compare("checked", tree.Checked(key), shown.topLevelItem(place)->checkState(0) == Qt::Checked);
    }
  }

  void LookAtToolbar(const toolkit::headless::Toolbar& toolbar, const QWidget& widget) {
    for (const int command : toolbar.Commands()) {
      const QString name = widget.objectName() + "." + QString::number(command);
      const auto* button = widget.findChild<QToolButton*>(name);
      const auto* entry = widget.findChild<QAction*>(name);
      Compare("has " + std::to_string(command), true, button || entry);
      if (button)
        LookAtCommand(toolbar, command, button->text(), button->isEnabledTo(&widget), !button->isHidden());
      if (entry) LookAtCommand(toolbar, command, entry->text(), entry->isEnabled(), entry->isVisible());
    }
  }

  void LookAtCommand(const toolkit::headless::Toolbar& toolbar, int command, const QString& text,
                     bool enabled, bool visible) {
    Compare("caption", host::qt::WithAccessKey(toolbar.CommandCaption(command)), text);
    Compare("command enabled", toolbar.CommandEnabled(command), enabled);
    Compare("command visible", toolbar.CommandVisible(command), visible);
  }

  void LookAtTabs(const toolkit::headless::Tabs& tabs, const QWidget& widget) {
    const auto* bar = widget.findChild<QTabBar*>();
    const auto keys = tabs.Keys();
    Compare("pages", static_cast<int>(keys.size()), bar->count());
    for (int place = 0; place < bar->count(); ++place) {
      const auto& key = keys[static_cast<std::size_t>(place)];
      Compare("page", host::qt::WithAccessKey(tabs.PageCaption(key)), bar->tabText(place));
      Compare("page selected", tabs.SelectedKey() == key, bar->currentIndex() == place);
    }
  }

  const WidgetFinder& widgetOf_;
  const toolkit::headless::Application& application_;
  std::string where_;
  std::vector<std::string> differences_;
};

}  // namespace

std::vector<std::string> Differences(const WidgetFinder& widgetOf,
                                     const toolkit::headless::Application& application) {
  return Mirror(widgetOf, application).Look();
}

}  // namespace support
