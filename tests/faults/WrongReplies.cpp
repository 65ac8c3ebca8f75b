// Replies that come in time, and say something else.
#include "tests/faults/Rows.h"

namespace faults {

// clang-format off
const std::vector<FaultRows>& WrongReplies() {
  static const std::vector<FaultRows> rows = {
    // "irem,KEL", "stst,410", "gres,410", "erem": what is missing speaks against the result. Only the last
    // one is whole.
    {"shorten 8",
     {
      {'I', "ISGcE p 2",         "IIISGcE p 2"},
      {'S', "ISGcE p 2",         "ISSSGcE p 2"},
      {'G', "ISGcE p 2",         "ISGGGcE p 2"},
      {'c', "ISGcE p 2",         "ISGcccE p 2"},
      {'E', "ISGcE P 0",         "ISGcEEE P 0"},
     },
     {
      {'I', "ISGsgcE ppP 2",     "IIISGsgcE ppP 2"},
      {'S', "ISGsgcE ppP 2",     "ISSSGsgcE ppP 2"},
      {'G', "ISGsgcE ppP 2",     "ISGGGsgcE ppP 2"},
      {'s', "ISGsgcE pPp 2",     "ISGsssgcE pPp 2"},
      {'g', "ISGsgcE pPp 2",     "ISGsgggcE pPp 2"},
      {'c', "ISGsgcE pPp 2",     "ISGsgcccE pPp 2"},
      {'E', "ISGsgcE PPP 0",     "ISGsgcEEE PPP 0"},
     }},
    // The second one is taken for the reply to the next command. Nobody is left to take that of EREM.
    {"double",
     {
      {'I', "IScE - 2",          "IIIScE - 2"},
      {'S', "ISGcE - 2",         "ISSSGcE - 2"},
      {'G', "ISGcE p 2",         "ISGGGcE p 2"},
      {'c', "ISGcE p 2",         "ISGcccE p 2"},
      {'E', "ISGcE P 0",         "ISGcEEE P 0"},
     },
     {
      {'I', "ISsgcE --- 2",      "IIISsgcE --- 2"},
      {'S', "ISGscE --- 2",      "ISSSGscE --- 2"},
      {'G', "ISGscE pP- 2",      "ISGGGscE pP- 2"},
      {'s', "ISGsgcE pP- 2",     "ISGsssgcE pP- 2"},
      {'g', "ISGsgcE pPp 2",     "ISGsgggcE pPp 2"},
      {'c', "ISGsgcE pPp 2",     "ISGsgcccE pPp 2"},
      {'E', "ISGsgcE PPP 0",     "ISGsgcEEE PPP 0"},
     }},
    // A line is dropped before the reply: that speaks against what was running then.
    {"noise",
     {
      {'I', "ISGcE p 2",         "IIISGcE p 2"},
      {'S', "ISGcE p 2",         "ISSSGcE p 2"},
      {'G', "ISGcE p 2",         "ISGGGcE p 2"},
      {'c', "ISGcE p 2",         "ISGcccE p 2"},
      {'E', "ISGcE p 2",         "ISGcEEE p 2"},
     },
     {
      {'I', "ISGsgcE ppP 2",     "IIISGsgcE ppP 2"},
      {'S', "ISGsgcE ppP 2",     "ISSSGsgcE ppP 2"},
      {'G', "ISGsgcE ppP 2",     "ISGGGsgcE ppP 2"},
      {'s', "ISGsgcE pPp 2",     "ISGsssgcE pPp 2"},
      {'g', "ISGsgcE pPp 2",     "ISGsgggcE pPp 2"},
      {'c', "ISGsgcE pPp 2",     "ISGsgcccE pPp 2"},
      {'E', "ISGsgcE pPp 2",     "ISGsgcEEE pPp 2"},
     }},
    // ... after the reply, in the pause before the next command; after EREM the port is closed by then.
    {"noise 1750",
     {
      {'I', "ISGcE p 2",         "IIISGcE p 2"},
      {'S', "ISGcE p 2",         "ISSSGcE p 2"},
      {'G', "ISGcE p 2",         "ISGGGcE p 2"},
      {'c', "ISGcE p 2",         "ISGcccE p 2"},
      {'E', "ISGcE P 0",         "ISGcEEE P 0"},
     },
     {
      {'I', "ISGsgcE ppP 2",     "IIISGsgcE ppP 2"},
      {'S', "ISGsgcE ppP 2",     "ISSSGsgcE ppP 2"},
      {'G', "ISGsgcE pPp 2",     "ISGGGsgcE pPp 2"},
      {'s', "ISGsgcE pPp 2",     "ISGsssgcE pPp 2"},
      {'g', "ISGsgcE pPp 2",     "ISGsgggcE pPp 2"},
      {'c', "ISGsgcE pPp 2",     "ISGsgcccE pPp 2"},
      {'E', "ISGsgcE PPP 0",     "ISGsgcEEE PPP 0"},
     }},
    // No reply to anything: the test is over without a result, and the session is ended if one was known
    // to be open.
    {"wrong-mnemonic",
     {
      {'I', "I - 2",             "III - 2"},
      {'S', "IScE - 2",          "ISSScE - 2"},
      {'G', "ISGcE - 2",         "ISGGGcE - 2"},
      {'c', "ISGcE P 0",         "ISGcccE P 0"},
      {'E', "ISGcE P 0",         "ISGcEEE P 0"},
     },
     {
      {'I', "IIsgcE p-P 2",      "IIIIsgcE p-P 2"},
      {'S', "ISsgcE p-P 2",      "ISSSsgcE p-P 2"},
      {'G', "ISGsgcE p-P 2",     "ISGGGsgcE p-P 2"},
      {'s', "ISGscE pP- 2",      "ISGssscE pP- 2"},
      {'g', "ISGsgcE pP- 2",     "ISGsgggcE pP- 2"},
      {'c', "ISGsgcE PPP 0",     "ISGsgcccE PPP 0"},
      {'E', "ISGsgcE PPP 0",     "ISGsgcEEE PPP 0"},
     }},
    // As an unknown reply.
    {"error 1001",
     {
      {'I', "I - 2",             "III - 2"},
      {'S', "IScE - 2",          "ISSScE - 2"},
      {'G', "ISGcE - 2",         "ISGGGcE - 2"},
      {'c', "ISGcE P 0",         "ISGcccE P 0"},
      {'E', "ISGcE P 0",         "ISGcEEE P 0"},
     },
     {
      {'I', "IIsgcE p-P 2",      "IIIIsgcE p-P 2"},
      {'S', "ISsgcE p-P 2",      "ISSSsgcE p-P 2"},
      {'G', "ISGsgcE p-P 2",     "ISGGGsgcE p-P 2"},
      {'s', "ISGscE pP- 2",      "ISGssscE pP- 2"},
      {'g', "ISGsgcE pP- 2",     "ISGsgggcE pP- 2"},
      {'c', "ISGsgcE PPP 0",     "ISGsgcccE PPP 0"},
      {'E', "ISGsgcE PPP 0",     "ISGsgcEEE PPP 0"},
     }},
    // "Not allowed now" in reply to STST reads as a test that is lacking, which is doubtful. So it does in
    // reply to the STST that closes the session of a single test, and takes its measurement away.
    {"error 1003",
     {
      {'I', "I - 2",             "III - 2"},
      {'S', "IScE n 2",          "ISSScE n 2"},
      {'G', "ISGcE - 2",         "ISGGGcE - 2"},
      {'c', "ISGcE n 2",         "ISGcccE n 2"},
      {'E', "ISGcE P 0",         "ISGcEEE P 0"},
     },
     {
      {'I', "IIsgcE p-P 2",      "IIIIsgcE p-P 2"},
      {'S', "ISsgcE pnP 2",      "ISSSsgcE pnP 2"},
      {'G', "ISGsgcE p-P 2",     "ISGGGsgcE p-P 2"},
      {'s', "ISGscE pPn 2",      "ISGssscE pPn 2"},
      {'g', "ISGsgcE pP- 2",     "ISGsgggcE pP- 2"},
      {'c', "ISGsgcE pPp 2",     "ISGsgcccE pPp 2"},
      {'E', "ISGsgcE PPP 0",     "ISGsgcEEE PPP 0"},
     }},
    // A test that is lacking is not applicable, and that counts: but only in reply to its STST. Said later
    // or to something else it is doubtful, also where it takes a measurement away.
    {"error 6002",
     {
      {'I', "I n 2",             "III n 2"},
      {'S', "IScE N 0",          "ISSScE N 0"},
      {'G', "ISGcE n 2",         "ISGGGcE n 2"},
      {'c', "ISGcE n 2",         "ISGcccE n 2"},
      {'E', "ISGcE n 2",         "ISGcEEE n 2"},
     },
     {
      {'I', "IIsgcE pnP 2",      "IIIIsgcE pnP 2"},
      {'S', "ISsgcE PNP 0",      "ISSSsgcE PNP 0"},
      {'G', "ISGsgcE pnP 2",     "ISGGGsgcE pnP 2"},
      {'s', "ISGscE PPN 0",      "ISGssscE PPN 0"},
      {'g', "ISGsgcE pPn 2",     "ISGsgggcE pPn 2"},
      {'c', "ISGsgcE PPP 0",     "ISGsgcccE PPP 0"},
      {'E', "ISGsgcE pPp 2",     "ISGsgcEEE pPp 2"},
     }},
    // Another test's reading: in reply to GRES it is taken, and doubtful.
    {"reply gres,610,0,0.001,0,Ohm",
     {
      {'I', "I - 2",             "III - 2"},
      {'S', "IScE - 2",          "ISSScE - 2"},
      {'G', "ISGcE p 2",         "ISGGGcE p 2"},
      {'c', "ISGcE p 2",         "ISGcccE p 2"},
      {'E', "ISGcE P 0",         "ISGcEEE P 0"},
     },
     {
      {'I', "IIsgcE p-P 2",      "IIIIsgcE p-P 2"},
      {'S', "ISsgcE p-P 2",      "ISSSsgcE p-P 2"},
      {'G', "ISGsgcE ppP 2",     "ISGGGsgcE ppP 2"},
      {'s', "ISGscE pP- 2",      "ISGssscE pP- 2"},
      {'g', "ISGsgcE pPp 2",     "ISGsgggcE pPp 2"},
      {'c', "ISGsgcE pPp 2",     "ISGsgcccE pPp 2"},
      {'E', "ISGsgcE PPP 0",     "ISGsgcEEE PPP 0"},
     }},
  };
  return rows;
}
// clang-format on

}  // namespace faults
