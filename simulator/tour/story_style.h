// The style of the story's page.
#pragma once

namespace simulator::tour {

inline constexpr const char* storyStyle = R"css(
:root { color-scheme: light dark; --page: #f4f4f7; --card: #fff; --text: #1d1d1f; --soft: #6e6e73; --line: #d2d2d7;
    --touch: #ff2d55; --good: #1d7f37; --bad: #c4161c; }
@media (prefers-color-scheme: dark) {
    :root { --page: #111113; --card: #1d1d20; --text: #f2f2f4; --soft: #a1a1a6; --line: #3a3a3e; --good: #4cd97b; --bad: #ff6b66; }
}
* { box-sizing: border-box; }
body { margin: 0; background: var(--page); color: var(--text); font: 16px/1.45 system-ui, -apple-system, sans-serif; }
header, main { max-width: 1500px; margin: 0 auto; padding: 0 20px; }
header { padding-top: 28px; }
h1 { font-size: 28px; margin: 0 0 8px; }
h2 { font-size: 20px; margin: 40px 0 12px; }
p { margin: 0; }
nav ol { padding-left: 22px; }
a { color: inherit; }
.defs { position: absolute; width: 0; height: 0; }
.soft { color: var(--soft); }
.failed { color: var(--bad); }
.strip { display: flex; gap: 14px; overflow-x: auto; margin: 0; padding: 4px 4px 14px; list-style: none; align-items: stretch; }
.strip > li { flex: none; max-width: calc(100vw - 56px); background: var(--card); border: 1px solid var(--line); border-radius: 14px;
    padding: 14px; }
.strip > li.failed { border: 2px solid var(--bad); color: inherit; }
.pictures { display: flex; gap: 12px; align-items: flex-start; overflow-x: auto; }
figure { margin: 0; flex: none; width: var(--width); }
figure.phone { --width: 196px; }
figure.pad { --width: 300px; }
figure svg { display: block; font-family: "Helvetica Neue", Helvetica, Arial, "Liberation Sans", sans-serif; width: 100%; height: auto; border-radius: 10px; border: 1px solid var(--line); }
figcaption { font-size: 12px; color: var(--soft); text-align: center; margin-top: 4px; }
.touch { fill: var(--touch); fill-opacity: .3; stroke: var(--touch); stroke-width: 4; }
.lines { margin: 12px 0 0; padding: 0; list-style: none; width: 0; min-width: max(100%, 220px); }
.lines li { padding-left: 22px; position: relative; margin-top: 4px; overflow-wrap: anywhere; white-space: pre-line; }
.lines li::before { position: absolute; left: 0; content: "›"; color: var(--soft); font-weight: 700; }
.lines li.seen::before { content: "✓"; color: var(--good); }
.lines li.failed::before { content: "✗"; color: var(--bad); }
.library { flex: none; width: 190px; font-size: 12px; }
.library h3 { font-size: 12px; margin: 6px 0 2px; }
.library h3:first-child { margin-top: 0; }
.photos { display: flex; flex-wrap: wrap; gap: 4px; }
.photo { position: relative; width: 34px; text-align: center; color: var(--soft); font-size: 10px; line-height: 1.3; }
.photo svg { display: block; width: 34px; height: 26px; border-radius: 3px; }
.photo.hidden svg { opacity: .35; }
.photo.hidden { text-decoration: line-through; }
table { border-collapse: collapse; font-size: 14px; margin-top: 12px; }
th, td { text-align: left; padding: 4px 14px 4px 0; border-bottom: 1px solid var(--line); }
@media (max-width: 600px) { header, main { padding-left: 12px; padding-right: 12px; } figure.phone { --width: 172px; } }
)css";

} // namespace simulator::tour
