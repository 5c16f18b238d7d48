#include "VCTParser.h"

#include <algorithm>
#include <cstring>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Log.h"

namespace {

constexpr int kChannelHeaderSize = 32;
constexpr int kAdditionalLengthSize = 2;

} // namespace

// ---------------------------------------------------------------- channel

int TCVCTChannel::Parse(const unsigned char* data, int size, unsigned char tableId)
{
    m_descriptors.DeleteAll();
    if (size < kChannelHeaderSize) {
        // Not even the fixed part is here: nothing is read.
        ZUM_LOGD("VCT Descriptor Parsing error total size = %d , parsed len = %d", size, kChannelHeaderSize);
        return size;
    }
    std::memset(m_shortName, 0, sizeof m_shortName);
    std::memcpy(m_shortName, data, kShortNameBytes);
    // Four reserved bits, then major and minor, ten bits each.
    const unsigned int numbers = (static_cast<unsigned int>(data[14]) << 16) | (data[15] << 8) | data[16];
    m_majorChannelNumber = static_cast<unsigned short>((numbers >> 10) & 0x3FF);
    m_minorChannelNumber = static_cast<unsigned short>(numbers & 0x3FF);
    m_modulationMode = data[17];
    m_carrierFrequency = ReadBE32(data + 18);
    m_channelTSID = static_cast<unsigned short>(ReadBE16(data + 22));
    m_programNumber = static_cast<unsigned short>(ReadBE16(data + 24));
    m_etmLocation = (data[26] >> 6) & 0x03;
    m_accessControlled = (data[26] >> 5) & 0x01;
    m_hidden = (data[26] >> 4) & 0x01;
    m_pathSelect = (data[26] >> 3) & 0x01;
    // Bit 2 is out_of_band, which the record does not keep.
    m_hideGuide = (data[26] >> 1) & 0x01;
    m_serviceType = data[27] & 0x3F;
    m_sourceId = static_cast<unsigned short>(ReadBE16(data + 28));
    const int length = ReadBE16(data + 30) & 0x03FF;
    if (length + kChannelHeaderSize > size) {
        ZUM_LOGD("VCT Descriptor Parsing error total size = %d , parsed len = %d", size, length + kChannelHeaderSize);
        return size;
    }
    TCDescriptor loop(m_handle);
    loop.Parse(data + kChannelHeaderSize, length, m_descriptors, tableId);
    return length + kChannelHeaderSize;
}

// ---------------------------------------------------------------- parser

TCVCTParser::TCVCTParser(int tableId, const ZUMHandle& handle) : TCSectionParser(tableId, handle) {}

TCVCTParser::~TCVCTParser()
{
    DeleteAll();
}

void TCVCTParser::DeleteAll()
{
    m_channels.clear();
    m_descriptors.DeleteAll();
}

void TCVCTParser::t_Initialize()
{
    m_selectedVCTVersion = -1;
    m_currentMGTVersion = -1;
    m_bMatchedVersion = false;
    InitSection();
    DeleteAll();
}

bool TCVCTParser::t_CheckPSIPTable(unsigned char /*tableId*/)
{
    return true;
}

bool TCVCTParser::t_CheckPreParsingCondition()
{
    const signed char version = static_cast<signed char>(m_versionNumber);
    if (m_bMatchedVersion)
        return m_selectedVCTVersion == version;
    if (m_selectedVCTVersion <= version)
        return true;
    // Older than the selected one: the number may have wrapped under the MGT's word.
    return m_currentMGTVersion == version;
}

bool TCLVCTParser::t_CheckPreParsingCondition()
{
    return true;
}

bool TCVCTParser::t_Parse(const unsigned char* body, int length)
{
    if (!t_CheckPreParsingCondition()) {
        ZUM_LOGD("TCVCTParser::t_Parse, m_bMatchedVersion[%d], t_versionNumber[%d], m_selectedVCTVersion[%d], "
                 "m_currentMGTVersion[%d]",
                 m_bMatchedVersion, m_versionNumber, m_selectedVCTVersion, m_currentMGTVersion);
        return false;
    }
    const int result = t_CheckVersion(m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
    if (result == TABLE_SAME)
        return false;
    if (result == TABLE_IGNORE) {
        ZUM_LOGD("VCT Section Ignored... ");
        return false;
    }
    int parsed = 1;
    if (length < parsed) {
        ZUM_LOGD("TCVCTParser::t_Parse error... parsed len = %d , total size = %d", parsed, length);
        return false;
    }
    m_numChannelsInSection = body[0];
    m_channels.reserve(m_channels.size() + m_numChannelsInSection);
    for (int i = 0; i < m_numChannelsInSection; ++i) {
        std::unique_ptr<TCVCTChannel> channel(new TCVCTChannel(m_handle));
        parsed += channel->Parse(body + parsed, length - parsed, m_tableId);
        if (parsed >= length) {
            ZUM_LOGD("TCVCTParser::t_Parse error... parsed len = %d , total size = %d", parsed, length);
            return false;
        }
        m_channels.push_back(std::move(channel));
    }
    // Reading the length needs two bytes as well.
    const int descriptorsLength =
        parsed + kAdditionalLengthSize <= length ? static_cast<int>(ReadBE16(body + parsed) & 0x03FF) : length;
    if (descriptorsLength + kAdditionalLengthSize + parsed > length) {
        ZUM_LOGD("TCVCTParser::Descriptor parsing error... parsed len = %d , total size = %d", parsed, length);
        return false;
    }
    TCDescriptor loop(m_handle);
    loop.Parse(body + parsed + kAdditionalLengthSize, descriptorsLength, m_descriptors, m_tableId);
    return IsValid();
}

TCVCTChannel* TCVCTParser::VCTChannel(unsigned int index) const
{
    return index < m_channels.size() ? m_channels[index].get() : nullptr;
}

bool TCVCTParser::VCTChannelBySourceId(unsigned short sourceId, std::list<TCVCTChannel*>* channels) const
{
    if (channels == nullptr) {
        ZUM_LOGD("VCTChannelBySourceId ::pChannelList == NULL");
        return false;
    }
    for (const auto& channel : m_channels)
        if (channel->SourceId() == sourceId)
            channels->push_back(channel.get());
    return true;
}

TCVCTChannel* TCVCTParser::VCTChannelByProgramNumber(unsigned short programNumber) const
{
    const auto it = std::find_if(m_channels.begin(), m_channels.end(),
                                 [programNumber](const auto& c) { return c->ProgramNumber() == programNumber; });
    return it == m_channels.end() ? nullptr : it->get();
}

bool TCVCTParser::IsRecv() const
{
    return m_isParsed && IsValid();
}
