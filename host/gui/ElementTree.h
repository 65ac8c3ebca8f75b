#pragma once

#include <QTreeWidget>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/report/DocumentView.h"
#include "host/report/Report.h"

namespace host::gui {

/// The elements of a document in its order, sequences with their elements: number, name, result as sign,
/// colour and word, value, and remark.
class ElementTree : public QTreeWidget {
 public:
  /// What a row shows.
  struct RowText {
    std::int32_t id = 0;
    std::string name, word, value, remark;
    report::Standing standing = report::Standing::kOpen;
    bool running = false;

    bool operator==(const RowText&) const = default;
  };

  explicit ElementTree(QWidget* parent = nullptr);

  /// Shows the document; keeps selection and folding.
  /// @param running identifier of the element that runs; 0 for none
  void Show(const judge::JudgedDocument& document, std::int32_t running);
  /// The identifier of the element that is chosen.
  std::optional<std::int32_t> Chosen() const;
  void Choose(std::int32_t id);
  /// Called when another element is chosen.
  void OnChosen(std::function<void()> chosen);

 private:
  void changeEvent(QEvent* event) override;
  bool ShowsTheSame(const judge::JudgedDocument& document) const;
  void Build(const judge::JudgedDocument& document);

  std::vector<QTreeWidgetItem*> rows_;  ///< as in the document
  std::vector<RowText> texts_;          ///< of the rows
};

}  // namespace host::gui
