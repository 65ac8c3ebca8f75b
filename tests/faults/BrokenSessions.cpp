// The session or the cable goes.
#include "tests/faults/Rows.h"

namespace faults {

// clang-format off
const std::vector<FaultRows>& BrokenSessions() {
  static const std::vector<FaultRows> rows = {
    // What is measured stays; what runs is not tested; nothing more can be sent. The run has not been
    // completed.
    {"hang-up",
     {
      {'I', "I - 2",             "III - 2"},
      {'S', "IS - 2",            "ISSS - 2"},
      {'G', "ISG - 2",           "ISGGG - 2"},
      {'c', "ISGc P 2",          "ISGccc P 2"},
      {'E', "ISGcE P 2",         "ISGcEEE P 2"},
     },
     {
      {'I', "I --- 2",           "III --- 2"},
      {'S', "IS --- 2",          "ISSS --- 2"},
      {'G', "ISG --- 2",         "ISGGG --- 2"},
      {'s', "ISGs pP- 2",        "ISGsss pP- 2"},
      {'g', "ISGsg pP- 2",       "ISGsggg pP- 2"},
      {'c', "ISGsgc PPP 2",      "ISGsgccc PPP 2"},
      {'E', "ISGsgcE PPP 2",     "ISGsgcEEE PPP 2"},
     }},
    // The same: a cable that is plugged in again is no longer the port that was opened.
    {"unplug 3000",
     {
      {'I', "I - 2",             "III - 2"},
      {'S', "IS - 2",            "ISSS - 2"},
      {'G', "ISG - 2",           "ISGGG - 2"},
      {'c', "ISGc P 2",          "ISGccc P 2"},
      {'E', "ISGcE P 2",         "ISGcEEE P 2"},
     },
     {
      {'I', "I --- 2",           "III --- 2"},
      {'S', "IS --- 2",          "ISSS --- 2"},
      {'G', "ISG --- 2",         "ISGGG --- 2"},
      {'s', "ISGs pP- 2",        "ISGsss pP- 2"},
      {'g', "ISGsg pP- 2",       "ISGsggg pP- 2"},
      {'c', "ISGsgc PPP 2",      "ISGsgccc PPP 2"},
      {'E', "ISGsgcE PPP 2",     "ISGsgcEEE PPP 2"},
     }},
    // The tester has left remote mode: what it is asked next is "not allowed now" (1003). Where that is
    // STST, the test reads as lacking, which is doubtful; at the closing STST a measurement is taken away
    // with it.
    {"forget",
     {
      {'I', "IScE n 2",          "IIIScE n 2"},
      {'S', "ISGcE n 2",         "ISSSGcE n 2"},
      {'G', "ISGcE n 2",         "ISGGGcE n 2"},
      {'c', "ISGcE P 0",         "ISGcccE P 0"},
      {'E', "ISGcE P 0",         "ISGcEEE P 0"},
     },
     {
      {'I', "ISscE nnn 2",       "IIISscE nnn 2"},
      {'S', "ISGscE n-n 2",      "ISSSGscE n-n 2"},
      {'G', "ISGscE pPn 2",      "ISGGGscE pPn 2"},
      {'s', "ISGsgcE pP- 2",     "ISGsssgcE pP- 2"},
      {'g', "ISGsgcE pPp 2",     "ISGsgggcE pPp 2"},
      {'c', "ISGsgcE PPP 0",     "ISGsgcccE PPP 0"},
      {'E', "ISGsgcE PPP 0",     "ISGsgcEEE PPP 0"},
     }},
  };
  return rows;
}
// clang-format on

}  // namespace faults
