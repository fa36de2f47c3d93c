#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lv::detail {

/// A text that grows at its end, in blocks that are joined once. Unlike a string that grows it never copies what it
/// holds, and it takes little more memory than that.
class TextBlocks {
    // NOLINTBEGIN(*-pointer-arithmetic): the end advances in a block of known size.
public:
    static constexpr std::size_t smallestBlock = 4096;

    void append(std::string_view text) {
        if (text.size() <= shortText && text.size() <= room()) {
            end_ = copyShort(text, end_);
        } else {
            appendLong(text);
        }
    }

    void append(char character) {
        *endWithRoom(1) = character;
        ++end_;
    }

    /// Where the text ends, with room for so many characters, at most `smallestBlock`. What is written there becomes
    /// part of the text when `setEnd` is told where it ends.
    [[nodiscard]] char* endWithRoom(std::size_t size) {
        if (size > room()) {
            addBlock();
        }
        return end_;
    }

    void setEnd(char* end) { end_ = end; }

    /// How many characters fit after the end without a further block.
    [[nodiscard]] std::size_t room() const { return static_cast<std::size_t>(limit_ - end_); }

    /// The whole text.
    [[nodiscard]] std::string joined() const;

private:
    struct Block {
        std::unique_ptr<char[]> characters;  // NOLINT(*-avoid-c-arrays): a vector would fill it with zeros
        std::size_t used = 0;                // kept for all blocks but the last
    };

    static constexpr std::size_t shortText = 16;

    /// Copies a short text to `out` and returns its end. Names and what stands around them are short: two copies of a
    /// fixed size, which may overlap, are less work than a call.
    static char* copyShort(std::string_view text, char* out) {
        const std::size_t size = text.size();
        if (size >= 8) {
            copyEnds<8>(text, out);
        } else if (size >= 4) {
            copyEnds<4>(text, out);
        } else if (size >= 2) {
            copyEnds<2>(text, out);
        } else if (size == 1) {
            *out = text.front();
        }
        return out + size;
    }

    /// Copies the first and the last `Size` characters of a text of at least so many, and at most twice as many.
    template <std::size_t Size>
    static void copyEnds(std::string_view text, char* out) {
        std::memcpy(out, text.data(), Size);
        std::memcpy(out + (text.size() - Size), text.data() + (text.size() - Size), Size);
    }

    [[nodiscard]] std::size_t usedOfLast() const;
    [[gnu::noinline]] void addBlock();  // kept out of what is called for every name
    [[gnu::noinline]] void appendLong(std::string_view text);

    std::vector<Block> blocks_;
    std::size_t sizeBeforeLast_ = 0;
    char* end_ = nullptr;  // in the last block
    char* limit_ = nullptr;
    // NOLINTEND(*-pointer-arithmetic)
};

}  // namespace lv::detail
