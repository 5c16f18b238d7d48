#include "DescDigitalCopyControl.h"

#include "../core/Diagnostics.h"

namespace {

// The copy rules of byte 0 of the descriptor and of the flags byte of an
// entry share one layout; APS control data counts only with a copy control type.
void ReadRules(unsigned char bits, unsigned char& recording, unsigned char& maxFlag, unsigned char& type,
               unsigned char& aps)
{
    recording = static_cast<unsigned char>(bits >> 6);
    maxFlag = static_cast<unsigned char>((bits >> 5) & 0x01);
    type = static_cast<unsigned char>((bits >> 2) & 0x03);
    aps = type != 0 ? static_cast<unsigned char>(bits & 0x03) : 0;
}

} // namespace

// ---------------------------------------------------------------- digital copy control

TCDescDigitalCopyControl::TCDescDigitalCopyControl() : TCBaseDesc(0xC1) {}

TCDescDigitalCopyControl::~TCDescDigitalCopyControl()
{
    DeleteAll();
}

void TCDescDigitalCopyControl::DeleteAll()
{
    m_maximumBitrate = 0;
    m_componentControlLength = 0;
    m_compControlList.clear();
}

TCBaseDesc* TCDescDigitalCopyControl::Fork() const
{
    return t_ForkAs(new TCDescDigitalCopyControl());
}

int TCDescDigitalCopyControl::t_Parse(const unsigned char* pData, unsigned char len)
{
    DeleteAll();
    if (!ZUM_ASSERT(pData && (len > 0)))
        return 0;
    const unsigned char head = pData[0];
    ReadRules(head, m_digitalRecordingControlData, m_maximumBitrateFlag, m_copyControlType, m_apsControlData);
    m_componentControlFlag = static_cast<unsigned char>((head >> 4) & 0x01);
    int position = 1;
    if (m_maximumBitrateFlag) {
        if (len == 1)
            return 1;
        m_maximumBitrate = pData[position++];
    }
    if (!m_componentControlFlag)
        return len;
    if (len <= position)
        return position;
    m_componentControlLength = pData[position++];
    if (len <= position)
        return position;
    // component_control_length is kept, but the entries run to the descriptor's end.
    while (position < len) {
        TTCompControl entry;
        entry.componentTag = pData[position++];
        if (position >= len)
            return position;
        const unsigned char bits = pData[position++];
        ReadRules(bits, entry.digitalRecordingControlData, entry.maximumBitrateFlag, entry.copyControlType,
                  entry.apsControlData);
        if (entry.maximumBitrateFlag) {
            if (position >= len)
                return position;
            entry.maximumBitrate = pData[position++];
        }
        m_compControlList.push_back(entry);
    }
    return position;
}

bool TCDescDigitalCopyControl::ComponentControl(int index, TTCompControl& out) const
{
    if (!ZUM_ASSERT(index >= 0 && (unsigned int)index < m_compControlList.size()))
        return false;
    out = m_compControlList[static_cast<size_t>(index)];
    return true;
}

bool TCDescDigitalCopyControl::GetComponentControlList(std::vector<TTCompControl>& out) const
{
    if (m_compControlList.empty())
        return false;
    out = m_compControlList;
    return true;
}

// ---------------------------------------------------------------- content availability

TCDescContentAvailability::TCDescContentAvailability() : TCBaseDesc(0xDE) {}

TCDescContentAvailability::~TCDescContentAvailability()
{
    DeleteAll();
}

void TCDescContentAvailability::DeleteAll()
{
    m_copyRestrictionMode = 0;
    m_imageConstraintToken = 0;
    m_retentionMode = 0;
    m_retentionState = 0;
    m_encryptionMode = 0;
}

TCBaseDesc* TCDescContentAvailability::Fork() const
{
    return t_ForkAs(new TCDescContentAvailability());
}

// The bytes behind byte 0 stay in the raw copy.
int TCDescContentAvailability::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length == 0)
        return 0;
    const unsigned char bits = payload[0];
    m_copyRestrictionMode = static_cast<unsigned char>((bits >> 6) & 0x01);
    m_imageConstraintToken = static_cast<unsigned char>((bits >> 5) & 0x01);
    m_retentionMode = static_cast<unsigned char>((bits >> 4) & 0x01);
    m_retentionState = static_cast<unsigned char>((bits >> 1) & 0x07);
    m_encryptionMode = static_cast<unsigned char>(bits & 0x01);
    return length;
}
