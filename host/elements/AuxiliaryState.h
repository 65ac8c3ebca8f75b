#pragma once

#include <optional>
#include <pugixml.hpp>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/IAuxiliaryState.h"
#include "host/services/Leftovers.h"

namespace bench {

/// When and by whom a result was made.
struct RunMark {
  std::string date;  ///< such as "2026-11-21T14:03:22+01:00"
  std::string by;    ///< the operator; may be empty
  bool operator==(const RunMark&) const = default;
};

/// The host's own settings of an element, and what it holds against the element's result.
class AuxiliaryState final : public orvik::IAuxiliaryState {
 public:
  /// Whether readings of the element are recorded and never judged: a decision that somebody made and that
  /// the document keeps. Without it an element without limits is not judged.
  bool RecordOnly() const { return recordOnly_; }
  void SetRecordOnly(bool recordOnly) { recordOnly_ = recordOnly; }

  /// Why the result must not be relied on, for people to read; none when nothing speaks against it. Set by
  /// the host, which watched the wire while the element ran; the result's own status says nothing of it.
  const std::vector<std::string>& Doubts() const { return doubts_; }
  void SetDoubts(std::vector<std::string> doubts);

  /// Each element has its own: a document can be run in pieces, on several days and by several people.
  const std::optional<RunMark>& Run() const { return run_; }
  void SetRun(std::optional<RunMark> run);

  void CopyFrom(const AuxiliaryState& other);
  /// Replaces all by what an "Auxiliary" node says.
  void Load(pugi::xml_node node);
  void Save(pugi::xml_node node) const;
  /// Whether nothing differs from a new state.
  bool IsDefault() const {
    return printElement_ && !recordOnly_ && doubts_.empty() && !run_ && leftovers_.Empty();
  }

 private:
  bool IAuxiliaryState_PrintElement() const override { return printElement_; }
  void IAuxiliaryState_SetPrintElement(bool fPrint) override { printElement_ = fPrint; }

  void LoadDoubt(pugi::xml_node node);
  void LoadRun(pugi::xml_node node);

  bool printElement_ = true;
  bool recordOnly_ = false;
  std::vector<std::string> doubts_;
  /// What a file says beside each doubt: as many as there are doubts, or none.
  std::vector<Leftovers> besideDoubts_;
  std::optional<RunMark> run_;
  Leftovers besideRun_;
  Leftovers leftovers_;
};

}  // namespace bench
