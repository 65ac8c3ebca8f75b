#pragma once

#include <QTextBrowser>
#include <string>
#include <vector>

#include "host/report/Report.h"

namespace bench::desktop {

/// All there is to tell of one element, as a page: result, doubts, limits with a picture of the value between
/// its bounds, settings, and the tables that the plug-in prints.
class DetailsView : public QTextBrowser {
 public:
  explicit DetailsView(QWidget* parent = nullptr);

  void Show(const report::Section& section, const std::vector<std::string>& settings);
  /// Shows a title with a line of text for each fact.
  void ShowFacts(const std::string& title, const std::vector<std::string>& facts);

 private:
  void ShowPage(const std::string& page);
  std::string LimitsOf(const report::Section& section);
};

}  // namespace bench::desktop
