#pragma once

#include <lvdata/analysis/Catalogue.h>

namespace lv::test {

/// What all tests look records up in.
inline const analysis::Catalogue& catalogue() {
    static const analysis::Catalogue all;
    return all;
}

}  // namespace lv::test
