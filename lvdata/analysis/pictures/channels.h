#pragma once

#include <lvdata/analysis/pictures/svg/Legend.h>

#include <array>
#include <string_view>
#include <vector>

/// The look of red, green and blue in all pictures: colours, dashes and symbols.
namespace lv::analysis {

/// One of the three channels.
struct ChannelLook {
    std::string_view name;  ///< "Red", "Green", "Blue".
    std::string_view line;  ///< Classes of its line.
    std::string_view mark;  ///< Classes of its symbols.
    svg::Symbol symbol;     ///< Its symbol.
};

/// Red, green, blue.
inline constexpr std::array<ChannelLook, 3> channelLooks{
    {{"Red", "lv-line lv-red", "lv-mark lv-red", svg::Symbol::square},
     {"Green", "lv-line lv-green", "lv-mark lv-green", svg::Symbol::circle},
     {"Blue", "lv-line lv-blue", "lv-mark lv-blue", svg::Symbol::diamond}}};

}  // namespace lv::analysis
