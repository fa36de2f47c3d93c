#include <lvdata/xml/detail/TextBlocks.h>

#include <algorithm>
#include <utility>

namespace lv::detail {

// NOLINTBEGIN(*-pointer-arithmetic): see the header.

std::size_t TextBlocks::usedOfLast() const {
    return blocks_.empty() ? 0 : static_cast<std::size_t>(end_ - blocks_.back().characters.get());
}

/// A block is a fraction of what there is: so there are neither many blocks nor is much of the last one unused.
void TextBlocks::addBlock() {
    constexpr std::size_t fraction = 16;
    const std::size_t used = usedOfLast();
    const std::size_t size = std::max(smallestBlock, (sizeBeforeLast_ + used) / fraction);
    Block block{std::unique_ptr<char[]>(new char[size])};  // NOLINT(*-avoid-c-arrays, *-make-unique)
    char* const begin = block.characters.get();
    blocks_.push_back(std::move(block));
    if (blocks_.size() > 1) {
        blocks_[blocks_.size() - 2].used = used;
    }
    sizeBeforeLast_ += used;
    end_ = begin;
    limit_ = begin + size;
}

void TextBlocks::appendLong(std::string_view text) {
    while (!text.empty()) {
        char* const out = endWithRoom(1);
        const std::size_t part = text.copy(out, room());
        setEnd(out + part);
        text.remove_prefix(part);
    }
}

// NOLINTEND(*-pointer-arithmetic)

std::string TextBlocks::joined() const {
    std::string text;
    text.reserve(sizeBeforeLast_ + usedOfLast() + 1);  // a last line feed can be added without copying the text
    for (const Block& block : blocks_) {
        text.append(block.characters.get(), &block == &blocks_.back() ? usedOfLast() : block.used);
    }
    return text;
}

}  // namespace lv::detail
