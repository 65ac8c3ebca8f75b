#pragma once

#include <memory>
#include <vector>

#include "OrvikTypeLib/ILanguageService.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "host/xml/UnknownXml.h"

namespace host::standards {

class Standard;

/// Standards in order, saved as the node "Standards" with one "Standard" node each.
class StandardColl final : public orvik::IStandardColl {
 public:
  /// @param language translates the headings of printed limits
  explicit StandardColl(std::shared_ptr<orvik::ILanguageService> language) : language_(std::move(language)) {}

 private:
  std::int32_t IStandardColl_Count() const override { return static_cast<std::int32_t>(standards_.size()); }
  std::shared_ptr<orvik::IStandard> IStandardColl_item(std::int32_t lIndex) const override;
  void IStandardColl_Add(std::shared_ptr<orvik::IStandard> Standard) override;
  void IStandardColl_Remove(std::shared_ptr<orvik::IStandard> Standard) override;
  std::shared_ptr<orvik::IStandard> IStandardColl_Find(const std::string& sName,
                                                       const std::string& sDescription) const override;
  std::shared_ptr<orvik::IStandardColl> IStandardColl_Clone() const override;
  void IStandardColl_Load(std::shared_ptr<orvik::IXmlNode> Node, std::shared_ptr<IObject> Context) override;
  std::shared_ptr<orvik::IXmlNode> IStandardColl_Save(std::shared_ptr<orvik::IXmlNode> Parent) const override;
  void IStandardColl_Print(std::shared_ptr<orvik::IReport> Report, std::shared_ptr<IObject> Printed,
                           const std::vector<std::string>& asHeader) const override;

  std::shared_ptr<orvik::ILanguageService> language_;
  std::vector<std::shared_ptr<standards::Standard>> standards_;
  xml::UnknownXml leftovers_;
};

}  // namespace host::standards
