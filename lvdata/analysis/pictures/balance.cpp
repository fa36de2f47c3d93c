#include <lvdata/analysis/pictures/channels.h>
#include <lvdata/analysis/pictures/steps.h>

#include <algorithm>

namespace lv::analysis {
namespace {

constexpr svg::Box box{panelLeft, panelTop, pictureWidth - panelLeft - rightMargin, 240};
constexpr double height = box.top + box.height + 52;
constexpr double firstTelling = 0.2;  // the signal from which on the balance says something

/// A channel's difference from balance at each step that has one, in per cent.
StepSeries seriesOf(const ToneFigures& tone, std::size_t channel) {
    StepSeries series;
    for (const ToneStep& step : tone.steps) {
        if (step.balance) {
            const double difference = 100 * ((*step.balance)[channel] - 1);
            series.values.push_back({step.signal, difference});
            series.titles.push_back("Signal " + percent(step.signal, 1) + ": " +
                                    std::string(channelLooks[channel].name) + ' ' + svg::valueText(difference, 2) +
                                    " %");
        }
    }
    return series;
}

/// As far down as up.
svg::TickedRange rangeOf(const std::array<StepSeries, 3>& channels) {
    std::vector<svg::Point> values;
    for (const StepSeries& series : channels) {
        for (const svg::Point& value : series.values) {
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

void draw(svg::SVGWriter& svg, const std::array<StepSeries, 3>& channels) {
    const svg::TickedRange scale = rangeOf(channels);
    const svg::Panel panel(box, {0, 1}, scale.range);
    const svg::Axis vertical{scale.ticks, "Difference from the mean in %", true};
    svg::addAxes(svg, panel, signalAxis(true), vertical);
    svg::addLevel(svg, panel, 0, "lv-zero");
    std::size_t outside = 0;
    for (std::size_t channel = 0; channel < channels.size(); ++channel) {
        const ChannelLook& look = channelLooks[channel];
        addSteps(svg, panel, channels[channel], look.line, look.mark, look.symbol);
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
    const std::array<StepSeries, 3> channels{seriesOf(mode.tone, 0), seriesOf(mode.tone, 1), seriesOf(mode.tone, 2)};
    if (channels[0].values.empty()) {
        return emptyPicture(form, texts,
                            reasonOf(mode.tone.greatestImbalance, "the measured white and primaries are needed"));
    }
    Picture picture(form, height, texts);
    draw(picture.svg(), channels);
    return picture.finished();
}

}  // namespace lv::analysis
