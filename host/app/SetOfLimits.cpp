#include "host/app/SetOfLimits.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/app/InputError.h"
#include "host/app/TextColumns.h"
#include "host/run/ElementText.h"
#include "host/run/ElementWalk.h"
#include "host/services/Tr.h"
#include "host/standards/ElementLimits.h"

namespace bench {

namespace {

std::string Numbered(const orvik::ITestElement& element, const std::string& name) {
  return LeftPadded(std::to_string(element.ID()), 4) + "  " + name;
}

/// Further standards of the same name that judge the element too, such as of another class.
std::string OthersOf(orvik::ILimitData& limits, const LimitSet& set) {
  std::string others;
  const auto standards = limits.Standards();
  for (std::int32_t i = 1; standards && i <= standards->Count(); ++i) {
    const auto standard = standards->item(i);
    if (standard->Name() != set.standard || standard->Description() == set.Description()) continue;
    others += (others.empty() ? "\"" : ", \"") + standard->Description() + "\"";
  }
  return others;
}

std::string Applied(const orvik::ITestElement& element, const std::string& name, const LimitSet& set,
                    const LimitFigure& figure) {
  const auto limits = element.Limits();
  if (!limits) throw InputError(Tr("element %%1 takes no limits", {std::to_string(element.ID())}));
  try {
    const auto limit =
        SetLimit(*limits, {set.standard, set.Description(), figure.low, figure.high, figure.unit});
    auto line =
        Numbered(element, Padded(name, 54)) + BoundsText(limit->LowText(), limit->HighText(), limit->Unit());
    if (const auto others = OthersOf(*limits, set); !others.empty())
      line += Tr("; judged by %%1 too", {others});
    return line;
  } catch (const orvik::HostError& error) {
    throw InputError(Tr("%%1: element %%2 (%%3): %%4",
                        {set.file.string(), std::to_string(element.ID()), name, error.Description()}));
  }
}

std::string Unknown(const orvik::ITestElement& element, const std::string& name) {
  const auto limits = element.Limits();
  const auto standards = limits ? limits->Standards() : nullptr;
  if (standards && standards->Count() > 0) return Numbered(element, name);
  return Numbered(element, Padded(name, 54)) + Tr("no limit: whatever it reads passes");
}

}  // namespace

std::string BoundsText(const std::string& low, const std::string& high, const std::string& unit) {
  std::string text;
  if (!low.empty() && !high.empty())
    text = Tr("at least %%1 at most %%2", {low, high});
  else
    text = low.empty() ? Tr("at most %%1", {high}) : Tr("at least %%1", {low});
  return unit.empty() ? text : text + " " + unit;
}

AppliedLimits ApplyLimitSet(const LimitSet& set,
                            const std::vector<std::shared_ptr<orvik::ITestElement>>& elements,
                            const ElementFactory& factory) {
  AppliedLimits told;
  const auto apply = [&](const std::shared_ptr<orvik::ITestElement>& element) {
    const auto name = ElementName(*element, factory);
    if (const auto* figure = set.FigureFor(element->TestID()))
      told.applied.push_back(Applied(*element, name, set, *figure));
    else if (!orvik::As<orvik::ITestContainer>(element))
      told.unknown.push_back(Unknown(*element, name));
  };
  for (const auto& top : elements) WalkElements(top, apply);
  return told;
}

}  // namespace bench
