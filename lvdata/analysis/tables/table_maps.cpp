#include <lvdata/analysis/tables/table_rows.h>
#include <lvdata/core/quantities.h>

namespace lv::analysis {
namespace {

struct MapRow {
    const Parts& parts;
    std::string_view kind;
    const CandelaMapEntry& map;
    std::size_t entry;
};

const std::vector<ColumnOf<MapRow>>& columns() {
    static const std::vector<ColumnOf<MapRow>> all = withOrigin<MapRow>({
        {{"kind", "", "which map: uniformity or brightness"},
         [](const MapRow& row, Cell& cell) {
             cell.text(row.kind);
         }},
        {{"entry", "", "which entry, counted from 0, in stored order; the shape of the grid is not recorded",
          Values::integer},
         [](const MapRow& row, Cell& cell) {
             cell.count(row.entry);
         }},
        {{"value", notRecorded, "the entry", Values::integer},
         [](const MapRow& row, Cell& cell) {
             cell.number(row.map.values[row.entry], quantities::number);
         }},
        {{"updated_at", "", "time of the map's last update, as recorded; the format is not known"},
         [](const MapRow& row, Cell& cell) {
             cell.text(row.map.updatedAt);
         }},
    });
    return all;
}

void addMap(const Parts& parts, std::string_view kind, const CandelaMapEntry& map, Sink& sink) {
    for (std::size_t entry = 0; entry < map.values.size() && map.valid; ++entry) {
        addRow(columns(), {parts, kind, map, entry}, sink);
    }
}

}  // namespace

std::vector<Column> mapColumns() {
    return columnsOf(columns());
}

void addMapRows(const Parts& parts, Sink& sink) {
    if (parts.maps != nullptr) {
        addMap(parts, "uniformity", parts.maps->uniformity, sink);
        addMap(parts, "brightness", parts.maps->brightness, sink);
    }
}

}  // namespace lv::analysis
