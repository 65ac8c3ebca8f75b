#pragma once

#include <functional>
#include <string>
#include <vector>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/ICallBack.h"
#include "OrvikTypeLib/IReport.h"

/// The host's side of some interfaces, which notes down what it is told.
namespace recorders {

class CallBack final : public virtual orvik::ICallBack {
 public:
  std::vector<std::string> notices;
  std::function<void()> onNotify;

 private:
  void ICallBack_Notify(const std::string& sText) override {
    notices.push_back(sText);
    if (onNotify) onNotify();
  }
};

class Report final : public virtual orvik::IReport {
 public:
  std::vector<std::string> calls;
  std::int32_t width = 9638;
  bool knowsMetrics = true;

 private:
  std::int32_t IReport_Metric(std::int32_t lNumber) const override {
    if (!knowsMetrics || lNumber != 10) throw orvik::HostError(5, "report", "no such metric");
    return width;
  }
  void IReport_SetTableBorder(std::int32_t lStyle) override {
    calls.push_back("border " + std::to_string(lStyle));
  }
  void IReport_SetTableIndent(std::int32_t lTwips) override {
    calls.push_back("indent " + std::to_string(lTwips));
  }
  void IReport_SetHeaderRows(std::int32_t lRows) override {
    calls.push_back("rows " + std::to_string(lRows));
  }
  void IReport_AddTable(const std::string& sFormat, const std::string& sHeader,
                        const std::string& sRows) override {
    calls.insert(calls.end(), {sFormat, sHeader, sRows});
  }
  std::string IReport_Escape(const std::string& sText) const override { return "[" + sText + "]"; }
};

}  // namespace recorders
