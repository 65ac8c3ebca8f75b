// Wrong replies within the time-out.
#include "tests/system/faults/Rows.h"

namespace faults {

// clang-format off
const std::vector<FaultRows>& WrongReplies() {
  static const std::vector<FaultRows> rows = {
    // "irem,KEL", "stst,410", "gres,410", "erem": an incomplete identity, which is that of the whole session,
    // or reading is doubtful; a confirmation may leave out what it confirms.
    {{"shorten 8"},
     {
      {"IREM",     "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"STST 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"STST end", "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
      {"EREM",     "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
     },
     {
      {"IREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, doubtful, doubtful",      2},
      {"STST 1",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, doubtful, passed",        2},
      {"STST 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
      {"GRES 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
      {"STST end", "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
      {"EREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
     },
     // "stst,101" names another test than 1010; without a number the reading is 0.
     {
      {"STST 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "failed",                            1},
     }},
    // The second reply is taken for that of the next command; after EREM there is none.
    {{"double"},
     {
      {"IREM",     "IREM, STST 1, STST end, EREM",                              "not tested",                        2},
      {"STST 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "not tested",                        2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"STST end", "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"EREM",     "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
     },
     {
      {"IREM",     "IREM, STST 1, STST 2, GRES 2, STST end, EREM",              "not tested, not tested, not tested", 2},
      {"STST 1",   "IREM, STST 1, GRES 1, STST 2, STST end, EREM",              "not tested, not tested, not tested", 2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST 2, STST end, EREM",              "not tested, passed, not tested",    2},
      {"STST 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "not tested, passed, not tested",    2},
      {"GRES 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
      {"STST end", "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
      {"EREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
     }},
    // An invalid line before the reply makes the running test doubtful.
    {{"noise"},
     {
      {"IREM",     "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"STST 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"STST end", "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"EREM",     "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
     },
     {
      {"IREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, doubtful, passed",        2},
      {"STST 1",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, doubtful, passed",        2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, doubtful, passed",        2},
      {"STST 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
      {"GRES 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
      {"STST end", "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
      {"EREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
     }},
    // ... after the reply, in the pause before the next command; after EREM the port is closed already.
    {{"noise 1750"},
     {
      {"IREM",     "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"STST 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"STST end", "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"EREM",     "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
     },
     {
      {"IREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, doubtful, passed",        2},
      {"STST 1",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, doubtful, passed",        2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
      {"STST 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
      {"GRES 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
      {"STST end", "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
      {"EREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
     }},
    // Not a reply to the command: the test ends without a result, and the session is closed if one is known
    // to be open.
    {{"wrong-mnemonic", "error 1001"},
     {
      {"IREM",     "IREM",                                                      "not tested",                        2},
      {"STST 1",   "IREM, STST 1, STST end, EREM",                              "not tested",                        2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "not tested",                        2},
      {"STST end", "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
      {"EREM",     "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
     },
     {
      {"IREM",     "IREM x2, STST 2, GRES 2, STST end, EREM",                   "not tested, not tested, passed",    2},
      {"STST 1",   "IREM, STST 1, STST 2, GRES 2, STST end, EREM",              "not tested, not tested, passed",    2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "not tested, not tested, passed",    2},
      {"STST 2",   "IREM, STST 1, GRES 1, STST 2, STST end, EREM",              "not tested, passed, not tested",    2},
      {"GRES 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "not tested, passed, not tested",    2},
      {"STST end", "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
      {"EREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
     }},
    // The plug-in takes "not allowed now" in reply to STST for a missing test, which is doubtful; in reply to
    // the closing STST of a single test too, which loses the measurement.
    {{"error 1003"},
     {
      {"IREM",     "IREM",                                                      "not tested",                        2},
      {"STST 1",   "IREM, STST 1, STST end, EREM",                              "doubtful",                          2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "not tested",                        2},
      {"STST end", "IREM, STST 1, GRES 1, STST end, EREM",                      "not tested",                        2},
      {"EREM",     "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
     },
     {
      {"IREM",     "IREM x2, STST 2, GRES 2, STST end, EREM",                   "not tested, not tested, passed",    2},
      {"STST 1",   "IREM, STST 1, STST 2, GRES 2, STST end, EREM",              "doubtful, doubtful, passed",        2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "not tested, not tested, passed",    2},
      {"STST 2",   "IREM, STST 1, GRES 1, STST 2, STST end, EREM",              "doubtful, passed, doubtful",        2},
      {"GRES 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "not tested, passed, not tested",    2},
      {"STST end", "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
      {"EREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
     }},
    // "No such test" means not applicable in reply to the test's own STST, and doubtful in reply to anything
    // else, even where it replaces a measurement.
    {{"error 6002"},
     {
      {"IREM",     "IREM",                                                      "doubtful",                          2},
      {"STST 1",   "IREM, STST 1, STST end, EREM",                              "doubtful",                          2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"STST end", "IREM, STST 1, GRES 1, STST end, EREM",                      "not tested",                        2},
      {"EREM",     "IREM, STST 1, GRES 1, STST end, EREM",                      "not tested",                        2},
     },
     {
      {"IREM",     "IREM x2, STST 2, GRES 2, STST end, EREM",                   "doubtful, doubtful, passed",        2},
      {"STST 1",   "IREM, STST 1, STST 2, GRES 2, STST end, EREM",              "doubtful, doubtful, passed",        2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, doubtful, passed",        2},
      {"STST 2",   "IREM, STST 1, GRES 1, STST 2, STST end, EREM",              "doubtful, passed, doubtful",        2},
      {"GRES 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
      {"STST end", "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
      {"EREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
     }},
    // Another test's reading: in reply to GRES it is taken, and doubtful.
    {{"reply gres,610,0,0.001,0,Ohm"},
     {
      {"IREM",     "IREM",                                                      "not tested",                        2},
      {"STST 1",   "IREM, STST 1, STST end, EREM",                              "not tested",                        2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"STST end", "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"EREM",     "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
     },
     {
      {"IREM",     "IREM x2, STST 2, GRES 2, STST end, EREM",                   "not tested, not tested, passed",    2},
      {"STST 1",   "IREM, STST 1, STST 2, GRES 2, STST end, EREM",              "not tested, not tested, passed",    2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, doubtful, passed",        2},
      {"STST 2",   "IREM, STST 1, GRES 1, STST 2, STST end, EREM",              "not tested, passed, not tested",    2},
      {"GRES 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
      {"STST end", "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "doubtful, passed, doubtful",        2},
      {"EREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
     },
     // ... and too low for a lower bound.
     {
      {"GRES 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "failed",                            1},
     }},
  };
  return rows;
}
// clang-format on

}  // namespace faults
