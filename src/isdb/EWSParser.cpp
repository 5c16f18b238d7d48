#include "EWSParser.h"

#include "../core/ByteReader.h"
#include "../core/Log.h"

namespace {

constexpr int kCrcSize = 4;

enum : unsigned short {
    kExtensionTRDW = 1,
    kExtensionTCDW = 2,
    kExtensionTMDW = 3,
};

// `count` bytes at the reader's position as a string; false, nothing moved, when they do not fit.
bool TakeText(TCByteReader& reader, int count, std::string& text)
{
    if (!reader.Has(count))
        return false;
    text.assign(reinterpret_cast<const char*>(reader.Here()), static_cast<size_t>(count));
    reader.Skip(count);
    return true;
}

// One byte into `field` if there is one left.
bool TakeByte(TCByteReader& reader, unsigned char& field)
{
    if (!reader.Has(1))
        return false;
    field = static_cast<unsigned char>(reader.U8());
    return true;
}

// Five digits in the upper 20 bits; a nibble above 9 is not refused and enters the sum as it is.
unsigned int LocationCode(unsigned int bytes)
{
    unsigned int value = 0;
    for (int shift = 20; shift >= 4; shift -= 4)
        value = value * 10 + ((bytes >> shift) & 0x0F);
    return value;
}

} // namespace

// ---------------------------------------------------------------- TCEWSBase

TCEWSBase::~TCEWSBase() = default;

void TCEWSBase::DeleteAll()
{
    crc = 0;
    t_DeleteAll();
}

int TCEWSBase::Parse(const unsigned char* data, int length, char version, unsigned char section,
                     unsigned char lastSection, unsigned int sectionCrc)
{
    // Stored before the check: a change empties the sub-table, and with it this field.
    crc = sectionCrc;
    const int result = t_CheckVersion(version, section, lastSection, sectionCrc);
    if (result != TABLE_FIRST && result != TABLE_ADD && result != TABLE_CHANGED)
        return 1;
    t_Parse(data, length - kCrcSize);
    return 1;
}

// ---------------------------------------------------------------- TCEWSRegion

TCEWSRegion::~TCEWSRegion()
{
    t_DeleteAll();
}

void TCEWSRegion::t_DeleteAll()
{
    m_byCode.clear();
    m_locations.clear();
}

int TCEWSRegion::t_Parse(const unsigned char* data, int length)
{
    TCByteReader reader(data, length);
    if (!reader.Has(2))
        return 0;
    disasterCode = static_cast<unsigned short>(reader.U16());
    // A missing byte ends the parse with the fields before it stored.
    unsigned char count = 0;
    if (!TakeByte(reader, locationTypeCode) || !TakeByte(reader, packageId) || !TakeByte(reader, count))
        return reader.Consumed();

    for (unsigned int i = 0; i < count; ++i) {
        if (!reader.Has(4))
            break;
        std::unique_ptr<TSLocationCode> location(new TSLocationCode());
        location->code = LocationCode(reader.U24());
        const int size = static_cast<int>(reader.U8());
        if (!TakeText(reader, size, location->description))
            break;
        location->disasterCode = disasterCode;
        location->typeCode = locationTypeCode;
        location->packageId = packageId;
        m_byCode[location->code] = location.get();
        m_locations.push_back(std::move(location));
    }
    return reader.Consumed();
}

void TCEWSRegion::Locations(std::vector<TSLocationCode*>& locations) const
{
    for (const auto& location : m_locations)
        locations.push_back(new TSLocationCode(*location));
}

void TCEWSRegion::Locations(std::map<unsigned int, TSLocationCode>& locations) const
{
    for (const auto& entry : m_byCode) {
        const TSLocationCode& l = *entry.second;
        ZUM_LOGE("[TCEWSRegion::Locations] delivered location: code [%d] description [%s] disaster [%d] "
                 "typeCode [%d] packageId [%d]",
                 static_cast<int>(l.code), l.description.c_str(), static_cast<int>(l.disasterCode),
                 static_cast<int>(l.typeCode), static_cast<int>(l.packageId));
        locations[entry.first] = l;
    }
}

// ---------------------------------------------------------------- TCEWSCode

TCEWSCode::~TCEWSCode()
{
    t_DeleteAll();
}

void TCEWSCode::t_DeleteAll()
{
    m_disasters.clear();
}

int TCEWSCode::t_Parse(const unsigned char* data, int length)
{
    TCByteReader reader(data, length);
    const unsigned int count = reader.U8();
    for (unsigned int i = 0; i < count; ++i) {
        if (!reader.Has(4))
            break;
        std::unique_ptr<TSDisasterCode> disaster(new TSDisasterCode());
        disaster->codeByte0 = static_cast<unsigned char>(reader.U8());
        disaster->codeByte1 = static_cast<unsigned char>(reader.U8());
        disaster->disasterCode = static_cast<unsigned short>(reader.U16());
        bool whole = true;
        for (std::string* text : {&disaster->text1, &disaster->text2, &disaster->text3, &disaster->text4}) {
            if (!reader.Has(1) || !TakeText(reader, static_cast<int>(reader.U8()), *text)) {
                whole = false;
                break;
            }
        }
        if (!whole)
            break;
        // The first record of a code stays.
        const unsigned short key = disaster->disasterCode;
        if (m_disasters.find(key) == m_disasters.end())
            m_disasters.emplace(key, std::move(disaster));
    }
    return reader.Consumed();
}

void TCEWSCode::Disasters(std::map<unsigned short, TSDisasterCode*>& disasters) const
{
    for (const auto& entry : m_disasters) {
        if (disasters.find(entry.first) == disasters.end())
            disasters[entry.first] = new TSDisasterCode(*entry.second);
    }
}

bool TCEWSCode::Disaster(unsigned short code, TSDisasterCode& disaster) const
{
    const auto it = m_disasters.find(code);
    if (it == m_disasters.end())
        return false;
    disaster = *it->second;
    return true;
}

// ---------------------------------------------------------------- TCEWSMessage

TCEWSMessage::~TCEWSMessage()
{
    t_DeleteAll();
}

void TCEWSMessage::t_DeleteAll()
{
    headerByte = 0;
    m_messages.clear();
    m_messagesByKey.clear();
}

int TCEWSMessage::t_Parse(const unsigned char* data, int length)
{
    TCByteReader reader(data, length);
    if (!TakeByte(reader, headerByte) || !TakeByte(reader, messageKey))
        return reader.Consumed();

    // A lone byte at the end is no entry.
    while (reader.Has(2)) {
        const int size = static_cast<int>(reader.U16());
        if (size == 0)
            continue;
        std::string text;
        if (!TakeText(reader, size, text))
            break;
        m_messages.push_back(text);
        m_messagesByKey.emplace(messageKey, std::move(text));
    }
    return reader.Consumed();
}

void TCEWSMessage::InformationMessages(std::vector<std::string>& messages) const
{
    messages = m_messages;
}

void TCEWSMessage::InformationMessages(std::multimap<unsigned short, std::string>& messages) const
{
    messages.insert(m_messagesByKey.begin(), m_messagesByKey.end());
}

// ---------------------------------------------------------------- TCEWSParser

TCEWSParser::TCEWSParser() : TCSectionParser(0x80, kZUMDefaultHandle) {}

TCEWSParser::~TCEWSParser()
{
    Initialize();
}

void TCEWSParser::DeleteAll()
{
    m_region.DeleteAll();
    m_code.DeleteAll();
    m_message.DeleteAll();
}

void TCEWSParser::t_Initialize()
{
    DeleteAll();
    m_region.InitSection();
    m_code.InitSection();
    m_message.InitSection();
}

bool TCEWSParser::t_Parse(const unsigned char* body, int length)
{
    TCEWSBase* subTable = nullptr;
    switch (m_tableIdExtension) {
    case kExtensionTRDW: subTable = &m_region; break;
    case kExtensionTCDW: subTable = &m_code; break;
    case kExtensionTMDW: subTable = &m_message; break;
    default: return false;
    }
    subTable->Parse(body, length, m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
    return true;
}
