#pragma once

#include <QValidator>

namespace bench::desktop {

/// Drops from what is typed or pasted into a line what a document cannot hold, such as the line end that a
/// scanner sends.
class PlainTextValidator : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& input, int& cursor) const override;
};

}  // namespace bench::desktop
