#include "Allocations.h"

#include "code_file.h"

#include <cstdlib>
#include <new>

namespace lv::test {
namespace {

/// What stands in front of each block: its place in the list of all, and who asked for it.
struct alignas(std::max_align_t) Block {
    Block* previous;
    Block* next;
    std::size_t number;
    const void* caller;
};

Block head = {&head, &head, 0, nullptr};  // made before any code runs; its previous one is the latest
std::size_t made = 0;
std::size_t untilFailure = 0;  // 0: none is to come
bool failed = false;

void link(Block* block) {
    block->previous = head.previous;
    block->next = &head;
    head.previous->next = block;
    head.previous = block;
}

void unlink(const Block* block) {
    block->previous->next = block->next;
    block->next->previous = block->previous;
}

void failWhenDue() {
    if (untilFailure != 0 && --untilFailure == 0) {
        failed = true;
        throw std::bad_alloc();
    }
}

void* allocate(std::size_t size, const void* caller) {
    failWhenDue();
    void* const memory = std::malloc(sizeof(Block) + size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    auto* const block = new (memory) Block{nullptr, nullptr, ++made, caller};
    link(block);
    return block + 1;
}

void release(void* memory) {
    if (memory != nullptr) {
        Block* const block = static_cast<Block*>(memory) - 1;
        unlink(block);
        std::free(block);
    }
}

}  // namespace

NewBlocks::NewBlocks() : last_(made) {}

std::vector<std::string> NewBlocks::owners() const {
    std::vector<std::string> files;
    for (const Block* block = head.previous; block->number > last_; block = block->previous) {
        files.push_back(fileOf(block->caller));
        // The strings made here are blocks, too, but newer ones.
    }
    return files;
}

FailingAllocation::FailingAllocation(std::size_t number) {
    failed = false;
    untilFailure = number;
}

FailingAllocation::~FailingAllocation() {
    untilFailure = 0;
}

bool FailingAllocation::happened() {
    return failed;
}

}  // namespace lv::test

namespace {

void* allocateOrNull(std::size_t size, const void* caller) noexcept {
    try {
        return lv::test::allocate(size, caller);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

}  // namespace

// All pairs, so that each knows its caller. Those that return null would end here, too, but for the address sanitizer,
// which has its own.
void* operator new(std::size_t size) {
    return lv::test::allocate(size, __builtin_return_address(0));
}

void* operator new[](std::size_t size) {
    return lv::test::allocate(size, __builtin_return_address(0));
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return allocateOrNull(size, __builtin_return_address(0));
}

void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return allocateOrNull(size, __builtin_return_address(0));
}

void operator delete(void* memory) noexcept {
    lv::test::release(memory);
}

void operator delete[](void* memory) noexcept {
    lv::test::release(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    lv::test::release(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept {
    lv::test::release(memory);
}
