#include "zum-platform/DtvHuffman.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace {

constexpr unsigned int kNoCompression = 0;
constexpr int kContexts = 128;
constexpr unsigned char kTerminate = 0x00;
constexpr unsigned char kEscape = 0x1B;

struct TTCode {
    int table;
    unsigned char context;
    unsigned char symbol;
    const char* bits;
};

const TTCode kCodes[] = {
#include "HuffmanCodes.inc"
};

// The codes of one table as 128 binary trees, one per prior character. A
// node's children are node indexes; a leaf holds its symbol.
class CodeTrees {
public:
    explicit CodeTrees(int table)
    {
        m_nodes.reserve(2048);
        for (int context = 0; context < kContexts; ++context)
            m_roots[context] = m_NewNode();
        for (const TTCode& code : kCodes)
            if (code.table == table && code.context < kContexts)
                m_Insert(m_roots[code.context], code.bits, code.symbol);
    }

    int Root(unsigned char context) const { return m_roots[context & 0x7F]; }
    int Child(int node, int bit) const { return m_nodes[node].child[bit]; }
    bool IsLeaf(int node) const { return m_nodes[node].symbol >= 0; }
    unsigned char Symbol(int node) const { return static_cast<unsigned char>(m_nodes[node].symbol); }

private:
    struct Node {
        int child[2] = {-1, -1};
        int symbol = -1;
    };

    int m_NewNode()
    {
        m_nodes.emplace_back();
        return static_cast<int>(m_nodes.size() - 1);
    }

    void m_Insert(int node, const char* bits, unsigned char symbol)
    {
        for (; *bits; ++bits) {
            const int bit = *bits == '1';
            if (m_nodes[node].child[bit] < 0) {
                const int created = m_NewNode();
                m_nodes[node].child[bit] = created;
            }
            node = m_nodes[node].child[bit];
        }
        m_nodes[node].symbol = symbol;
    }

    std::vector<Node> m_nodes;
    std::array<int, kContexts> m_roots{};
};

const CodeTrees& TreesOf(unsigned int compressionType)
{
    static const CodeTrees title(1);
    static const CodeTrees description(2);
    return compressionType == 1 ? title : description;
}

// Most significant bit of each byte first.
class BitReader {
public:
    BitReader(const unsigned char* data, unsigned int length) : m_pData(data), m_bits(length * 8u) {}

    // -1 past the end.
    int Bit()
    {
        if (m_position >= m_bits)
            return -1;
        const int bit = (m_pData[m_position / 8] >> (7 - m_position % 8)) & 1;
        ++m_position;
        return bit;
    }

    // -1 when fewer than eight bits are left.
    int Byte()
    {
        if (m_bits - m_position < 8)
            return -1;
        int value = 0;
        for (int i = 0; i < 8; ++i)
            value = (value << 1) | Bit();
        return value;
    }

private:
    const unsigned char* m_pData;
    unsigned int m_bits;
    unsigned int m_position = 0;
};

// Decodes up to the terminate. Returns false for a code string that ends
// first or a character that does not fit.
bool Decode(const CodeTrees& trees, const unsigned char* data, unsigned int length, unsigned char* target,
            unsigned int capacity, unsigned int& written)
{
    BitReader bits(data, length);
    unsigned char context = 0;
    for (;;) {
        int node = trees.Root(context);
        while (!trees.IsLeaf(node)) {
            const int bit = bits.Bit();
            if (bit < 0 || trees.Child(node, bit) < 0)
                return false;
            node = trees.Child(node, bit);
        }
        int character = trees.Symbol(node);
        if (character == kTerminate)
            return true;
        if (character == kEscape) {
            // Plain 8-bit characters: the escaped one, and after one in
            // 0x80..0xFF the next as well.
            for (;;) {
                character = bits.Byte();
                if (character < 0)
                    return false;
                if (character == kTerminate)
                    return true;
                if (written >= capacity)
                    return false;
                target[written++] = static_cast<unsigned char>(character);
                if (character < 0x80)
                    break;
            }
        } else {
            if (written >= capacity)
                return false;
            target[written++] = static_cast<unsigned char>(character);
        }
        context = static_cast<unsigned char>(character);
    }
}

} // namespace

bool TCDtvHuffman::DecompressString(unsigned int compressionType, const unsigned char* data, unsigned char length,
                                    unsigned char* target, unsigned int* targetLength)
{
    if (targetLength == nullptr)
        return false;
    const unsigned int capacity = *targetLength;
    *targetLength = 0;
    if (data == nullptr || target == nullptr)
        return false;
    if (compressionType == kNoCompression) {
        const unsigned int copied = std::min<unsigned int>(length, capacity);
        std::memcpy(target, data, copied);
        *targetLength = copied;
        return copied == length;
    }
    if (compressionType != 1 && compressionType != 2)
        return false;
    unsigned int written = 0;
    const bool whole = Decode(TreesOf(compressionType), data, length, target, capacity, written);
    *targetLength = written;
    return whole;
}
