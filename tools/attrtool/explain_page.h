// The parts of the page that are the same for every buffer. It has one style and one script, fetches nothing, and takes
// its words from the table of fields: without the script it can still be read.
#pragma once

namespace attrtool {

inline constexpr char kPageStyle[] = R"css(
:root {
  color-scheme: light dark;
  --page: #fbfbf9; --panel: #ffffff; --ink: #1d2129; --faint: #5d6470; --line: #d9dce1;
  --accent: #0b57d0; --bad: #b3261e; --good: #1a6b35; --bad-page: #fdecea;
  --header: #dbe8fb; --record: #d8f0dd; --meta: #ecdffa; --value: #fcebc8; --marker: #dfe3e8; --unread: #eeeeee;
}
@media (prefers-color-scheme: dark) {
  :root {
    --page: #14171c; --panel: #1c2027; --ink: #e6e8ec; --faint: #a1a8b3; --line: #353b45;
    --accent: #8ab4f8; --bad: #ffa199; --good: #7fd49a; --bad-page: #3a1f1e;
    --header: #1f3a5f; --record: #1d4429; --meta: #43305c; --value: #54411a; --marker: #3a414b; --unread: #2a2e35;
  }
}
* { box-sizing: border-box; }
body {
  margin: 0; background: var(--page); color: var(--ink);
  font: 15px/1.5 system-ui, "Segoe UI", Roboto, "DejaVu Sans", sans-serif;
}
header, main, footer { max-width: 96rem; margin: 0 auto; padding: 0 1.5rem; }
h1 { font-size: 1.5rem; margin: 1.5rem 0 0; overflow-wrap: anywhere; }
h2 { font-size: 1.05rem; margin: 0 0 .5rem; }
h3 { font-size: .95rem; margin: 0; overflow-wrap: anywhere; }
.summary { margin: .1rem 0 1rem; color: var(--faint); }
.verdicts { list-style: none; margin: 0 0 1.25rem; padding: 0; display: grid; gap: .5rem;
  grid-template-columns: repeat(auto-fit, minmax(min(21rem, 100%), 1fr)); }
.verdicts li { border: 1px solid var(--line); border-left: .3rem solid var(--good); border-radius: .4rem;
  background: var(--panel); padding: .4rem .8rem; }
.verdicts .no { border-left-color: var(--bad); background: var(--bad-page); }
.verdicts strong { color: var(--good); }
.verdicts .no strong { color: var(--bad); }
a { color: var(--accent); }
main { display: grid; gap: 1.5rem; grid-template-columns: minmax(0, 43rem) minmax(20rem, 1fr); align-items: start; }
.map { position: sticky; top: 1rem; }
.panel { background: var(--panel); border: 1px solid var(--line); border-radius: .6rem; padding: 1rem 1.1rem; }
.keys { color: var(--faint); font-size: .85rem; margin: .7rem 0 0; max-width: 38rem; }
kbd { font: .8rem ui-monospace, "DejaVu Sans Mono", monospace; border: 1px solid var(--line); border-radius: .25rem;
  padding: 0 .3rem; background: var(--page); color: var(--ink); }
.legend { display: flex; flex-wrap: wrap; gap: .3rem .9rem; list-style: none; margin: 0 0 .7rem; padding: 0;
  font-size: .85rem; }
.legend span { display: inline-block; width: .9rem; height: .9rem; border-radius: .2rem; vertical-align: -.1rem;
  margin-right: .35rem; border: 1px solid var(--line); }
.grid { font: 13px/1.75 ui-monospace, "DejaVu Sans Mono", "Liberation Mono", monospace; max-height: 62vh;
  overflow: auto; }
.row { display: flex; gap: 1.1rem; white-space: pre; width: max-content; }
.at { color: var(--faint); user-select: none; min-width: 5ch; text-align: right; }
.hex { width: 48ch; }
.hex span, .text span { border-radius: .2rem; padding: .1rem 0; cursor: pointer; }
.hex span { margin-right: 0; box-shadow: inset 0 0 0 1px transparent; }
.marker { background: var(--marker); } .header { background: var(--header); } .record { background: var(--record); }
.meta { background: var(--meta); } .value { background: var(--value); } .unread { background: var(--unread); }
.hidden { background-image: repeating-linear-gradient(45deg, transparent 0 3px, var(--line) 3px 4px); }
.current { outline: 2px solid var(--accent); outline-offset: -1px; }
.hex span:focus { outline: 3px solid var(--accent); outline-offset: 0; z-index: 1; position: relative; }
.bad { background: var(--bad); color: var(--panel); font-weight: 700; border-radius: .15rem; }
.detail { min-height: 8.2rem; margin-top: .8rem; border-top: 1px solid var(--line); padding-top: .7rem;
  max-width: 40rem; }
.detail p { margin: 0; overflow-wrap: anywhere; }
.detail .name { color: var(--faint); font-size: .88rem; }
.detail .meaning { font-weight: 650; font-size: 1.05rem; }
.detail .where { color: var(--faint); font-size: .88rem; }
.detail .why { color: var(--bad); font-weight: 600; }
.part { border-top: 1px solid var(--line); padding: .7rem 0 .5rem; margin-left: calc(var(--depth) * 1.1rem); }
.part:first-of-type { border-top: 0; }
.part[data-depth]:not([data-depth="0"]) { border-left: 3px solid var(--line); padding-left: .8rem; }
table { border-collapse: collapse; table-layout: fixed; width: 100%; margin-top: .25rem; font-size: .9rem; }
th, td { text-align: left; vertical-align: top; padding: .12rem .6rem .12rem .3rem; font-weight: 400; }
th { width: 7.5rem; color: var(--faint); }
td.o { width: 3.4rem; text-align: right; font-variant-numeric: tabular-nums; color: var(--faint); }
td.x { width: 12.2rem; color: var(--faint); font: 12px/1.85 ui-monospace, "DejaVu Sans Mono", monospace; }
td.m { overflow-wrap: anywhere; }
tr { cursor: pointer; scroll-margin: 1rem; }
tr.on { background: color-mix(in srgb, var(--accent) 16%, transparent); }
tr.refused td.m, tr.refused th { color: var(--bad); font-weight: 600; }
footer { color: var(--faint); font-size: .85rem; padding-top: 1rem; padding-bottom: 2rem; }
@media (max-width: 70rem) { main { grid-template-columns: minmax(0, 1fr); } .map { position: static; }
  .grid { max-height: 45vh; } }
@media (max-width: 45rem) { header, main, footer { padding: 0 .8rem; } td.x { display: none; } .text { display: none; } }
)css";

// Up to the title.
inline constexpr char kPageHead[] = R"html(<!doctype html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta http-equiv="Content-Security-Policy"
 content="default-src 'none'; style-src 'unsafe-inline'; script-src 'unsafe-inline'">
)html";

inline constexpr char kMapHead[] = R"html(<section class="map panel" aria-labelledby="map">
<h2 id="map">Bytes</h2>
<ul class="legend">
<li><span class="header"></span>block header</li><li><span class="record"></span>record header</li>
<li><span class="meta"></span>meta</li><li><span class="value"></span>value</li>
<li><span class="unread"></span>not read</li><li><span class="unread hidden"></span>not shown</li>
</ul>
<div class="grid" role="listbox" aria-label="Fields of the buffer, in the order of their bytes" aria-describedby="keys">
)html";

inline constexpr char kMapFoot[] = R"html(</div>
<p class="keys" id="keys"><kbd>&larr;</kbd> <kbd>&rarr;</kbd> go from field to field, <kbd>&uarr;</kbd>
<kbd>&darr;</kbd> from row to row, <kbd>Page Up</kbd> <kbd>Page Down</kbd> from record to record, <kbd>F</kbd> to what is
refused.</p>
<div class="detail"></div>
</section>
)html";

inline constexpr char kFieldsHead[] = R"html(<section class="fields panel" aria-labelledby="fields">
<h2 id="fields">Fields</h2>
)html";

inline constexpr char kPageScript[] = R"js(
'use strict';
const bytesARow = 16;
const grid = document.querySelector('.grid');
const rows = [...document.querySelectorAll('tr[data-f]')];
const options = rows.map((row) => document.getElementById('b' + row.dataset.f));
const runs = rows.map((row) => [...grid.querySelectorAll('[data-f="' + row.dataset.f + '"]')]);
const at = (i) => Number(rows[i].dataset.at);
const detail = document.querySelector('.detail');
let chosen = -1, shown = -1;

const paragraph = (name, text) => {
  const p = document.createElement('p');
  p.className = name;
  p.textContent = text;
  return p;
};

function show(i) {
  if (i === shown) return;
  if (shown >= 0) {
    runs[shown].forEach((run) => run.classList.remove('current'));
    rows[shown].classList.remove('on');
  }
  shown = i;
  runs[i].forEach((run) => run.classList.add('current'));
  rows[i].classList.add('on');
  const cell = (name) => rows[i].querySelector(name).textContent;
  const part = rows[i].closest('.part').querySelector('h3').textContent;
  detail.replaceChildren(paragraph('name', part), paragraph('meaning', cell('th') + ': ' + cell('.m')),
                         paragraph('where', rows[i].dataset.where));
  if (rows[i].dataset.why) detail.append(paragraph('why', rows[i].dataset.why));
}

function choose(i, byKey) {
  if (i < 0 || i >= rows.length) return;
  if (chosen >= 0 && options[chosen]) {
    options[chosen].tabIndex = -1;
    options[chosen].setAttribute('aria-selected', 'false');
  }
  chosen = i;
  show(i);
  const option = options[i];
  if (!option) return;
  option.tabIndex = 0;
  option.setAttribute('aria-selected', 'true');
  option.focus({preventScroll: true});
  option.scrollIntoView({block: 'nearest', inline: 'nearest'});
  if (byKey) rows[i].scrollIntoView({block: 'nearest'});
}

const withBytes = (i, step) => {
  while (i >= 0 && i < rows.length && !options[i]) i += step;
  return i;
};
const fieldOf = (offset) => rows.findLastIndex((row, i) => options[i] && at(i) <= offset);
const part = (i, step) => {
  const own = rows[i].closest('.part');
  let other = i;
  while (rows[other] && rows[other].closest('.part') === own) other += step;
  if (!rows[other]) return i;
  const first = rows[other].closest('.part').querySelector('tr[data-f]');
  return withBytes(rows.indexOf(first), 1);
};
const moves = {
  ArrowRight: (i) => withBytes(i + 1, 1),
  ArrowLeft: (i) => withBytes(i - 1, -1),
  ArrowDown: (i) => Math.max(fieldOf(at(i) + bytesARow), i),
  ArrowUp: (i) => (at(i) >= bytesARow ? fieldOf(at(i) - bytesARow) : i),
  Home: () => withBytes(0, 1),
  End: () => withBytes(rows.length - 1, -1),
  PageDown: (i) => part(i, 1),
  PageUp: (i) => part(i, -1),
  f: (i) => {
    const refused = rows.map((row, n) => n).filter((n) => rows[n].dataset.why && options[n]);
    return refused.find((n) => n > i) ?? refused[0] ?? i;
  },
};

grid.addEventListener('keydown', (event) => {
  const move = moves[event.key];
  if (!move || event.ctrlKey || event.altKey || event.metaKey) return;
  event.preventDefault();
  choose(move(chosen), true);
});
grid.addEventListener('focusin', (event) => {
  const run = event.target.closest('[data-f]');
  if (run) choose(Number(run.dataset.f), false);
});
for (const area of [grid, document.querySelector('.fields')]) {
  area.addEventListener('mouseover', (event) => {
    const run = event.target.closest('[data-f]');
    if (run) show(Number(run.dataset.f));
  });
  area.addEventListener('mouseleave', () => chosen >= 0 && show(chosen));
  area.addEventListener('click', (event) => {
    const run = event.target.closest('[data-f]');
    if (run) choose(Number(run.dataset.f), area === grid);
  });
}
for (const link of document.querySelectorAll('.verdicts a'))
  link.addEventListener('click', (event) => {
    event.preventDefault();
    choose(Number(link.dataset.f), true);
  });
const first = rows.findIndex((row, i) => row.dataset.why && options[i]);
show(first >= 0 ? first : 0);
chosen = shown;
if (options[chosen]) options[chosen].tabIndex = 0;
)js";

}  // namespace attrtool
