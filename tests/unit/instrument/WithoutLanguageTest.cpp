#include <gtest/gtest.h>

#include "instrument/CKELDData.h"
#include "instrument/FCalibrateLeads.h"
#include "platform/Controls.h"
#include "platform/IForm.h"
#include "tests/support/FailingLanguage.h"
#include "tests/support/VirtualBench.h"

// With a language service that fails, the lead calibration can still be operated and closed.
namespace instrument_test {
namespace {

namespace platform = orvik::platform;
using support::LanguageFault;

class WithoutLanguageTest : public testing::TestWithParam<LanguageFault> {
 protected:
  WithoutLanguageTest() {
    support::FailLanguage(bench_.Host(), GetParam());
    dialog_ = keld::instrument::FCalibrateLeads::Create();
    form_ = orvik::As<orvik::IDialogForm>(dialog_)->Form();
  }
  void Click(const char* button) {
    orvik::Required(orvik::As<platform::IButton>(form_->Find(button))).Click();
  }
  std::string Caption(const char* control) { return orvik::Required(form_->Find(control)).Caption(); }
  /// Shows the window modally; the operator acts immediately.
  void ShowModal(const std::function<void()>& act) {
    bench_.Application().Post(act);
    dialog_->ShowModal(nullptr);
    EXPECT_FALSE(form_->Visible());
  }

  support::VirtualBench bench_;
  std::shared_ptr<keld::instrument::FCalibrateLeads> dialog_;
  std::shared_ptr<platform::IForm> form_;
};

TEST_P(WithoutLanguageTest, SaveStoresTheMeasuredValue) {
  ShowModal([&] {
    Click("cmdCalibrate");
    EXPECT_EQ(Caption("lblStatus"), "20559::Calibration complete.");
    EXPECT_EQ(Caption("cmdSave"), "20555::&Save && Close");
    Click("cmdSave");
  });
  EXPECT_FALSE(dialog_->Cancelled());
  EXPECT_EQ(keld::instrument::CKELDData::Shared()->CalibValue(), 123);
}

TEST_P(WithoutLanguageTest, CancelCrossAndEscapeClose) {
  ShowModal([&] { Click("cmdCancel"); });
  ShowModal([&] { form_->Close(); });
  ShowModal([&] { form_->PressKey(platform::kKeyEscape, 0); });
  EXPECT_TRUE(dialog_->Cancelled());
}

TEST_P(WithoutLanguageTest, CancelDuringMeasurementEndsTheSession) {
  ShowModal([&] {
    bench_.Application().CallAt(bench_.Application().Now() + std::chrono::seconds(5),
                                [&] { Click("cmdCancel"); });
    Click("cmdCalibrate");
  });
  EXPECT_TRUE(dialog_->Cancelled());
  EXPECT_EQ(bench_.Wire().Sent().back(), "EREM");
  EXPECT_FALSE(bench_.Line().Line()->Connected());
}

TEST_P(WithoutLanguageTest, OverloadIsShownAndCannotBeSaved) {
  bench_.Line().AnswerBy([this](const std::string& command) {
    bench_.Line().Reply(command.starts_with("GRES")   ? "gres,410,0,9.99,1,Ohm"
                        : command.starts_with("IREM") ? "irem,KELD(IN),4711,1.05"
                        : command.starts_with("STST") ? "stst"
                                                      : "erem");
  });
  ShowModal([&] {
    Click("cmdCalibrate");
    EXPECT_EQ(Caption("lblValue"), "20343::OL");
    EXPECT_FALSE(form_->Find("cmdSave")->Enabled());
    Click("cmdCancel");
  });
}

INSTANTIATE_TEST_SUITE_P(Language, WithoutLanguageTest,
                         testing::Values(LanguageFault::kRaisesHostError, LanguageFault::kRaisesAnythingElse,
                                         LanguageFault::kIsMissing),
                         [](const auto& tested) { return support::NameOf(tested.param); });

}  // namespace
}  // namespace instrument_test
