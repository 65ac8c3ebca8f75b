#pragma once

#include <string>

namespace host::serial {
class Message;
}

namespace host::run {

/// A measurement of the test leads, as the tester reported it.
struct LeadsReading {
  double milliohms = 0;  ///< valid without a fault
  std::string fault;     ///< why it cannot be stored, for people; empty when it can be
};

/// Checks the reply to "GRES": five fields, a number from 0 to `keld_facts::kMostLeadMilliohms`, the unit Ohm
/// or mOhm, no overload. The plug-in's dialog multiplies ohms by 1000 and takes the number of any other unit
/// as it is, so that it would store 150 kOhm or 150 V as 150 mOhm.
LeadsReading ReadLeads(const serial::Message& reply);

}  // namespace host::run
