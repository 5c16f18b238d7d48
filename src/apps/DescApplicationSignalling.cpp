#include "DescApplicationSignalling.h"

#include "../core/ByteReader.h"
#include "../core/RecordAt.h"

namespace {

constexpr int kEntrySize = 3;

} // namespace

TCDescApplicationSignalling::TCDescApplicationSignalling() : TCBaseDesc(0x6F) {}

TCDescApplicationSignalling::~TCDescApplicationSignalling()
{
    DeleteAll();
}

void TCDescApplicationSignalling::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescApplicationSignalling::Fork() const
{
    return t_ForkAs(new TCDescApplicationSignalling());
}

int TCDescApplicationSignalling::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    DeleteAll();
    if (length < kEntrySize)
        return 0;
    m_count = length / kEntrySize;
    return static_cast<int>(m_count) * kEntrySize;
}

unsigned short TCDescApplicationSignalling::AppType(unsigned int index) const
{
    const unsigned char* entry = RawRecordAt(t_Payload(), static_cast<int>(m_count), kEntrySize, static_cast<int>(index));
    return entry ? static_cast<unsigned short>(ReadBE16(entry) & 0x7FFF) : 0xFFFF;
}

char TCDescApplicationSignalling::AITVersion(unsigned int index) const
{
    const unsigned char* entry = RawRecordAt(t_Payload(), static_cast<int>(m_count), kEntrySize, static_cast<int>(index));
    return entry ? static_cast<char>(entry[2] & 0x1F) : -1;
}

bool TCDescApplicationSignalling::IsAppTypePresent(unsigned short type, char* version) const
{
    // A type listed twice answers with its last version.
    for (unsigned int i = m_count; i-- > 0;) {
        if (AppType(i) != type)
            continue;
        if (version)
            *version = AITVersion(i);
        return true;
    }
    return false;
}
