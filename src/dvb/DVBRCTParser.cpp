#include "DVBRCTParser.h"

#include <algorithm>
#include <iterator>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Log.h"
#include "../program/RelatedContentLink.h"

namespace {

constexpr unsigned char kRctLoopTableId = 0x76;
constexpr int kCrcSize = 4;
// year_offset, not read.
constexpr int kLinksAt = 2;
constexpr unsigned short kAnyId = 0xFFFF;

} // namespace

// ---------------------------------------------------------------- instance

TCDVBRCTInstance::TCDVBRCTInstance(const ZUMHandle& handle) : m_handle(handle) {}

TCDVBRCTInstance::~TCDVBRCTInstance()
{
    DeleteAll();
}

void TCDVBRCTInstance::DeleteAll()
{
    m_descriptors.DeleteAll();
    m_links.clear();
}

bool TCDVBRCTInstance::GetInternalRelatedContentLinks(std::list<TCRelatedContentLink*>& links) const
{
    for (const auto& link : m_links)
        links.push_back(link.get());
    return true;
}

bool TCDVBRCTInstance::Parse(const unsigned char* body, int length, unsigned short id, int version, int section,
                             int lastSection, unsigned int crc, int /*currentNext*/)
{
    m_id = id;
    ZUM_LOGD("TCDVBRCTInstance::Parse Called, CRC[%u]", crc);
    const int result = t_CheckVersion(version, section, lastSection, crc);
    if (result == TABLE_IGNORE) {
        ZUM_LOGD("RCT Section Ignored");
        return false;
    }
    if (result == TABLE_SAME)
        return false;
    // Nothing is read from the CRC_32.
    if (body)
        m_ParseLinks(body + kLinksAt, length - kCrcSize - kLinksAt);
    return IsValid();
}

void TCDVBRCTInstance::m_ParseLinks(const unsigned char* data, int length)
{
    if (length < 1)
        return;
    const int count = data[0];
    int at = 1;
    for (int i = 0; i < count; ++i) {
        if (length - at < 2)
            return;
        const int linkLength = static_cast<int>(ReadBE16(data + at) & 0x0FFF);
        at += 2;
        if (linkLength == 0)
            continue;
        // A link that runs past the section or ends early ends the table here.
        if (linkLength > length - at)
            return;
        auto link = std::make_unique<TCRelatedContentLink>(m_handle);
        if (link->Parse(data + at, static_cast<unsigned int>(linkLength)) != linkLength)
            return;
        m_links.push_back(std::move(link));
        at += linkLength;
    }
    if (length - at < 2)
        return;
    const int loopLength = static_cast<int>(ReadBE16(data + at) & 0x0FFF);
    at += 2;
    TCDescriptor loop(m_handle);
    loop.Parse(data + at, std::min(loopLength, length - at), m_descriptors, kRctLoopTableId);
}

// ---------------------------------------------------------------- parser

TCDVBRCTParser::TCDVBRCTParser(const ZUMHandle& handle) : TCSectionParser(0x76, handle) {}

TCDVBRCTParser::~TCDVBRCTParser() = default;

void TCDVBRCTParser::DeleteAll()
{
    m_instances.clear();
}

void TCDVBRCTParser::t_Initialize()
{
    DeleteAll();
}

TCDVBRCTInstance* TCDVBRCTParser::GetRCTInstance(unsigned short id) const
{
    auto it = m_instances.find(id);
    if (it == m_instances.end())
        it = m_instances.find(kAnyId);
    return it == m_instances.end() ? nullptr : it->second.get();
}

TCDVBRCTInstance* TCDVBRCTParser::RCTInstanceOfIndex(unsigned int index) const
{
    if (index >= m_instances.size())
        return nullptr;
    return std::next(m_instances.begin(), static_cast<long>(index))->second.get();
}

bool TCDVBRCTParser::t_Parse(const unsigned char* body, int length)
{
    std::unique_ptr<TCDVBRCTInstance>& instance = m_instances[m_tableIdExtension];
    if (!instance)
        instance = std::make_unique<TCDVBRCTInstance>(m_handle);
    return instance->Parse(body, length, m_tableIdExtension, m_versionNumber, m_sectionNumber, m_lastSectionNumber,
                           m_crc, m_currentNextIndicator);
}
