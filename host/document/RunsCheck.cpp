#include "host/document/RunsCheck.h"

#include <string>

#include "host/document/Findings.h"
#include "host/document/KnownParts.h"
#include "host/document/RunXml.h"
#include "host/services/Tr.h"
#include "host/services/XmlNode.h"

namespace bench {
namespace {

void NoteUnknownParts(pugi::xml_node run, Findings& findings) {
  NoteUnknown(run,
              {"Number", "Begun", "Ended", "End", "Operator", "Simulated", "TimeScale", "Port", "Program",
               "Before", "Digest"},
              {"Equipment", "Takes", "Tester", "Test"}, findings);
  for (const auto test : run.children("Test"))
    NoteUnknown(test, {"Element", "TestID", "Settings", "At", "Status", "By", "Tester"},
                {"Said", "Recorded", "Judged", "Doubt"}, findings);
}

}  // namespace

void CheckRuns(pugi::xml_node section, Findings& findings) {
  NoteUnknown(section, {}, {"Run"}, findings);
  std::string before;
  std::size_t place = 0;
  for (const auto run : section.children("Run")) {
    ++place;
    NoteUnknownParts(run, findings);
    try {
      ReadRun(run);
    } catch (const XmlError& error) {
      findings.Wrong(run, error.Description());
    }
    if (!IsIntact(run, place, before))
      findings.Wrong(
          run, Tr("the record of run %%1 is not as it was written: it, or a run before it, was changed, "
                  "added or removed by another program; results up to it are doubtful",
                  {run.attribute("Number").value()}));
    before = run.attribute("Digest").value();
  }
}

}  // namespace bench
