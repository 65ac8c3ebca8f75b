#pragma once

#include "OrvikTypeLib/IPersistence.h"

namespace host::xml {

/// Value and status nodes: the text, or the code, is the text of the node.
class Persistence final : public orvik::IPersistence {
 private:
  std::shared_ptr<orvik::IXmlNode> IPersistence_WriteValue(std::shared_ptr<orvik::IXmlNode> Parent,
                                                           const std::string& sText) override;
  std::string IPersistence_ReadValue(std::shared_ptr<orvik::IXmlNode> Node) const override;
  std::shared_ptr<orvik::IXmlNode> IPersistence_WriteStatus(std::shared_ptr<orvik::IXmlNode> Parent,
                                                            const std::string& sName,
                                                            std::int32_t lStatus) override;
  std::int32_t IPersistence_ReadStatus(std::shared_ptr<orvik::IXmlNode> Node) const override;
};

}  // namespace host::xml
