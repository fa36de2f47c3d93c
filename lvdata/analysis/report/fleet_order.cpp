#include <lvdata/analysis/figures/History.h>
#include <lvdata/analysis/report/fleet_order.h>

#include <algorithm>
#include <map>
#include <tuple>

namespace lv::analysis {
namespace {

using Positions = std::vector<std::size_t>;

/// The positions of the documents of each monitor, in the order of the documents.
std::vector<Positions> grouped(const std::vector<FleetDocument>& documents) {
    std::vector<Positions> monitors;
    std::map<std::string, std::size_t> places;  // in `monitors`, by identity
    for (std::size_t position = 0; position < documents.size(); ++position) {
        const std::string& identity = documents[position].identity;
        const auto [place, isNew] = places.emplace(identity, monitors.size());
        if (isNew || identity.empty()) {
            monitors.emplace_back().push_back(position);
        } else {
            monitors[place->second].push_back(position);
        }
    }
    return monitors;
}

/// The positions in the order that the times of the documents have.
Positions sorted(const Positions& positions, const std::vector<FleetDocument>& documents) {
    std::vector<Snapshot> places;
    for (const std::size_t position : positions) {
        places.push_back({std::to_string(position), documents[position].when, {}});
    }
    sortByTime(places);
    Positions result;
    for (const Snapshot& place : places) {
        result.push_back(std::stoul(place.document));
    }
    return result;
}

}  // namespace

std::vector<Positions> monitorsOf(const std::vector<FleetDocument>& documents) {
    std::vector<Positions> monitors = grouped(documents);
    for (Positions& positions : monitors) {
        positions = sorted(positions, documents);
    }
    const auto key = [&](const Positions& positions) {
        const FleetDocument& latest = documents[positions.back()];
        return std::tie(latest.name, latest.serial, latest.uuid);
    };
    std::stable_sort(monitors.begin(), monitors.end(),
                     [&](const Positions& left, const Positions& right) { return key(left) < key(right); });
    return monitors;
}

}  // namespace lv::analysis
