#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

#include <zum-platform/DtvHuffman.h>

namespace {

TEST(DtvHuffman, UncompressedCopiesWithinCapacity)
{
    const unsigned char data[] = {'A', 'B', 'C'};
    std::vector<unsigned char> target(5, 0xEE);
    unsigned int length = 5;
    TCDtvHuffman huffman;
    EXPECT_TRUE(huffman.DecompressString(0, data, sizeof data, target.data(), &length));
    EXPECT_EQ(length, 3u);
    EXPECT_EQ(target, (std::vector<unsigned char>{'A', 'B', 'C', 0xEE, 0xEE}));

    std::fill(target.begin(), target.end(), 0xEE);
    length = 2;
    EXPECT_FALSE(huffman.DecompressString(0, data, sizeof data, target.data(), &length));
    EXPECT_EQ(length, 2u);
    EXPECT_EQ(target, (std::vector<unsigned char>{'A', 'B', 0xEE, 0xEE, 0xEE}));
}

TEST(DtvHuffman, CodedTypesAndNullsRefused)
{
    const unsigned char data[] = {0x12, 0x34};
    unsigned char target[8] = {};
    TCDtvHuffman huffman;
    for (unsigned int type : {1u, 2u, 0xFFu}) {
        unsigned int length = sizeof target;
        EXPECT_FALSE(huffman.DecompressString(type, data, sizeof data, target, &length));
        EXPECT_EQ(length, 0u);
    }
    unsigned int length = sizeof target;
    EXPECT_FALSE(huffman.DecompressString(0, nullptr, 2, target, &length));
    EXPECT_EQ(length, 0u);
    length = sizeof target;
    EXPECT_FALSE(huffman.DecompressString(0, data, sizeof data, nullptr, &length));
    EXPECT_FALSE(huffman.DecompressString(0, data, sizeof data, target, nullptr));
}

} // namespace
