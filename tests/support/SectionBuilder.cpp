#include "SectionBuilder.h"

#include <zlib.h>

#include <stdexcept>

#include "Crc32.h"

namespace zumtest {

ByteWriter& ByteWriter::U8(unsigned v)
{
    m_data.push_back(static_cast<uint8_t>(v));
    return *this;
}

ByteWriter& ByteWriter::U16(unsigned v)
{
    return U8(v >> 8).U8(v);
}

ByteWriter& ByteWriter::U24(unsigned v)
{
    return U8(v >> 16).U16(v);
}

ByteWriter& ByteWriter::U32(unsigned v)
{
    return U16(v >> 16).U16(v);
}

ByteWriter& ByteWriter::Raw(const Bytes& bytes)
{
    m_data.insert(m_data.end(), bytes.begin(), bytes.end());
    return *this;
}

ByteWriter& ByteWriter::Raw(std::initializer_list<uint8_t> bytes)
{
    m_data.insert(m_data.end(), bytes.begin(), bytes.end());
    return *this;
}

ByteWriter& ByteWriter::Text(const std::string& text)
{
    m_data.insert(m_data.end(), text.begin(), text.end());
    return *this;
}

ByteWriter& ByteWriter::Begin8()
{
    m_open.push_back({m_data.size(), 1, 8, 0});
    return U8(0);
}

ByteWriter& ByteWriter::Begin16(int bits, unsigned highBits)
{
    m_open.push_back({m_data.size(), 2, bits, highBits});
    return U16(0);
}

ByteWriter& ByteWriter::Begin24(int bits, unsigned highBits)
{
    m_open.push_back({m_data.size(), 3, bits, highBits});
    return U24(0);
}

ByteWriter& ByteWriter::End()
{
    if (m_open.empty())
        throw std::logic_error("End() without Begin");
    const Open open = m_open.back();
    m_open.pop_back();
    const size_t length = m_data.size() - open.at - static_cast<size_t>(open.width);
    if (length >= (1u << open.bits))
        throw std::length_error("block too long for its length field");
    if (open.width == 1) {
        m_data[open.at] = static_cast<uint8_t>(length);
    } else {
        const unsigned value = (open.high & ~((1u << open.bits) - 1)) | static_cast<unsigned>(length);
        for (int i = 0; i < open.width; ++i)
            m_data[open.at + static_cast<size_t>(i)] = static_cast<uint8_t>(value >> (8 * (open.width - 1 - i)));
    }
    return *this;
}

ByteWriter& ByteWriter::Descriptor(unsigned tag, const Bytes& body)
{
    return Raw(Desc(tag, body));
}

Bytes SectionBuilder::Build() const
{
    const SectionHeader& h = m_header;
    Bytes out;
    out.push_back(static_cast<uint8_t>(h.tableId));
    out.push_back(0);
    out.push_back(0);
    if (h.syntax) {
        out.push_back(static_cast<uint8_t>(h.extension >> 8));
        out.push_back(static_cast<uint8_t>(h.extension));
        out.push_back(static_cast<uint8_t>(0xC0 | ((h.version & 0x1F) << 1) | (h.currentNext ? 1 : 0)));
        out.push_back(static_cast<uint8_t>(h.sectionNumber));
        out.push_back(static_cast<uint8_t>(h.lastSectionNumber));
        if (h.protocolVersion >= 0)
            out.push_back(static_cast<uint8_t>(h.protocolVersion));
    }
    out.insert(out.end(), Data().begin(), Data().end());
    const size_t length = out.size() - 3 + (h.syntax ? 4 : 0);
    if (length > 4095)
        throw std::length_error("section too long");
    out[1] = static_cast<uint8_t>((h.syntax ? 0x80 : 0) | (h.privateBit ? 0x40 : 0) | ((h.reserved & 3) << 4) |
                                  ((length >> 8) & 0x0F));
    out[2] = static_cast<uint8_t>(length);
    if (h.syntax) {
        const uint32_t crc = Crc32Mpeg(out.data(), out.size());
        for (int shift = 24; shift >= 0; shift -= 8)
            out.push_back(static_cast<uint8_t>(crc >> shift));
    }
    return out;
}

Bytes SectionBuilder::BuildWithLength(unsigned sectionLength) const
{
    Bytes out = Build();
    out[1] = static_cast<uint8_t>((out[1] & 0xF0) | ((sectionLength >> 8) & 0x0F));
    out[2] = static_cast<uint8_t>(sectionLength);
    return out;
}

Bytes Desc(unsigned tag, const Bytes& body)
{
    if (body.size() > 255)
        throw std::length_error("descriptor body too long");
    Bytes out{static_cast<uint8_t>(tag), static_cast<uint8_t>(body.size())};
    out.insert(out.end(), body.begin(), body.end());
    return out;
}

Bytes Concat(std::initializer_list<Bytes> parts)
{
    Bytes out;
    for (const Bytes& p : parts)
        out.insert(out.end(), p.begin(), p.end());
    return out;
}

SectionHeader LongHeader(unsigned tableId, unsigned extension, unsigned version, unsigned section, unsigned last,
                         bool privateBit)
{
    SectionHeader header;
    header.tableId = tableId;
    header.privateBit = privateBit;
    header.extension = extension;
    header.version = version;
    header.sectionNumber = section;
    header.lastSectionNumber = last;
    return header;
}

Bytes Deflate(const Bytes& plain)
{
    uLongf size = compressBound(static_cast<uLong>(plain.size()));
    Bytes out(size);
    if (compress(out.data(), &size, plain.data(), static_cast<uLong>(plain.size())) != Z_OK)
        return {};
    out.resize(size);
    return out;
}

} // namespace zumtest
