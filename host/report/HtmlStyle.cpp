#include "host/report/HtmlText.h"

namespace host::report::html {

// Every text has a contrast of at least 4.5 to 1 with its background. A verdict's colour always comes with a
// sign and a word.
const char* const kStyle = R"css(
:root { --ink: #1c2330; --quiet: #566072; --line: #d9dee6; --soft: #f4f6f9; --accent: #1b4f8a;
  --passed: #14692f; --failed: #b3201a; --open: #855000; --na: #566072; }
* { box-sizing: border-box; }
html { -webkit-text-size-adjust: 100%; }
body { margin: 0; background: #fff; color: var(--ink); overflow-wrap: anywhere;
  font: 1rem/1.55 system-ui, -apple-system, "Segoe UI", Roboto, "Liberation Sans", "DejaVu Sans", sans-serif; }
.page { max-width: 56rem; margin: 0 auto; padding: 2.5rem 1.25rem 5rem; }
.running, .across { display: none; }
.band { position: sticky; top: 0; z-index: 1; margin: 0; padding: .6rem 1.25rem; background: #000; color: #fff;
  font-weight: 700; text-align: center; border: .35rem solid #000; outline: .2rem dashed #fff; outline-offset: -.45rem; }
h1 { margin: 0 0 1.5rem; font-size: 1.1rem; font-weight: 600; color: var(--accent); }
h2 { margin: 3.5rem 0 1.25rem; padding-bottom: .5rem; border-bottom: 2px solid var(--accent); font-size: 1.35rem;
  line-height: 1.3; color: var(--accent); }
h3 { margin: 0; font-size: 1.15rem; line-height: 1.4; }
.verdict { display: flex; align-items: center; gap: 1.5rem; margin: 0 0 1.5rem; padding: 2rem; border-radius: .75rem;
  color: #fff; }
.verdict.passed { background: var(--passed); } .verdict.failed { background: var(--failed); }
.verdict.open { background: var(--open); } .verdict.na { background: var(--na); }
.verdict .sign { flex: none; font-size: clamp(3.5rem, 12vw, 6rem); font-weight: 700; line-height: 1; }
.verdict strong { display: block; font-size: clamp(2.5rem, 10vw, 5rem); line-height: 1.05; letter-spacing: -.02em; }
.verdict span.why { display: block; margin-top: .5rem; font-size: 1.2rem; }
.partial { margin: 0 0 1.5rem; padding: .9rem 1.25rem; border: 2px dashed var(--open); border-radius: .5rem;
  color: var(--open); font-weight: 600; }
.facts { display: grid; grid-template-columns: minmax(7rem, max-content) 1fr; gap: .3rem 2rem; margin: 0; }
.facts dt { color: var(--quiet); } .facts dd { margin: 0; }
.scroll { overflow-x: auto; margin: 1rem 0; }
table { border-collapse: collapse; width: 100%; }
caption { padding: 0 0 .4rem; text-align: left; color: var(--quiet); font-size: .875rem; }
th, td { padding: .5rem .75rem; text-align: left; vertical-align: top; }
/* A long word is broken rather than widening its column; ordinary ones have their room. */
td, th { min-width: 5.25rem; }
td, tbody th { border-top: 1px solid var(--line); }
thead th { color: var(--quiet); font-size: .875rem; font-weight: 600; white-space: nowrap; vertical-align: bottom; }
tbody th { font-weight: 400; }
.right { text-align: right; font-variant-numeric: tabular-nums; } .centre { text-align: center; }
td.right, .result { white-space: nowrap; } .unit { padding-left: 0; }
.name { min-width: 12rem; max-width: 30rem; padding-left: calc(.75rem + 1rem * var(--depth, 0)); }
.number { width: 3rem; min-width: 3rem; color: var(--quiet); }
.name .note { display: block; color: var(--quiet); font-size: .875rem; }
a { color: var(--accent); text-underline-offset: .15em; }
.word { font-weight: 600; white-space: nowrap; }
.word.passed { color: var(--passed); } .word.failed { color: var(--failed); } .word.open { color: var(--open); }
.word.na { color: var(--na); }
.word .sign { display: inline-block; width: 1.2em; font-weight: 700; text-align: center; margin-right: .25em; }
.element { margin: 0 0 2.75rem; padding: 1.5rem 0 0; border-top: 1px solid var(--line); }
.element:first-of-type { border-top: 0; padding-top: 0; }
.head { display: flex; flex-wrap: wrap; align-items: baseline; gap: .25rem 1.5rem; justify-content: space-between; }
.head .no { color: var(--quiet); font-weight: 400; margin-right: .6rem; }
.reading { margin: .25rem 0 .75rem; font-size: 1.75rem; line-height: 1.2; font-variant-numeric: tabular-nums; }
.reading .unit { font-size: 1.1rem; color: var(--quiet); }
.notes { margin: .75rem 0; padding: 0; list-style: none; }
.notes li { margin: .35rem 0; padding: .4rem .9rem; border-left: 4px solid; background: var(--soft); }
.notes .failed { border-color: var(--failed); color: var(--failed); }
.notes .open { border-color: var(--open); color: var(--open); }
.notes .sign { display: inline-block; width: 1.2em; font-weight: 700; }
.printed td, .printed th { white-space: pre-wrap; }
.printed.ruled { border: 1px solid var(--line); } .printed.ruled th, .printed.ruled td { border: 1px solid var(--line); }
.printed.plain th, .printed.plain td { border: 0; padding: .15rem 0; }
.printed caption { padding-top: .4rem; }
#runs + .scroll td, #runs + .scroll th { min-width: 6.5rem; padding: .4rem .5rem; font-size: .875rem; }
#runs + .scroll td:first-child, #runs + .scroll th:first-child { min-width: 2.5rem; }
.standard { min-width: 9rem; } .bounds, .judgement { min-width: 7rem; } .judgement .word { white-space: normal; } .barcell { min-width: 15rem; }
svg.bar { display: block; width: 100%; max-width: 19rem; height: auto; }
.bar .track { fill: #e3e7ed; } .bar .allowed { fill: #9fb9d9; } .bar .bound { stroke: var(--ink); stroke-width: 1.5; }
.bar .label { fill: var(--quiet); font-size: 10px; } .bar .reading { font-size: 11px; font-weight: 700; }
.bar.passed .value, .bar.passed .reading { fill: var(--passed); }
.bar.failed .value, .bar.failed .reading { fill: var(--failed); }
.bar .value { stroke: #fff; stroke-width: 1; }
.hidden { position: absolute; width: 1px; height: 1px; overflow: hidden; clip-path: inset(50%); white-space: nowrap; }
@media (max-width: 36rem) { .page { padding-top: 1.25rem; } .verdict { padding: 1.25rem; gap: 1rem; }
  .facts { grid-template-columns: 1fr; gap: 0; } .facts dd { margin-bottom: .6rem; }
  th, td { padding: .5rem .4rem; } }
/* What decides is seen without scrolling: each row of columns becomes some lines. */
@media screen and (max-width: 36rem) {
  .stacked, .stacked caption, .stacked tbody { display: block; }
  .stacked thead { position: absolute; width: 1px; height: 1px; overflow: hidden; clip-path: inset(50%); }
  .stacked tbody tr { display: grid; gap: .15rem .6rem; padding: .6rem 0; border-top: 1px solid var(--line); }
  .stacked tbody td, .stacked tbody th { min-width: 0; padding: 0; border: 0; }
  .overview tbody tr { grid-template-columns: minmax(1.75rem, max-content) auto minmax(0, 1fr) auto; }
  .overview .name { grid-column: 2 / -1; } .overview .value { grid-column: 2; }
  .overview tbody .name, .overview tbody .value { padding-left: calc(.6rem * var(--depth, 0)); }
  .overview .number { width: auto; } .limits tbody tr { grid-template-columns: minmax(0, 1fr); } }
@media print {
  @page { size: A4; margin: 14mm 16mm 16mm; }
  html { font-size: 9.5pt; }
  body { print-color-adjust: exact; -webkit-print-color-adjust: exact; }
  /* A group of header rows is what browsers repeat at the top of every page. */
  .page { display: table; table-layout: fixed; width: 100%; max-width: none; padding: 0; }
  .running { display: table-header-group; break-inside: avoid; font-size: 8pt; color: var(--quiet); }
  .running div { break-inside: avoid; padding-bottom: 2mm; margin-bottom: 6mm; border-bottom: 1px solid var(--accent); }
  /* Browsers repeat no header that takes much of the page: of each fact a line at most. The page has all. */
  .running span { display: inline-block; max-width: 100%; overflow: hidden; white-space: nowrap;
    text-overflow: ellipsis; vertical-align: bottom; }
  .running p { margin: 0; } .running .mark { color: var(--open); font-weight: 700; }
  /* Black on white: printed even where backgrounds are not. */
  .running .strong { margin: 1mm 0; padding: .5mm 2mm; border: .8mm solid #000; color: #000; font-size: 11pt; }
  /* The header of each page has it. */
  .band { display: none; }
  .across { display: block; position: fixed; top: 50%; left: 50%; z-index: -1; color: #e3e3e3; font-size: 72pt;
    font-weight: 700; transform: translate(-50%, -50%) rotate(-55deg); white-space: nowrap; }
  main { display: table-row-group; }
  h2, h3, .head { break-after: avoid; } h2 { margin-top: 10mm; }
  tr, .verdict, .notes li, svg, dl { break-inside: avoid; }
  thead { display: table-header-group; }
  .element { break-inside: avoid-page; margin-bottom: 4mm; }
  th, td { padding: .25rem .6rem; } .scroll { overflow: visible; margin: .6rem 0; } .element { padding-top: 1rem; }
  .verdict strong { font-size: 44pt; } .verdict .sign { font-size: 52pt; }
  a { color: inherit; text-decoration: none; }
}
)css";

}  // namespace host::report::html
