#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IDialogForm.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IResultData.h"
#include "tests/contract/conformance/Asked.h"

namespace conformance {
namespace {

TEST_F(KeldPlugInLoaded, DialogsRaiseNoError) {
  const auto element = library_.NewTest(410);
  const auto result = library_.New<orvik::IResultData>("orvikKELD.CKELDResultData");
  const auto host = library_.Application().CreateForm("FHost");
  host->Show();
  for (const auto& dialog :
       {element->Configuration()->CreateDialog(), library_.NewTest(400)->Configuration()->CreateDialog(),
        element->Limits()->CreateDialog(), result->CreateDialog(),
        library_.New<orvik::IDialog>("orvikKELD.FElementSetup")}) {
    ASSERT_TRUE(orvik::As<orvik::IDialogForm>(dialog));
    EXPECT_NO_THROW({
      dialog->Initialize(nullptr, {}, std::int32_t{1}, "text");
      dialog->Initialize(dialog, 2.5, {}, std::vector<std::string>{"list"});
      dialog->SetCallBack(nullptr);
      dialog->CallBack();
      dialog->SetLocked(true);
      dialog->Locked();
      dialog->SetLocked(false);
      dialog->Dock(0);
      EXPECT_FALSE(dialog->IsDocked());
      dialog->UnDock();
      dialog->Dock(987'654'321);
      dialog->Show();
      dialog->Hide();
      dialog->Move(-1, 2'147'483'647, 0, -5);
      dialog->Refresh();
      dialog->SetFocus();
      dialog->Dock(host->Handle());
      dialog->Dock(host->Handle());
      dialog->Unload();
      dialog->Unload();
      dialog->UnDock();
      dialog->Refresh();
      dialog->SetFocus();
      dialog->Show();
    });
  }
  host->Unload();
  EXPECT_TRUE(library_.Application().Forms().empty());
}

}  // namespace
}  // namespace conformance
