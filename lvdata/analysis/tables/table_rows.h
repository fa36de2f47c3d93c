#pragma once

#include <lvdata/analysis/decimal.h>
#include <lvdata/analysis/figures/Figure.h>
#include <lvdata/analysis/tables/tables.h>

#include <lvdata/core/Quantity.h>
#include <lvdata/records/MonitorInfo.h>

#include <string>
#include <string_view>
#include <vector>

// Shared by the sources of the tables, and used only there.

namespace lv::analysis {

inline constexpr std::string_view notRecorded = "not recorded";

/// The parts of a document that tables are made from; null for missing parts.
struct Parts {
    std::string_view file{};
    const MonitorInfo* monitor = nullptr;
    const MonitorConfiguration* configuration = nullptr;
    const ColorModeSettings* settings = nullptr;
    const SelfCalibrationSchedule* schedule = nullptr;
    const CalibrationModeResult* results = nullptr;
    const StandardModeResult* standardResult = nullptr;
    const AssetInfo* assets = nullptr;
    const CandelaMap* maps = nullptr;
    const BasicData* basicData = nullptr;                // of a separate document, or of the row's measurements
    const TargetSetting* target = nullptr;               // of a separate document
    const ParameterSetting* parameterSetting = nullptr;  // of a separate document
    const MonitorParameter* parameter = nullptr;         // of a separate document
    const ProfileData* profile = nullptr;                // of a separate document
    const MeasurementData* measurements = nullptr;       // of a separate document
    const property<unsigned int>* modeIndex = nullptr;   // of the mode that a row belongs to
};

/// Takes the one value of a column.
class Cell {
public:
    explicit Cell(Sink& sink) : sink_(sink) {}

    void text(std::string_view value);
    void text(const property<std::string>& value);
    void number(std::int64_t stored, const Quantity& quantity);
    void count(std::size_t value);
    void index(const property<unsigned int>& value);
    void truth(const property<bool>& value);
    void figure(const Figure& figure, int decimals);

    /// Null when no value was given.
    void end();

private:
    Sink& sink_;
    bool isGiven_ = false;
};

/// A column together with the function that finds its value.
template <class Subject>
struct ColumnOf {
    Column column;
    void (*give)(const Subject&, Cell&);
};

template <class Subject>
std::vector<Column> columnsOf(const std::vector<ColumnOf<Subject>>& columns) {
    std::vector<Column> result;
    for (const ColumnOf<Subject>& each : columns) {
        result.push_back(each.column);
    }
    return result;
}

template <class Subject>
void addRow(const std::vector<ColumnOf<Subject>>& columns, const Subject& subject, Sink& sink) {
    sink.beginObject();
    for (const ColumnOf<Subject>& each : columns) {
        sink.key(each.column.name);
        Cell cell(sink);
        each.give(subject, cell);
        cell.end();
    }
    sink.endObject();
}

/// The first columns of each table, about where a row comes from; `Subject` has a member `parts`.
template <class Subject>
std::vector<ColumnOf<Subject>> withOrigin(const std::vector<ColumnOf<Subject>>& others) {
    std::vector<ColumnOf<Subject>> columns = {
        {{"file", "", "the file of the document"},
         [](const Subject& row, Cell& cell) {
             cell.text(row.parts.file);
         }},
        {{"uuid", "", "identifier of the monitor record"},
         [](const Subject& row, Cell& cell) {
             if (row.parts.monitor != nullptr) {
                 cell.text(row.parts.monitor->uuid);
             }
         }},
        {{"serial", "", "serial number of the monitor"},
         [](const Subject& row, Cell& cell) {
             if (row.parts.configuration != nullptr) {
                 cell.text(row.parts.configuration->serial);
             }
         }},
        {{"mode_index", "", "index of the colour mode that the row belongs to", Values::integer},
         [](const Subject& row, Cell& cell) {
             if (row.parts.modeIndex != nullptr) {
                 cell.index(*row.parts.modeIndex);
             }
         }},
    };
    columns.insert(columns.end(), others.begin(), others.end());
    return columns;
}

/// The value of a property that is set; otherwise null.
template <class T>
const T* valueOf(const property<T>& member) {
    return member.hasValue ? &member.value : nullptr;
}

/// One function of each kind for each table, in a separate source.
[[nodiscard]] std::vector<Column> monitorColumns();
void addMonitorRows(const Parts& parts, Sink& sink);
[[nodiscard]] std::vector<Column> modeColumns();
void addModeRows(const Parts& parts, Sink& sink);
[[nodiscard]] std::vector<Column> patchColumns();
void addPatchRows(const Parts& parts, Sink& sink);
[[nodiscard]] std::vector<Column> curveColumns();
void addCurveRows(const Parts& parts, Sink& sink);
[[nodiscard]] std::vector<Column> mapColumns();
void addMapRows(const Parts& parts, Sink& sink);

}  // namespace lv::analysis
