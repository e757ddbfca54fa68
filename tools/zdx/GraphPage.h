// What stands in every page of a graph: its look, and what makes it answer.
#pragma once

#include <string_view>

namespace zdx {

inline constexpr std::string_view kPageStyle = R"css(
:root { color-scheme: light dark; --page: #fff; --ink: #1c1b1f; --faint: #5f5d66;
  --line: #8a8791; --box: #f3f1f7; --root: #dfe7f7; --bad: #b3261e; --mark: #fff2b8; }
@media (prefers-color-scheme: dark) { :root { --page: #17171a; --ink: #e8e6ec; --faint: #a9a6b2;
  --line: #77747f; --box: #26252b; --root: #24344f; --bad: #ff8a80; --mark: #4d4413; } }
* { box-sizing: border-box; }
body { margin: 0; padding: 1rem; background: var(--page); color: var(--ink);
  font: 15px/1.4 system-ui, sans-serif; }
h1 { font-size: 1.3rem; margin: 0 0 .3rem; overflow-wrap: anywhere; }
h2 { font-size: 1.05rem; margin: 1.2rem 0 .4rem; }
p { margin: 0 0 .6rem; }
button, input { font: inherit; }
.graph { overflow: auto; max-height: 65vh; border: 1px solid var(--line); border-radius: 6px; }
.graph.held { cursor: grabbing; user-select: none; }
svg { display: block; font: 12px ui-monospace, monospace; }
.node rect { fill: var(--box); stroke: var(--line); }
.node.root rect { fill: var(--root); stroke-width: 2; }
.node.missing rect { stroke: var(--bad); stroke-width: 2; stroke-dasharray: 5 3; }
.node text { fill: var(--ink); }
.node .note { fill: var(--faint); font-size: 10px; }
.node.missing .note { fill: var(--bad); }
.node:target rect { fill: var(--mark); stroke-width: 3; }
.edge { fill: none; stroke: var(--line); stroke-width: 1.3; }
.edge.overlay { stroke-dasharray: 6 4; }
.edge.unloaded { stroke-dasharray: 2 4; }
.edge:hover { stroke: var(--ink); stroke-width: 2.5; }
#tip { fill: var(--line); }
ul { list-style: none; margin: .6rem 0 0; padding: 0; }
li { padding: .3rem 0; border-top: 1px solid var(--box); overflow-wrap: anywhere; }
li a { color: inherit; font-weight: 600; }
li .note { color: var(--faint); }
li.missing .note { color: var(--bad); font-weight: 600; }
li div { color: var(--faint); font-size: .88em; }
label, #found { margin-left: .8rem; }
)css";

// Nothing here depends on the graph.  The page is of use without it: it can be scrolled.
inline constexpr std::string_view kPageScript = R"js(
"use strict";
const graph = document.querySelector(".graph");
const picture = graph.querySelector("svg");
const width = Number(picture.getAttribute("width"));
const height = Number(picture.getAttribute("height"));
let scale = 1;
function zoom(to) {
  const before = scale;
  scale = Math.min(4, Math.max(0.0001, to));
  const x = graph.scrollLeft + graph.clientWidth / 2, y = graph.scrollTop + graph.clientHeight / 2;
  picture.setAttribute("width", width * scale);
  picture.setAttribute("height", height * scale);
  graph.scrollLeft = x * scale / before - graph.clientWidth / 2;
  graph.scrollTop = y * scale / before - graph.clientHeight / 2;
}
document.getElementById("larger").onclick = () => zoom(scale * 1.25);
document.getElementById("smaller").onclick = () => zoom(scale / 1.25);
document.getElementById("whole").onclick = () => {
  // The frame shrinks with the picture.
  zoom(1);
  zoom(Math.min(1, graph.clientWidth / width, graph.clientHeight / height));
};
document.getElementById("plain").onclick = () => zoom(1);
graph.addEventListener("wheel", (event) => {
  if (!event.ctrlKey) return;
  event.preventDefault();
  zoom(scale * Math.exp(-event.deltaY / 400));
}, { passive: false });
graph.addEventListener("pointerdown", (event) => {
  if (event.button !== 0 || event.pointerType !== "mouse") return;
  const x = event.clientX + graph.scrollLeft, y = event.clientY + graph.scrollTop;
  const move = (to) => graph.scrollTo(x - to.clientX, y - to.clientY);
  const drop = () => {
    graph.classList.remove("held");
    removeEventListener("pointermove", move);
    removeEventListener("pointerup", drop);
  };
  graph.classList.add("held");
  addEventListener("pointermove", move);
  addEventListener("pointerup", drop);
});
const filter = document.getElementById("filter");
const only = document.getElementById("only");
const found = document.getElementById("found");
const entries = Array.from(document.querySelectorAll("li"),
                           (entry) => [entry, entry.textContent.toLowerCase()]);
function show() {
  const words = filter.value.toLowerCase().split(/\s+/);
  let count = 0;
  for (const [entry, text] of entries) {
    entry.hidden = !words.every((word) => text.includes(word)) ||
                   only.checked && !entry.classList.contains("missing");
    if (!entry.hidden) ++count;
  }
  found.textContent = count + " of " + entries.length + " files";
}
filter.oninput = show;
only.onchange = show;
for (const controls of document.querySelectorAll("[hidden]")) controls.hidden = false;
show();
)js";

}  // namespace zdx
