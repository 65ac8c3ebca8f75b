// Replies that come in time, and say something else.
#include "tests/system/faults/Rows.h"

namespace faults {

// clang-format off
const std::vector<FaultRows>& WrongReplies() {
  static const std::vector<FaultRows> rows = {
    // "irem,KEL", "stst,410", "gres,410", "erem": an identity or a reading that is not whole is doubtful; a
    // confirmation may leave out what it confirms. The identity is that of the whole session.
    {"shorten 8",
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
     // Its number has four digits, so that they name another test; without a reading it is 0.
     {
      {"STST 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "doubtful",                          2},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "failed",                            1},
     }},
    // The second one is taken for the reply to the next command. Nobody is left to take that of EREM.
    {"double",
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
    // A line is dropped before the reply: that speaks against what was running then.
    {"noise",
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
    // ... after the reply, in the pause before the next command; after EREM the port is closed by then.
    {"noise 1750",
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
    // No reply to anything: the test is over without a result, and the session is ended if one was known
    // to be open.
    {"wrong-mnemonic",
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
    // As an unknown reply.
    {"error 1001",
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
    // "Not allowed now" in reply to STST reads as a test that is lacking, which is doubtful. So it does in
    // reply to the STST that closes the session of a single test, and takes its measurement away.
    {"error 1003",
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
    // A test that is lacking is not applicable, and that counts: but only in reply to its STST. Said later
    // or to something else it is doubtful, also where it takes a measurement away.
    {"error 6002",
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
    {"reply gres,610,0,0.001,0,Ohm",
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
