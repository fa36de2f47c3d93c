#include <lvdata/analysis/figures/digits.h>
#include <lvdata/analysis/pictures/pictures.h>
#include <lvdata/analysis/report/sections.h>

namespace lv::analysis {
namespace {

std::string balanceOf(const ToneStep& step, std::size_t channel) {
    return step.balance ? fixedText((*step.balance)[channel], digits::balance) : "n/a";
}

View stepOf(const ToneStep& step) {
    return View::Members{
        {"signal", fixedText(step.signal * 100, 1)},
        {"light", fixedText(step.light, digits::light)},
        {"target", step.target.text(digits::light)},
        {"gamma", step.gamma.text(digits::gamma)},
        {"red", balanceOf(step, 0)},
        {"green", balanceOf(step, 1)},
        {"blue", balanceOf(step, 2)},
    };
}

}  // namespace

View toneView(const ReportedMode& mode) {
    View::Items steps;
    for (const ToneStep& step : mode.figures->tone.steps) {
        steps.push_back(stepOf(step));
    }
    return View::Members{
        {"picture_tone", tonePicture(*mode.figures, mode.formOf("tone"))},
        {"picture_balance", balancePicture(*mode.figures, mode.formOf("balance"))},
        {"step_count", counted(steps.size(), "grey step")},
        {"has_steps", !steps.empty()},
        {"steps", std::move(steps)},
    };
}

}  // namespace lv::analysis
