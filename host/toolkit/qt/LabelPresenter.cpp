#include "host/toolkit/qt/LabelPresenter.h"

#include "host/toolkit/qt/Texts.h"

namespace bench::qt {

LabelPresenter::LabelPresenter(Stage& stage, headless::Control& control)
    : PresenterFor(stage, control, new QLabel) {
  // What the tester or the operator wrote is text, never markup.
  GetShown().setTextFormat(Qt::PlainText);
  GetShown().setWordWrap(true);
}

void LabelPresenter::Precedes(const Presenter& next) {
  if (!next.Control().TakesFocus()) return;
  GetShown().setBuddy(next.Widget());
  SyncOwn();
}

void LabelPresenter::SyncOwn() {
  const std::string caption = GetModel().Caption();
  GetShown().setText(GetShown().buddy() ? WithAccessKey(caption) : WithoutAccessKey(caption));
}

void FramePresenter::SyncOwn() { GetShown().setTitle(WithAccessKey(GetModel().Caption())); }

}  // namespace bench::qt
