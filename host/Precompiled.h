#pragma once

// What most of the host's files read anyway, read once for all. Files include what they use all the same.
#include <CLI/CLI.hpp>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <variant>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/ITestElement.h"
#include "platform/IPanel.h"
