#pragma once

#include <lvdata/analysis/figures/ModeFigures.h>
#include <lvdata/records/CandelaMap.h>
#include <lvdata/records/MonitorInfo.h>

#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// A candela map.
struct MapFigures {
    std::string_view name{};       ///< "Uniformity" or "Brightness".
    std::string updatedAt{};       ///< When the map was last updated, as the record has it.
    std::string unit{};            ///< The unit of the entries; empty: not known.
    std::vector<double> values{};  ///< In stored order; empty when there is no map.
    std::size_t gridWidth = 0;     ///< Entries in a row; 0: not known, or the entries do not fill whole rows.

    Figure minimum{};                     ///< The least entry.
    Figure maximum{};                     ///< The greatest entry.
    Figure mean{};                        ///< The mean of all entries.
    Figure centre{};                      ///< The entry in the middle; it needs the shape of the map.
    Figure greatestDeviation{};           ///< The greatest |entry / centre - 1|.
    std::vector<double> againstCentre{};  ///< Each entry over the centre, minus 1; empty when there is no centre.
};

/// All figures of a monitor. Texts are empty when the record has no value.
struct MonitorFigures {
    std::string uuid{};                 ///< Its identifier.
    std::string name{};                 ///< Its name.
    std::string model{};                ///< Its model.
    std::string serial{};               ///< Its serial number.
    std::vector<std::string> assets{};  ///< The labels that are set and not empty.
    std::vector<ModeFigures> modes{};   ///< See `modeFigures`.
    MapFigures uniformity{};            ///< The map of uniformity.
    MapFigures brightness{};            ///< The map of brightness.
    KnownUnits known{};                 ///< The units that the user gave.
};

/// The figures of a monitor.
[[nodiscard]] MonitorFigures monitorFigures(const MonitorInfo& monitor, const KnownUnits& known = {});

/// The figures of one map.
[[nodiscard]] MapFigures mapFigures(std::string_view name, const CandelaMapEntry& map, const KnownUnits& known = {});

/// The monitor that a record describes, completely or in part: a `MonitorInfo`, `MonitorConfiguration`,
/// `ColorModeSettings`, `CalibrationModeResult` or `CandelaMap`. No value for another class.
[[nodiscard]] std::optional<MonitorInfo> monitorOf(const DataObject& record);

}  // namespace lv::analysis
