#pragma once

#include <lvdata/analysis/monitors/MonitorDocument.h>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace lv::analysis {

/// The documents of one monitor, not empty, in the order of time.
using MonitorDocuments = std::vector<MonitorDocument>;

/// The latest document.
[[nodiscard]] const MonitorDocument& latestOf(const MonitorDocuments& documents);

/// Groups documents by monitor.
class Fleet {
public:
    /// A document whose monitor is not known counts as a separate monitor.
    void add(MonitorDocument&& document);

    /// How many monitors there are so far.
    [[nodiscard]] std::size_t size() const { return monitors_.size(); }

    /// All monitors, by name, serial number and UUID, and in the order of the documents where these are the same.
    /// Leaves the fleet empty.
    [[nodiscard]] std::vector<MonitorDocuments> take();

private:
    std::vector<MonitorDocuments> monitors_;
    std::map<std::string, std::size_t> places_;  // in `monitors_`, by identity
};

/// The message why a document belongs to a second monitor.
[[nodiscard]] std::string whySecondMonitor(const std::string& identity);

}  // namespace lv::analysis
