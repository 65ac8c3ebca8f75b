#pragma once

#include <string>

#include "host/run/LeadCalibrations.h"

namespace host::bench {

/// What is wrong with a stored value and what to do, for people; empty for one that test leads can have.
std::string LeadsRemark(const run::LeadCalibration& leads);

/// "The test leads of tester KS-42 have 123 mOhm, measured 2026-11-21 14:03."
std::string TextOf(const run::LeadCalibration& stored);

}  // namespace host::bench
