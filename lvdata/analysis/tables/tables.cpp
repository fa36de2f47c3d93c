#include <lvdata/analysis/tables/CSVWriter.h>
#include <lvdata/analysis/tables/table_rows.h>

#include <array>

namespace lv::analysis {
namespace {

template <class Record>
void take(const Record*& part, const DataObject& record) {
    part = dynamic_cast<const Record*>(&record);
}

/// What a document has in its own root.
Parts ownParts(const DataObject& record) {
    Parts parts;
    take(parts.monitor, record);
    take(parts.configuration, record);
    take(parts.settings, record);
    take(parts.schedule, record);
    take(parts.results, record);
    take(parts.standardResult, record);
    take(parts.assets, record);
    take(parts.maps, record);
    take(parts.basicData, record);
    take(parts.target, record);
    take(parts.parameterSetting, record);
    take(parts.parameter, record);
    take(parts.profile, record);
    take(parts.measurements, record);
    return parts;
}

Parts partsOf(const DataObject& record) {
    Parts parts = ownParts(record);
    if (parts.monitor != nullptr) {
        parts.configuration = valueOf(parts.monitor->monitorConfiguration);
        parts.results = valueOf(parts.monitor->calibrationModeResult);
        parts.standardResult = valueOf(parts.monitor->standardModeResult);
        parts.assets = valueOf(parts.monitor->assetInfo);
        parts.maps = valueOf(parts.monitor->candelaMap);
    }
    if (parts.configuration != nullptr) {
        parts.settings = valueOf(parts.configuration->colorModeSettings);
        parts.schedule = valueOf(parts.configuration->selfCalibrationSchedule);
    }
    return parts;
}

}  // namespace

void Cell::text(std::string_view value) {
    sink_.string(value);
    isGiven_ = true;
}

void Cell::text(const property<std::string>& value) {
    if (value.hasValue) {
        text(value.value);
    }
}

void Cell::number(std::int64_t stored, const Quantity& quantity) {
    DecimalBuffer buffer{};
    const std::size_t decimals = decimalsOf(quantity.factor);
    const auto kind = decimals == 0 ? Sink::NumberKind::integer : Sink::NumberKind::fraction;
    sink_.number(naturalText(std::to_string(stored), decimals, buffer), kind);
    isGiven_ = true;
}

void Cell::count(std::size_t value) {
    sink_.number(std::to_string(value), Sink::NumberKind::integer);
    isGiven_ = true;
}

void Cell::index(const property<unsigned int>& value) {
    if (value.hasValue) {
        count(value.value);
    }
}

void Cell::truth(const property<bool>& value) {
    if (value.hasValue) {
        sink_.boolean(value.value);
        isGiven_ = true;
    }
}

void Cell::figure(const Figure& figure, int decimals) {
    if (figure.value) {
        sink_.number(fixedText(*figure.value, decimals), Sink::NumberKind::fraction);
        isGiven_ = true;
    }
}

void Cell::end() {
    if (!isGiven_) {
        sink_.null();
    }
}

std::string_view nameOf(Values values) {
    constexpr std::array<std::string_view, 3> names = {"text", "integer", "fraction"};
    return names.at(static_cast<std::size_t>(values));
}

const std::vector<TableDescription>& tables() {
    static const std::vector<TableDescription> all = {
        {Table::monitors, "monitors", "each document with a monitor, its configuration or its assets",
         monitorColumns()},
        {Table::modes, "modes", "each colour mode that is set up or has a result", modeColumns()},
        {Table::patches, "patches", "each measurement", patchColumns()},
        {Table::curves, "curves", "each entry of a look-up table of the monitor and of a target curve", curveColumns()},
        {Table::maps, "maps", "each entry of a candela map", mapColumns()},
    };
    return all;
}

const TableDescription& tableDescription(Table table) {
    return tables()[static_cast<std::size_t>(table)];
}

void addRows(Table table, const DataObject& record, std::string_view file, Sink& sink) {
    constexpr std::array adders = {&addMonitorRows, &addModeRows, &addPatchRows, &addCurveRows, &addMapRows};
    Parts parts = partsOf(record);
    parts.file = file;
    adders.at(static_cast<std::size_t>(table))(parts, sink);
}

std::string csvHeader(Table table) {
    std::string header;
    CSVWriter writer(header);
    writer.beginObject();
    for (const Column& column : tableDescription(table).columns) {
        writer.string(column.name);
    }
    writer.endObject();
    return header;
}

}  // namespace lv::analysis
