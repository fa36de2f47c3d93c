#pragma once

#include <string>
#include <string_view>

namespace lv::analysis {

/// The name of an element or attribute as a key of JSON and as a column of a table: words in lower case, joined by "_".
/// A word begins with each capital after a small letter or digit, and with the last of several capitals when a small
/// letter follows: "UUID" becomes "uuid", "MonitorConfiguration" "monitor_configuration", "HLGSystemGamma"
/// "hlg_system_gamma", "Create3DLut" "create3d_lut", "Limited109Setting" "limited109_setting".
[[nodiscard]] std::string snakeCase(std::string_view name);

}  // namespace lv::analysis
