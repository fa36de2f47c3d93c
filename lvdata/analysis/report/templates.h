#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lv::analysis {

/// The templates of HTML by their names, each a file of the folder "templates".
[[nodiscard]] const std::vector<std::pair<std::string_view, std::string_view>>& templates();

/// The style sheet of the report of a monitor, with that of its pictures.
[[nodiscard]] std::string reportStyle();

/// The style sheet of the page about several monitors.
[[nodiscard]] std::string fleetStyle();

/// A script of a page.
struct PageScript {
    std::string_view text;  ///< The script.
    std::string_view hash;  ///< Its hash for a Content-Security-Policy.
};

/// The script of the report of a monitor.
[[nodiscard]] PageScript reportScript();

/// The script of the page about several monitors.
[[nodiscard]] PageScript fleetScript();

}  // namespace lv::analysis
