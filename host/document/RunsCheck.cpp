#include "host/document/RunsCheck.h"

#include <string>

#include "host/base/Tr.h"
#include "host/document/Findings.h"
#include "host/document/KnownParts.h"
#include "host/document/RunXml.h"
#include "host/xml/XmlNode.h"

namespace host::document {
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
  NoteUnknown(section, {"Last"}, {"Run"}, findings);
  const auto gaps = GapsAfter(section);
  std::size_t place = 0;
  for (const auto run : section.children("Run")) {
    const std::string number = run.attribute("Number").value();
    NoteUnknownParts(run, findings);
    try {
      ReadRun(run);
    } catch (const xml::XmlError& error) {
      findings.Wrong(run, error.Description());
    }
    if (!IsIntact(run))
      findings.Wrong(run,
                     Tr("the record of run %%1 was changed by another program; results of it and of earlier "
                        "runs are doubtful",
                        {number}));
    else if (gaps[place])
      findings.Wrong(
          run, Tr("a run after run %%1 was removed or changed by another program; results of run %%1 and "
                  "of earlier ones are doubtful",
                  {number}));
    ++place;
  }
}

}  // namespace host::document
