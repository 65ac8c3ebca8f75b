#pragma once

#include <pugixml.hpp>
#include <string>
#include <vector>

#include "host/document/RunRecord.h"

/// Run records as XML, in a section `<Runs Last="sha256:…">` that names the digest of its last run:
///
///     <Run Number="3" Begun="…" Ended="…" End="finished" Operator="…" Simulated="0" TimeScale="1" Port="…"
///          Program="orvik-bench 2.2.0.2" Digest="sha256:…" Before="sha256:…">
///       <Equipment Asset="…" Serial="…" Maker="…" Model="…"/>
///       <Takes Elements="1 2 3"/>
///       <Tester Type="KELD(IN)" Serial="…" Firmware="…" Leads="35" LeadsMeasured="…"/>
///       <Test Element="2" TestID="410" Settings="0" At="…" Status="2" By="tester" Tester="1">
///         <Said>gres,410,0,1.85,0,Ohm</Said>
///         <Recorded Value="1850" Unit="mOhm" Flags=""/>
///         <Judged Standard="…" Description="…" Unit="mOhm" Low="" High="200" Status="2"/>
///         <Doubt Code="late-reply"><Argument>STST,410,0</Argument></Doubt>
///       </Test>
///     </Run>
///
/// "Takes" and "Test" are in the order in which they happened. "Tester" counts the testers of the run from 1.
namespace host::document {

/// Names in the file that more than one source file needs.
namespace run_tags {
inline constexpr char kRuns[] = "Runs";
inline constexpr char kRun[] = "Run";
inline constexpr char kDigest[] = "Digest";
inline constexpr char kBefore[] = "Before";
inline constexpr char kLast[] = "Last";
}  // namespace run_tags

/// Reads a run. `XmlError` for what is missing or malformed. Unknown parts are passed over.
RunRecord ReadRun(pugi::xml_node node);

/// Adds the run to the parent, without its digest.
pugi::xml_node WriteRun(const RunRecord& run, pugi::xml_node parent);

/// Whether the run's node is as this program wrote it.
bool IsIntact(pugi::xml_node run);

/// For each run of the section, oldest first, whether a run that came after it is missing. Each names the
/// digest of the run before it, and the section that of the last one.
std::vector<bool> GapsAfter(pugi::xml_node section);

/// "sha256:" and the digest of all that the run's node holds but its own digest, independent of layout.
std::string DigestOf(pugi::xml_node run);

}  // namespace host::document
