#pragma once

#include <string_view>

namespace lv::detail {

inline bool contains(std::string_view text, char character) {
    return text.find(character) != std::string_view::npos;
}

}  // namespace lv::detail
