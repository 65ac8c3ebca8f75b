#include "host/bench/SetOfLimits.h"

#include <algorithm>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/bench/InputError.h"
#include "host/bench/RecordOnlyMark.h"
#include "host/document/ElementText.h"
#include "host/document/ElementWalk.h"
#include "host/standards/ElementLimits.h"

namespace host::bench {

namespace {

using Element = std::shared_ptr<orvik::ITestElement>;

/// Applies one set to elements of a document.
class Application {
 public:
  Application(const standards::LimitSet& set, const elements::ElementFactory& factory, EarlierSets earlier)
      : set_(set), description_(set.Description()), factory_(factory), earlier_(earlier) {}

  std::string Apply(const Element& element, const standards::LimitFigure& figure) const {
    const auto limits = element->Limits();
    if (!limits) throw InputError(Tr("element %%1 takes no limits", {std::to_string(element->ID())}));
    const auto replaced = RemoveEarlier(*limits);
    auto line = Line(element, BoundsOf(element, *limits, figure));
    if (IsRecordOnly(element, factory_)) {
      MarkRecordOnly(element, factory_, false);
      line += Tr("; no longer record-only");
    }
    for (const auto& limit : replaced) line += Tr("; replaces %%1", {TextOf(limit)});
    for (const auto& other : standards::LimitsOf(*limits)) {
      if (other.standard == set_.standard && other.description != description_)
        line += Tr("; judged by %%1 too", {TextOf(other)});
    }
    return line;
  }

  std::string Skip(const Element& element) const {
    const auto limits = element->Limits();
    std::string remark;
    if (limits) {
      for (const auto& limit : RemoveEarlier(*limits)) remark += Tr("removed: %%1", {TextOf(limit)}) + "; ";
    }
    if (IsRecordOnly(element, factory_)) return Line(element, remark + Tr("record only"));
    const auto left = limits ? standards::LimitsOf(*limits) : std::vector<standards::LimitOfElement>();
    if (left.empty()) return Line(element, remark + NeedsALimit());
    return Line(element, remark + Tr("judged by %%1", {TextOf(left.front())}));
  }

 private:
  std::vector<standards::LimitOfElement> RemoveEarlier(orvik::ILimitData& limits) const {
    if (earlier_ == EarlierSets::kKept) return {};
    return standards::RemoveStandards(limits, [this](const orvik::IStandard& standard) {
      return standard.Name() == set_.standard && !standard.Description().empty() &&
             standard.Description() != description_;
    });
  }

  std::string BoundsOf(const Element& element, orvik::ILimitData& limits,
                       const standards::LimitFigure& figure) const {
    try {
      const auto limit =
          standards::SetLimit(limits, {set_.standard, description_, figure.low, figure.high, figure.unit});
      return BoundsText(limit->LowText(), limit->HighText(), limit->Unit());
    } catch (const orvik::HostError& error) {
      throw InputError(Tr("%%1: element %%2 (%%3): %%4",
                          {set_.file.string(), std::to_string(element->ID()),
                           document::ElementName(*element, factory_), error.Description()}));
    }
  }

  std::string Line(const Element& element, const std::string& what) const {
    return LeftPadded(std::to_string(element->ID()), 4) + "  " +
           Padded(host::VisibleText(document::ElementName(*element, factory_)), 54) + what;
  }

  const standards::LimitSet& set_;
  const std::string description_;
  const elements::ElementFactory& factory_;
  const EarlierSets earlier_;
};

}  // namespace

AppliedLimits ApplyLimitSet(const standards::LimitSet& set, const std::vector<Element>& elements,
                            const elements::ElementFactory& factory, EarlierSets earlier) {
  std::vector<Element> all;
  for (const auto& top : elements)
    document::WalkElements(top, [&](const Element& element) { all.push_back(element); });
  AppliedLimits lines;
  if (std::none_of(all.begin(), all.end(),
                   [&](const Element& element) { return set.FigureFor(element->TestID()) != nullptr; }))
    return lines;
  const Application application(set, factory, earlier);
  for (const auto& element : all) {
    if (const auto* figure = set.FigureFor(element->TestID()))
      lines.applied.push_back(application.Apply(element, *figure));
    else if (!orvik::As<orvik::ITestContainer>(element))
      lines.uncovered.push_back(application.Skip(element));
  }
  return lines;
}

}  // namespace host::bench
