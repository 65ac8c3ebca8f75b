#include "platform/LayoutEngine.h"
