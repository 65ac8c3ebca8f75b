#include "tests/contract/checker-plugin/template/AskUndamaged.h"

#include "platform/Controls.h"
#include "platform/IApplication.h"
#include "platform/IForm.h"
#include "tests/contract/checker-plugin/template/CInspection.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {

Answer AskUndamaged(const std::string& title) {
  const auto form = TheHost().Application()->CreateForm(CInspection::kForm);
  form->SetCaption(title);
  form->AddLabel("lblQuestion")->SetCaption(Translated("30002::Is the equipment free of visible damage?"));
  const auto undamaged = form->AddButton(CInspection::kUndamaged);
  const auto damaged = form->AddButton(CInspection::kDamaged);
  undamaged->SetCaption(Translated("30003::&Undamaged"));
  damaged->SetCaption(Translated("30004::&Damaged"));
  // Rows and columns instead of coordinates: longer translations and larger letters still fit.
  form->SetGrid(
      {{{}, {}},
       {{0, 1}, {0, 1}},
       {{"lblQuestion", 0, 0, 1, 2}, {CInspection::kUndamaged, 1, 0}, {CInspection::kDamaged, 1, 1}}});

  auto answer = Answer::kNone;
  const auto take = [&](Answer given) {
    answer = given;
    form->Hide();
  };
  // A subscription lives as long as the object that `Subscribe` returns: keep it.
  const auto onUndamaged = undamaged->Clicked().Subscribe([&] { take(Answer::kUndamaged); });
  const auto onDamaged = damaged->Clicked().Subscribe([&] { take(Answer::kDamaged); });
  form->ShowModal(nullptr);
  form->Unload();
  return answer;
}

}  // namespace check
