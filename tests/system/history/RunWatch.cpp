#include "tests/system/history/RunWatch.h"

#include <algorithm>
#include <utility>

#include "tests/system/history/Tests.h"

namespace history {
namespace {

/// How long the plug-in waits for a reply.
constexpr std::chrono::milliseconds kWaitForReply{2000};

std::vector<std::string> FieldsOf(const std::string& line) {
  std::vector<std::string> fields{""};
  for (const char letter : line) {
    if (letter == ',')
      fields.emplace_back();
    else
      fields.back() += letter;
  }
  return fields;
}

bool NamesAnother(const std::vector<std::string>& command, const std::vector<std::string>& reply) {
  for (std::size_t field = 1; field < 3; ++field)
    if (field < command.size() && field < reply.size() && command[field] != reply[field]) return true;
  return false;
}

}  // namespace

Amount Corrected(const Amount& read, int testId, int leads) {
  const auto& kind = KindOf(testId);
  const auto own = read.In(kind.unit);
  if (!own) return read;
  if (!kind.lessLeads) return {*own, kind.unit};
  const auto less = *own - Decimal(leads);
  return {std::max(less, Decimal(0)), kind.unit};
}

bool BreaksByNumber(const Limit& limit, Decimal number, int testId) {
  const auto& unit = KindOf(testId).unit;
  const auto bound = [&](const Decimal& entered) {
    return Amount{entered, limit.unit}.In(unit).value_or(entered);
  };
  return (limit.low && number < bound(*limit.low)) || (limit.high && number > bound(*limit.high));
}

RunWatch::RunWatch(World& world, const std::string& file, const RunSetup& run,
                   const std::vector<int>& elements, const TrueTester& tester)
    : world_(world), document_(world.documents.at(file)), run_(run), tester_(tester), tops_(elements) {
  lastSave_ = run.killedAfterSaves == 0;
}

bool RunWatch::Over() {
  frozen_ = frozen_ || lastSave_;
  return frozen_;
}

void RunWatch::Saved(bool last) {
  if (Over()) return;
  lastSave_ = last;
  savedSince_ = true;
  if (std::exchange(begun_, true)) return;
  document_.inFile.push_back(++document_.runs);
  document_.runBefore[document_.runs] = std::exchange(document_.lastRun, document_.runs);
  document_.simulated = document_.simulated.value_or(run_.simulated);
  document_.anySimulated = document_.anySimulated || run_.simulated;
  for (const int top : tops_) TakeUp(*document_.plan.Find(top));
}

void RunWatch::TakeUp(const Element& top) {
  ++document_.step;
  for (const auto* element : Below(top)) Begin(*element);
}

void RunWatch::Begin(const Element& element) {
  Record record;
  record.run = document_.runs;
  record.takenAt = document_.step;
  record.equipment = document_.plan.equipment;
  const auto* parent = document_.plan.ParentOf(element.id);
  record.parent = parent ? parent->id : 0;
  record.testId = element.testId;
  record.options = MeasuringPart(element.options);
  record.interrupted = pressed_;
  for (const auto& limit : element.limits) {
    const auto& names = run_.standards;
    if (names.empty() || std::find(names.begin(), names.end(), limit.standard) != names.end())
      record.limits.push_back(limit);
  }
  if (const auto before = document_.records.find(element.id);
      before != document_.records.end() && before->second.run != record.run)
    document_.past[element.id].push_back(before->second);
  RecordOf(element.id) = record;
  document_.highestTaken = std::max(document_.highestTaken, element.id);
}

void RunWatch::Reached(int element) {
  if (Over()) return;
  top_ = element;
  leaf_ = 0;
  pressed_ = false;
}

void RunWatch::Started(int element) {
  // Reported after the save that contains it, as a finish is.
  if (frozen_) return;
  frozen_ = lastSave_;
  const auto& started = *document_.plan.Find(element);
  TakeUp(started);
  running_.insert(element);
  if (started.group) return;
  leaf_ = element;
  auto& record = RecordOf(element);
  record.leads = world_.leadsInUse;
  record.plausible = plausible_;
  record.spoiled = spoiled_;
  record.doubtful = doubtful_;
}

void RunWatch::Finished(int element) {
  if (frozen_) return;
  frozen_ = lastSave_;
  const bool byTester = running_.erase(element) > 0;
  if (!savedSince_)
    offence_ = "element " + std::to_string(element) + " is reported as finished before it is saved";
  savedSince_ = false;
  ++document_.step;
  const auto& finished = *document_.plan.Find(element);
  for (const auto* below : Below(finished)) {
    if (byTester && below != &finished) continue;
    if (!byTester) Begin(*below);
    auto& record = RecordOf(below->id);
    record.finished = true;
    record.finishedAt = document_.step;
    record.how = byTester ? Record::How::kTester : word_;
  }
  if (!byTester) return;
  auto& record = RecordOf(element);
  if (finished.group)
    SumUp(finished, record);
  else
    record.failed = FoundFailed(finished, record);
}

Maybe RunWatch::FoundFailed(const Element& element, const Record& record) const {
  if (record.spoiled || record.doubtful || record.interrupted) return Maybe::kUnknown;
  if (!record.read) return Maybe::kNo;
  for (const auto& limit : record.limits)
    if (limit.foreign) return Maybe::kUnknown;
  if (record.read->unit != UsualUnit(element.testId)) return Maybe::kUnknown;
  const auto value = Corrected(*record.read, element.testId, record.leads);
  const bool broken = std::any_of(record.limits.begin(), record.limits.end(), [&](const Limit& limit) {
    return BreaksByNumber(limit, value.number, element.testId);
  });
  return broken ? Maybe::kYes : Maybe::kNo;
}

void RunWatch::SumUp(const Element& group, Record& record) const {
  record.failed = record.interrupted ? Maybe::kUnknown : Maybe::kNo;
  record.summaryKnown = !record.interrupted;
  for (const auto& child : group.children) {
    const auto& below = document_.records.at(child.id);
    const bool unsure = below.spoiled || below.doubtful || below.interrupted;
    auto result = child.group ? below.anyResult : unsure ? Maybe::kUnknown : Maybe::kNo;
    if (!child.group && (below.read || below.lacked || below.refusedNow) && !unsure) result = Maybe::kYes;
    if (record.anyResult != Maybe::kYes && result != Maybe::kNo) record.anyResult = result;
    if (below.failed == Maybe::kYes && record.failed == Maybe::kNo) record.failed = Maybe::kYes;
    if (below.failed == Maybe::kUnknown) record.failed = Maybe::kUnknown;
    std::optional<Decimal> value;
    if (child.group) {
      record.summaryKnown = record.summaryKnown && below.summaryKnown;
      value = below.summary;
    } else {
      if (unsure) record.summaryKnown = false;
      if (below.read && below.read->unit != UsualUnit(child.testId)) record.summaryKnown = false;
      if (below.read) value = Corrected(*below.read, child.testId, below.leads).number;
    }
    const bool highest = group.filter == "Maximum value", lowest = group.filter == "Minimum value";
    if (!value || (!highest && !lowest)) continue;
    if (!record.summary || (highest ? *value > *record.summary : *value < *record.summary))
      record.summary = value;
  }
  for (const auto& limit : record.limits)
    if (limit.foreign) record.failed = Maybe::kUnknown;
  if (!record.summaryKnown) record.failed = Maybe::kUnknown;
  if (record.failed != Maybe::kNo || !record.summary) return;
  for (const auto& limit : record.limits)
    if (BreaksByNumber(limit, *record.summary, group.testId)) record.failed = Maybe::kYes;
}

void RunWatch::Aborted(bool inWaitingGuide) {
  if (Over() || top_ == 0) return;
  if (!inWaitingGuide) {
    pressed_ = true;
    for (const auto* element : Below(*document_.plan.Find(top_))) RecordOf(element->id).interrupted = true;
    return;
  }
  for (const auto& child : document_.plan.Find(top_)->children)
    for (const auto* below : Below(child)) RecordOf(below->id).interrupted = true;
  auto& record = RecordOf(top_);
  record.finished = !document_.plan.Find(top_)->group;
  if (record.finished) record.finishedAt = ++document_.step;
  record.how = Record::How::kAborted;
}

void RunWatch::Stopped() {
  if (Over()) return;
  pressed_ = true;
  if (auto* measured = Measured()) measured->interrupted = true;
  // A stopped sequence discards the readings of its tests.
  for (const int element : running_)
    for (const auto* below : Below(*document_.plan.Find(element))) RecordOf(below->id).interrupted = true;
}

void RunWatch::PortOpened() {
  waiting_ = 0;
  answered_ = true;
}

void RunWatch::PortClosed() {
  plausible_ = true;
  spoiled_ = doubtful_ = false;
}

void RunWatch::Sent(const std::string& line, bool somethingWaits, Time at) {
  if (Over()) return;
  if (auto* measured = Measured()) {
    measured->doubtful = measured->doubtful || waiting_ > 0;
    measured->spoiled = measured->spoiled || somethingWaits;
  }
  if (!begun_) offence_ = line + " is sent before the run is on record";
  savedSince_ = false;
  command_ = line;
  sentAt_ = at;
  answered_ = waiting_ > 0;
  if (answered_) --waiting_;
}

void RunWatch::Received(const std::string& line, Time at) {
  // Stored in the settings, even if the document is not saved.
  const auto fields = FieldsOf(line);
  if (fields[0] == "irem" && fields.size() >= 3 && !fields[2].empty()) {
    world_.lastSerial = fields[2];
    world_.leadsInUse = world_.LeadsOf(fields[2]);
  }
  if (Over()) return;
  if (!answered_ && at - sentAt_ <= kWaitForReply)
    answered_ = true;
  else
    ++waiting_;
  const bool isTrue = line == tester_.TrueReplyTo(command_);
  if (line.starts_with("irem")) TakeIdentity(line, isTrue);
  auto* measured = Measured();
  if (!measured) return;
  if (line.starts_with("gres")) measured->said.push_back(line);
  // A refusal while the session is closed discards the result.
  const bool over = !running_.contains(leaf_);
  const bool takenBack = over && ((line == "ERRM,1003" && command_.starts_with("STST")) ||
                                  (line == "ERRM,6002" && leaf_ == top_));
  if (takenBack && !(line == "ERRM,6002" && measured->lacked)) measured->spoiled = measured->doubtful = true;
  if (!isTrue) return Suspect(line, *measured);
  TakeReading(line, *measured);
}

void RunWatch::TakeReading(const std::string& line, Record& record) {
  if (!running_.contains(leaf_)) return;
  if (const auto* reading = line.starts_with("gres") ? tester_.ReadingIn(command_) : nullptr) {
    record.read = reading->amount;
    record.overload = reading->overload;
  }
  if (!command_.starts_with("STST")) return;
  if (line == "ERRM,6002") record.lacked = true;
  if (line == "ERRM,1003") record.refusedNow = true;
}

void RunWatch::TakeIdentity(const std::string& line, bool isTrue) {
  const auto fields = FieldsOf(line);
  const bool whole = fields.size() >= 4 && !fields[2].empty() && fields[1] == "KELD(IN)";
  if (!whole && isTrue) plausible_ = false;
  if (!whole && !isTrue) doubtful_ = true;
  if (!isTrue) spoiled_ = true;
  if (auto* measured = Measured()) {
    measured->leads = world_.leadsInUse;
    measured->plausible = measured->plausible && plausible_;
    measured->doubtful = measured->doubtful || doubtful_;
    measured->spoiled = measured->spoiled || spoiled_;
  }
}

/// Faults that must be doubted; other false replies are only recorded as such.
void RunWatch::Suspect(const std::string& line, Record& record) const {
  record.spoiled = true;
  const auto command = FieldsOf(command_), reply = FieldsOf(line);
  if ((reply[0] == "stst" || reply[0] == "gres") && NamesAnother(command, reply)) record.doubtful = true;
  if (reply[0] == "gres" && (reply.size() != 6 || reply[4] == "1" || reply[3].starts_with("-")))
    record.doubtful = true;
  if (line == "ERRM,1003" && command[0] == "STST") record.doubtful = true;
  if (line != "ERRM,6002") return;
  // A refusal by the tester counts if a command asked for it, even if it is not true.
  if (command[0] != "STST") record.doubtful = true;
  if (command[0] == "STST" && running_.contains(leaf_)) record.lacked = true;
}

void RunWatch::Dropped() {
  if (Over()) return;
  if (auto* measured = Measured()) measured->spoiled = measured->doubtful = true;
}

}  // namespace history
