#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/IXmlNode.h"

namespace results {

/// A host's service record that records its calls.
class ServiceRecordProbe final : public virtual orvik::IServiceRecord {
 public:
  std::shared_ptr<orvik::IInformationRecord> about;
  std::vector<std::string> given;
  std::shared_ptr<orvik::IXmlNode> loadedFrom;
  std::shared_ptr<orvik::IObject> loadedIn;
  /// Where it saves itself; empty: below the parent it is given.
  std::shared_ptr<orvik::IXmlNode> saveBelow;

 private:
  void IServiceRecord_Initialize(std::shared_ptr<orvik::IInformationRecord> information,
                                 const std::string& code, const std::string& value) override {
    about = std::move(information);
    given = {code, value};
  }
  std::string IServiceRecord_Name() const override { return {}; }
  std::string IServiceRecord_Code() const override { return given.empty() ? "" : given[0]; }
  std::string IServiceRecord_Value() const override { return given.empty() ? "" : given[1]; }
  void IServiceRecord_Load(std::shared_ptr<orvik::IXmlNode> node,
                           std::shared_ptr<orvik::IObject> context) override {
    loadedFrom = std::move(node);
    loadedIn = std::move(context);
  }
  std::shared_ptr<orvik::IXmlNode> IServiceRecord_Save(
      std::shared_ptr<orvik::IXmlNode> parent) const override {
    return (saveBelow ? saveBelow : parent)->AddChild("ServiceRecord");
  }
};

}  // namespace results
