// Replies that are missing, incomplete or late.
#include "tests/system/faults/Rows.h"

namespace faults {

// clang-format off
const std::vector<FaultRows>& LostReplies() {
  static const std::vector<FaultRows> rows = {
    // The command is sent up to three times. Then the tester is lost: the running test is not tested, the
    // session is not closed, and the next test of a sequence opens a new one.
    {{"drop"},
     {
      {"IREM",     "IREM x2, STST 1, GRES 1, STST end, EREM",                   "passed",                            0,
       Ending{     "IREM x3",                                                   "not tested",                        2}},
      {"STST 1",   "IREM, STST 1 x2, GRES 1, STST end, EREM",                   "passed",                            0,
       Ending{     "IREM, STST 1 x3",                                           "not tested",                        2}},
      {"GRES 1",   "IREM, STST 1, GRES 1 x2, STST end, EREM",                   "passed",                            0,
       Ending{     "IREM, STST 1, GRES 1 x3",                                   "not tested",                        2}},
      {"STST end", "IREM, STST 1, GRES 1, STST end x2, EREM",                   "passed",                            0,
       Ending{     "IREM, STST 1, GRES 1, STST end x3, EREM",                   "passed",                            0}},
      {"EREM",     "IREM, STST 1, GRES 1, STST end, EREM x2",                   "passed",                            0,
       Ending{     "IREM, STST 1, GRES 1, STST end, EREM x3",                   "passed",                            0}},
     },
     {
      {"IREM",     "IREM x2, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",   "passed, passed, passed",            0,
       Ending{     "IREM x4, STST 2, GRES 2, STST end, EREM",                   "not tested, not tested, passed",    2}},
      {"STST 1",   "IREM, STST 1 x2, GRES 1, STST 2, GRES 2, STST end, EREM",   "passed, passed, passed",            0,
       Ending{     "IREM, STST 1 x3, IREM, STST 2, GRES 2, STST end, EREM",     "not tested, not tested, passed",    2}},
      {"GRES 1",   "IREM, STST 1, GRES 1 x2, STST 2, GRES 2, STST end, EREM",   "passed, passed, passed",            0,
       Ending{     "IREM, STST 1, GRES 1 x3, IREM, STST 2, GRES 2, STST end, EREM", "not tested, not tested, passed",    2}},
      {"STST 2",   "IREM, STST 1, GRES 1, STST 2 x2, GRES 2, STST end, EREM",   "passed, passed, passed",            0,
       Ending{     "IREM, STST 1, GRES 1, STST 2 x3",                           "not tested, passed, not tested",    2}},
      {"GRES 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2 x2, STST end, EREM",   "passed, passed, passed",            0,
       Ending{     "IREM, STST 1, GRES 1, STST 2, GRES 2 x3",                   "not tested, passed, not tested",    2}},
      {"STST end", "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end x2, EREM",   "passed, passed, passed",            0,
       Ending{     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end x3, EREM",   "passed, passed, passed",            0}},
      {"EREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM x2",   "passed, passed, passed",            0,
       Ending{     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM x3",   "passed, passed, passed",            0}},
     }},
    // Late as a whole or in part, but within the time-out: no effect.
    {{"delay 500", "stall 3 500"},
     {
      {"IREM",     "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
      {"STST 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
      {"STST end", "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
      {"EREM",     "IREM, STST 1, GRES 1, STST end, EREM",                      "passed",                            0},
     },
     {
      {"IREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
      {"STST 1",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
      {"GRES 1",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
      {"STST 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
      {"GRES 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
      {"STST end", "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
      {"EREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",      "passed, passed, passed",            0},
     }},
    // Late as a whole or in part: arrives in the pause before the repeated command, and is taken for its
    // reply. From then on each reply is taken for that of the next command, which mostly has another name.
    {{"delay 3750", "stall 3 3750"},
     {
      {"IREM",     "IREM x2, STST 1, STST end, EREM",                           "not tested",                        2,
       Ending{     "IREM x3",                                                   "not tested",                        2}},
      {"STST 1",   "IREM, STST 1 x2, GRES 1, STST end, EREM",                   "not tested",                        2,
       Ending{     "IREM, STST 1 x3",                                           "not tested",                        2}},
      {"GRES 1",   "IREM, STST 1, GRES 1 x2, STST end, EREM",                   "doubtful",                          2,
       Ending{     "IREM, STST 1, GRES 1 x3",                                   "not tested",                        2}},
      {"STST end", "IREM, STST 1, GRES 1, STST end x2, EREM",                   "doubtful",                          2,
       Ending{     "IREM, STST 1, GRES 1, STST end x3, EREM",                   "doubtful",                          2}},
      {"EREM",     "IREM, STST 1, GRES 1, STST end, EREM x2",                   "doubtful",                          2,
       Ending{     "IREM, STST 1, GRES 1, STST end, EREM x3",                   "passed",                            0}},
     },
     {
      {"IREM",     "IREM x2, STST 1, STST 2, GRES 2, STST end, EREM",           "not tested, not tested, not tested", 2,
       Ending{     "IREM x4, STST 2, STST end, EREM",                           "not tested, not tested, not tested", 2}},
      {"STST 1",   "IREM, STST 1 x2, GRES 1, STST 2, STST end, EREM",           "not tested, not tested, not tested", 2,
       Ending{     "IREM, STST 1 x3, IREM",                                     "not tested, not tested, not tested", 2}},
      {"GRES 1",   "IREM, STST 1, GRES 1 x2, STST 2, STST end, EREM",           "doubtful, doubtful, not tested",    2,
       Ending{     "IREM, STST 1, GRES 1 x3, IREM",                             "not tested, not tested, not tested", 2}},
      {"STST 2",   "IREM, STST 1, GRES 1, STST 2 x2, GRES 2, STST end, EREM",   "not tested, passed, not tested",    2,
       Ending{     "IREM, STST 1, GRES 1, STST 2 x3",                           "not tested, passed, not tested",    2}},
      {"GRES 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2 x2, STST end, EREM",   "doubtful, passed, doubtful",        2,
       Ending{     "IREM, STST 1, GRES 1, STST 2, GRES 2 x3",                   "not tested, passed, not tested",    2}},
      {"STST end", "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end x2, EREM",   "doubtful, passed, doubtful",        2,
       Ending{     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end x3, EREM",   "doubtful, passed, doubtful",        2}},
      {"EREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM x2",   "doubtful, passed, doubtful",        2,
       Ending{     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM x3",   "passed, passed, passed",            0}},
     }},
    // Never completed: the next reply continues the line, and together they answer no command.
    {{"truncate 3"},
     {
      {"IREM",     "IREM x2",                                                   "not tested",                        2,
       Ending{     "IREM x3",                                                   "not tested",                        2}},
      {"STST 1",   "IREM, STST 1 x2, STST end, EREM",                           "not tested",                        2,
       Ending{     "IREM, STST 1 x3",                                           "not tested",                        2}},
      {"GRES 1",   "IREM, STST 1, GRES 1 x2, STST end, EREM",                   "not tested",                        2,
       Ending{     "IREM, STST 1, GRES 1 x3",                                   "not tested",                        2}},
      {"STST end", "IREM, STST 1, GRES 1, STST end x2, EREM",                   "doubtful",                          2,
       Ending{     "IREM, STST 1, GRES 1, STST end x3, EREM",                   "doubtful",                          2}},
      {"EREM",     "IREM, STST 1, GRES 1, STST end, EREM x2",                   "doubtful",                          2,
       Ending{     "IREM, STST 1, GRES 1, STST end, EREM x3",                   "passed",                            0}},
     },
     {
      {"IREM",     "IREM x3, STST 2, GRES 2, STST end, EREM",                   "not tested, not tested, passed",    2,
       Ending{     "IREM x4",                                                   "not tested, not tested, not tested", 2}},
      {"STST 1",   "IREM, STST 1 x2, STST 2, GRES 2, STST end, EREM",           "not tested, not tested, passed",    2,
       Ending{     "IREM, STST 1 x3, IREM",                                     "not tested, not tested, not tested", 2}},
      {"GRES 1",   "IREM, STST 1, GRES 1 x2, STST 2, GRES 2, STST end, EREM",   "not tested, not tested, passed",    2,
       Ending{     "IREM, STST 1, GRES 1 x3, IREM",                             "not tested, not tested, not tested", 2}},
      {"STST 2",   "IREM, STST 1, GRES 1, STST 2 x2, STST end, EREM",           "not tested, passed, not tested",    2,
       Ending{     "IREM, STST 1, GRES 1, STST 2 x3",                           "not tested, passed, not tested",    2}},
      {"GRES 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2 x2, STST end, EREM",   "not tested, passed, not tested",    2,
       Ending{     "IREM, STST 1, GRES 1, STST 2, GRES 2 x3",                   "not tested, passed, not tested",    2}},
      {"STST end", "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end x2, EREM",   "doubtful, passed, doubtful",        2,
       Ending{     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end x3, EREM",   "doubtful, passed, doubtful",        2}},
      {"EREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM x2",   "doubtful, passed, doubtful",        2,
       Ending{     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM x3",   "passed, passed, passed",            0}},
     }},
    // The line is discarded and the command repeated; the discarded line makes the running test doubtful.
    {{"garble"},
     {
      {"IREM",     "IREM x2, STST 1, GRES 1, STST end, EREM",                   "doubtful",                          2,
       Ending{     "IREM x3",                                                   "not tested",                        2}},
      {"STST 1",   "IREM, STST 1 x2, GRES 1, STST end, EREM",                   "doubtful",                          2,
       Ending{     "IREM, STST 1 x3",                                           "not tested",                        2}},
      {"GRES 1",   "IREM, STST 1, GRES 1 x2, STST end, EREM",                   "doubtful",                          2,
       Ending{     "IREM, STST 1, GRES 1 x3",                                   "not tested",                        2}},
      {"STST end", "IREM, STST 1, GRES 1, STST end x2, EREM",                   "doubtful",                          2,
       Ending{     "IREM, STST 1, GRES 1, STST end x3, EREM",                   "doubtful",                          2}},
      {"EREM",     "IREM, STST 1, GRES 1, STST end, EREM x2",                   "doubtful",                          2,
       Ending{     "IREM, STST 1, GRES 1, STST end, EREM x3",                   "doubtful",                          2}},
     },
     {
      {"IREM",     "IREM x2, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM",   "doubtful, doubtful, passed",        2,
       Ending{     "IREM x4, STST 2, GRES 2, STST end, EREM",                   "not tested, not tested, passed",    2}},
      {"STST 1",   "IREM, STST 1 x2, GRES 1, STST 2, GRES 2, STST end, EREM",   "doubtful, doubtful, passed",        2,
       Ending{     "IREM, STST 1 x3, IREM, STST 2, GRES 2, STST end, EREM",     "not tested, not tested, passed",    2}},
      {"GRES 1",   "IREM, STST 1, GRES 1 x2, STST 2, GRES 2, STST end, EREM",   "doubtful, doubtful, passed",        2,
       Ending{     "IREM, STST 1, GRES 1 x3, IREM, STST 2, GRES 2, STST end, EREM", "not tested, not tested, passed",    2}},
      {"STST 2",   "IREM, STST 1, GRES 1, STST 2 x2, GRES 2, STST end, EREM",   "doubtful, passed, doubtful",        2,
       Ending{     "IREM, STST 1, GRES 1, STST 2 x3",                           "not tested, passed, not tested",    2}},
      {"GRES 2",   "IREM, STST 1, GRES 1, STST 2, GRES 2 x2, STST end, EREM",   "doubtful, passed, doubtful",        2,
       Ending{     "IREM, STST 1, GRES 1, STST 2, GRES 2 x3",                   "not tested, passed, not tested",    2}},
      {"STST end", "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end x2, EREM",   "doubtful, passed, doubtful",        2,
       Ending{     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end x3, EREM",   "doubtful, passed, doubtful",        2}},
      {"EREM",     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM x2",   "doubtful, passed, doubtful",        2,
       Ending{     "IREM, STST 1, GRES 1, STST 2, GRES 2, STST end, EREM x3",   "doubtful, passed, doubtful",        2}},
     }},
  };
  return rows;
}
// clang-format on

}  // namespace faults
