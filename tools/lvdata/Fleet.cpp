#include "Fleet.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tool {

using lv::analysis::FleetDocument;
using lv::analysis::MonitorFigures;

const MonitorDocument& latestOf(const MonitorDocuments& documents) {
    return documents.back();
}

void Fleet::add(MonitorDocument&& document) {
    if (document.identity.empty()) {
        ++unknown_;
    } else {
        known_.insert(document.identity);
    }
    documents_.push_back(std::move(document));
}

std::vector<MonitorDocuments> Fleet::take() {
    std::vector<FleetDocument> places;
    std::transform(documents_.begin(), documents_.end(), std::back_inserter(places), &placeOf);
    std::vector<MonitorDocuments> monitors;
    for (const std::vector<std::size_t>& each : lv::analysis::monitorsOf(places)) {
        MonitorDocuments& documents = monitors.emplace_back();
        for (const std::size_t position : each) {
            documents.push_back(std::move(documents_[position]));
        }
    }
    *this = Fleet();
    return monitors;
}

FleetDocument placeOf(const MonitorDocument& document) {
    const MonitorFigures& figures = document.snapshot.figures;
    return {document.identity, document.snapshot.when, figures.name, figures.serial, figures.uuid};
}

std::string whySecondMonitor(const std::string& identity) {
    return identity.empty() ? "has no UUID and no serial number, so nothing says that it is of the same monitor as the "
                              "documents before it"
                            : "is of another monitor than the documents before it";
}

}  // namespace tool
