// The functions of the targets. In a program of its own each is called LLVMFuzzerTestOneInput; here they
// stand side by side, so the build names them after their files.
#include <map>

#include "tests/system/fuzz/Targets.h"

#define ORVIK_FUZZ_TARGET(name) extern "C" int Fuzz##name(const std::uint8_t* data, std::size_t size);
ORVIK_FUZZ_TARGET(Catalogue)
ORVIK_FUZZ_TARGET(Document)
ORVIK_FUZZ_TARGET(Replies)
ORVIK_FUZZ_TARGET(HostWire)
ORVIK_FUZZ_TARGET(TesterWire)
ORVIK_FUZZ_TARGET(Translations)
ORVIK_FUZZ_TARGET(Registry)
ORVIK_FUZZ_TARGET(LimitSet)
ORVIK_FUZZ_TARGET(FaultScript)
ORVIK_FUZZ_TARGET(Profile)
ORVIK_FUZZ_TARGET(WireLog)
ORVIK_FUZZ_TARGET(CommandLine)
ORVIK_FUZZ_TARGET(SimulatorOptions)
#undef ORVIK_FUZZ_TARGET

namespace fuzz {

Target::Function FunctionOf(const std::string& name) {
  static const std::map<std::string, Target::Function> functions = {
      {"catalogue", FuzzCatalogue},
      {"document", FuzzDocument},
      {"replies", FuzzReplies},
      {"host-wire", FuzzHostWire},
      {"tester-wire", FuzzTesterWire},
      {"translations", FuzzTranslations},
      {"registry", FuzzRegistry},
      {"limit-set", FuzzLimitSet},
      {"fault-script", FuzzFaultScript},
      {"profile", FuzzProfile},
      {"wire-log", FuzzWireLog},
      {"command-line", FuzzCommandLine},
      {"simulator-options", FuzzSimulatorOptions},
  };
  const auto found = functions.find(name);
  return found == functions.end() ? nullptr : found->second;
}

}  // namespace fuzz
