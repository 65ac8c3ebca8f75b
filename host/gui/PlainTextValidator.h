#pragma once

#include <QValidator>

namespace host::gui {

/// Removes characters that a document cannot hold from typed or pasted text, such as a scanner's line end.
class PlainTextValidator : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& input, int& cursor) const override;
};

}  // namespace host::gui
