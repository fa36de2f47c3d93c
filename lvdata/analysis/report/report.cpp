#include <lvdata/analysis/report/report.h>

namespace lv::analysis {

std::string reportPage(const std::vector<ReportedDocument>&, const ReportForm& form) {
    return "<!DOCTYPE html><title>" + form.title + "</title>\n";
}

std::string fleetPage(const std::vector<FleetEntry>&, const ReportForm& form) {
    return "<!DOCTYPE html><title>" + form.title + "</title>\n";
}

}  // namespace lv::analysis
