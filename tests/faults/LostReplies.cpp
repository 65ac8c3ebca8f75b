// Replies that do not come, or not as a whole, or not in time.
#include "tests/faults/Rows.h"

namespace faults {

// clang-format off
const std::vector<FaultRows>& LostReplies() {
  static const std::vector<FaultRows> rows = {
    // Asked again, three times in all. Then there is no tester: what ran is not tested, no session is
    // ended, and the next test of a sequence begins a new one.
    {"drop",
     {
      {'I', "IISGcE P 0",        "III - 2"},
      {'S', "ISSGcE P 0",        "ISSS - 2"},
      {'G', "ISGGcE P 0",        "ISGGG - 2"},
      {'c', "ISGccE P 0",        "ISGcccE P 0"},
      {'E', "ISGcEE P 0",        "ISGcEEE P 0"},
     },
     {
      {'I', "IISGsgcE PPP 0",    "IIIIsgcE p-P 2"},
      {'S', "ISSGsgcE PPP 0",    "ISSSIsgcE p-P 2"},
      {'G', "ISGGsgcE PPP 0",    "ISGGGIsgcE p-P 2"},
      {'s', "ISGssgcE PPP 0",    "ISGsss pP- 2"},
      {'g', "ISGsggcE PPP 0",    "ISGsggg pP- 2"},
      {'c', "ISGsgccE PPP 0",    "ISGsgcccE PPP 0"},
      {'E', "ISGsgcEE PPP 0",    "ISGsgcEEE PPP 0"},
     }},
    // Late, and in time: nothing happens.
    {"delay 500",
     {
      {'I', "ISGcE P 0",         "IIISGcE P 0"},
      {'S', "ISGcE P 0",         "ISSSGcE P 0"},
      {'G', "ISGcE P 0",         "ISGGGcE P 0"},
      {'c', "ISGcE P 0",         "ISGcccE P 0"},
      {'E', "ISGcE P 0",         "ISGcEEE P 0"},
     },
     {
      {'I', "ISGsgcE PPP 0",     "IIISGsgcE PPP 0"},
      {'S', "ISGsgcE PPP 0",     "ISSSGsgcE PPP 0"},
      {'G', "ISGsgcE PPP 0",     "ISGGGsgcE PPP 0"},
      {'s', "ISGsgcE PPP 0",     "ISGsssgcE PPP 0"},
      {'g', "ISGsgcE PPP 0",     "ISGsgggcE PPP 0"},
      {'c', "ISGsgcE PPP 0",     "ISGsgcccE PPP 0"},
      {'E', "ISGsgcE PPP 0",     "ISGsgcEEE PPP 0"},
     }},
    // Comes while the tester is about to be asked again, and is there when it is: the reply taken then may
    // be the late one. From here on each reply is taken for the next command, which has another name most
    // of the time.
    {"delay 3750",
     {
      {'I', "IIScE - 2",         "III - 2"},
      {'S', "ISSGcE - 2",        "ISSS - 2"},
      {'G', "ISGGcE p 2",        "ISGGG - 2"},
      {'c', "ISGccE p 2",        "ISGcccE p 2"},
      {'E', "ISGcEE p 2",        "ISGcEEE P 0"},
     },
     {
      {'I', "IISsgcE --- 2",     "IIIIscE --- 2"},
      {'S', "ISSGscE --- 2",     "ISSSI --- 2"},
      {'G', "ISGGscE pp- 2",     "ISGGGI --- 2"},
      {'s', "ISGssgcE pP- 2",    "ISGsss pP- 2"},
      {'g', "ISGsggcE pPp 2",    "ISGsggg pP- 2"},
      {'c', "ISGsgccE pPp 2",    "ISGsgcccE pPp 2"},
      {'E', "ISGsgcEE pPp 2",    "ISGsgcEEE PPP 0"},
     }},
    // Goes on in time: nothing happens.
    {"stall 3 500",
     {
      {'I', "ISGcE P 0",         "IIISGcE P 0"},
      {'S', "ISGcE P 0",         "ISSSGcE P 0"},
      {'G', "ISGcE P 0",         "ISGGGcE P 0"},
      {'c', "ISGcE P 0",         "ISGcccE P 0"},
      {'E', "ISGcE P 0",         "ISGcEEE P 0"},
     },
     {
      {'I', "ISGsgcE PPP 0",     "IIISGsgcE PPP 0"},
      {'S', "ISGsgcE PPP 0",     "ISSSGsgcE PPP 0"},
      {'G', "ISGsgcE PPP 0",     "ISGGGsgcE PPP 0"},
      {'s', "ISGsgcE PPP 0",     "ISGsssgcE PPP 0"},
      {'g', "ISGsgcE PPP 0",     "ISGsgggcE PPP 0"},
      {'c', "ISGsgcE PPP 0",     "ISGsgcccE PPP 0"},
      {'E', "ISGsgcE PPP 0",     "ISGsgcEEE PPP 0"},
     }},
    // Goes on while the tester is about to be asked again: as if it were late as a whole.
    {"stall 3 3750",
     {
      {'I', "IIScE - 2",         "III - 2"},
      {'S', "ISSGcE - 2",        "ISSS - 2"},
      {'G', "ISGGcE p 2",        "ISGGG - 2"},
      {'c', "ISGccE p 2",        "ISGcccE p 2"},
      {'E', "ISGcEE p 2",        "ISGcEEE P 0"},
     },
     {
      {'I', "IISsgcE --- 2",     "IIIIscE --- 2"},
      {'S', "ISSGscE --- 2",     "ISSSI --- 2"},
      {'G', "ISGGscE pp- 2",     "ISGGGI --- 2"},
      {'s', "ISGssgcE pP- 2",    "ISGsss pP- 2"},
      {'g', "ISGsggcE pPp 2",    "ISGsggg pP- 2"},
      {'c', "ISGsgccE pPp 2",    "ISGsgcccE pPp 2"},
      {'E', "ISGsgcEE pPp 2",    "ISGsgcEEE PPP 0"},
     }},
    // Never goes on: the next reply continues the line, and the two together are no reply to anything.
    {"truncate 3",
     {
      {'I', "II - 2",            "III - 2"},
      {'S', "ISScE - 2",         "ISSS - 2"},
      {'G', "ISGGcE - 2",        "ISGGG - 2"},
      {'c', "ISGccE p 2",        "ISGcccE p 2"},
      {'E', "ISGcEE p 2",        "ISGcEEE P 0"},
     },
     {
      {'I', "IIIsgcE p-P 2",     "IIII --- 2"},
      {'S', "ISSsgcE p-P 2",     "ISSSI --- 2"},
      {'G', "ISGGsgcE p-P 2",    "ISGGGI --- 2"},
      {'s', "ISGsscE pP- 2",     "ISGsss pP- 2"},
      {'g', "ISGsggcE pP- 2",    "ISGsggg pP- 2"},
      {'c', "ISGsgccE pPp 2",    "ISGsgcccE pPp 2"},
      {'E', "ISGsgcEE pPp 2",    "ISGsgcEEE PPP 0"},
     }},
    // Dropped as a line, and asked again; that a line was dropped speaks against what was running then.
    {"garble",
     {
      {'I', "IISGcE p 2",        "III - 2"},
      {'S', "ISSGcE p 2",        "ISSS - 2"},
      {'G', "ISGGcE p 2",        "ISGGG - 2"},
      {'c', "ISGccE p 2",        "ISGcccE p 2"},
      {'E', "ISGcEE p 2",        "ISGcEEE p 2"},
     },
     {
      {'I', "IISGsgcE ppP 2",    "IIIIsgcE p-P 2"},
      {'S', "ISSGsgcE ppP 2",    "ISSSIsgcE p-P 2"},
      {'G', "ISGGsgcE ppP 2",    "ISGGGIsgcE p-P 2"},
      {'s', "ISGssgcE pPp 2",    "ISGsss pP- 2"},
      {'g', "ISGsggcE pPp 2",    "ISGsggg pP- 2"},
      {'c', "ISGsgccE pPp 2",    "ISGsgcccE pPp 2"},
      {'E', "ISGsgcEE pPp 2",    "ISGsgcEEE pPp 2"},
     }},
  };
  return rows;
}
// clang-format on

}  // namespace faults
