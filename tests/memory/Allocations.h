#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace lv::test {

/// What this program has allocated by `operator new`, which is replaced in the whole of it: in the tests, in the
/// library, in the XML library and in the standard library. Of use in one thread only.

/// The blocks allocated since it was made.
class NewBlocks {
public:
    NewBlocks();

    /// For each block that is still in use the file of the code that asked for it, without its folder.
    [[nodiscard]] std::vector<std::string> owners() const;

private:
    std::size_t last_;
};

/// Lets one allocation fail with `std::bad_alloc`, while it lives.
class FailingAllocation {
public:
    /// \param number  which of the allocations to come; 1 is the next
    explicit FailingAllocation(std::size_t number);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    FailingAllocation(FailingAllocation&&) = delete;
    FailingAllocation& operator=(FailingAllocation&&) = delete;

    /// Whether there were so many allocations.
    [[nodiscard]] static bool happened();
};

}  // namespace lv::test
