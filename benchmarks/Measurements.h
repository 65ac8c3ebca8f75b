#pragma once

#include "benchmarks/Benchmark.h"

namespace benchmarks {

/// The three figures of one real-time run, which is made once.
Figure MeasureSessionTime(const Context& context);
Figure MeasureCommandSpacing(const Context& context);
Figure MeasureWaiting(const Context& context);

Figure MeasureExchangeEngine(const Context& context);
Figure MeasureGuidedTest(const Context& context);
Figure MeasureRoundTrip(const Context& context);
Figure MeasureRoundTripShare(const Context& context);
Figure MeasureCatalogueTime(const Context& context);
Figure MeasureCatalogueMemory(const Context& context);
Figure MeasureDocumentLoad(const Context& context);
Figure MeasureDocumentSave(const Context& context);
Figure MeasureJudge(const Context& context);
Figure MeasureJudgeGrowth(const Context& context);
Figure MeasureResultView(const Context& context);
Figure MeasureLibrarySize(const Context& context);
Figure MeasureStart(const Context& context);
Figure MeasureHtmlReport(const Context& context);
Figure MeasurePdfReport(const Context& context);

}  // namespace benchmarks
