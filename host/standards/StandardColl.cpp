#include "host/standards/StandardColl.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/IReport.h"
#include "host/base/Tr.h"
#include "host/standards/Standard.h"
#include "host/xml/XmlNode.h"

namespace host::standards {
namespace {

using orvik::HostError;

constexpr char kCollectionSource[] = "OrvikTypeLib.StandardColl";
constexpr char kStandards[] = "Standards";
constexpr char kStandard[] = "Standard";

/// Columns of printed limits: margin, standard, low, high, unit, margin; widths in twips.
constexpr std::int32_t kMargin = 560;
constexpr std::int32_t kUsableWidth = 10;

std::string Format(const orvik::IReport& report) {
  const auto inner = report.Metric(kUsableWidth) - 2 * kMargin;
  const auto name = std::to_string(inner / 2);
  const auto bound = std::to_string(inner / 6);
  const auto margin = std::to_string(kMargin);
  return "<+" + margin + "|<+" + name + "|>+" + bound + "|>+" + bound + "|^+" + bound + "|<+" + margin + ";";
}

std::string Row(const orvik::IReport& report, const orvik::IStandard& standard, const orvik::ILimit& limit) {
  auto name = standard.Name();
  if (!standard.Description().empty()) name += " (" + standard.Description() + ")";
  std::string row;
  for (const auto& text : {name, limit.LowText(), limit.HighText(), limit.Unit()})
    row += "|" + report.Escape(text);
  return row + ";";
}

}  // namespace

std::shared_ptr<orvik::IStandard> StandardColl::IStandardColl_item(std::int32_t lIndex) const {
  if (lIndex < 1 || static_cast<std::size_t>(lIndex) > standards_.size())
    throw HostError(HostError::kSubscriptOutOfRange, kCollectionSource,
                    Tr("standard %%1 is out of range (1 to %%2)",
                       {std::to_string(lIndex), std::to_string(standards_.size())}));
  return standards_[static_cast<std::size_t>(lIndex) - 1];
}

void StandardColl::IStandardColl_Add(std::shared_ptr<orvik::IStandard> Standard) {
  auto standard = orvik::As<standards::Standard>(Standard);
  if (!standard)
    throw HostError(HostError::kTypeMismatch, kCollectionSource,
                    Tr("only a standard of the class \"OrvikTypeLib.Standard\" can be added"));
  standards_.push_back(std::move(standard));
}

void StandardColl::IStandardColl_Remove(std::shared_ptr<orvik::IStandard> Standard) {
  std::erase(standards_, orvik::As<standards::Standard>(Standard));
}

std::shared_ptr<orvik::IStandard> StandardColl::IStandardColl_Find(const std::string& sName,
                                                                   const std::string& sDescription) const {
  for (const auto& standard : standards_) {
    if (standard->Name() == sName && standard->Description() == sDescription) return standard;
  }
  return nullptr;
}

std::shared_ptr<orvik::IStandardColl> StandardColl::IStandardColl_Clone() const {
  auto copy = std::make_shared<StandardColl>(language_);
  for (const auto& standard : standards_) copy->standards_.push_back(standard->Copy());
  copy->leftovers_ = leftovers_;
  return copy;
}

void StandardColl::IStandardColl_Load(std::shared_ptr<orvik::IXmlNode> Node, std::shared_ptr<IObject>) {
  const auto node = xml::XmlNode::Of(Node).Raw();
  leftovers_.TakeAttributes(node, {});
  for (auto child = node.first_child(); child; child = child.next_sibling()) {
    if (xml::IsElement(child, kStandard)) {
      const auto standard = std::make_shared<standards::Standard>();
      standard->Load(child);
      standards_.push_back(standard);
    } else {
      leftovers_.Add(child);
    }
  }
}

std::shared_ptr<orvik::IXmlNode> StandardColl::IStandardColl_Save(
    std::shared_ptr<orvik::IXmlNode> Parent) const {
  auto saved = orvik::Required(Parent).AddChild(kStandards);
  const auto node = xml::XmlNode::Of(saved).Raw();
  for (const auto& standard : standards_) standard->Save(node);
  leftovers_.Restore(node);
  return saved;
}

void StandardColl::IStandardColl_Print(std::shared_ptr<orvik::IReport> Report, std::shared_ptr<IObject>,
                                       const std::vector<std::string>& asHeader) const {
  auto& report = orvik::Required(Report);
  if (asHeader.size() < 3)
    throw HostError(HostError::kSubscriptOutOfRange, kCollectionSource,
                    Tr("the header of printed limits is a key, a heading and a number"));
  std::string rows;
  for (const auto& standard : standards_) {
    for (std::int32_t index = 1; index <= standard->LimitCount(); ++index) {
      const auto limit = standard->Limit(index);
      if (limit->Key() == asHeader[0]) rows += Row(report, *standard, *limit);
    }
  }
  if (rows.empty()) return;
  std::string header = "|{\\i\\b " + report.Escape(asHeader[1]) + "}";
  for (const auto* text : {"322::Low value", "321::High value", "234::Unit"})
    header += "|{\\i\\b " + report.Escape(language_->Translate(text, "orvik", {})) + "}";
  report.SetTableBorder(7);
  report.SetTableIndent(0);
  report.SetHeaderRows(1);
  report.AddTable(Format(report), header + ";", rows);
}

}  // namespace host::standards
