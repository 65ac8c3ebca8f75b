#pragma once

#include <string>

namespace bench {

class Message;

/// A measurement of the test leads, taken from what the tester said.
struct LeadsReading {
  double milliohms = 0;  ///< valid without a fault
  std::string fault;     ///< why it cannot be stored, for people; empty when it can be
};

/// Checks the reply to "GRES". It is sound when it holds five fields, a number from 0 to
/// `keld_facts::kMostLeadMilliohms` and the unit Ohm or mOhm, and reports no overload. The plug-in's dialog
/// multiplies ohms by 1000 and takes the number of any other unit as it is, so 150 kOhm or 150 V would become
/// 150 mOhm.
LeadsReading ReadLeads(const Message& reply);

}  // namespace bench
