#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

class IXmlNode;

/// Reads and writes value and status nodes of saved records (class "OrvikTypeLib.Persistence").
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IPersistence : public virtual IObject {
 public:
  /// Adds the child "Value" with the text and returns it.
  std::shared_ptr<IXmlNode> WriteValue(std::shared_ptr<IXmlNode> Parent, const std::string& sText) {
    return IPersistence_WriteValue(std::move(Parent), sText);
  }
  /// The text of a "Value" node; `HostError` when it is empty: a missing value is not 0.
  std::string ReadValue(std::shared_ptr<IXmlNode> Node) const {
    return IPersistence_ReadValue(std::move(Node));
  }
  /// Adds the child "Status" with the code (an empty name adds no "Name" attribute) and returns it.
  std::shared_ptr<IXmlNode> WriteStatus(std::shared_ptr<IXmlNode> Parent, const std::string& sName,
                                        std::int32_t lStatus) {
    return IPersistence_WriteStatus(std::move(Parent), sName, lStatus);
  }
  /// The code in a "Status" node; `HostError` when it does not hold a number.
  std::int32_t ReadStatus(std::shared_ptr<IXmlNode> Node) const {
    return IPersistence_ReadStatus(std::move(Node));
  }

 private:
  virtual std::shared_ptr<IXmlNode> IPersistence_WriteValue(std::shared_ptr<IXmlNode> Parent,
                                                            const std::string& sText) = 0;
  virtual std::string IPersistence_ReadValue(std::shared_ptr<IXmlNode> Node) const = 0;
  virtual std::shared_ptr<IXmlNode> IPersistence_WriteStatus(std::shared_ptr<IXmlNode> Parent,
                                                             const std::string& sName,
                                                             std::int32_t lStatus) = 0;
  virtual std::int32_t IPersistence_ReadStatus(std::shared_ptr<IXmlNode> Node) const = 0;
};

}  // namespace orvik
