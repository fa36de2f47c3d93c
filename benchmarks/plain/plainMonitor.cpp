#include <benchmarks/MonitorOf.h>

#include <lvdata/records/MonitorInfo.h>

// Part of a shared library of its own: this is the record over the plain sources beside this file.

namespace benchmarks {

std::unique_ptr<Monitor> plainMonitor() {
    return std::make_unique<MonitorOf<lv::MonitorInfo>>();
}

}  // namespace benchmarks
