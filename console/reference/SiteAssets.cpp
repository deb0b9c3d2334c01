#include "reference/SiteAssets.hpp"

namespace velmara::console {

char const* const siteStyle = R"(:root {
  color-scheme: light dark;
  --paper: #ffffff; --ink: #1b1d21; --quiet: #50555e; --link: #0a4bb5; --line: #c3c8d0; --box: #f2f4f7;
}
@media (prefers-color-scheme: dark) {
  :root { --paper: #15171b; --ink: #e8eaed; --quiet: #b4bac4; --link: #8fb8ff; --line: #454b55; --box: #20242a; }
}
* { box-sizing: border-box; }
body {
  margin: 0 auto; max-width: 60rem; padding: 0 1rem; background: var(--paper); color: var(--ink);
  font: 1rem/1.5 system-ui, sans-serif;
}
a { color: var(--link); }
:focus-visible { outline: 3px solid var(--link); outline-offset: 2px; }
.skip { position: absolute; left: -100rem; }
.skip:focus { left: 1rem; background: var(--paper); }
header { border-bottom: 1px solid var(--line); padding: 0.75rem 0; }
header ol { list-style: none; margin: 0 0 0.5rem; padding: 0; display: flex; flex-wrap: wrap; gap: 0.5rem; }
header li + li::before { content: "/ "; color: var(--quiet); }
#query { font: inherit; width: min(24rem, 70vw); padding: 0.25rem; border: 1px solid var(--quiet); }
#count { margin: 0.25rem 0 0; color: var(--quiet); }
#found { display: block; margin: 0.25rem 0 0; padding: 0; list-style: none; }
#found li + li::before { content: none; }
.kind, .note, footer { color: var(--quiet); }
.kind { margin: 1rem 0 0; }
h1 { margin: 0; overflow-wrap: anywhere; }
h3 { margin: 0; font-weight: normal; }
p { white-space: pre-line; margin: 0.25rem 0; overflow-wrap: anywhere; }
code { font-family: ui-monospace, monospace; overflow-wrap: anywhere; }
article { margin: 0.75rem 0; padding: 0.5rem 0.75rem; background: var(--box); border-left: 3px solid var(--line); }
article:target { border-left-color: var(--link); }
.diagram { overflow-x: auto; margin: 1rem 0; }
svg rect { fill: var(--box); stroke: var(--quiet); }
svg text { fill: var(--link); text-anchor: middle; font: 15px ui-monospace, monospace; }
svg line { stroke: var(--quiet); }
footer { border-top: 1px solid var(--line); margin-top: 2rem; }
@media print {
  :root { --paper: #ffffff; --ink: #000000; --quiet: #333333; --link: #000000; --line: #999999; --box: #ffffff; }
  [role="search"], .skip { display: none; }
  article { break-inside: avoid; }
}
)";

char const* const siteScript = R"("use strict";
const query = document.getElementById("query");
const found = document.getElementById("found");
const count = document.getElementById("count");
const most = 50;

function link([name, kind, address]) {
  const item = document.createElement("li");
  const anchor = document.createElement("a");
  anchor.href = address;
  anchor.textContent = name;
  item.append(anchor, " " + kind);
  return item;
}

function search() {
  const words = query.value.toLowerCase().split(/\s+/).filter((word) => word);
  const isIn = (entry, word) => entry[0].toLowerCase().includes(word) || entry[3].toLowerCase().includes(word);
  const hits = words.length === 0 ? [] : entries.filter((entry) => words.every((word) => isIn(entry, word)));
  const byName = hits.filter((entry) => words.every((word) => entry[0].toLowerCase().includes(word)));
  const all = [...byName, ...hits.filter((entry) => !byName.includes(entry))];
  found.replaceChildren(...all.slice(0, most).map(link));
  count.textContent = words.length === 0 ? "" : all.length + " found" +
    (all.length > most ? ", the first " + most + " shown" : "");
}

query.addEventListener("input", search);
document.addEventListener("keydown", (event) => {
  if (event.key === "/" && document.activeElement !== query) {
    event.preventDefault();
    query.focus();
  }
});
)";

} // namespace velmara::console
