#pragma once

#include <lvdata/analysis/pictures/pictures.h>
#include <lvdata/analysis/report/View.h>
#include <lvdata/analysis/report/report.h>

#include <string>
#include <string_view>
#include <vector>

/// The data for the sections of a page.
namespace lv::analysis {

/// A mode with its figures and their results.
struct ReportedMode {
    const ModeFigures* figures = nullptr;  ///< The mode. Not null.
    std::string id{};                      ///< The prefix of the ids of its elements, such as "mode-1".
    std::vector<JudgedLine> lines{};       ///< All its figures.
    Verdict verdict{};                     ///< The result as a whole.
    svg::SharedParts* parts = nullptr;     ///< The parts that its pictures share with others of the page. Not null.

    /// The form of its picture with that name.
    [[nodiscard]] PictureForm formOf(const std::string& name) const { return {id + '-' + name, false, parts}; }
};

/// A monitor with its results.
struct JudgedMonitor {
    std::vector<ReportedMode> calibrated{};    ///< Modes with a result.
    std::vector<const ModeFigures*> others{};  ///< Modes without one.
    std::vector<JudgedLine> mapLines{};        ///< The figures of the existing maps.
    Verdict maps{};                            ///< Of the maps.
    Verdict verdict{};                         ///< Of all modes with a result, and of the maps.
};

/// Compares the modes of a monitor, or only the one with that index, with the limits. `monitor` and `limits` must
/// outlive the result.
[[nodiscard]] JudgedMonitor judgedMonitor(const MonitorFigures& monitor, const LimitSet& limits,
                                          const std::optional<std::string>& mode = {});

/// The content of a page.
struct ReportContents {
    const std::vector<ReportedDocument>& documents;  ///< All documents, at least one.
    const ReportForm& form;                          ///< How the page is made.
    svg::SharedParts& parts;                         ///< What pictures share.
    JudgedMonitor judged{};                          ///< The monitor of the latest document.

    /// The document that is shown in full.
    [[nodiscard]] const ReportedDocument& latest() const { return documents.back(); }

    /// The limits for the figures.
    [[nodiscard]] const LimitSet& limits() const { return *form.limits; }
};

/// The key of the mean ΔE00 of all patches.
inline constexpr std::string_view patchesMeanKey = "patches_delta_e2000_mean";

/// \name Pieces that several sections use
/// @{

/// A text of a document: "text" is short enough for a line, "full" the whole text when that was shortened.
[[nodiscard]] View textView(std::string_view text);

/// The same, with other words when the text is empty.
[[nodiscard]] View textView(std::string_view text, std::string_view otherwise);

/// The text, cut to that many characters when it is longer, with "…" at the end.
[[nodiscard]] std::string shortened(std::string_view text, std::size_t most = 80);

/// Adds a text of a document with its label to a list of facts; nothing when the text is empty.
void addFact(View::Items& facts, const char* label, std::string_view text);

/// "symbol", "word" and "class" of the result of a single figure.
[[nodiscard]] View markView(Mark mark);

/// The same for a mode or a monitor as a whole.
[[nodiscard]] View verdictMarkView(Mark mark);

/// The numbers of results: "12 of 14 within limits, 1 outside, 1 not available".
[[nodiscard]] std::string countsText(const Verdict& verdict);

/// Figures with their results as the rows of a table, by group.
[[nodiscard]] View figureGroupsView(const std::vector<JudgedLine>& lines);

/// A number of things: "1 document", "3 documents".
[[nodiscard]] std::string counted(std::size_t number, std::string_view noun);
/// @}

/// \name Sections
/// @{
[[nodiscard]] View headView(const ReportContents& contents);
[[nodiscard]] View summaryView(const ReportContents& contents);
[[nodiscard]] View modeView(const ReportContents& contents, const ReportedMode& mode);
[[nodiscard]] View verdictView(const ReportContents& contents, const ReportedMode& mode);
[[nodiscard]] View gamutView(const ReportedMode& mode);
[[nodiscard]] View toneView(const ReportedMode& mode);
[[nodiscard]] View patchesView(const ReportedMode& mode, const LimitSet& limits);
[[nodiscard]] View tablesView(const ReportedMode& mode);
[[nodiscard]] View uniformityView(const ReportContents& contents);
[[nodiscard]] View historyView(const ReportContents& contents);
[[nodiscard]] View qualityView(const Findings& findings);
[[nodiscard]] View dataView(const ReportContents& contents);
/// @}

}  // namespace lv::analysis
