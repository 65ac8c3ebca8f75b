#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/IXmlNode.h"

namespace results {

/// Stands in for the host's service record, to hear what it is given.
class ServiceRecordProbe final : public virtual orvik::IServiceRecord {
 public:
  std::shared_ptr<orvik::IInformationRecord> about;
  std::vector<std::string> told;
  std::shared_ptr<orvik::IXmlNode> loadedFrom;
  std::shared_ptr<orvik::IObject> loadedIn;
  /// Where it saves itself; empty: below the parent it is given.
  std::shared_ptr<orvik::IXmlNode> saveBelow;

 private:
  void IServiceRecord_Initialize(std::shared_ptr<orvik::IInformationRecord> information,
                                 const std::string& code, const std::string& value) override {
    about = std::move(information);
    told = {code, value};
  }
  std::string IServiceRecord_Name() const override { return {}; }
  std::string IServiceRecord_Code() const override { return told.empty() ? "" : told[0]; }
  std::string IServiceRecord_Value() const override { return told.empty() ? "" : told[1]; }
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
