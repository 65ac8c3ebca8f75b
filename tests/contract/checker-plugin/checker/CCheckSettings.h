#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IXmlNode.h"

namespace check {

/// Settings of one word, to see what a host does with an element's settings.
class CCheckSettings final : public orvik::IConfigData {
 public:
  static std::shared_ptr<CCheckSettings> Create() {
    return std::shared_ptr<CCheckSettings>(new CCheckSettings);
  }

  std::string word;

 private:
  static constexpr char kWord[] = "Word";

  CCheckSettings() = default;

  std::string IObject_ClassID() const override { return {}; }
  std::shared_ptr<orvik::IConfigData> IConfigData_Clone() const override {
    auto copy = Create();
    copy->word = word;
    return copy;
  }
  std::shared_ptr<orvik::IDialog> IConfigData_CreateDialog() override { return {}; }
  bool IConfigData_HasDialog() const override { return false; }
  void IConfigData_Load(std::shared_ptr<orvik::IXmlNode> node) override { word = node->Attribute(kWord); }
  void IConfigData_Save(std::shared_ptr<orvik::IXmlNode> node) const override {
    node->SetAttribute(kWord, word);
  }
  void IConfigData_PrintReport(std::shared_ptr<orvik::IReport>) const override {}
};

}  // namespace check
