#pragma once

namespace zerimo::classroom {

/// How the page looks: in a wide window and on a telephone, in light and dark colours, and on paper.
inline constexpr const char* PageStyle = R"(
:root { --ink: #1b1f24; --quiet: #57606a; --paper: #ffffff; --sheet: #f3f5f7;
  --line: #c4cad1; --link: #0550ae; --good: #116329; --bad: #a40e26;
  --look: #7a4b00; }
@media screen and (prefers-color-scheme: dark) { :root { color-scheme: dark; --ink: #e8eaed; --quiet: #aab2bb; --paper: #16191d; --sheet: #22272d;
  --line: #4a525c; --link: #79b8ff; --good: #6fdd8b; --bad: #ff9492;
  --look: #f0b95a; } }
* { box-sizing: border-box; }
body { margin: 0 auto; padding: 1rem; max-width: 64rem; background: var(--paper); color: var(--ink);
  font: 1rem/1.5 system-ui, sans-serif; overflow-wrap: anywhere; }
a { color: var(--link); }
h1, h2, h3 { line-height: 1.25; margin: 1.5rem 0 .5rem; }
h3 { font-size: 1rem; }
p, ul { margin: .5rem 0; }
.task { white-space: pre-wrap; }
.quiet { color: var(--quiet); }
.table { overflow-x: auto; }
table { border-collapse: collapse; width: 100%; }
th, td { border-bottom: 1px solid var(--line); padding: .3rem .6rem .3rem 0; text-align: left; vertical-align: top; }
th { min-width: 9rem; }
td { min-width: 7.5rem; }
th a, h2 { white-space: pre-wrap; }
td.number, th.number { min-width: 0; text-align: right; white-space: nowrap; }
.good { color: var(--good); font-weight: 600; }
.bad { color: var(--bad); font-weight: 600; }
section { border-top: 2px solid var(--line); margin-top: 2rem; }
img { display: block; max-width: 100%; height: auto; border: 1px solid var(--line); background: #ffffff; }
pre { margin: .5rem 0; padding: .6rem; background: var(--sheet); border: 1px solid var(--line);
  font: .9rem/1.4 ui-monospace, monospace; white-space: pre-wrap; }
.boxes { list-style: none; padding: 0; }
.boxes li { margin: .5rem 0; padding: .5rem .6rem; background: var(--sheet); border: 1px solid var(--line); }
.boxes span { display: block; white-space: pre-wrap; }
.boxes .title { font-weight: 600; }
.look { color: var(--look); font-weight: 600; }
td img { width: 6rem; }
th button { font: inherit; color: inherit; background: none; border: 0; padding: 0; cursor: pointer; text-align: left; }
th button:hover, th button:focus-visible { text-decoration: underline; }
th[aria-sort=ascending] button::after { content: " \2191"; }
th[aria-sort=descending] button::after { content: " \2193"; }
.findings a.why { white-space: nowrap; }
.program { padding-left: 3.5rem; font: .9rem/1.4 ui-monospace, monospace; background: var(--sheet);
  border: 1px solid var(--line); margin: .5rem 0; padding-top: .3rem; padding-bottom: .3rem; }
.program li::marker { color: var(--quiet); }
.program code { font: inherit; white-space: pre-wrap; }
.program .mark { border-left: 4px solid var(--look); padding-left: .4rem; }
.program .stop { border-left: 4px solid var(--bad); padding-left: .4rem; font-weight: 600; }
.texts { margin: .5rem 0; table-layout: fixed; }
.texts code { font: .9rem/1.4 ui-monospace, monospace; white-space: pre-wrap; }
.goal, .sheet { display: grid; grid-template-columns: repeat(auto-fill, minmax(14rem, 1fr)); gap: .8rem; }
figure { margin: 0; break-inside: avoid; }
figcaption { font-size: .85rem; color: var(--quiet); }
.sheet a { display: block; white-space: pre-wrap; }
.paper { display: none; }
@media print { body { max-width: none; padding: 0; font-size: 9pt; } .screen, .print-choice { display: none; }
  h1, h2, h3 { margin: .6rem 0 .2rem; break-after: avoid; } p, ul, pre, .program { margin: .2rem 0; }
  .paper { display: block; } pre, .texts code { font-size: 8pt; } .texts th, .texts td { padding: 0; }
  .boxes li { margin: .1rem 0; padding: .1rem .6rem; } .boxes span { display: inline; margin-right: 1rem; }
  .table { overflow-x: visible; } th, td { min-width: 0; } th { overflow-wrap: normal; } td.number { white-space: normal; }
  .boxes li, tr, figure { break-inside: avoid; } img { max-height: 7cm; width: auto; }
  .goal { grid-template-columns: repeat(3, 4.6cm); } .goal img { max-height: 2.9cm; } .goal figcaption { font-size: 7pt; }
  .pupil .goal ~ img { display: none; } .pupil .texts ~ img { max-height: 4cm; } td img { width: 2.5cm; }
  .pupil { border-top: 0; margin-top: 0; } .overview ~ .pupil { break-before: page; }
  .pupil .program { columns: 2; font-size: 8pt; } .pupil details:not([open]) { display: none; }
  .sheet { grid-template-columns: repeat(3, 1fr); gap: 4mm; } .sheet img { max-height: 4.2cm; }
  .sheet figure { height: 5.3cm; }
  #print-one:checked ~ main .contact { display: none; }
  #print-twelve:checked ~ main .pupil, #print-twelve:checked ~ main .overview,
  #print-twelve:checked ~ main > h2, #print-twelve:checked ~ main > .task { display: none; }
  body:has(#print-twelve:checked) header { display: none; } }
)";

}  // namespace zerimo::classroom
