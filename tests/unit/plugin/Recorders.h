#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/ICallBack.h"
#include "OrvikTypeLib/ILanguageService.h"
#include "OrvikTypeLib/IReport.h"
#include "platform/IPanel.h"

/// Host interfaces that record their calls.
namespace recorders {

/// The number of the error that the step raises; 0 if none.
inline std::int32_t ErrorOf(const std::function<void()>& step) {
  try {
    step();
  } catch (const orvik::HostError& error) {
    return error.Number();
  }
  return 0;
}

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
  bool fails = false;  ///< all settings fail

 private:
  std::int32_t IReport_Metric(std::int32_t lNumber) const override {
    if (!knowsMetrics || lNumber != 10) throw orvik::HostError(5, "report", "no such metric");
    return width;
  }
  void Note(const std::string& call) {
    calls.push_back(call);
    if (fails) throw orvik::HostError(5, "report", "no");
  }
  void IReport_SetTableBorder(std::int32_t lStyle) override { Note("border " + std::to_string(lStyle)); }
  void IReport_SetTableIndent(std::int32_t lTwips) override { Note("indent " + std::to_string(lTwips)); }
  void IReport_SetHeaderRows(std::int32_t lRows) override { Note("rows " + std::to_string(lRows)); }
  void IReport_AddTable(const std::string& sFormat, const std::string& sHeader,
                        const std::string& sRows) override {
    calls.insert(calls.end(), {sFormat, sHeader, sRows});
  }
  std::string IReport_Escape(const std::string& sText) const override { return "[" + sText + "]"; }
};

/// Translates every text to its module and number, so that an untranslated text is visible.
class LanguageService final : public virtual orvik::ILanguageService {
 public:
  /// Module and first control of each panel translated.
  mutable std::vector<std::string> translated;

 private:
  std::string ILanguageService_Translate(const std::string& sText, const std::string& sModule,
                                         const std::vector<std::string>&) const override {
    return sModule + " " + sText.substr(0, sText.find("::"));
  }
  void ILanguageService_TranslateControls(const std::string& sModule,
                                          std::shared_ptr<orvik::platform::IPanel> Controls) const override {
    const auto inside = Controls->Controls();
    translated.push_back(sModule + (inside.empty() ? "" : " " + inside.front()->Name()));
  }
};

}  // namespace recorders
