#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IErrorLog.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/Names.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {

// A plug-in cannot read the log; the caller of the check inspects it.
void CheckErrorLog(Findings& findings, const HostParts&) {
  const auto log = NewHostObject<orvik::IErrorLog>(orvik::HostClasses::kErrorLog);
  findings.Try("an entry without values", [&] {
    log->LogEntry(names::kPlugInId, static_cast<std::int32_t>(0x8004A22C), "CheckErrorLog", 3, {}, {}, {}, {},
                  {});
  });
  findings.Try("an entry with values of every kind", [&] {
    log->LogEntry(names::kPlugInId, 1, "CheckErrorLog", 1, std::int32_t{7}, 2.5, "text with\nline end",
                  std::vector<std::string>{"a", "b"}, {});
  });
  findings.Try("an entry that is not UTF-8", [&] {
    log->LogEntry(names::kPlugInId, 2, "\xFF\xFE", 1, std::string(100, '\x01'), {}, {}, {}, {});
  });
}

}  // namespace check
