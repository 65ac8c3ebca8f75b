#include "host/app/StoredLeadsView.h"

#include "host/app/TextColumns.h"
#include "host/report/VisibleText.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

using Json = nlohmann::ordered_json;
using report::VisibleText;

/// What is wrong with a value, as programs read it; null when nothing is.
Json ProblemOf(const LeadCalibration& leads) {
  if (leads.Plausible()) return nullptr;
  if (!leads.milliohms) return "not-a-number";
  return *leads.milliohms < 0 ? "negative" : "too-high";
}

/// The value and its date, as fields of a tester.
void AddTo(Json& tester, const LeadCalibration& leads) {
  tester["serial"] = leads.serial;
  tester["calibration"] = leads.milliohms ? Json(*leads.milliohms) : Json(nullptr);
  tester["measured"] = leads.measured ? Json(*leads.measured) : Json(nullptr);
}

}  // namespace

std::string LeadsRemark(const LeadCalibration& leads) {
  if (leads.Plausible()) return {};
  if (!leads.milliohms)
    return Tr("the stored value is not a number and counts as 0; measure the leads of this tester again");
  if (*leads.milliohms < 0)
    return Tr("below 0: protective-earth readings become too high; measure the leads of this tester again");
  return Tr(
      "above %%1 mOhm: more than test leads have, so protective-earth readings become too low; measure the "
      "leads of this tester again",
      {std::to_string(kMostLeadMilliohms)});
}

std::string TextOf(const std::vector<LeadCalibration>& stored) {
  if (stored.empty())
    return Tr("No test leads have been measured yet; \"orvik-bench calibrate --port DEVICE\" measures those "
              "of a tester.") +
           "\n";
  constexpr std::size_t kNumbers = 1;
  std::vector<std::vector<std::string>> lines{{Tr("Serial number"), "mOhm"}};
  for (const auto& leads : stored)
    lines.push_back({VisibleText(leads.serial), leads.milliohms ? std::to_string(*leads.milliohms) : "-",
                     MeasuredText(leads.measured), LeadsRemark(leads)});
  return Columned(lines, {kNumbers});
}

Json JsonOf(const std::vector<LeadCalibration>& stored) {
  auto testers = Json::array();
  for (const auto& leads : stored) {
    Json tester;
    AddTo(tester, leads);
    tester["problem"] = ProblemOf(leads);
    testers.push_back(std::move(tester));
  }
  return Json{{"instruments", std::move(testers)}};
}

std::string TextOf(const LeadCalibration& stored) {
  return Tr("The test leads of tester %%1 have %%2 mOhm, %%3.",
            {VisibleText(stored.serial), std::to_string(stored.milliohms.value_or(0)),
             MeasuredText(stored.measured)});
}

Json JsonOf(const LeadCalibration& stored, const std::string& type) {
  Json tester;
  tester["type"] = type;
  AddTo(tester, stored);
  return Json{{"instrument", std::move(tester)}};
}

}  // namespace bench
