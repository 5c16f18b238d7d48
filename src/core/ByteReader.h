#ifndef ZUM_CORE_BYTEREADER_H
#define ZUM_CORE_BYTEREADER_H

// Internal: big-endian numbers, read once here for every table and descriptor.
inline unsigned int ReadBE16(const unsigned char* p)
{
    return (static_cast<unsigned int>(p[0]) << 8) | p[1];
}

// A three-letter code or other 24-bit field.
inline unsigned int ReadBE24(const unsigned char* p)
{
    return (static_cast<unsigned int>(p[0]) << 16) | (static_cast<unsigned int>(p[1]) << 8) | p[2];
}

inline unsigned int ReadBE32(const unsigned char* p)
{
    return (static_cast<unsigned int>(p[0]) << 24) | (static_cast<unsigned int>(p[1]) << 16) |
           (static_cast<unsigned int>(p[2]) << 8) | p[3];
}

// A big-endian reader bounded by the length it was given. A read
// that does not fit answers 0, moves nothing and marks the reader short, so
// that a decoder can stop where its body ends and keep what it got.
class TCByteReader {
public:
    TCByteReader(const unsigned char* data, int length) : m_pData(data), m_length(data && length > 0 ? length : 0) {}

    bool Has(int count) const { return count >= 0 && count <= m_length - m_position; }
    int Left() const { return m_length - m_position; }
    int Consumed() const { return m_position; }
    bool IsShort() const { return m_short; }
    const unsigned char* Here() const { return m_pData + m_position; }

    unsigned int U8() { return m_Take(1); }
    unsigned int U16() { return m_Take(2); }
    unsigned int U24() { return m_Take(3); }
    unsigned int U32() { return m_Take(4); }

    // Moves over `count` bytes; a run past the end moves nothing.
    bool Skip(int count)
    {
        if (!Has(count)) {
            m_short = true;
            return false;
        }
        m_position += count;
        return true;
    }

    // Moves to the end; for a field that claims more than is left.
    int SkipToEnd()
    {
        const int left = Left();
        m_position = m_length;
        return left;
    }

private:
    unsigned int m_Take(int count)
    {
        if (!Has(count)) {
            m_short = true;
            return 0;
        }
        unsigned int value = 0;
        for (int i = 0; i < count; ++i)
            value = (value << 8) | m_pData[m_position + i];
        m_position += count;
        return value;
    }

    const unsigned char* m_pData;
    int m_length;
    int m_position = 0;
    bool m_short = false;
};

// How many records a loop of `size` bytes holds, each a `head`-byte head with
// a 12-bit length of what follows it at `lengthAt`: a capacity to reserve, so
// that a table's record list takes one block instead of growing.
inline int CountRecords(const unsigned char* data, int size, int head, int lengthAt)
{
    int count = 0;
    for (int at = 0; at + lengthAt + 2 <= size; ++count)
        at += head + static_cast<int>(ReadBE16(data + at + lengthAt) & 0x0FFF);
    return count;
}

#endif
