#include <lvdata/analysis/pictures/Picture.h>

#include <vector>

namespace lv::analysis {
namespace {

constexpr double margin = 16;
constexpr double titleLine = 26;
constexpr double subtitleLine = 44;
constexpr double textFontSize = 12;
constexpr double titleFontSize = 16;  // 15 and bold
constexpr double emptyHeight = 150;

/// The words of a text in lines of at most that width.
std::vector<std::string> wrapped(const std::string& text, double width) {
    std::vector<std::string> lines{""};
    std::string word;
    for (const char character : text + ' ') {
        if (character != ' ') {
            word += character;
            continue;
        }
        const std::string longer = lines.back().empty() ? word : lines.back() + ' ' + word;
        if (svg::textWidth(longer, textFontSize) <= width || lines.back().empty()) {
            lines.back() = svg::shortened(longer, width, textFontSize);
        } else {
            lines.push_back(svg::shortened(word, width, textFontSize));
        }
        word.clear();
    }
    return lines;
}

/// In a page, which is HTML, the style sheet says how large pictures are.
svg::Attributes forPage(svg::Attributes attributes) {
    attributes.insert(attributes.begin(), {"class", "lv-picture"});
    return attributes;
}

svg::Attributes forFile(svg::Attributes attributes, const std::string& id, double height) {
    attributes.insert(attributes.begin(), {"class", "lv-picture " + id});
    attributes.insert(attributes.begin(), {"xmlns", "http://www.w3.org/2000/svg"});
    attributes.insert(attributes.end(), {{"width", pictureWidth}, {"height", height}});
    return attributes;
}

}  // namespace

Picture::Picture(const PictureForm& form, double height, const PictureTexts& texts)
    : svg_(form.shared),
      id_(form.shared == nullptr ? form.id : "lv") {
    const std::string size = svg::coordinateText(pictureWidth) + ',' + svg::coordinateText(height);
    const svg::Attributes attributes{{"role", "img"}, {"viewBox", "0,0," + size}};
    svg_.open("svg", svg_.isForPage() ? forPage(attributes) : forFile(attributes, form.id, height));
    const std::string subtitle = svg::cleaned(texts.subtitle);
    svg_.text("title", {}, texts.title + (subtitle.empty() ? "" : ": " + subtitle));
    svg_.text("desc", {}, svg::cleaned(texts.description));
    if (form.hasStyle) {
        svg_.style(pictureStyle());
    }
    if (form.shared == nullptr) {
        svg_.empty("rect", {{"class", "lv-paper"}, {"width", pictureWidth}, {"height", height}});
    }
    const double width = pictureWidth - 2 * margin;
    const std::string shownTitle = svg::shortened(texts.title, width, titleFontSize);
    addSharedText({margin, titleLine}, "lv-title", shownTitle);
    if (!subtitle.empty()) {
        const std::string shown = svg::shortened(subtitle, width, textFontSize);
        addSharedText({margin, subtitleLine}, "lv-sub", shown);
    }
}

/// The title is the same in pictures of several modes, the subtitle in all pictures of a mode.
void Picture::addSharedText(const svg::Point& at, std::string_view classes, const std::string& text) {
    svg::SVGWriter part = svg_.newPart();
    svg::addText(part, at, classes, svg::Anchor::start, text);
    svg_.share(part);
}

std::string Picture::idOf(std::string_view part) const {
    return id_ + '-' + std::string(part);
}

std::string Picture::finished() {
    svg_.close();
    return svg_.document();
}

std::string emptyPicture(const PictureForm& form, const PictureTexts& texts, const std::string& reason) {
    Picture picture(form, emptyHeight, {texts.title, texts.subtitle, "Nothing to show: " + reason + '.'});
    const svg::Box frame{margin, 60, pictureWidth - 2 * margin, emptyHeight - 60 - margin};
    svg::addBox(picture.svg(), frame, {"lv-frame", ""});
    const double lineHeight = 17;
    double y = frame.top + 28;
    for (const std::string& line : wrapped("Nothing to show: " + svg::quotable(reason) + '.', frame.width - 40)) {
        svg::addText(picture.svg(), {pictureWidth / 2, y}, "", svg::Anchor::middle, line);
        y += lineHeight;
    }
    return picture.finished();
}

std::string figureText(const Figure& figure, int decimals) {
    return figure.value ? svg::valueText(*figure.value, decimals) : figure.text(decimals);
}

std::string reasonOf(const Figure& figure, const std::string& otherwise) {
    return figure.reason.empty() ? otherwise : figure.reason;
}

std::string subtitleOf(const ModeFigures& mode) {
    constexpr std::size_t mostCharacters = 300;
    const std::string name =
        mode.name.empty() ? "Mode " + svg::quotable(mode.index) : svg::quotable(mode.name, mostCharacters);
    const std::string time = mode.calibratedTime.empty() ? "" : ", calibrated " + svg::quotable(mode.calibratedTime);
    return name + time;
}

std::string counted(std::size_t number, const std::string& one, const std::string& several) {
    return std::to_string(number) + ' ' + (number == 1 ? one : several);
}

}  // namespace lv::analysis
