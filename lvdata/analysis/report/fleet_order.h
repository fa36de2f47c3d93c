#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace lv::analysis {

/// What decides the place of a document in the report of a fleet.
struct FleetDocument {
    std::string identity{};  ///< `identityOf` its monitor; empty: not known.
    std::string when{};      ///< The latest time of a calibration, as in `Snapshot::when`.
    std::string name{};      ///< The name of the monitor.
    std::string serial{};    ///< Its serial number.
    std::string uuid{};      ///< Its UUID.
};

/// Puts documents together by the monitors that they are of. Each monitor is a list of positions in `documents`, not
/// empty, in the order of time (`sortByTime`). A document whose monitor is not known stands for a monitor of its own.
/// Monitors are in the order of the name, serial number and UUID in their latest documents; where these are the same,
/// in that of the documents.
[[nodiscard]] std::vector<std::vector<std::size_t>> monitorsOf(const std::vector<FleetDocument>& documents);

/// A file name for the page of each monitor, given by its latest document: safe on every file system, of letters,
/// digits, "-", "_" and ".", each once whatever the case of its letters, never "index.html".
[[nodiscard]] std::vector<std::string> pageNames(const std::vector<FleetDocument>& latest);

}  // namespace lv::analysis
