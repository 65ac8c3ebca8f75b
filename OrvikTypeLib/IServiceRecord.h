#pragma once

#include <memory>
#include <string>
#include <utility>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

class IInformationRecord;
class IXmlNode;

/// The host's summary of one result (class "OrvikTypeLib.ServiceRecord").
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IServiceRecord : public virtual IObject {
 public:
  /// Fills the record: the element's information record, a `ServiceCode`, and value text.
  void Initialize(std::shared_ptr<IInformationRecord> Information, const std::string& sCode,
                  const std::string& sValue) {
    IServiceRecord_Initialize(std::move(Information), sCode, sValue);
  }
  /// The display name that the information record had.
  std::string Name() const { return IServiceRecord_Name(); }
  /// A `ServiceCode`.
  std::string Code() const { return IServiceRecord_Code(); }
  /// The value text.
  std::string Value() const { return IServiceRecord_Value(); }
  /// Reads the record from a "ServiceRecord" node.
  void Load(std::shared_ptr<IXmlNode> Node, std::shared_ptr<IObject> Context) {
    IServiceRecord_Load(std::move(Node), std::move(Context));
  }
  /// Adds a "ServiceRecord" node to the parent and returns it.
  std::shared_ptr<IXmlNode> Save(std::shared_ptr<IXmlNode> Parent) const {
    return IServiceRecord_Save(std::move(Parent));
  }

 private:
  virtual void IServiceRecord_Initialize(std::shared_ptr<IInformationRecord> Information,
                                         const std::string& sCode, const std::string& sValue) = 0;
  virtual std::string IServiceRecord_Name() const = 0;
  virtual std::string IServiceRecord_Code() const = 0;
  virtual std::string IServiceRecord_Value() const = 0;
  virtual void IServiceRecord_Load(std::shared_ptr<IXmlNode> Node, std::shared_ptr<IObject> Context) = 0;
  virtual std::shared_ptr<IXmlNode> IServiceRecord_Save(std::shared_ptr<IXmlNode> Parent) const = 0;
};

}  // namespace orvik
