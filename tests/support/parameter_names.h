#pragma once

#include <string>

namespace lv::test {

/// For INSTANTIATE_TEST_SUITE_P: names each test after its parameter's member `name`.
inline constexpr auto nameOfParameter = [](const auto& test) {
    return std::string(test.param.name);
};

}  // namespace lv::test
