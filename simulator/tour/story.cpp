#include "tour/story.h"

#include "UIKit/model/SvgCanvas.h"
#include "device/xml.h"
#include "tour/story_style.h"

#include <array>
#include <map>
#include <set>
#include <sstream>

namespace simulator::tour {

namespace {

constexpr CGRect thumbnail = {{0, 0}, {40, 30}};

std::string base64(const std::string& bytes) {
    constexpr const char* letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t start = 0; start < bytes.size(); start += 3) {
        std::uint32_t group = 0;
        for (std::size_t index = start; index < start + 3; ++index)
            group = group << 8U | (index < bytes.size() ? static_cast<unsigned char>(bytes[index]) : 0U);
        for (std::size_t place = 0; place < 4; ++place)
            text += start + place > bytes.size() ? '=' : letters[group >> (18 - 6 * place) & 63U];
    }
    return text;
}

const char* className(StoryStep::Kind kind) {
    constexpr std::array names = {"told", "seen", "failed"};
    return names[static_cast<std::size_t>(kind)];
}

// A drawing of the device taken apart.
struct Drawing {
    std::string viewBox;
    std::string content;
    bool isWide = false;
};

// Puts each drawing, and each thing that drawings refer to by name, into the page only once.
class Gallery {
  public:
    Drawing take(const std::string& svg) {
        const std::size_t box = svg.find("viewBox=\"") + 9;
        const std::size_t start = svg.find('\n') + 1;
        const std::size_t definitions = svg.rfind("<defs>\n");
        std::istringstream lines(svg.substr(definitions + 7, svg.rfind("</defs>") - definitions - 7));
        for (std::string line; std::getline(lines, line);)
            m_definitions.insert(line);
        Drawing drawing = {svg.substr(box, svg.find('"', box) - box), svg.substr(start, definitions - start)};
        std::istringstream numbers(drawing.viewBox);
        double x = 0, y = 0, width = 0;
        numbers >> x >> y >> width;
        drawing.isWide = width > 500;
        return drawing;
    }

    // The screen's name within the page.
    std::string nameOf(const Drawing& drawing) {
        const auto [place, isNew] =
            m_screens.try_emplace(drawing.content, "screen" + std::to_string(m_screens.size() + 1));
        if (isNew)
            m_definitions.insert("<symbol id=\"" + place->second + "\" viewBox=\"" + drawing.viewBox + "\">" +
                                 drawing.content + "</symbol>");
        return place->second;
    }

    std::string definitions() const {
        std::string all = "<svg class=\"defs\" aria-hidden=\"true\"><defs>\n";
        for (const std::string& definition : m_definitions)
            all += definition + '\n';
        return all + "</defs></svg>\n";
    }

  private:
    std::set<std::string> m_definitions;
    std::map<std::string, std::string> m_screens; // names by content
};

std::string figure(Gallery& gallery, const StoryScreen& screen) {
    const Drawing drawing = gallery.take(screen.svg);
    const std::string name = escapedForXml(screen.application);
    std::ostringstream out;
    out << "<figure class=\"" << (drawing.isWide ? "pad" : "phone") << "\"><svg viewBox=\"" << drawing.viewBox
        << "\" role=\"img\" aria-label=\"Screen of " << name << (screen.touch ? ", touched" : "")
        << "\"><use href=\"#" << gallery.nameOf(drawing) << "\"/>";
    if (screen.touch)
        out << "<circle class=\"touch\" cx=\"" << screen.touch->x << "\" cy=\"" << screen.touch->y
            << "\" r=\"22\"/>";
    out << "</svg><figcaption>" << name << "</figcaption></figure>\n";
    return out.str();
}

std::string photo(Gallery& gallery, const StoryPhoto& photo) {
    SvgCanvas canvas(thumbnail.size);
    if (photo.png)
        canvas.picture(thumbnail, SvgFit::fill, thumbnail.size, base64(*photo.png));
    else
        canvas.scenery(thumbnail, SvgFit::fill, thumbnail.size, photo.scenery);
    const Drawing drawing = gallery.take(canvas.document());
    const std::string number = escapedForXml(photo.number);
    const std::string hidden = photo.isHidden ? " hidden" : "";
    return "<div class=\"photo" + hidden + "\"><svg viewBox=\"" + drawing.viewBox +
           "\" role=\"img\" aria-label=\"Photo " + number + hidden + "\">" + drawing.content + "</svg>" +
           number + "</div>";
}

std::string library(Gallery& gallery, const std::vector<StoryShelf>& shelves) {
    std::string out = "<aside class=\"library\" aria-label=\"Photo library\">";
    for (const StoryShelf& shelf : shelves) {
        out += "<h3>" + escapedForXml(shelf.title) + "</h3><div class=\"photos\">";
        for (const StoryPhoto& each : shelf.photos)
            out += photo(gallery, each);
        if (shelf.photos.empty()) out += "<span class=\"soft\">nothing</span>";
        out += "</div>";
    }
    return out + "</aside>\n";
}

std::string table(const std::vector<std::vector<std::string>>& rows) {
    std::ostringstream out;
    out << "<table>";
    for (std::size_t row = 0; row < rows.size(); ++row) {
        out << "<tr>";
        for (std::size_t column = 0; column < rows[row].size(); ++column) {
            const char* tag = row == 0 || column == 0 ? "th" : "td";
            out << '<' << tag << '>' << escapedForXml(rows[row][column]) << "</" << tag << '>';
        }
        out << "</tr>";
    }
    out << "</table>\n";
    return out.str();
}

bool hasPictures(const StoryStep& step) { return !step.screens.empty() || !step.library.empty(); }

// One card of the strip.
std::string card(Gallery& gallery, const std::vector<StoryStep>& steps, std::size_t first, std::size_t end) {
    std::string pictures, lines, tables;
    StoryStep::Kind kind = StoryStep::Kind::told;
    for (std::size_t index = first; index < end; ++index) {
        const StoryStep& step = steps[index];
        for (const StoryScreen& screen : step.screens)
            pictures += figure(gallery, screen);
        if (!step.library.empty()) pictures += library(gallery, step.library);
        if (!step.table.empty()) tables += table(step.table);
        lines +=
            std::string("<li class=\"") + className(step.kind) + "\">" + escapedForXml(step.text) + "</li>\n";
        kind = step.kind;
    }
    return std::string("<li class=\"") + className(kind) + "\">" +
           (pictures.empty() ? "" : "<div class=\"pictures\">" + pictures + "</div>") +
           "<ul class=\"lines\">" + lines + "</ul>" + tables + "</li>\n";
}

// Lines without pictures share a card: what is told with what comes of it, what is seen with what went
// before.
std::size_t endOfCard(const std::vector<StoryStep>& steps, std::size_t first) {
    bool isFull = hasPictures(steps[first]);
    std::size_t end = first + 1;
    while (end < steps.size()) {
        const StoryStep& next = steps[end];
        if (isFull && (hasPictures(next) || next.kind == StoryStep::Kind::told)) break;
        isFull = isFull || hasPictures(next);
        ++end;
    }
    return end;
}

std::string strip(Gallery& gallery, const StoryChapter& chapter) {
    if (chapter.steps.empty()) return "<p class=\"soft\">Not reached.</p>\n";
    std::string out = "<ol class=\"strip\" tabindex=\"0\" role=\"list\" aria-label=\"" +
                      escapedForXml(chapter.title) + "\">\n";
    for (std::size_t first = 0; first < chapter.steps.size();) {
        const std::size_t end = endOfCard(chapter.steps, first);
        out += card(gallery, chapter.steps, first, end);
        first = end;
    }
    return out + "</ol>\n";
}

std::string summary(const std::vector<StoryChapter>& chapters) {
    for (const StoryChapter& chapter : chapters)
        for (const StoryStep& step : chapter.steps)
            if (step.kind == StoryStep::Kind::failed)
                return "<p class=\"failed\">It failed in “" + escapedForXml(chapter.title) + "”.</p>\n";
    return "<p>Everything happened as it should.</p>\n";
}

} // namespace

std::string storyAsHtml(const std::vector<StoryChapter>& chapters, const std::string& library) {
    Gallery gallery;
    std::ostringstream contents, sections;
    for (std::size_t index = 0; index < chapters.size(); ++index) {
        const std::string name = "scenario" + std::to_string(index + 1);
        const std::string title = escapedForXml(chapters[index].title);
        contents << "<li><a href=\"#" << name << "\">" << title << "</a></li>\n";
        sections << "<section id=\"" << name << "\"><h2>" << title << "</h2>\n"
                 << strip(gallery, chapters[index]) << "</section>\n";
    }
    return "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><meta name=\"viewport\" "
           "content=\"width=device-width, initial-scale=1\">\n<title>Rollkeeper at work</title>\n<style>" +
           std::string(storyStyle) + "</style></head>\n<body>" + gallery.definitions() +
           "<header><h1>Rollkeeper at work</h1>\n<p class=\"soft\">" + escapedForXml(library) +
           " on a simulated device. A ring marks where a finger touches; beside the screens stands the photo "
           "library whenever it changes, with hidden photos pale.</p>\n" +
           summary(chapters) + "<nav aria-label=\"Scenarios\"><ol>\n" + contents.str() +
           "</ol></nav></header>\n<main>\n" + sections.str() + "</main></body></html>\n";
}

} // namespace simulator::tour
