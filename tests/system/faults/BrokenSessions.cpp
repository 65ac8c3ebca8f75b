// The session or the cable goes.
#include "tests/system/faults/Rows.h"

namespace faults {

// clang-format off
const std::vector<FaultRows>& BrokenSessions() {
  static const std::vector<FaultRows> rows = {
    // What is measured stays; what runs is not tested; nothing more can be sent. The run has not been
    // completed.
    {"hang-up",
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
    // The same: a cable that is plugged in again is no longer the port that was opened.
    {"unplug 3000",
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
    // The tester has left remote mode: what it is asked next is "not allowed now" (1003). Where that is
    // STST, the test reads as lacking, which is doubtful; at the closing STST a measurement is taken away
    // with it.
    {"forget",
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
