#pragma once

#include <lvdata/analysis/figures/ModeFigures.h>

#include <cstddef>
#include <string>
#include <tuple>

namespace lv::python {

/// The unit of Y, the unit of maps, the entries in a row of a map: as Python gives them.
using Units = std::tuple<std::string, std::string, std::size_t>;

[[nodiscard]] inline analysis::KnownUnits knownUnits(const Units& units) {
    return {std::get<0>(units), std::get<1>(units), std::get<2>(units)};
}

}  // namespace lv::python
