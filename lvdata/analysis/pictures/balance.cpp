#include <lvdata/analysis/pictures/channels.h>
#include <lvdata/analysis/pictures/steps.h>

#include <algorithm>

namespace lv::analysis {
namespace {

constexpr svg::Box box{panelLeft, panelTop, pictureWidth - panelLeft - rightMargin, 240};
constexpr double height = box.top + box.height + 52;
constexpr double firstTelling = 0.2;  // the signal from which on the balance says something

using Values = std::vector<svg::Point>;
using Channels = std::array<Values, 3>;

/// A channel's difference from balance, in per cent.
double differenceOf(const ToneStep& step, std::size_t channel) {
    return 100 * ((*step.balance)[channel] - 1);
}

/// That of each step that has one.
Values valuesOf(const ToneFigures& tone, std::size_t channel) {
    Values values;
    for (const ToneStep& step : tone.steps) {
        if (step.balance) {
            values.push_back({step.signal, differenceOf(step, channel)});
        }
    }
    return values;
}

/// "50.2 %: red 0.12 %, green -0.03 %, blue -0.09 %"
std::vector<HoverText> textsOf(const ToneFigures& tone) {
    std::vector<HoverText> texts;
    for (const ToneStep& step : tone.steps) {
        if (step.balance) {
            texts.push_back(stepText(step.signal, "red " + svg::valueText(differenceOf(step, 0), 2) + " %, green " +
                                                      svg::valueText(differenceOf(step, 1), 2) + " %, blue " +
                                                      svg::valueText(differenceOf(step, 2), 2) + " %"));
        }
    }
    return texts;
}

/// As far down as up.
svg::TickedRange rangeOf(const Channels& channels) {
    std::vector<svg::Point> values;
    for (const Values& channel : channels) {
        for (const svg::Point& value : channel) {
            values.push_back(value);
            values.push_back({value.x, -value.y});
        }
    }
    return rangeOfTypical(values, {firstTelling, 1}, 4);
}

std::vector<svg::LegendEntry> legend() {
    std::vector<svg::LegendEntry> entries;
    for (const ChannelLook& look : channelLooks) {
        entries.push_back({std::string(look.name), look.line, look.mark, look.symbol});
    }
    return entries;
}

std::string descriptionOf(const ToneFigures& tone) {
    std::string text = "How far red, green and blue of each grey step are from their mean, in per cent.";
    if (tone.greatestImbalance.value) {
        text += " Greatest difference from 20 % of the signal on: " + percent(*tone.greatestImbalance.value, 2) + '.';
    }
    return text;
}

void draw(Picture& picture, const Channels& channels) {
    svg::SVGWriter& svg = picture.svg();
    const svg::TickedRange scale = rangeOf(channels);
    const svg::Panel panel(box, {0, 1}, scale.range);
    const svg::Axis vertical{scale.ticks, "Difference from the mean in %", true};
    svg::addAxes(svg, panel, signalAxis(true), vertical);
    svg::addLevel(svg, panel, 0, "lv-zero");
    std::size_t outside = 0;
    for (std::size_t channel = 0; channel < channels.size(); ++channel) {
        const ChannelLook& look = channelLooks[channel];
        const std::string marker = picture.idOf(look.name);
        svg::addMarker(svg, marker, look.symbol, look.mark);
        addSteps(svg, panel, channels[channel], look.line, marker);
        outside += countOutside(panel, channels[channel]);
    }
    addOutsideNote(svg, panel, outside);
    svg::addLegendRow(svg, {panelLeft, legendTop}, box.width, legend());
}

}  // namespace

std::string balancePicture(const ModeFigures& mode, const PictureForm& form) {
    const PictureTexts texts{"RGB balance of greys", subtitleOf(mode), descriptionOf(mode.tone)};
    if (mode.tone.steps.empty()) {
        return emptyPicture(form, texts, reasonOf(mode.tone.greatestImbalance, "no grey patches were measured"));
    }
    const Channels channels{valuesOf(mode.tone, 0), valuesOf(mode.tone, 1), valuesOf(mode.tone, 2)};
    if (channels[0].empty()) {
        return emptyPicture(form, texts,
                            reasonOf(mode.tone.greatestImbalance, "the measured white and primaries are needed"));
    }
    Picture picture(form, height, texts);
    draw(picture, channels);
    addHoverColumns(picture.svg(), box, nearestTexts(box, textsOf(mode.tone)));
    return picture.finished();
}

}  // namespace lv::analysis
