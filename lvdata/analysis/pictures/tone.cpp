#include <lvdata/analysis/pictures/steps.h>

#include <cmath>

namespace lv::analysis {
namespace {

constexpr svg::Box responseBox{panelLeft, panelTop, pictureWidth - panelLeft - rightMargin, 270};
constexpr svg::Box gammaBox{panelLeft, responseBox.top + responseBox.height + 36, responseBox.width, 130};
constexpr double height = gammaBox.top + gammaBox.height + 52;

constexpr std::string_view measuredLine = "lv-line lv-measured";
constexpr std::string_view measuredMark = "lv-mark lv-measured";
constexpr std::string_view targetLine = "lv-line lv-target lv-quiet";

std::vector<svg::Point> lightOf(const ToneFigures& tone) {
    std::vector<svg::Point> values;
    for (const ToneStep& step : tone.steps) {
        values.push_back({step.signal, step.light});
    }
    return values;
}

std::vector<svg::Point> gammaOf(const ToneFigures& tone) {
    std::vector<svg::Point> values;
    for (const ToneStep& step : tone.steps) {
        if (step.gamma.value) {
            values.push_back({step.signal, *step.gamma.value});
        }
    }
    return values;
}

/// What each step has: "50.2 %: light 21.90 %, target 21.95 %, gamma 2.20".
std::vector<HoverText> textsOf(const ToneFigures& tone) {
    std::vector<HoverText> texts;
    for (const ToneStep& step : tone.steps) {
        const std::string target = step.target.value ? ", target " + percent(*step.target.value, 2) : "";
        const std::string gamma = step.gamma.value ? ", gamma " + svg::valueText(*step.gamma.value, 2) : "";
        texts.push_back(stepText(step.signal, "light " + percent(step.light, 2) + target + gamma));
    }
    return texts;
}

std::vector<svg::Point> targetLight(const ToneFigures& tone) {
    std::vector<svg::Point> values;
    for (const ToneStep& step : tone.steps) {
        if (step.target.value) {
            values.push_back({step.signal, *step.target.value});
        }
    }
    return values;
}

/// The gamma of the target at each step, log(target) / log(signal).
std::vector<svg::Point> targetGamma(const ToneFigures& tone) {
    std::vector<svg::Point> values;
    for (const svg::Point& value : targetLight(tone)) {
        const double gamma = std::log(value.y) / std::log(value.x);
        if (value.x > 0 && value.x < 1 && value.y > 0 && value.y < 1 && std::isfinite(gamma)) {
            values.push_back({value.x, gamma});
        }
    }
    return values;
}

svg::Axis lightAxis() {
    return {signalAxis(true).ticks, "Light in %", true};
}

void addResponse(svg::SVGWriter& svg, const ToneFigures& tone, const std::string& marker) {
    const svg::Panel panel(responseBox, {0, 1}, {0, 1});
    const std::vector<svg::Point> light = lightOf(tone);
    svg::addAxes(svg, panel, signalAxis(false), lightAxis());
    addSteps(svg, panel, light, measuredLine, marker);
    svg::addPolyline(svg, panel.inside(targetLight(tone)), {targetLine, ""});
    addOutsideNote(svg, panel, countOutside(panel, light));
}

void addGamma(svg::SVGWriter& svg, const ToneFigures& tone, const std::string& marker) {
    const std::vector<svg::Point> gamma = gammaOf(tone);
    const std::vector<svg::Point> target = targetGamma(tone);
    std::vector<svg::Point> both = gamma;
    both.insert(both.end(), target.begin(), target.end());
    const svg::TickedRange scale = rangeOfTypical(both, {0.1, 0.9}, 0.4);
    const svg::Panel panel(gammaBox, {0, 1}, scale.range);
    svg::addAxes(svg, panel, signalAxis(true), {scale.ticks, "Gamma", true});
    addSteps(svg, panel, gamma, measuredLine, marker);
    svg::addPolyline(svg, panel.inside(target), {targetLine, ""});
    addOutsideNote(svg, panel, countOutside(panel, gamma));
}

std::vector<svg::LegendEntry> legendOf(const ToneFigures& tone) {
    std::vector<svg::LegendEntry> legend{{"Measured", measuredLine, measuredMark, svg::Symbol::circle}};
    if (!targetLight(tone).empty()) {
        const std::string name = tone.targetCurve.empty() ? "Target" : "Target: " + svg::quotable(tone.targetCurve);
        legend.push_back({name, targetLine, "", std::nullopt});
    }
    return legend;
}

std::string descriptionOf(const ToneFigures& tone) {
    std::string text = "Light over signal of " + counted(tone.steps.size(), "grey step", "grey steps") +
                       ", and below it the gamma of each step.";
    if (tone.meanGamma.value) {
        text += " Mean gamma " + svg::valueText(*tone.meanGamma.value, 2) + '.';
    }
    if (!tone.targetCurve.empty()) {
        text += " Target " + svg::quotable(tone.targetCurve) + '.';
    }
    if (tone.greatestDeviation.value) {
        text += " Greatest deviation of light from the target " + percent(*tone.greatestDeviation.value, 2) + '.';
    }
    return text;
}

}  // namespace

std::string tonePicture(const ModeFigures& mode, const PictureForm& form) {
    const PictureTexts texts{"Tone response and gamma", subtitleOf(mode), descriptionOf(mode.tone)};
    if (mode.tone.steps.empty()) {
        return emptyPicture(form, texts, reasonOf(mode.tone.meanGamma, "no grey patches were measured"));
    }
    Picture picture(form, height, texts);
    svg::addLegendRow(picture.svg(), {panelLeft, legendTop}, responseBox.width, legendOf(mode.tone));
    const std::string marker = picture.idOf("step");
    svg::addMarker(picture.svg(), marker, svg::Symbol::circle, measuredMark);
    addResponse(picture.svg(), mode.tone, marker);
    addGamma(picture.svg(), mode.tone, marker);
    const svg::Box both{responseBox.left, responseBox.top, responseBox.width, gammaBox.bottom() - responseBox.top};
    addHoverColumns(picture.svg(), both, nearestTexts(both, textsOf(mode.tone)));
    return picture.finished();
}

}  // namespace lv::analysis
