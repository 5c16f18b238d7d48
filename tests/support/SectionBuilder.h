#ifndef ZUM_TESTS_SUPPORT_SECTIONBUILDER_H
#define ZUM_TESTS_SUPPORT_SECTIONBUILDER_H

// Builds whole sections and descriptor bodies from readable fields:
// section_length and the CRC_32 are computed, nested length fields are filled
// in when their block is closed.

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace zumtest {

using Bytes = std::vector<uint8_t>;

// Big-endian writer with back-patched length prefixes.
class ByteWriter {
public:
    ByteWriter& U8(unsigned v);
    ByteWriter& U16(unsigned v);
    ByteWriter& U24(unsigned v);
    ByteWriter& U32(unsigned v);
    ByteWriter& Raw(const Bytes& bytes);
    ByteWriter& Raw(std::initializer_list<uint8_t> bytes);
    ByteWriter& Text(const std::string& text);

    // Opens a block whose length is written in front of it: an 8-bit length,
    // or a 16-bit field whose low `bits` bits hold the length and whose high
    // bits are `highBits` (e.g. 0xF000 with 12 bits for reserved '1111').
    ByteWriter& Begin8();
    ByteWriter& Begin16(int bits = 12, unsigned highBits = 0xF000);
    // A 24-bit field, e.g. reserved '1111' and a 20-bit length.
    ByteWriter& Begin24(int bits = 20, unsigned highBits = 0xF00000);
    ByteWriter& End();

    // A descriptor: tag, length, body.
    ByteWriter& Descriptor(unsigned tag, const Bytes& body);

    const Bytes& Data() const { return m_data; }
    size_t Size() const { return m_data.size(); }

private:
    struct Open {
        size_t at;
        int width;
        int bits;
        unsigned high;
    };
    Bytes m_data;
    std::vector<Open> m_open;
};

struct SectionHeader {
    unsigned tableId = 0x00;
    bool syntax = true;     // long form with section numbers and CRC_32
    bool privateBit = false; // reserved_future_use: '1' in DVB SI tables
    unsigned reserved = 3;  // the two bits between private_indicator and section_length
    unsigned extension = 0; // table_id_extension
    unsigned version = 0;
    bool currentNext = true;
    unsigned sectionNumber = 0;
    unsigned lastSectionNumber = 0;
    int protocolVersion = -1; // >= 0 writes the PSIP protocol_version byte
};

// The long-form header of a table: the fields that vary between sections.
SectionHeader LongHeader(unsigned tableId, unsigned extension, unsigned version = 0, unsigned section = 0,
                         unsigned last = 0, bool privateBit = false);

class SectionBuilder : public ByteWriter {
public:
    explicit SectionBuilder(const SectionHeader& header) : m_header(header) {}
    // The whole section: header, body, and for the long form the CRC_32.
    Bytes Build() const;
    // As Build, but with section_length forced (the buffer is not resized).
    Bytes BuildWithLength(unsigned sectionLength) const;

private:
    SectionHeader m_header;
};

// A descriptor as bytes: tag, length, body.
Bytes Desc(unsigned tag, const Bytes& body);
Bytes Concat(std::initializer_list<Bytes> parts);
// zlib's deflate of `plain`, as compressed event loops carry it; empty if zlib fails.
Bytes Deflate(const Bytes& plain);

} // namespace zumtest

#endif
