#pragma once

#include <lvdata/lvdata.h>

namespace studio {

/// What the application has set the monitor to: its colour modes and when it calibrates itself.
[[nodiscard]] lv::MonitorConfiguration monitorConfiguration();

}  // namespace studio
