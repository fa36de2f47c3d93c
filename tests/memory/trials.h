#pragma once

#include "Allocations.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <new>

namespace lv::test {

/// Calls the operation with that allocation failing. Whether the failure came out of it, as `std::bad_alloc`: it must,
/// when there were so many allocations. Anything else that is thrown fails the test.
template <class Operation>
[[nodiscard]] bool fails(std::size_t allocation, Operation operation) {
    const FailingAllocation failure(allocation);
    try {
        operation();
    } catch (const std::bad_alloc&) {
        return true;
    }
    EXPECT_FALSE(FailingAllocation::happened()) << "hidden from the caller: allocation " << allocation;
    return false;
}

/// Nothing stays allocated behind a failure, save what the XML library itself drops: one block at a time, either some
/// of its nodes when the table of such blocks cannot grow, or the buffer of an error message that cannot be copied.
inline void expectNothingLost(const NewBlocks& blocks, bool failed) {
    const std::vector<std::string> owners = blocks.owners();
    const bool droppedByTheXMLLibrary =
        failed && owners.size() == 1 && owners.front().rfind(LVDATA_XML_LIBRARY_FILE, 0) == 0;
    EXPECT_TRUE(owners.empty() || droppedByTheXMLLibrary) << testing::PrintToString(owners);
}

/// Calls `trial` with 1, 2, 3, ... to let that allocation fail and judge what is left, until it answers that there were
/// not so many.
template <class Trial>
void failEveryAllocation(Trial trial) {
    std::size_t allocation = 0;
    for (bool failed = true; failed;) {
        SCOPED_TRACE(++allocation);
        const NewBlocks blocks;
        failed = trial(allocation);
        expectNothingLost(blocks, failed);
    }
    EXPECT_GT(allocation, 1U) << "nothing was allocated";
}

}  // namespace lv::test
