#include <lvdata/analysis/monitors/Fleet.h>

#include <algorithm>
#include <tuple>
#include <utility>

namespace lv::analysis {
namespace {

const MonitorFigures& figuresOf(const MonitorDocuments& documents) {
    return latestOf(documents).snapshot.figures;
}

bool isBefore(const MonitorDocuments& left, const MonitorDocuments& right) {
    const auto key = [](const MonitorFigures& figures) {
        return std::tie(figures.name, figures.serial, figures.uuid);
    };
    return key(figuresOf(left)) < key(figuresOf(right));
}

/// The documents in the order that their times have.
MonitorDocuments sorted(MonitorDocuments documents) {
    std::vector<Snapshot> places;
    for (std::size_t index = 0; index < documents.size(); ++index) {
        places.push_back({std::to_string(index), documents[index].snapshot.when, {}});
    }
    sortByTime(places);
    MonitorDocuments result;
    for (const Snapshot& place : places) {
        result.push_back(std::move(documents[std::stoul(place.document)]));
    }
    return result;
}

}  // namespace

const MonitorDocument& latestOf(const MonitorDocuments& documents) {
    return documents.back();
}

void Fleet::add(MonitorDocument&& document) {
    const std::string identity = document.identity;
    const auto known = identity.empty() ? places_.end() : places_.find(identity);
    if (known != places_.end()) {
        monitors_[known->second].push_back(std::move(document));
        return;
    }
    if (!identity.empty()) {
        places_[identity] = monitors_.size();
    }
    monitors_.emplace_back().push_back(std::move(document));
}

std::vector<MonitorDocuments> Fleet::take() {
    places_.clear();
    std::vector<MonitorDocuments> monitors = std::exchange(monitors_, {});
    for (MonitorDocuments& documents : monitors) {
        documents = sorted(std::move(documents));
    }
    std::stable_sort(monitors.begin(), monitors.end(), isBefore);
    return monitors;
}

std::string whySecondMonitor(const std::string& identity) {
    return identity.empty() ? "has no UUID and no serial number, so it cannot be matched with the monitor of the "
                              "documents before it"
                            : "is about a different monitor than the documents before it";
}

}  // namespace lv::analysis
