#include "fuzz/Bench.h"

#include "host/elements/ElementFactory.h"

namespace fuzz {

namespace {

/// The bench with its plug-in known to the host's documents.
struct OpenBench {
  OpenBench() { bench.Host().Elements()->AddPlugIn(bench.PlugIn()); }
  ~OpenBench() { bench.Host().Elements()->ReleasePlugIns(); }

  support::VirtualBench bench;
};

}  // namespace

support::VirtualBench& TheBench() {
  static OpenBench open;
  return open.bench;
}

}  // namespace fuzz
