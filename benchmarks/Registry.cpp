#include "benchmarks/Benchmark.h"
#include "benchmarks/Measurements.h"

namespace benchmarks {

const std::vector<Benchmark>& AllBenchmarks() {
  static const std::vector<Benchmark> all{
      {"session-time", "wall time of one real-time test, as a multiple of its floor", MeasureSessionTime},
      {"command-spacing", "shortest time between two commands of that run", MeasureCommandSpacing},
      {"waiting", "share of one core that the whole of that run takes", MeasureWaiting},
      {"exchange-engine", "complete tests on the wire a second, on the virtual clock", MeasureExchangeEngine},
      {"guided-test", "complete tests a second with the guide and the result around them", MeasureGuidedTest},
      {"round-trip", "our own time for a command and its reply on a pseudo-terminal", MeasureRoundTrip},
      {"round-trip-share", "that time as a share of what PyVISA takes", MeasureRoundTripShare},
      {"catalogue-time", "100,000 entries of a catalogue become live elements", MeasureCatalogueTime},
      {"catalogue-memory", "what each of those elements holds", MeasureCatalogueMemory},
      {"document-load", "a document with 100,000 results opened", MeasureDocumentLoad},
      {"document-save", "the same document written out", MeasureDocumentSave},
      {"judge", "the same document judged", MeasureJudge},
      {"judge-growth", "an element of it beside one of 10,000", MeasureJudgeGrowth},
      {"result-view", "the 100,000th row of the list of results, beside the 100th", MeasureResultView},
      {"library-size", "size of the plug-in library, stripped", MeasureLibrarySize},
      {"html-report", "a document with 1,000 results written as HTML", MeasureHtmlReport},
      {"pdf-report", "the same document written as PDF", MeasurePdfReport},
      {"start", "\"orvik-bench tests\" in a new state folder", MeasureStart},
  };
  return all;
}

}  // namespace benchmarks
