#include <benchmarks/MonitorOf.h>

#include <lvdata/records/MonitorInfo.h>

namespace benchmarks {

std::unique_ptr<Monitor> libraryMonitor() {
    return std::make_unique<MonitorOf<lv::MonitorInfo>>();
}

}  // namespace benchmarks
