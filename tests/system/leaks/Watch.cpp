#include "tests/system/leaks/Watch.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "instrument/CKELDInstrument.h"
#include "model/CKELDElement.h"
#include "platform/Controls.h"
#include "platform/IContainerSite.h"
#include "platform/IUserControl.h"
#include "ui/FTestGuide.h"
#include "ui/FYesNoPrompt.h"

namespace leaks {
namespace {

/// What an element owns during a run; only its own classes have access.
class Inside : public keld::model::CKELDElement {
 public:
  static std::shared_ptr<keld::instrument::CKELDInstrument> LinkOf(const keld::model::CKELDElement& element) {
    return (element.*&Inside::Link)();
  }
  static std::shared_ptr<keld::ui::FTestGuide> GuideOf(const keld::model::CKELDElement& element) {
    return (element.*&Inside::TestGuide)();
  }
};

}  // namespace

void Watch::SeeElement(const std::shared_ptr<orvik::ITestElement>& element) {
  if (!element) return;
  See("element", element);
  See("information", element->Information());
  See("configuration", element->Configuration());
  if (const auto limits = element->Limits()) {
    See("limit data", limits);
    const auto standards = limits->Standards();
    See("standards", standards);
    for (std::int32_t index = 1; standards && index <= standards->Count(); ++index) {
      const auto standard = standards->item(index);
      See("standard", standard);
      for (std::int32_t limit = 1; limit <= standard->LimitCount(); ++limit)
        See("limit", standard->Limit(limit));
    }
  }
  if (const auto result = element->Result()) {
    See("result", result);
    See("measurement", result->Measurement(1));
    See("service record", result->ServiceRecord());
  }
  SeeRun(element);
  const auto children = orvik::As<orvik::ITestContainer>(element);
  for (std::int32_t index = 1; children && index <= children->Count(); ++index)
    SeeElement(children->item(index));
}

void Watch::SeeRun(const std::shared_ptr<orvik::ITestElement>& element) {
  const auto own = orvik::As<keld::model::CKELDElement>(element);
  if (!own) return;
  See("base element", own->BaseElement());
  See("link", Inside::LinkOf(*own));
  See("guide", Inside::GuideOf(*own));
}

void Watch::SeeWindows(const orvik::platform::IApplication& application) {
  for (const auto& form : application.Forms()) SeeWindow(form);
}

void Watch::SeeWindow(const std::shared_ptr<orvik::platform::IForm>& form) {
  See("window " + form->Name(), form);
  SeePanel(form);
}

void Watch::SeePanel(const std::shared_ptr<orvik::platform::IPanel>& panel) {
  if (!panel) return;
  for (const auto& control : panel->Controls()) {
    See("control " + control->Name(), control);
    if (const auto site = orvik::As<orvik::platform::IContainerSite>(control)) {
      See("user control " + control->Name(), site->Object());
      See("inside of " + control->Name(), site->Panel());
      SeePanel(site->Panel());
    }
    if (const auto tabs = orvik::As<orvik::platform::ITabs>(control)) {
      for (const auto& key : tabs->Keys()) {
        See("page " + key, tabs->Page(key));
        SeePanel(tabs->Page(key));
      }
    }
  }
}

std::vector<std::string> Watch::Alive() const {
  std::vector<std::string> alive;
  for (const auto& [address, seen] : seen_) {
    if (!seen.watched.expired()) alive.push_back(seen.kind);
  }
  return alive;
}

std::set<std::string> Watch::Kinds() const {
  auto kinds = gone_;
  for (const auto& [address, seen] : seen_) kinds.insert(seen.kind);
  return kinds;
}

}  // namespace leaks
