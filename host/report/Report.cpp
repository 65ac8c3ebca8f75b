#include "host/report/Report.h"

#include "host/base/LanguageService.h"

namespace host::report {

std::string Labelled(const Words& words, const std::string& label, const std::string& value) {
  return WithValues(words.labelled, {label, value});
}

std::string CaptionOf(const Report& report) {
  return WithValues(report.words.caption,
                    {report.title, report.pageHeader.front().value, report.verdict.word});
}

}  // namespace host::report
