#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "host/services/LeadCalibrations.h"

namespace bench {

/// What is wrong with a stored value and what to do, for people; empty for one that test leads can have.
std::string LeadsRemark(const LeadCalibration& leads);

/// What `calibrate --list` prints: a line for each tester with mOhm, date and remark.
std::string TextOf(const std::vector<LeadCalibration>& stored);
/// The same for `calibrate --list --json`.
nlohmann::ordered_json JsonOf(const std::vector<LeadCalibration>& stored);

/// What `calibrate` prints of the value that it stored: "The test leads of tester KS-42 have 123 mOhm,
/// measured 2026-11-21 14:03."
std::string TextOf(const LeadCalibration& stored);
/// The same for `calibrate --json`.
/// @param type the tester's, as the tester reports it
nlohmann::ordered_json JsonOf(const LeadCalibration& stored, const std::string& type);

}  // namespace bench
