#include "DescMetadata.h"

#include "../core/ByteReader.h"
#include "../dvb/DescText.h"

namespace {

const std::string& EmptyString()
{
    static const std::string empty;
    return empty;
}

// A byte-counted run at the reader; false when the body does not hold it.
bool TakeCounted(TCByteReader& reader, const unsigned char*& at, int& length)
{
    if (!reader.Has(1))
        return false;
    length = static_cast<int>(reader.U8());
    if (!reader.Has(length))
        return false;
    at = reader.Here();
    reader.Skip(length);
    return true;
}

// Steps shared by both descriptors: the format identification and the
// service id. False when the body ends inside them.
bool ReadFormat(TCByteReader& reader, TTMetadataFormat& format)
{
    if (!reader.Has(2))
        return false;
    format.applicationFormat = static_cast<unsigned short>(reader.U16());
    if (format.applicationFormat == 0xFFFF) {
        if (!reader.Has(4))
            return false;
        format.applicationFormatIdentifier = reader.U32();
    }
    if (!reader.Has(1))
        return false;
    format.metadataFormat = static_cast<unsigned char>(reader.U8());
    if (format.metadataFormat == 0xFF) {
        if (!reader.Has(4))
            return false;
        format.metadataFormatIdentifier = reader.U32();
    }
    if (!reader.Has(1))
        return false;
    format.metadataServiceId = static_cast<unsigned char>(reader.U8());
    return true;
}

bool IsOwnService(const TTMetadataFormat& format)
{
    return format.applicationFormat == 0x0101 && format.metadataFormat == 0x3F && format.metadataServiceId == 0xFF;
}

} // namespace

// ---------------------------------------------------------------- metadata

TCDescMetadata::TCDescMetadata() : TCBaseDesc(0x26) {}

TCDescMetadata::~TCDescMetadata()
{
    DeleteAll();
}

void TCDescMetadata::DeleteAll()
{
    m_format = TTMetadataFormat();
    m_decoderConfigFlags = m_dsmccFlag = 0;
    m_serviceIdentificationRecord.clear();
    m_decoderConfig = TTRawRun();
    m_privateData = TTRawRun();
    m_recognised = false;
}

TCBaseDesc* TCDescMetadata::Fork() const
{
    return t_ForkAs(new TCDescMetadata());
}

int TCDescMetadata::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    const bool formatRead = ReadFormat(reader, m_format);
    // A field the body does not hold stops here, with the bytes left as the answer.
    if (!formatRead || !reader.Has(1))
        return reader.Left();
    const unsigned int flags = reader.U8();
    m_decoderConfigFlags = static_cast<unsigned char>(flags >> 5);
    m_dsmccFlag = (flags >> 4) & 1;
    if (reader.Left() > 0) {
        const unsigned char* at = nullptr;
        int size = 0;
        if (m_dsmccFlag) {
            if (!TakeCounted(reader, at, size))
                return reader.Left();
            m_serviceIdentificationRecord.assign(reinterpret_cast<const char*>(at), static_cast<size_t>(size));
        }
        switch (m_decoderConfigFlags) {
        case 1:
        case 3:
        case 5:
        case 6:
            if (reader.Left() == 0)
                break;
            if (!TakeCounted(reader, at, size))
                return reader.Left();
            m_decoderConfig = t_Run(payload, at, size);
            break;
        case 4:
            if (reader.Left() == 0)
                break;
            m_format.metadataServiceId = static_cast<unsigned char>(reader.U8());
            break;
        default: break;
        }
        if (reader.Left() > 0)
            m_privateData = zum_text::TakeRun<TTRawRun>(reader, payload, reader.Left());
    }
    m_recognised = IsOwnService(m_format) && m_decoderConfigFlags == 0 && m_dsmccFlag;
    return length;
}

std::string TCDescMetadata::m_RunText(TTRawRun run) const
{
    const unsigned char* at = t_At(run);
    return at ? std::string(reinterpret_cast<const char*>(at), run.length) : std::string();
}

const std::string& TCDescMetadata::RootDir() const
{
    return m_recognised ? m_serviceIdentificationRecord : EmptyString();
}

// ---------------------------------------------------------------- metadata pointer

TCDescMetadataPointer::TCDescMetadataPointer() : TCBaseDesc(0x25) {}

TCDescMetadataPointer::~TCDescMetadataPointer()
{
    DeleteAll();
}

void TCDescMetadataPointer::DeleteAll()
{
    m_format = TTMetadataFormat();
    m_mpegCarriageFlags = m_locatorRecordFlag = 0;
    m_locatorRecord = TTRawRun();
    m_key = TCServiceKey();
    m_privateData.clear();
    m_recognised = false;
}

TCBaseDesc* TCDescMetadataPointer::Fork() const
{
    return t_ForkAs(new TCDescMetadataPointer());
}

int TCDescMetadataPointer::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    const bool formatRead = ReadFormat(reader, m_format);
    if (!formatRead || !reader.Has(1))
        return 0;
    const unsigned int flags = reader.U8();
    m_locatorRecordFlag = (flags >> 7) & 1;
    m_mpegCarriageFlags = (flags >> 5) & 0x03;
    if (m_locatorRecordFlag) {
        const unsigned char* at = nullptr;
        int size = 0;
        if (!TakeCounted(reader, at, size))
            return 0;
        m_locatorRecord = t_Run(payload, at, size);
    }
    if (!reader.Has(1))
        return 0;
    if (m_mpegCarriageFlags != 3) {
        if (!reader.Has(2))
            return 0;
        m_key.m_serviceId = static_cast<unsigned short>(reader.U16());
        if (m_mpegCarriageFlags == 1) {
            if (!reader.Has(4))
                return 0;
            m_key.m_originalNetworkId = static_cast<unsigned short>(reader.U16());
            m_key.m_transportStreamId = static_cast<unsigned short>(reader.U16());
        }
    }
    if (reader.Left() > 0)
        m_privateData.assign(reinterpret_cast<const char*>(reader.Here()), static_cast<size_t>(reader.Left()));
    m_recognised = IsOwnService(m_format) && !m_locatorRecordFlag;
    return length;
}

bool TCDescMetadataPointer::GetLocatorRec(std::string& out) const
{
    if (!m_recognised)
        return false;
    const unsigned char* at = t_At(m_locatorRecord);
    out = at ? std::string(reinterpret_cast<const char*>(at), m_locatorRecord.length) : std::string();
    return true;
}

bool TCDescMetadataPointer::GetTriplet(TCServiceKey& out) const
{
    if (!m_recognised)
        return false;
    if (m_mpegCarriageFlags == 1)
        out = m_key;
    else
        out.m_serviceId = m_key.m_serviceId;
    return true;
}

const std::string& TCDescMetadataPointer::UserData() const
{
    return m_recognised ? m_privateData : EmptyString();
}

// ---------------------------------------------------------------- metadata extension

TCDescMetadataExtension::TCDescMetadataExtension(const std::string& data)
{
    t_Parse(data);
}

TCDescMetadataExtension::~TCDescMetadataExtension()
{
    TCDescMetadataExtension::DeleteAll();
}

void TCDescMetadataExtension::DeleteAll()
{
    m_version = m_secondFlag = 0;
    m_firstFlag = 0;
    m_values.clear();
    m_firstString.clear();
    m_secondString.clear();
    m_trailerByte = 0;
    m_thirdString.clear();
    m_trailerFlag0 = m_trailerFlag1 = 0;
}

void TCDescMetadataExtension::t_Parse(const std::string& data)
{
    const unsigned char* bytes = reinterpret_cast<const unsigned char*>(data.data());
    const int size = static_cast<int>(data.size());
    int position = 0;
    if (position >= size)
        return;
    const unsigned char head = bytes[position++];
    m_version = head >> 4;
    m_secondFlag = (head >> 1) & 1;
    m_firstFlag = head & 1;

    auto counted = [&](std::string& out) {
        if (position >= size)
            return false;
        const int length = bytes[position];
        if (position + 1 + length > size)
            return false;
        out.assign(data, static_cast<size_t>(position + 1), static_cast<size_t>(length));
        position += 1 + length;
        return true;
    };
    if (!m_firstFlag) {
        if (position >= size)
            return;
        const int count = bytes[position++];
        for (int i = 0; i < count; ++i) {
            if (position + 2 > size)
                return;
            m_values.insert(static_cast<unsigned short>(ReadBE16(bytes + position)));
            position += 2;
        }
    }
    if (!m_secondFlag && !counted(m_firstString))
        return;
    if (!counted(m_secondString))
        return;
    if (position >= size)
        return;
    m_trailerByte = bytes[position++];
    m_thirdString.assign(data, static_cast<size_t>(position), std::string::npos);
    if (m_version == 0) {
        m_trailerFlag0 = m_trailerByte & 1;
        m_trailerFlag1 = (m_trailerByte >> 1) & 1;
    }
}
