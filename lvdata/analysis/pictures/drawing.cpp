#include <lvdata/analysis/pictures/drawing.h>

#include <lvdata/analysis/figures/choice_of_mode.h>
#include <lvdata/analysis/pictures/pictures.h>

namespace lv::analysis {
namespace {

bool isOfMap(PictureKind kind) {
    return kind == PictureKind::uniformity || kind == PictureKind::brightness;
}

std::string pictureOfMode(const ModeFigures& mode, const PictureRequest& request, const LimitSet* limits) {
    switch (request.kind) {
    case PictureKind::tone:
        return tonePicture(mode);
    case PictureKind::balance:
        return balancePicture(mode);
    case PictureKind::lut:
        return tablesPicture(mode);
    case PictureKind::sixColours:
        return sixColoursPicture(mode);
    case PictureKind::patches:
        return patchesPicture(mode, limits);
    default:
        return gamutPicture(mode, request.plane.value_or(colour::Plane::uv));
    }
}

PictureRefusal unknownFigure(const std::vector<HistorySeries>& history, const std::string& key) {
    std::string known;
    for (const HistorySeries& series : history) {
        known += (known.empty() ? "" : ", ") + series.key;
    }
    return {"", "unknown figure '" + key + "'; known figures: " + known};
}

std::variant<std::string, PictureRefusal> drawHistory(const std::vector<Snapshot>& snapshots, const ModeFigures& mode,
                                                      const PictureRequest& request, const LimitSet* limits) {
    const std::string key = request.figure.empty() ? "white_delta_uv" : request.figure;
    const auto history = historyOf(snapshots, mode.index);
    const HistorySeries* const series = seriesOf(history, key);
    if (series == nullptr) {
        return unknownFigure(history, key);
    }
    return historyPicture(*series, limits == nullptr ? nullptr : limits->limitOf(key));
}

}  // namespace

const std::vector<PictureName>& pictureNames() {
    static const std::vector<PictureName> names = {
        {"gamut", PictureKind::gamut},
        {"tone", PictureKind::tone},
        {"balance", PictureKind::balance},
        {"lut", PictureKind::lut},
        {"uniformity", PictureKind::uniformity},
        {"brightness", PictureKind::brightness},
        {"six-colours", PictureKind::sixColours},
        {"patches", PictureKind::patches},
        {"history", PictureKind::history},
    };
    return names;
}

std::string complaintAbout(const PictureRequest& request) {
    const PictureKind kind = request.kind;
    if (request.plane && kind != PictureKind::gamut) {
        return "plane is for gamut only";
    }
    if (!request.figure.empty() && kind != PictureKind::history) {
        return "figure is for history only";
    }
    if (request.hasLimits && kind != PictureKind::patches && kind != PictureKind::history) {
        return "limits is for patches and history only";
    }
    return !request.mode.empty() && isOfMap(kind) ? "mode is not for maps: a map does not belong to a colour mode" : "";
}

std::variant<std::string, PictureRefusal> drawPicture(const std::vector<Snapshot>& snapshots,
                                                      const PictureRequest& request, const LimitSet* limits) {
    const Snapshot& latest = snapshots.back();
    if (isOfMap(request.kind)) {
        const MonitorFigures& figures = latest.figures;
        return mapPicture(request.kind == PictureKind::uniformity ? figures.uniformity : figures.brightness);
    }
    const ChosenMode chosen = chooseMode(latest.figures.modes, request.mode);
    if (chosen.mode == nullptr) {
        return PictureRefusal{latest.document, chosen.reason};
    }
    if (request.kind == PictureKind::history) {
        return drawHistory(snapshots, *chosen.mode, request, limits);
    }
    return pictureOfMode(*chosen.mode, request, limits);
}

}  // namespace lv::analysis
