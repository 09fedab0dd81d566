// The fixed parts of the page of calls.
#pragma once

constexpr const char* kPageBegin = R"(<!doctype html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; style-src 'unsafe-inline'; script-src 'unsafe-inline'; img-src data:">
<title>H.323 calls</title>
<link rel="icon" href="data:,">
<style>
:root { color-scheme: light dark; --line: #8888; --fault: light-dark(#b00020, #ff8a80); --link: light-dark(#0b57d0, #8ab4f8); }
body { font: 14px/1.45 system-ui, sans-serif; margin: 1.5rem; }
form { display: flex; gap: 1.5rem; margin-bottom: 1rem; align-items: center; }
table { border-collapse: collapse; width: 100%; }
th, td { text-align: left; padding: .3rem .6rem; border-bottom: 1px solid var(--line); vertical-align: top; }
th button, td button { font: inherit; background: none; border: 0; padding: 0; color: var(--link); cursor: pointer; }
th button { font-weight: bold; }
th[aria-sort=ascending] button::after { content: " \25B2"; }
th[aria-sort=descending] button::after { content: " \25BC"; }
.row { cursor: pointer; }
.row:hover { background: color-mix(in srgb, var(--link) 10%, transparent); }
.number { text-align: right; white-space: nowrap; font-variant-numeric: tabular-nums; }
.fault { color: var(--fault); }
td[colspan] { max-width: 0; }
h2 { font-size: 1em; margin: .8rem 0 .2rem; }
ul { margin: 0; padding-left: 1.2rem; }
pre { overflow-x: auto; margin: .3rem 0 .8rem; }
.ladder { overflow-x: auto; }
svg text { fill: CanvasText; font-size: 12px; text-anchor: middle; }
svg .time { text-anchor: end; }
svg .within { text-anchor: start; }
svg rect { fill: transparent; }
svg line { stroke: CanvasText; }
svg polygon { fill: CanvasText; }
svg .life { stroke: var(--line); }
svg a.fault text, svg .fault text { fill: var(--fault); }
svg a.fault line, svg .fault line { stroke: var(--fault); }
svg a.fault polygon, svg .fault polygon { fill: var(--fault); }
:focus-visible { outline: 2px solid var(--link); }
</style>
</head>
<body>
<h1>H.323 calls</h1>
<form onsubmit="return false">
<label>Filter <input type="search" id="filter"></label>
<label><input type="checkbox" id="faulty"> with faults only</label>
<label><input type="checkbox" id="outside" checked> with what stands outside calls</label>
<output id="count"></output>
</form>
<table id="calls">
<thead><tr><th><button>#</button></th><th><button>start</button></th><th><button>from</button></th><th><button>to</button></th><th class="number"><button>setup</button></th><th class="number"><button>duration</button></th><th><button>end</button></th><th><button>faults</button></th></tr></thead>
)";

constexpr const char* kPageEnd = R"(</table>
<script>
"use strict";
const table = document.getElementById("calls");
const headers = [...table.tHead.rows[0].cells];
const bodies = () => [...table.tBodies];

function open(body, isOpen) {
  body.rows[1].hidden = !isOpen;
  body.querySelector(".open").setAttribute("aria-expanded", isOpen);
}

function filter() {
  const wanted = document.getElementById("filter").value.toLowerCase();
  const faulty = document.getElementById("faulty").checked;
  const outside = document.getElementById("outside").checked;
  let shown = 0;
  for (const body of bodies()) {
    const fits = body.rows[0].textContent.toLowerCase().includes(wanted) ||
        (body.dataset.identifier || "").startsWith(wanted);
    body.hidden = !fits || (faulty && !("faulty" in body.dataset)) || (!outside && "outside" in body.dataset);
    if (!body.hidden) ++shown;
  }
  document.getElementById("count").textContent = shown + " of " + bodies().length;
}

function sort(column) {
  const descending = headers[column].getAttribute("aria-sort") === "ascending";
  headers.forEach((header) => header.removeAttribute("aria-sort"));
  headers[column].setAttribute("aria-sort", descending ? "descending" : "ascending");
  const key = (body) => {
    const cell = body.rows[0].cells[column];
    return "value" in cell.dataset ? Number(cell.dataset.value) : cell.textContent.toLowerCase();
  };
  const compare = (a, b) => (a < b ? -1 : a > b ? 1 : 0);
  const sorted = bodies().sort((a, b) => (descending ? -1 : 1) * compare(key(a), key(b)));
  table.append(...sorted);
}

headers.forEach((header, column) => header.firstElementChild.addEventListener("click", () => sort(column)));
for (const id of ["filter", "faulty", "outside"]) document.getElementById(id).addEventListener("input", filter);
table.addEventListener("click", (event) => {
  const row = event.target.closest(".row");
  if (row) open(row.parentElement, row.nextElementSibling.hidden);
  const link = event.target.closest("svg a");
  if (link) {
    const message = document.getElementById(link.getAttribute("href").slice(1));
    message.open = true;
    message.firstElementChild.focus();
  }
});
filter();
</script>
</body>
</html>
)";
