#pragma once

#include <QLabel>
#include <cstddef>
#include <vector>

#include "host/toolkit/headless/PictureBox.h"
#include "host/toolkit/qt/Presenter.h"

namespace bench::qt {

class PictureBoxPresenter final : public PresenterFor<headless::PictureBox, QLabel> {
 public:
  PictureBoxPresenter(Stage& stage, headless::Control& control);

 protected:
  void SyncOwn() override;

 private:
  std::vector<std::byte> bitmap_;
};

}  // namespace bench::qt
