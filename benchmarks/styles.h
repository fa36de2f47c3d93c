#pragma once

#include <benchmarks/Monitor.h>

#include <memory>
#include <string>
#include <vector>

namespace benchmarks {

/// A way to write the records, and what it is called in the tables.
struct Style {
    std::string name;
    std::unique_ptr<Monitor> (*make)();
};

/// All styles that this build holds, the library's own first.
[[nodiscard]] const std::vector<Style>& styles();

}  // namespace benchmarks
