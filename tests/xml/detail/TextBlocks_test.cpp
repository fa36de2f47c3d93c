#include <lvdata/xml/detail/TextBlocks.h>

#include <string>

#include <gtest/gtest.h>

namespace lv::detail {
namespace {

/// So many different characters.
std::string sample(std::size_t size) {
    std::string text;
    for (std::size_t index = 0; index < size; ++index) {
        text += static_cast<char>('a' + index % 23);
    }
    return text;
}

TEST(TextBlocks, AreEmptyAtFirst) {
    EXPECT_EQ(TextBlocks().joined(), "");
    TextBlocks blocks;
    blocks.append("");
    EXPECT_EQ(blocks.joined(), "");
}

TEST(TextBlocks, KeepTextsOfEveryLengthInTheirOrder) {
    TextBlocks blocks;
    std::string expected;
    for (std::size_t size = 0; size < 40; ++size) {
        blocks.append(sample(size));
        blocks.append('-');
        expected += sample(size) + '-';
    }
    EXPECT_EQ(blocks.joined(), expected);
}

TEST(TextBlocks, ATextContinuesInTheNextBlock) {
    for (const std::size_t before : {0U, 1U, 4080U, 4095U, 4096U}) {
        for (const std::size_t size : {1U, 16U, 17U, 4096U, 5000U, 100000U}) {
            TextBlocks blocks;
            blocks.append(sample(before));
            blocks.append(sample(size));
            blocks.append('!');
            EXPECT_EQ(blocks.joined(), sample(before) + sample(size) + '!') << before << ' ' << size;
        }
    }
}

TEST(TextBlocks, RoomIsThereWhenItIsAskedFor) {
    TextBlocks blocks;
    std::string expected;
    for (int round = 0; round < 2000; ++round) {
        char* const end = blocks.endWithRoom(11);
        EXPECT_GE(blocks.room(), 11U);
        end[0] = 'x';
        end[10] = 'y';  // is there, but not a part of the text
        blocks.setEnd(end + 1);
        blocks.append("abc");
        expected += "xabc";
    }
    EXPECT_EQ(blocks.joined(), expected);
}

TEST(TextBlocks, LargeTextsTakeLittleMoreRoomThanTheyNeed) {
    TextBlocks blocks;
    std::size_t size = 0;
    for (; size < 1000000; size += 10) {
        blocks.append("0123456789");
        if (size > 16 * TextBlocks::smallestBlock) {
            ASSERT_LE(blocks.room(), size / 15);
        }
    }
    EXPECT_EQ(blocks.joined().size(), size);
}

}  // namespace
}  // namespace lv::detail
