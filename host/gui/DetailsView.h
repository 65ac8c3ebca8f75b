#pragma once

#include <QTextBrowser>
#include <string>
#include <vector>

#include "host/report/Report.h"

namespace host::gui {

/// One element in full, as a page: result, reasons, what made it, limits with a picture of the value between
/// its bounds, earlier readings, settings, and the tables that the plug-in prints. Or the document, with its
/// runs.
class DetailsView : public QTextBrowser {
 public:
  explicit DetailsView(QWidget* parent = nullptr);

  void Show(const report::Section& section, const std::vector<std::string>& settings);
  /// Shows a title with a line of text for each fact, and the runs unless there are none.
  void ShowFacts(const std::string& title, const std::vector<std::string>& facts,
                 const report::Table& runs = {});

 private:
  void ShowPage(const std::string& page);
  std::string LimitsOf(const report::Section& section);
};

}  // namespace host::gui
