// The phone's screen: its picture, what can be touched on it as buttons for keyboards and readers of screens, and
// fingers at any point.
const holdAfter = 500; // milliseconds
const holdSeconds = 1.2; // long enough for every long press that there is
const moveBeyond = 8; // points; less is a tap
const framesWidth = 60; // pixels around the screen
const homeButtonSide = 56;
const framesHeight = 215;
const leastHeight = 480;
const arrows = { ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1] };

const middle = ([x, y, width, height]) => ({ x: x + width / 2, y: y + height / 2 });

export class Phone {
    constructor(ask) {
        this.ask = ask;
        this.shownSpots = "";
        this.screen = document.getElementById("screen");
        this.picture = document.getElementById("picture");
        this.spots = document.getElementById("spots");
        document.getElementById("homeButton").addEventListener("click", () => ask("home"));
        this.screen.addEventListener("pointerdown", (event) => this.fingerDown(event));
        this.screen.addEventListener("pointerup", (event) => this.fingerUp(event));
        this.screen.addEventListener("pointercancel", () => (this.finger = null));
        this.screen.addEventListener("contextmenu", (event) => {
            event.preventDefault();
            if (!this.isHome) ask("hardPress", this.pointOf(event));
        });
        this.screen.addEventListener("wheel", (event) => this.wheel(event), { passive: false });
        this.screen.addEventListener("keydown", (event) => this.key(event));
        new ResizeObserver(() => this.fit()).observe(this.screen.parentElement.parentElement);
    }

    show({ application, isHome, screen }) {
        this.size = screen;
        this.isHome = isHome;
        document.body.classList.toggle("landscape", screen.width > screen.height);
        this.fit();
        this.screen.setAttribute("aria-label", isHome ? "Home screen" : `Screen of ${application}`);
        if (this.picture.dataset.number !== String(screen.number)) {
            this.picture.dataset.number = screen.number;
            this.picture.src = `/screen.svg?number=${screen.number}`;
        }
        this.picture.hidden = false;
        this.showSpots(screen.spots);
    }

    // As large as there is room for, up to its own size.
    fit() {
        if (!this.size) return;
        const { width, height } = this.size;
        const besides = framesWidth + (width > height ? homeButtonSide : 0);
        const room = this.screen.parentElement.parentElement.clientWidth - besides;
        this.scale = Math.min(1, room / width, Math.max(leastHeight, window.innerHeight - framesHeight) / height);
        this.screen.style.width = `${width * this.scale}px`;
        this.screen.style.height = `${height * this.scale}px`;
        this.spots.style.transform = `scale(${this.scale})`;
    }

    // Made anew only when something changed, so that the focus stays where it is.
    showSpots(spots) {
        const shown = JSON.stringify(spots);
        if (shown === this.shownSpots) return;
        this.shownSpots = shown;
        const children = [...this.spots.children];
        const at = children.indexOf(document.activeElement);
        const label = children[at]?.getAttribute("aria-label");
        let field = 0;
        this.spots.replaceChildren(...spots.map((spot) =>
            spot.kind === "textField" ? this.textField(spot, field++, children) : this.spotButton(spot)));
        if (at < 0) return;
        const now = [...this.spots.children];
        const again = now.find((each) => each.getAttribute("aria-label") === label) ?? now[Math.min(at, now.length - 1)];
        again?.focus();
    }

    place(control, { kind, label, state, rect }) {
        const [x, y, width, height] = rect;
        control.className = `spot ${kind} ${state}`;
        control.setAttribute("aria-label", label || kind);
        Object.assign(control.style, { left: `${x}px`, top: `${y}px`, width: `${width}px`, height: `${height}px` });
        control.rect = rect;
        return control;
    }

    spotButton(spot) {
        const button = this.place(document.createElement("button"), spot);
        button.type = "button";
        if (spot.kind === "switch") {
            button.setAttribute("role", "switch");
            button.setAttribute("aria-checked", spot.state === "on");
        }
        if (spot.kind === "tab" && spot.state === "selected") button.setAttribute("aria-current", "page");
        // Of a finger or mouse the screen takes care; this is the keyboard, or a reader of screens.
        button.addEventListener("click", (event) => {
            if (event.detail === 0) this.ask("tap", middle(spot.rect));
        });
        return button;
    }

    // The same field stays while it is typed into.
    textField(spot, number, children) {
        const before = children.filter((child) => child.localName === "input")[number];
        if (before) return this.place(before, spot);
        const input = this.place(document.createElement("input"), spot);
        input.type = "text";
        input.placeholder = spot.label;
        input.autocomplete = "off";
        input.addEventListener("input", () => this.ask("type", { field: number, text: input.value }));
        if (number === 0) queueMicrotask(() => input.focus());
        return input;
    }

    pointOf({ clientX, clientY }) {
        const edge = this.screen.getBoundingClientRect();
        return { x: (clientX - edge.left) / this.scale, y: (clientY - edge.top) / this.scale };
    }

    fingerDown(event) {
        if (event.target.localName === "input" || event.button !== 0) return;
        this.screen.setPointerCapture(event.pointerId);
        this.finger = { ...this.pointOf(event), at: event.timeStamp };
    }

    fingerUp(event) {
        const { finger } = this;
        this.finger = null;
        if (!finger) return;
        const { x, y } = this.pointOf(event);
        const right = finger.x - x;
        const down = finger.y - y;
        const start = { x: finger.x, y: finger.y };
        if (Math.hypot(right, down) > moveBeyond && !this.isHome) this.ask("scroll", { ...start, right, down });
        else if (event.timeStamp - finger.at >= holdAfter) this.ask("press", { ...start, seconds: holdSeconds });
        else this.ask("tap", start);
    }

    // Turns of a wheel come faster than a screen: they add up while one is under way.
    async wheel(event) {
        if (this.isHome) return;
        event.preventDefault();
        if (event.ctrlKey) return this.pinch(event);
        this.wheelLeft = (this.wheelLeft ?? 0) + event.deltaY;
        if (this.wheeling) return;
        this.wheeling = true;
        while (this.wheelLeft) {
            const down = this.wheelLeft;
            this.wheelLeft = 0;
            await this.ask("scroll", { ...this.pointOf(event), right: 0, down });
        }
        this.wheeling = false;
    }

    // As browsers tell of two fingers on a touch pad; one pinch for all that comes within a moment.
    pinch(event) {
        if (performance.now() - (this.pinched ?? 0) > holdAfter) this.ask("pinch", this.pointOf(event));
        this.pinched = performance.now();
    }

    key(event) {
        const { target, key } = event;
        if (key === "Escape") this.ask("home");
        else if (key === "Enter" && event.shiftKey && target.rect)
            this.ask("press", { ...middle(target.rect), seconds: holdSeconds });
        else if (key === "Enter" && event.ctrlKey && target.rect) this.ask("hardPress", middle(target.rect));
        else if (key === "+" && target.rect && target.localName === "button") this.ask("pinch", middle(target.rect));
        else if (key === "Enter" && target.localName === "input") return;
        else if ((key === "PageDown" || key === "PageUp") && !this.isHome) {
            const { width, height } = this.size;
            this.ask("scroll", { x: width / 2, y: height / 2, right: 0, down: (key === "PageDown" ? 0.5 : -0.5) * height });
        } else if (arrows[key] && target.localName === "button") this.moveFocus(target, arrows[key]);
        else return;
        event.preventDefault();
    }

    // To the nearest button in that direction.
    moveFocus(from, [right, down]) {
        const centre = (each) => {
            const edge = each.getBoundingClientRect();
            return [edge.left + edge.width / 2, edge.top + edge.height / 2];
        };
        const [x, y] = centre(from);
        let nearest = null;
        let least = Infinity;
        for (const each of this.screen.querySelectorAll("button, input")) {
            const [eachX, eachY] = centre(each);
            const along = (eachX - x) * right + (eachY - y) * down;
            const aside = Math.abs((eachX - x) * down) + Math.abs((eachY - y) * right);
            if (along <= 1 || along + 2 * aside >= least) continue;
            least = along + 2 * aside;
            nearest = each;
        }
        nearest?.focus();
    }
}
