#include "AITParser.h"

#include <algorithm>
#include <iterator>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"

namespace {

constexpr unsigned char kAitLoopTableId = 0x74;
constexpr int kApplicationHeaderSize = 9;

} // namespace

// ---------------------------------------------------------------- application

TCAITApplication::TCAITApplication(const ZUMHandle& handle) : m_handle(handle) {}

TCAITApplication::~TCAITApplication() = default;

int TCAITApplication::Parse(const unsigned char* data)
{
    return Parse(data, kApplicationHeaderSize + 0x0FFF);
}

int TCAITApplication::Parse(const unsigned char* data, int remaining)
{
    m_descriptors.DeleteAll();
    m_organisationId = ReadBE32(data);
    m_applicationId = static_cast<unsigned short>(ReadBE16(data + 4));
    m_applicationControlCode = data[6];
    m_applicationReservedData = (data[7] >> 4) & 0x0F;
    const int loopLength = static_cast<int>(ReadBE16(data + 7) & 0x0FFF);
    // A loop that claims more than the section holds is read up to its end.
    const int available = std::max(0, remaining - kApplicationHeaderSize);
    TCDescriptor loop(m_handle);
    loop.Parse(data + kApplicationHeaderSize, std::min(loopLength, available), m_descriptors, kAitLoopTableId);
    return loopLength + kApplicationHeaderSize;
}

TCAITApplication& TCAITApplication::operator=(const TCAITApplication& other)
{
    if (this != &other) {
        m_organisationId = other.m_organisationId;
        m_applicationId = other.m_applicationId;
        m_applicationControlCode = other.m_applicationControlCode;
        m_applicationReservedData = other.m_applicationReservedData;
        m_descriptors = other.m_descriptors;
    }
    return *this;
}

// ---------------------------------------------------------------- instance

TCAitInstance::TCAitInstance(unsigned char tableId, unsigned short extension, const TCAitInstance* other,
                             const ZUMHandle& handle)
    : m_handle(handle),
      m_tableId(tableId),
      m_testApplicationFlag(static_cast<unsigned char>((extension >> 15) & 0x01)),
      m_applicationType(static_cast<unsigned short>(extension & 0x7FFF))
{
    if (!other)
        return;
    m_testApplicationFlag = other->m_testApplicationFlag;
    m_applicationType = other->m_applicationType;
    m_lastVersionCheck = other->m_lastVersionCheck;
    m_descriptors = other->m_descriptors;
    m_applications.reserve(other->m_applications.size());
    for (const auto& application : other->m_applications) {
        m_applications.push_back(std::make_unique<TCAITApplication>(m_handle));
        *m_applications.back() = *application;
    }
}

TCAitInstance::~TCAitInstance()
{
    DeleteAll();
}

void TCAitInstance::DeleteAll()
{
    m_applications.clear();
    m_descriptors.DeleteAll();
}

bool TCAitInstance::Parse(const unsigned char* data, int size, int version, int section, int lastSection,
                          unsigned int /*crc*/, bool force)
{
    // Sections are told apart by number and version alone.
    m_lastVersionCheck = t_CheckVersion(version, section, lastSection, 0xFFFFFFFF);
    if (m_lastVersionCheck == TABLE_IGNORE || (m_lastVersionCheck == TABLE_SAME && !force))
        return false;
    if (size < 5)
        return false;
    const int commonLength = static_cast<int>(ReadBE16(data) & 0x0FFF);
    if (commonLength + 5 >= size)
        return false;
    if (commonLength > 1) {
        TCDescriptor loop(m_handle);
        loop.Parse(data + 2, commonLength, m_descriptors, m_tableId);
    }
    const unsigned char* loopField = data + 2 + commonLength;
    const int loopLength = static_cast<int>(ReadBE16(loopField) & 0x0FFF);
    // The loop with its length field and the CRC_32 must fill the section.
    if (loopLength + 6 != size - 2 - commonLength)
        return false;
    const unsigned char* loop = loopField + 2;
    int at = 0;
    // A record whose head or loop would pass the application loop ends the walk.
    while (loopLength - at >= kApplicationHeaderSize) {
        auto application = std::make_unique<TCAITApplication>(m_handle);
        const int consumed = application->Parse(loop + at, loopLength - at);
        m_applications.push_back(std::move(application));
        at += consumed;
    }
    return IsValid();
}

TCAITApplication* TCAitInstance::AITApplication(unsigned int index) const
{
    return index < m_applications.size() ? m_applications[index].get() : nullptr;
}

TCAITApplication* TCAitInstance::AITApplicationByAppIdent(unsigned int organisationId,
                                                          unsigned short applicationId) const
{
    const auto it = std::find_if(m_applications.begin(), m_applications.end(), [&](const auto& application) {
        return application->OrganisationId() == organisationId && application->ApplicationId() == applicationId;
    });
    return it == m_applications.end() ? nullptr : it->get();
}

// ---------------------------------------------------------------- parser

TCAITParser::TCAITParser(int tableId, const ZUMHandle& handle) : TCSectionParser(tableId, handle) {}

TCAITParser::~TCAITParser()
{
    DeleteAll();
}

void TCAITParser::DeleteAll()
{
    m_instances.clear();
}

void TCAITParser::t_Initialize()
{
    DeleteAll();
}

bool TCAITParser::t_Parse(const unsigned char* body, int length)
{
    const unsigned short key = static_cast<unsigned short>(m_tableIdExtension & 0x7FFF);
    std::unique_ptr<TCAitInstance>& instance = m_instances[key];
    const bool isNew = !instance;
    if (isNew)
        instance = std::make_unique<TCAitInstance>(m_tableId, m_tableIdExtension, nullptr, m_handle);
    return instance->Parse(body, length, m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc, isNew);
}

TCAitInstance* TCAITParser::GetFirstInstance() const
{
    return m_instances.empty() ? nullptr : m_instances.begin()->second.get();
}

TCAitInstance* TCAITParser::GetInstance(unsigned short type) const
{
    const auto it = m_instances.find(type);
    return it == m_instances.end() ? nullptr : it->second.get();
}

TCAitInstance* TCAITParser::AITInstanceOfIndex(unsigned int index) const
{
    if (index >= m_instances.size())
        return nullptr;
    return std::next(m_instances.begin(), index)->second.get();
}

TCAITParser& TCAITParser::operator=(const TCAITParser& other)
{
    if (this == &other)
        return *this;
    DeleteAll();
    for (const auto& entry : other.m_instances)
        m_instances[entry.first] =
            std::make_unique<TCAitInstance>(m_tableId, m_tableIdExtension, entry.second.get(), m_handle);
    return *this;
}
