#include "DescEmergencyInformation.h"

#include <cstddef>

#include "../core/ByteReader.h"
#include "../core/Log.h"

namespace {

struct TTAreaValue {
    unsigned short code;
    int value;
};

const TTAreaValue kWideAreas[] = {
    {0x5A5, 1}, {0x8D5, 2}, {0x72A, 3}, {0x16B, 4},
};

// Two pairs of codes share a value: 0x553 and 0xB31, 0x699 and 0xD23.
const TTAreaValue kPrefectures[] = {
    {0x758, 17}, {0xAC6, 18}, {0xE4C, 19}, {0x5D4, 20}, {0x1AE, 21}, {0x467, 22}, {0xAAC, 23},
    {0x56C, 24}, {0x98B, 25}, {0xC69, 26}, {0x1C7, 27}, {0xE38, 28}, {0x64B, 29}, {0x9D2, 30},
    {0x4CE, 31}, {0xD4A, 32}, {0x966, 33}, {0x6A6, 34}, {0xA5A, 35}, {0x92D, 36}, {0x539, 37},
    {0x2DC, 38}, {0xA65, 39}, {0xCB2, 40}, {0x59A, 41}, {0x674, 42}, {0x396, 43}, {0xA93, 44},
    {0xCE4, 45}, {0x553, 46}, {0xB31, 46}, {0x2B5, 47}, {0x31B, 48}, {0x699, 49}, {0xD23, 49},
    {0xB98, 50}, {0x19D, 51}, {0x9B4, 52}, {0xE62, 53}, {0x2E3, 54}, {0x62D, 55}, {0x8A7, 56},
    {0xA2B, 57}, {0xD45, 58}, {0xD1C, 59}, {0xC8D, 60}, {0x959, 61}, {0x372, 62}, {0x34D, 64},
};

template <size_t N>
const TTAreaValue* Find(const TTAreaValue (&table)[N], unsigned short code)
{
    for (const TTAreaValue& entry : table)
        if (entry.code == code)
            return &entry;
    return nullptr;
}

constexpr int kLoopHead = 4; // service_id, flags, area_code_length

} // namespace

TCDescEmergencyInformation::TCDescEmergencyInformation() : TCBaseDesc(0xFC) {}

TCDescEmergencyInformation::~TCDescEmergencyInformation()
{
    DeleteAll();
}

void TCDescEmergencyInformation::DeleteAll()
{
    m_numOfDescLoop = 0;
    m_loops.clear();
}

TCBaseDesc* TCDescEmergencyInformation::Fork() const
{
    return t_ForkAs(new TCDescEmergencyInformation());
}

int TCDescEmergencyInformation::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < kLoopHead)
        return length;
    // The count comes from the first loop's size, as if every loop had it.
    m_numOfDescLoop = length / (payload[3] + kLoopHead);
    ZUM_LOGD("TCDescEmergencyInformation::t_Parse m_numOfDescLoop = %u", m_numOfDescLoop);
    if (m_numOfDescLoop == 0)
        return 0;
    m_loops.reserve(m_numOfDescLoop);

    int at = 0;
    for (unsigned int i = 0; i < m_numOfDescLoop; ++i) {
        if (at + kLoopHead > length)
            break;
        TCByteReader head(payload + at, kLoopHead);
        TTLoop loop;
        loop.serviceId = static_cast<unsigned short>(head.U16());
        const unsigned int flags = head.U8();
        loop.startEndFlag = (flags & 0x80) != 0;
        loop.signalLevel = (flags & 0x40) != 0;
        loop.lowBits = static_cast<unsigned char>(flags & 0x3F);
        // A byte length of 16-bit units: an odd byte is not used.
        const int codes = static_cast<int>(head.U8()) / 2;
        if (2 * codes > length - (at + kLoopHead)) {
            ZUM_LOGE("TCDescEmergencyInformation::t_Parse lenghth is wrong!! returned!");
            m_loops.push_back(loop);
            return at + kLoopHead;
        }
        loop.areaCodeCount = static_cast<unsigned int>(codes);
        loop.areaCodes = t_Run(payload, payload + at + kLoopHead, 2 * codes);
        m_loops.push_back(loop);
        at += kLoopHead + 2 * codes;
    }
    return at;
}

const TCDescEmergencyInformation::TTLoop* TCDescEmergencyInformation::m_Loop(unsigned long index,
                                                                             const char* accessor) const
{
    if (index < m_numOfDescLoop && index < m_loops.size())
        return &m_loops[index];
    ZUM_LOGE("TCDescEmergencyInformation::%s wrong index = %zu", accessor, static_cast<size_t>(index));
    return nullptr;
}

bool TCDescEmergencyInformation::GetServiceID(unsigned long index, unsigned short& serviceId) const
{
    return m_Field(index, "ServiceID", &TTLoop::serviceId, serviceId);
}

bool TCDescEmergencyInformation::GetStartEndFlag(unsigned long index, bool& startEnd) const
{
    return m_Field(index, "StartEndFlag", &TTLoop::startEndFlag, startEnd);
}

bool TCDescEmergencyInformation::GetSignalLevel(unsigned long index, bool& signalLevel) const
{
    return m_Field(index, "SignalLevel", &TTLoop::signalLevel, signalLevel);
}

bool TCDescEmergencyInformation::GetAreaCodeLength(unsigned long index, unsigned char& count) const
{
    return m_Field(index, "AreaCodeLength", &TTLoop::areaCodeCount, count);
}

bool TCDescEmergencyInformation::GetAreaCode(unsigned long index, unsigned long areaIndex,
                                             unsigned short& areaCode) const
{
    const TTLoop* loop = m_Loop(index, "GetAreaCode");
    if (!loop)
        return false;
    const unsigned char* codes = t_At(loop->areaCodes);
    if (areaIndex >= loop->areaCodeCount || !codes) {
        ZUM_LOGE("TCDescEmergencyInformation::GetAreaCode wrong area index = %zu", static_cast<size_t>(areaIndex));
        return false;
    }
    // 12 bits of code, then 4 reserved bits.
    const unsigned char* at = codes + 2 * areaIndex;
    areaCode = static_cast<unsigned short>((at[0] << 4) + (at[1] >> 4));
    return true;
}

bool TCDescEmergencyInformation::GetAreaCode(unsigned long index, unsigned long areaIndex, EJapanWideArea& wideArea,
                                             EJapanPrefecture& prefecture) const
{
    unsigned short code = 0;
    if (!GetAreaCode(index, areaIndex, code))
        return false;
    return m_ConvertToEnumValue(code, wideArea, prefecture);
}

bool TCDescEmergencyInformation::m_ConvertToEnumValue(unsigned short code, EJapanWideArea& wideArea,
                                                      EJapanPrefecture& prefecture) const
{
    wideArea = EJAPAN_WIDE_AREA_NONE;
    prefecture = EJAPAN_PREFECTURE_NONE;
    if (const TTAreaValue* wide = Find(kWideAreas, code)) {
        wideArea = static_cast<EJapanWideArea>(wide->value);
        return true;
    }
    if (const TTAreaValue* one = Find(kPrefectures, code)) {
        prefecture = static_cast<EJapanPrefecture>(one->value);
        return true;
    }
    ZUM_LOGE("TCDescEmergencyInformation::GetAreaCode There's no matched region!");
    return false;
}
