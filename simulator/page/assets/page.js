// Keeps the page as the device is, and sends what a person chooses.
import { showPanels } from "./panels.js";
import { Phone } from "./phone.js";

const element = (id) => document.getElementById(id);
const choices = ["release", "size", "sensor"];
let noticeNumber = 0;

function tell(text) {
    element("notice").textContent = text;
}

async function send(action, details) {
    document.body.classList.add("busy");
    try {
        const answer = await fetch("/do", {
            method: "POST",
            headers: { "Content-Type": "application/json" },
            body: JSON.stringify({ do: action, ...details }),
        });
        if (!answer.ok) tell(await answer.text());
    } catch {
        tell("The device does not answer.");
    } finally {
        document.body.classList.remove("busy");
    }
}

// One after the other. Resolves when the device has done it; what it refuses is told.
let last = Promise.resolve();
function ask(action, details = {}) {
    last = last.then(() => send(action, details));
    return last;
}

const phone = new Phone(ask);

function option({ name, label }) {
    return new Option(label, name);
}

function radio({ name, label }) {
    const input = document.createElement("input");
    Object.assign(input, { type: "radio", name: "finger", value: name });
    input.addEventListener("change", () => ask("set", { finger: name }));
    const line = document.createElement("label");
    line.append(input, ` ${label}`);
    return line;
}

function showSettings({ settings, choices: offered }) {
    for (const id of choices) {
        const select = element(id);
        if (select.options.length === 0) select.append(...offered[id].map(option));
        select.value = settings[id];
    }
    const fingers = element("finger");
    if (!fingers.querySelector("input")) fingers.append(...offered.finger.map(radio));
    fingers.querySelector(`input[value="${settings.finger}"]`).checked = true;
    element("library").checked = settings.library;
    element("rotate").setAttribute("aria-pressed", settings.landscape);
}

function show(state) {
    element("connection").textContent = state.settings.library ? "Rollkeeper is at work" : "Without Rollkeeper";
    showSettings(state);
    phone.show(state);
    showPanels(state);
    if (state.notice.number !== noticeNumber) {
        noticeNumber = state.notice.number;
        tell(state.notice.text);
    }
}

for (const id of choices) element(id).addEventListener("change", ({ target }) => ask("set", { [id]: target.value }));
element("library").addEventListener("change", ({ target }) => ask("set", { library: target.checked }));
element("takePhoto").addEventListener("click", () => ask("takePhoto"));
element("rotate").addEventListener("click", ({ target }) =>
    ask("set", { landscape: target.getAttribute("aria-pressed") !== "true" }));

const events = new EventSource("/events");
events.addEventListener("message", ({ data }) => show(JSON.parse(data)));
events.addEventListener("error", () => {
    element("connection").textContent = "Not connected";
});
