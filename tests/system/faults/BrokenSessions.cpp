// The session or the cable is lost.
#include "tests/system/faults/Rows.h"

namespace faults {

// clang-format off
const std::vector<FaultRows>& BrokenSessions() {
  static const std::vector<FaultRows> rows = {
    // Results stay, the running test is not tested, nothing more can be sent, and the run is incomplete.
    // Plugging the cable in again does not help: the open port stays failed.
    {{"hang-up", "unplug 3000"},
     {
      {"IREM",     "IREM",                                                      "not tested",                        2},
      {"STST 1",   "IREM, STST 1",                                              "not tested",                        2},
      {"GRES 1",   "IREM, STST 1, GRES 1",                                      "not tested",                        2},
      {"STST end", "IREM, STST 1, GRES 1, STST end",                            "passed",                            2},
      {"EREM",     "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            2},
     },
     {
      {"IREM",     "IREM",                                                      "not tested, not tested, not tested", 2},
      {"STST 1",   "IREM, STST 1",                                              "not tested, not tested, not tested", 2},
      {"GRES 1",   "IREM, STST 1, GRES 1",                                      "not tested, not tested, not tested", 2},
      {"STST 2",   "IREM, STST 1, GRES 1, STST 2",                              "not tested, passed, not tested",    2},
      {"GRES 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2",                      "not tested, passed, not tested",    2},
      {"STST end", "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end",            "passed, passed, passed",            2},
      {"EREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            2},
     }},
    // The tester has left remote mode and refuses the next command as "not allowed now" (1003). In reply to
    // STST the plug-in takes that for a missing test, which is doubtful.
    {{"forget"},
     {
      {"IREM",     "IREM, STST 1, STST end, EREM",                              "doubtful",                          2},
      {"STST 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "not tested",                        2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "not tested",                        2},
      {"STST end", "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
      {"EREM",     "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
     },
     {
      {"IREM",     "IREM, STST 1, STST 2, STST end, EREM",                      "doubtful, doubtful, doubtful",      2},
      {"STST 1",   "IREM, STST 1, GRES 1, STST 2, STST end, EREM",              "doubtful, not tested, doubtful",    2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST 2, STST end, EREM",              "doubtful, passed, doubtful",        2},
      {"STST 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "not tested, passed, not tested",    2},
      {"GRES 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
      {"STST end", "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
      {"EREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
     }},
  };
  return rows;
}
// clang-format on

}  // namespace faults
