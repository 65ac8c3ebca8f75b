// Gives the precompiled header a target to be built for.
#include "tests/TestHeaders.h"
