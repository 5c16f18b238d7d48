#include <vector>

#include <gtest/gtest.h>

#include <zum-platform/DtvHuffman.h>

TEST(DtvHuffman, CopiesUncompressedWithinCapacityAndRefusesTheRest)
{
    const unsigned char data[] = {'A', 'B', 'C'};
    struct Case { unsigned int type, capacity; bool withData, withTarget, result; unsigned int written; } cases[] = {
        {0, 5, true, true, true, 3},     {0, 3, true, true, true, 3},  {0, 2, true, true, false, 2},
        {1, 5, true, true, false, 0},    {2, 5, true, true, false, 0}, {0xFF, 5, true, true, false, 0},
        {0, 5, false, true, false, 0},   {0, 5, true, false, false, 0},
    };
    TCDtvHuffman huffman;
    for (const Case& c : cases) {
        SCOPED_TRACE(&c - cases);
        std::vector<unsigned char> target(5, 0xEE);
        unsigned int length = c.capacity;
        EXPECT_EQ(huffman.DecompressString(c.type, c.withData ? data : nullptr, sizeof data,
                                           c.withTarget ? target.data() : nullptr, &length),
                  c.result);
        EXPECT_EQ(length, c.written);
        for (size_t i = 0; i < target.size(); ++i)
            EXPECT_EQ(target[i], i < c.written ? data[i] : 0xEE) << i;
    }
    unsigned char target[4];
    EXPECT_FALSE(huffman.DecompressString(0, data, sizeof data, target, nullptr));
}
