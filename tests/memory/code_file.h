#pragma once

#include <string>

namespace lv::test {

/// The file that holds the code at an address, program or library, without its folder.
[[nodiscard]] std::string fileOf(const void* code);

}  // namespace lv::test
