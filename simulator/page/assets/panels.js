// What lies beside the phone: its photo library, its files, and the hooks that ran last.
const shown = new Map();

// Fills the list anew when what it shows has changed.
function fill(id, content, make) {
    const text = JSON.stringify(content);
    if (shown.get(id) === text) return;
    shown.set(id, text);
    document.getElementById(id).replaceChildren(...content.map(make));
}

function make(name, className, ...children) {
    const made = document.createElement(name);
    made.className = className;
    made.append(...children);
    return made;
}

function photo({ id, hidden, video }) {
    const picture = make("img", "");
    picture.src = `/photo?id=${encodeURIComponent(id)}`;
    const marks = [hidden && "hidden", video && "video"].filter(Boolean).join(", ");
    picture.alt = marks ? `Photo, ${marks}` : "Photo";
    const tile = make("li", hidden ? "photo hidden" : "photo", picture);
    if (marks) tile.append(make("span", "mark", marks));
    return tile;
}

function photoList({ title, photos }) {
    const heading = make("h3", "", title || "Without a title", make("span", "count", ` ${photos.length}`));
    const list = make("ul", "photos", ...photos.map(photo));
    const section = make("section", "album", heading, list);
    section.dataset.title = title;
    return section;
}

function file({ path, text }) {
    const details = make("details", "file", make("summary", "", path.split("/").pop()), make("p", "path", path),
        make("pre", "", text));
    details.dataset.path = path;
    details.open = true;
    return details;
}

function hook({ application, method, count }) {
    return make("li", "", make("code", "", method), make("span", "count", ` ${application}, ${count}×`));
}

export function showPanels({ photos, files, hooks }) {
    fill("photos", photos, photoList);
    fill("files", files, file);
    fill("hooks", hooks, hook);
    for (const [id, words] of [["files", "None yet."], ["hooks", "None: the phone runs without Rollkeeper."]]) {
        const list = document.getElementById(id);
        if (!list.hasChildNodes()) list.append(make("p", "none", words));
    }
}
