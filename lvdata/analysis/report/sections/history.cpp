#include <lvdata/analysis/pictures/pictures.h>
#include <lvdata/analysis/report/sections.h>

#include <algorithm>
#include <array>

namespace lv::analysis {
namespace {

constexpr std::array<std::string_view, 4> drawnFigures = {"white_delta_uv", "white_tristimulus_y", "contrast",
                                                          patchesMeanKey};

bool isDrawn(const JudgedLine& judged) {
    return std::find(drawnFigures.begin(), drawnFigures.end(), judged.line.key) != drawnFigures.end();
}

/// Whether a figure has a column in the table.
bool isTold(const JudgedLine& judged) {
    return judged.limit != nullptr || isDrawn(judged);
}

bool hasValue(const HistorySeries& series) {
    return std::any_of(series.points.begin(), series.points.end(),
                       [](const HistorySeries::Point& point) { return point.figure.value.has_value(); });
}

std::vector<Snapshot> snapshotsOf(const std::vector<ReportedDocument>& documents) {
    std::vector<Snapshot> snapshots;
    for (const ReportedDocument& document : documents) {
        snapshots.push_back(document.snapshot);
    }
    return snapshots;
}

View pictureOf(const HistorySeries& series, const JudgedLine& judged, const ReportedMode& mode) {
    return View::Members{
        {"picture_history", historyPicture(series, judged.limit, mode.formOf("history-" + judged.line.key))}};
}

View rowOf(const std::vector<HistorySeries>& all, std::size_t point) {
    View::Items values;
    for (const HistorySeries& series : all) {
        const Figure& figure = series.points.at(point).figure;
        values.push_back(View::Members{{"value", figure.text(series.decimals)}});
    }
    const std::string number = "Document " + std::to_string(point + 1);
    return View::Members{{"when", textView(all.front().points[point].when, number)}, {"values", std::move(values)}};
}

View columnOf(const HistorySeries& series) {
    return View::Members{{"column_label", series.label}, {"column_unit", series.unit}};
}

View tableOf(const std::vector<HistorySeries>& all) {
    View::Items columns;
    for (const HistorySeries& series : all) {
        columns.push_back(columnOf(series));
    }
    View::Items rows;
    for (std::size_t point = 0; point < all.front().points.size(); ++point) {
        rows.push_back(rowOf(all, point));
    }
    return View::Members{{"columns", std::move(columns)}, {"rows", std::move(rows)}};
}

/// Adds the history of a mode, if there is one.
void addHistory(View::Items& modes, const std::vector<Snapshot>& snapshots, const ReportedMode& mode) {
    const std::vector<HistorySeries> history = historyOf(snapshots, mode.figures->index);
    std::vector<HistorySeries> told;
    View::Items pictures;
    for (const JudgedLine& judged : mode.lines) {
        const HistorySeries* const series = seriesOf(history, judged.line.key);
        if (series == nullptr || !isTold(judged) || series->points.size() < 2 || !hasValue(*series)) {
            continue;
        }
        if (isDrawn(judged)) {
            pictures.push_back(pictureOf(*series, judged, mode));
        }
        told.push_back(*series);
    }
    if (!told.empty()) {
        modes.push_back(View::Members{{"history_name", shortened(mode.figures->name)},
                                      {"pictures", std::move(pictures)},
                                      {"table", tableOf(told)}});
    }
}

}  // namespace

View historyView(const ReportContents& contents) {
    View::Items modes;
    if (contents.documents.size() > 1) {
        const std::vector<Snapshot> snapshots = snapshotsOf(contents.documents);
        for (const ReportedMode& mode : contents.judged.calibrated) {
            addHistory(modes, snapshots, mode);
        }
    }
    return View::Members{{"is_told", contents.documents.size() > 1}, {"mode_histories", std::move(modes)}};
}

}  // namespace lv::analysis
