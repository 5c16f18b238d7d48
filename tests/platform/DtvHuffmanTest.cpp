#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zum-platform/DtvHuffman.h>

namespace {

std::vector<unsigned char> FromHex(const std::string& hex)
{
    std::vector<unsigned char> bytes;
    for (size_t i = 0; i + 1 < hex.size(); i += 2)
        bytes.push_back(static_cast<unsigned char>(std::stoul(hex.substr(i, 2), nullptr, 16)));
    return bytes;
}

struct Vector {
    unsigned int type;
    std::vector<unsigned char> compressed, decoded;
    std::string text;
};

std::vector<Vector> ReadVectors()
{
    std::ifstream in(ZUM_SOURCE_DIR "/platform/data/vectors.txt");
    std::vector<Vector> vectors;
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#')
            continue;
        std::vector<std::string> fields;
        std::stringstream stream(line);
        for (std::string field; std::getline(stream, field, '\t');)
            fields.push_back(field);
        if (fields.size() < 5)
            continue;
        vectors.push_back({static_cast<unsigned int>(std::stoul(fields[0])), FromHex(fields[1]), FromHex(fields[3]),
                           fields[4]});
    }
    return vectors;
}

} // namespace

TEST(DtvHuffman, CopiesUncompressedWithinCapacityAndRefusesTheRest)
{
    const unsigned char data[] = {'A', 'B', 'C'};
    struct Case { unsigned int type, capacity; bool withData, withTarget, result; unsigned int written; } cases[] = {
        {0, 5, true, true, true, 3},     {0, 3, true, true, true, 3},  {0, 2, true, true, false, 2},
        {3, 5, true, true, false, 0},    {0xFF, 5, true, true, false, 0},
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

TEST(DtvHuffman, DecodesEveryVectorOfBothTables)
{
    const std::vector<Vector> vectors = ReadVectors();
    ASSERT_EQ(vectors.size(), 13u);
    TCDtvHuffman huffman;
    for (const Vector& v : vectors) {
        SCOPED_TRACE(v.text);
        std::vector<unsigned char> target(4096, 0);
        unsigned int length = static_cast<unsigned int>(target.size());
        EXPECT_TRUE(huffman.DecompressString(v.type, v.compressed.data(),
                                             static_cast<unsigned char>(v.compressed.size()), target.data(), &length));
        EXPECT_EQ(std::vector<unsigned char>(target.begin(), target.begin() + length), v.decoded);
    }
}

TEST(DtvHuffman, RefusesACutCodeStringAndTextBeyondTheCapacity)
{
    // "The next" (title table): without its last byte the terminate is lost.
    const unsigned char next[] = {0x43, 0x28, 0xDC, 0x84, 0xD4};
    TCDtvHuffman huffman;
    unsigned char target[16] = {};
    unsigned int length = sizeof target;
    EXPECT_FALSE(huffman.DecompressString(1, next, 4, target, &length));
    EXPECT_EQ(std::string(reinterpret_cast<char*>(target), length), "The ne");
    length = 3;
    EXPECT_FALSE(huffman.DecompressString(1, next, sizeof next, target, &length));
    EXPECT_EQ(std::string(reinterpret_cast<char*>(target), length), "The");
    // The same bits under the description table decode to something else or fail, never overrun.
    length = sizeof target;
    huffman.DecompressString(2, next, sizeof next, target, &length);
    EXPECT_LE(length, sizeof target);
}
