#include "host/toolkit/qt/PictureBoxPresenter.h"

#include "host/toolkit/qt/Pictures.h"

namespace bench::qt {

PictureBoxPresenter::PictureBoxPresenter(Stage& stage, headless::Control& control)
    : PresenterFor(stage, control, new QLabel) {
  // A bitmap's pixel has a length of its own, whatever the screen's resolution.
  GetShown().setScaledContents(true);
}

void PictureBoxPresenter::SyncOwn() {
  auto bitmap = GetModel().Bitmap();
  if (bitmap == bitmap_) return;
  bitmap_ = std::move(bitmap);
  GetShown().setPixmap(PictureOf(bitmap_));
}

}  // namespace bench::qt
