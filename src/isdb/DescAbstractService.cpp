#include "DescAbstractService.h"

#include <algorithm>
#include <cstring>

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../core/RecordAt.h"

// ---------------------------------------------------------------- abstract service

TCDescAbstractService::TCDescAbstractService() : TCBaseDesc(0x66) {}

TCDescAbstractService::~TCDescAbstractService()
{
    DeleteAll();
}

void TCDescAbstractService::DeleteAll()
{
    m_name = TTRawRun();
}

TCBaseDesc* TCDescAbstractService::Fork() const
{
    return t_ForkAs(new TCDescAbstractService());
}

int TCDescAbstractService::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 4)
        return length;
    m_serviceId = ReadBE24(payload);
    m_autoSelect = payload[3] & 0x01;
    m_name = t_Run(payload, payload + 4, length - 4);
    return length;
}

int TCDescAbstractService::ServiceNameByte(unsigned char* pBuff, int* size) const
{
    if (!ZUM_ASSERT(pBuff))
        return 0;
    if (!size || m_name.length == 0 || *size < m_name.length)
        return 0;
    std::memcpy(pBuff, t_At(m_name), m_name.length);
    *size = m_name.length;
    return 1;
}

// ---------------------------------------------------------------- privileged certificate

TCDescPrivilegedCertificate::TCDescPrivilegedCertificate() : TCBaseDesc(0x68) {}

TCDescPrivilegedCertificate::~TCDescPrivilegedCertificate()
{
    DeleteAll();
}

void TCDescPrivilegedCertificate::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescPrivilegedCertificate::Fork() const
{
    return t_ForkAs(new TCDescPrivilegedCertificate());
}

int TCDescPrivilegedCertificate::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    DeleteAll();
    // Only whole identifiers count; a ragged body keeps none.
    if (length < kIdentifierSize || length % kIdentifierSize != 0)
        return length - length % kIdentifierSize;
    m_count = length / kIdentifierSize;
    return length;
}

const unsigned char* TCDescPrivilegedCertificate::CertificateIdentifierByte(unsigned int index) const
{
    if (index >= m_count)
        return nullptr;
    return RawRecordAt(t_Payload(), static_cast<int>(m_count), kIdentifierSize, static_cast<int>(index));
}

// ---------------------------------------------------------------- guide information

namespace {

// Copies up to `size` stored bytes, lowering a larger size to their number.
template <class Char>
bool CopyUpTo(const unsigned char* stored, int count, Char* buffer, int* size)
{
    if (!buffer || !stored || count <= 0 || !size)
        return false;
    if (*size > count)
        *size = count;
    if (*size > 0)
        std::memcpy(buffer, stored, static_cast<size_t>(*size));
    return true;
}

} // namespace

TCDescEPGInformation::TCDescEPGInformation() : TCBaseDesc(0xCC) {}

TCDescEPGInformation::~TCDescEPGInformation()
{
    DeleteAll();
}

void TCDescEPGInformation::DeleteAll()
{
    m_genres = TTRawRun();
    m_spare = TTRawRun();
}

TCBaseDesc* TCDescEPGInformation::Fork() const
{
    return t_ForkAs(new TCDescEPGInformation());
}

int TCDescEPGInformation::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (!payload || length == 0)
        return 0;
    const unsigned char head = payload[0];
    m_pushService = (head & 0x80) != 0;
    m_allowSurfing = (head & 0x40) != 0;
    m_allowSearchScan = (head & 0x20) != 0;
    m_allowListing = (head & 0x10) != 0;
    m_numGenres = head & 0x0F;
    if (m_numGenres == 0)
        return 1;
    // Genres that the descriptor cuts short end the decoding.
    const int genres = std::min<int>(m_numGenres, length - 1);
    m_genres = t_Run(payload, payload + 1, genres);
    const int spare = length - 1 - genres;
    if (genres < m_numGenres || spare == 0)
        return 1 + genres;
    m_spare = t_Run(payload, payload + 1 + genres, spare);
    return length;
}

bool TCDescEPGInformation::Genres(unsigned char* buffer, int* size) const
{
    return CopyUpTo(t_At(m_genres), m_genres.length, buffer, size);
}

bool TCDescEPGInformation::SpareEpgInfoBits(char* buffer, int* size) const
{
    return CopyUpTo(t_At(m_spare), m_spare.length, buffer, size);
}
