#include <limits>

#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/IReport.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

constexpr char kKey[] = "key";

std::shared_ptr<orvik::ILimit> NewLimit(const std::string& low, const std::string& high,
                                        const std::string& key = kKey) {
  auto limit = NewHostObject<orvik::ILimit>(orvik::HostClasses::kLimit);
  limit->Initialize(key, "V", low, high);
  return limit;
}

std::shared_ptr<orvik::IStandard> NewStandard(const std::string& name,
                                              const std::shared_ptr<orvik::ILimit>& limit) {
  auto standard = NewHostObject<orvik::IStandard>(orvik::HostClasses::kStandard);
  standard->Initialize(name, "class I", 1);
  if (limit) standard->AddLimit(limit);
  return standard;
}

std::shared_ptr<orvik::IStandardColl> NewCollection() {
  return NewHostObject<orvik::IStandardColl>(orvik::HostClasses::kStandardColl);
}

void Bounds(Findings& findings) {
  const auto limit = NewLimit("1.5", "20");
  findings.Equal(kKey, limit->Key(), "key of a limit");
  findings.Equal("V", limit->Unit(), "unit of a limit");
  findings.Equal("1.5", limit->LowText(), "lower bound as entered");
  findings.Equal("20", limit->HighText(), "upper bound as entered");
  findings.Expect(limit->LowBound() == 1.5 && limit->HighBound() == 20,
                  "bounds are numbers in the limit's unit");
  for (const auto& [low, high] : {std::pair{"abc", ""},
                                  {"", "1x"},
                                  {"2", "1"},
                                  {"nan", ""},
                                  {"", "inf"},
                                  {"1,5", ""},
                                  {"90%", "110%"},
                                  {"%", ""}}) {
    findings.Refused(std::string("the bounds \"") + low + "\" and \"" + high + "\"",
                     [&, low = low, high = high] { limit->SetBounds(low, high); });
    findings.Equal("1.5", limit->LowText(), "lower bound after refused bounds");
    findings.Equal("20", limit->HighText(), "upper bound after refused bounds");
  }
  limit->SetBounds("", "");
  findings.Expect(!limit->LowBound() && !limit->HighBound(), "an empty bound is not set");
  findings.Expect(orvik::IsEmpty(limit->Nominal()), "a new limit has no nominal value");
  limit->SetNominal(200.0);
  findings.Expect(limit->Nominal() == orvik::Variant(200.0), "a nominal value that was set is returned");
  limit->SetBounds("90%", "110%");
  findings.Expect(limit->LowBound() == 180 && limit->HighBound() == 220,
                  "percentages refer to the nominal value");
}

void Verdicts(Findings& findings) {
  const auto standard = NewStandard("S", NewLimit("1", "5"));
  const auto verdict = [&](float value, std::int32_t expected, const std::string& what) {
    findings.Equal(expected, standard->Evaluate(value, kKey, {}), "verdict on a value " + what);
  };
  verdict(3, 1, "between the bounds");
  verdict(1, 1, "on the lower bound");
  verdict(5, 1, "on the upper bound");
  verdict(0.999F, 2, "below the lower bound");
  verdict(5.001F, 2, "above the upper bound");
  verdict(std::numeric_limits<float>::infinity(), 2, "without end");
  verdict(-std::numeric_limits<float>::infinity(), 2, "without beginning");
  findings.Expect(standard->Evaluate(std::numeric_limits<float>::quiet_NaN(), kKey, {}) != 1,
                  "what is not a number never passes");
  findings.Equal(0, standard->Evaluate(3, "another key", {}), "verdict under a key without limits");
  findings.Equal(0, NewStandard("S", nullptr)->Evaluate(3, kKey, {}), "verdict without limits");
  findings.Equal(0, NewStandard("S", NewLimit("", ""))->Evaluate(3, kKey, {}), "verdict without bounds");

  standard->AddLimit(NewLimit("", "2"));
  findings.Equal(2, standard->LimitCount(), "limits of a standard");
  findings.Equal(2, standard->Evaluate(3, kKey, {}), "verdict when one of two limits is broken");
  for (const std::int32_t index : {0, 3, -1})
    findings.Refused(
        "limit number " + std::to_string(index), [&] { standard->Limit(index); },
        orvik::HostError::kSubscriptOutOfRange);
  findings.Refused("an empty limit", [&] { standard->AddLimit(nullptr); });
}

void Collections(Findings& findings) {
  const auto all = NewCollection();
  const auto first = NewStandard("IEC 62353", NewLimit("", "5"));
  all->Add(first);
  all->Add(NewStandard("IEC 60601", NewLimit("1", "")));
  findings.Equal(2, all->Count(), "standards");
  findings.Equal("IEC 60601", all->item(2)->Name(), "name of the second standard");
  findings.Equal("class I", all->item(1)->Description(), "description of a standard");
  findings.Expect(all->Find("IEC 62353", "class I") == first, "a standard is found by both its strings");
  findings.Expect(!all->Find("IEC 62353", "") && !all->Find("", "class I"), "one string alone finds nothing");
  for (const std::int32_t index : {0, 3, -1})
    findings.Refused(
        "standard number " + std::to_string(index), [&] { all->item(index); },
        orvik::HostError::kSubscriptOutOfRange);

  const auto copy = all->Clone();
  copy->item(1)->Limit(1)->SetBounds("", "7");
  copy->Remove(copy->item(2));
  findings.Equal("5", first->Limit(1)->HighText(), "bound of a standard whose clone was changed");
  findings.Equal(2, all->Count(), "standards of a collection whose clone was changed");
  all->Remove(NewStandard("IEC 62353", nullptr));
  all->Remove(nullptr);
  findings.Equal(2, all->Count(), "standards after removing others");
  findings.Refused("an empty standard", [&] { all->Add(nullptr); });
  findings.Refused("printing into an empty report", [&] {
    all->Print(nullptr, nullptr, {kKey, "Limits", "0"});
  });
}

void Storage(Findings& findings) {
  const auto root =
      NewHostObject<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument)->CreateRoot("Checked");
  const auto all = NewCollection();
  all->Add(NewStandard("IEC <62353> & \"more\"", NewLimit("1", "5.25")));
  const auto node = all->Save(root);
  findings.Expect(node != nullptr, "saving returns the node");
  node->SetName("ExpectedResult");
  const auto loaded = NewCollection();
  loaded->Load(root->FindChild("ExpectedResult"), nullptr);
  findings.Equal(1, loaded->Count(), "standards loaded");
  const auto standard = loaded->item(1);
  findings.Equal("IEC <62353> & \"more\"", standard->Name(), "name of a loaded standard");
  findings.Equal("class I", standard->Description(), "description of a loaded standard");
  findings.Equal(1, standard->Number(), "number of a loaded standard");
  const auto limit = standard->Limit(1);
  findings.Equal(kKey, limit->Key(), "key of a loaded limit");
  findings.Equal("V", limit->Unit(), "unit of a loaded limit");
  findings.Equal("1", limit->LowText(), "lower bound of a loaded limit");
  findings.Equal("5.25", limit->HighText(), "upper bound of a loaded limit");
  findings.Refused("loading from an empty node", [&] { loaded->Load(nullptr, nullptr); });
  findings.Refused("saving below an empty node", [&] { loaded->Save(nullptr); });
}

}  // namespace

void CheckStandards(Findings& findings, const HostParts&) {
  RunSteps(findings, {{"bounds", Bounds},
                      {"verdicts", Verdicts},
                      {"collections", Collections},
                      {"saving and loading", Storage}});
}

}  // namespace check
