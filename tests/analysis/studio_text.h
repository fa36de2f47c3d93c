#pragma once

#include <tests/support/files.h>

#include <string>

namespace lv::test {

/// The sample document of a monitor in a studio.
[[nodiscard]] inline std::string studioText() {
    return contentOf(LVDATA_SAMPLES_DIR "/studio.xml");
}

}  // namespace lv::test
