#pragma once

// What most of the plug-in's files read anyway, read once for all. Files include what they use all the same.
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ITestElement.h"
#include "platform/IForm.h"
#include "plugin/MKELDGlobalVars.h"
