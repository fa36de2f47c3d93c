#pragma once

#include "MonitorReader.h"

#include <lvdata/analysis/report/fleet_order.h>

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace tool {

/// The documents of one monitor, not empty, in the order of time.
using MonitorDocuments = std::vector<MonitorDocument>;

/// The latest document.
[[nodiscard]] const MonitorDocument& latestOf(const MonitorDocuments& documents);

/// Puts documents together by the monitors that they are of.
class Fleet {
public:
    /// A document whose monitor is not known stands for a monitor of its own.
    void add(MonitorDocument&& document);

    /// How many monitors there are so far.
    [[nodiscard]] std::size_t size() const { return known_.size() + unknown_; }

    /// All monitors, in the order of `lv::analysis::monitorsOf`. Leaves the fleet empty.
    [[nodiscard]] std::vector<MonitorDocuments> take();

private:
    MonitorDocuments documents_;
    std::set<std::string> known_;  // the identities of monitors
    std::size_t unknown_ = 0;      // documents whose monitor is not known
};

/// What decides the place of the document in a report.
[[nodiscard]] lv::analysis::FleetDocument placeOf(const MonitorDocument& document);

/// Why a document starts a second monitor, as a message says it.
[[nodiscard]] std::string whySecondMonitor(const std::string& identity);

}  // namespace tool
