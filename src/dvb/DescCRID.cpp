#include "DescCRID.h"

#include <cstring>

#include "../core/ByteReader.h"
#include "../core/Log.h"

namespace {

// Where an entry's CRID is: in the descriptor, or by reference into the CRID table.
constexpr unsigned char kLocationHere = 0;
constexpr unsigned char kLocationReference = 1;

} // namespace

// ---------------------------------------------------------------- CRID

TCDescCRID::TCDescCRID() : TCBaseDesc(0x76) {}

void TCDescCRID::DeleteAll()
{
    m_valid = false;
    m_entries.clear();
}

TCBaseDesc* TCDescCRID::Fork() const
{
    TCDescCRID* clone = new TCDescCRID();
    // The loop's specifier is not in the raw bytes: it goes over with the clone.
    clone->m_pds = m_pds;
    return t_ForkAs(clone);
}

int TCDescCRID::m_Fail(int result)
{
    DeleteAll();
    return result;
}

int TCDescCRID::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    const int len = length;
    int at = 0;
    while (at < len) {
        const unsigned char location = payload[at] & 0x03;
        if (location == kLocationHere) {
            if (at + 2 > len || at + 2 + payload[at + 1] > len)
                return m_Fail(at + 2);
            m_entries.push_back(static_cast<unsigned short>(at + 2));
            at += 2 + payload[at + 1];
        } else if (location == kLocationReference) {
            if (len - at < 3)
                return m_Fail(at + 1);
            m_entries.push_back(static_cast<unsigned short>(at + 2));
            at += 3;
        } else {
            return m_Fail(at + 1);
        }
    }
    m_valid = true;
    return len;
}

const unsigned char* TCDescCRID::m_Entry(unsigned int index) const
{
    if (!m_valid || !m_pRaw || index >= m_entries.size())
        return nullptr;
    return m_pRaw + m_entries[index];
}

bool TCDescCRID::GetType(unsigned char& type, unsigned int index) const
{
    const unsigned char* entry = m_Entry(index);
    if (!entry)
        return false;
    type = entry[0] >> 2;
    return true;
}

bool TCDescCRID::ContentInCIT(unsigned int index) const
{
    const unsigned char* entry = m_Entry(index);
    return entry && (entry[0] & 0x03) == kLocationReference;
}

bool TCDescCRID::GetCRID(std::string& crid, unsigned int index) const
{
    crid.clear();
    const unsigned char* entry = m_Entry(index);
    if (!entry)
        return true;
    if ((entry[0] & 0x03) != kLocationHere)
        return false;
    crid.assign(reinterpret_cast<const char*>(entry + 2), entry[1]);
    return true;
}

bool TCDescCRID::GetCRIDRef(unsigned short& ref, unsigned int index) const
{
    const unsigned char* entry = m_Entry(index);
    if (!entry || (entry[0] & 0x03) != kLocationReference)
        return false;
    ref = static_cast<unsigned short>(ReadBE16(entry + 1));
    return true;
}

// ---------------------------------------------------------------- default authority

TCDescDefaultAuthority::TCDescDefaultAuthority() : TCBaseDesc(0x73) {}

void TCDescDefaultAuthority::DeleteAll() {}

TCBaseDesc* TCDescDefaultAuthority::Fork() const
{
    return t_ForkAs(new TCDescDefaultAuthority());
}

bool TCDescDefaultAuthority::GetAuthority(std::string& authority) const
{
    authority.clear();
    const unsigned char* body = t_Payload();
    if (m_length == 0 || !body)
        return false;
    authority.assign(reinterpret_cast<const char*>(body), m_length);
    return true;
}

int TCDescDefaultAuthority::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    return length;
}

// ---------------------------------------------------------------- related content

TCDescRelatedContent::TCDescRelatedContent() : TCBaseDesc(0x74) {}

void TCDescRelatedContent::DeleteAll() {}

TCBaseDesc* TCDescRelatedContent::Fork() const
{
    return t_ForkAs(new TCDescRelatedContent());
}

int TCDescRelatedContent::t_Parse(const unsigned char* /*payload*/, unsigned char /*length*/)
{
    // The descriptor has no body of its own: any other length is worth the warning.
    return 2;
}

// ---------------------------------------------------------------- content identifier

TCDescContentIdentifier::TCDescContentIdentifier() : TCBaseDesc(0xB6) {}

void TCDescContentIdentifier::DeleteAll()
{
    m_type = 0xFF;
    m_idLength = 0;
    m_id = TTRawRun();
}

TCBaseDesc* TCDescContentIdentifier::Fork() const
{
    return t_ForkAs(new TCDescContentIdentifier());
}

bool TCDescContentIdentifier::ContentIdentifier(char* buffer, unsigned char* size) const
{
    if (!size)
        return false;
    const unsigned char* id = t_At(m_id);
    if (*size < m_idLength || !id || !buffer) {
        *size = 0;
        return false;
    }
    std::memcpy(buffer, id, m_idLength);
    *size = m_idLength;
    return true;
}

int TCDescContentIdentifier::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    const int len = length;
    m_type = payload[0];
    m_idLength = len >= 2 ? payload[1] : 0;
    if (m_idLength + 1 >= len) {
        ZUM_LOGD("[TCDescContentIdentifier::t_Parse] wrong desc size m_idLength=%d, len=%d", m_idLength, len);
        return 0;
    }
    m_id = t_Run(payload, payload + 2, m_idLength);
    return len;
}
