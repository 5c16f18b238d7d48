#include "DescApplication.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "../core/RecordAt.h"
#include "../dvb/DescText.h"
#include "AppRecords.h"

namespace {

constexpr int kProfileSize = 5;
constexpr int kExtAppAuthSize = 7;
constexpr int kNameHeadSize = 4;
constexpr int kStorageCapabilityLength = 7;

} // namespace

using zum_apps::RecordPointer;
using zum_apps::RunText;

// ---------------------------------------------------------------- application

int TCAppProfile::Parse(const unsigned char* data)
{
    m_applicationProfile = static_cast<unsigned short>(ReadBE16(data));
    m_versionMajor = data[2];
    m_versionMinor = data[3];
    m_versionMicro = data[4];
    return kProfileSize;
}

TCDescApplication::TCDescApplication() : TCBaseDesc(0x00) {}

TCDescApplication::~TCDescApplication()
{
    DeleteAll();
}

void TCDescApplication::DeleteAll()
{
    m_applicationProfilesLength = 0;
    m_serviceBoundFlag = 0;
    m_visibility = 0;
    m_applicationPriority = 0;
    m_labels = TTRawRun();
    m_profiles.clear();
}

TCBaseDesc* TCDescApplication::Fork() const
{
    return t_ForkAs(new TCDescApplication());
}

int TCDescApplication::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    m_applicationProfilesLength = payload[0];
    // Profiles are read until they cover the profiles length; the last one
    // may reach over it, never over the body.
    int at = 1;
    m_profiles.reserve(static_cast<size_t>((m_applicationProfilesLength + kProfileSize - 1) / kProfileSize));
    for (int covered = 0; covered < m_applicationProfilesLength && at + kProfileSize <= length; covered += kProfileSize) {
        m_profiles.emplace_back();
        at += m_profiles.back().Parse(payload + at);
    }
    const int header = 3 + kProfileSize * static_cast<int>(m_profiles.size());
    if (at < length) {
        m_serviceBoundFlag = (payload[at] >> 7) & 0x01;
        m_visibility = (payload[at] >> 5) & 0x03;
    }
    if (at + 1 < length)
        m_applicationPriority = payload[at + 1];
    if (length > header)
        m_labels = t_Run(payload, payload + header, length - header);
    else
        ZUM_LOGD(" DescApplication, parsedLen[%d] >= t_descriptorLength[%d]", header, length);
    return length;
}

unsigned char TCDescApplication::TransportProtocolLabel(unsigned int index) const
{
    return index < m_labels.length ? t_At(m_labels)[index] : 0;
}

TCAppProfile* TCDescApplication::AppProfile(unsigned int index) const
{
    return RecordPointer(m_profiles, index);
}

// ---------------------------------------------------------------- name

int TCAppNameChar::Parse(const unsigned char* data, int remaining)
{
    m_language = ReadBE24(data);
    m_nameLength = data[3];
    const int available = std::max(0, remaining - kNameHeadSize);
    m_nameLength = static_cast<unsigned char>(std::min<int>(m_nameLength, available));
    m_pName = m_nameLength ? data + kNameHeadSize : nullptr;
    return data[3] + kNameHeadSize;
}

const unsigned char* TCAppNameChar::ApplicationNameChar(unsigned char capacity) const
{
    return m_nameLength > capacity ? nullptr : m_pName;
}

TCDescApplicationName::TCDescApplicationName() : TCBaseDesc(0x01) {}

TCDescApplicationName::~TCDescApplicationName()
{
    DeleteAll();
}

void TCDescApplicationName::DeleteAll()
{
    m_names.clear();
}

TCBaseDesc* TCDescApplicationName::Fork() const
{
    return t_ForkAs(new TCDescApplicationName());
}

int TCDescApplicationName::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    int at = 0;
    while (length - at >= kNameHeadSize + 1) {
        m_names.emplace_back();
        at += m_names.back().Parse(payload + at, length - at);
    }
    return at;
}

TCAppNameChar* TCDescApplicationName::AppNameChar(unsigned int index) const
{
    return RecordPointer(m_names, index);
}

// ---------------------------------------------------------------- external authorisation

int TCExtAppAuth::Parse(const unsigned char* data)
{
    m_organisationId = ReadBE32(data);
    m_applicationId = static_cast<unsigned short>(ReadBE16(data + 4));
    m_applicationPriority = data[6];
    return kExtAppAuthSize;
}

TCDescExternalApplicationAuthrisation::TCDescExternalApplicationAuthrisation() : TCBaseDesc(0x05) {}

TCDescExternalApplicationAuthrisation::~TCDescExternalApplicationAuthrisation()
{
    DeleteAll();
}

void TCDescExternalApplicationAuthrisation::DeleteAll()
{
    m_entries.clear();
}

TCBaseDesc* TCDescExternalApplicationAuthrisation::Fork() const
{
    return t_ForkAs(new TCDescExternalApplicationAuthrisation());
}

int TCDescExternalApplicationAuthrisation::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    m_entries.resize(length / kExtAppAuthSize);
    for (size_t i = 0; i < m_entries.size(); ++i)
        m_entries[i].Parse(payload + i * kExtAppAuthSize);
    return length;
}

TCExtAppAuth* TCDescExternalApplicationAuthrisation::ExtAppAuth(unsigned int index) const
{
    return RecordPointer(m_entries, index);
}

// ---------------------------------------------------------------- icons

TCDescApplicationIcons::TCDescApplicationIcons() : TCBaseDesc(0x0B) {}

TCDescApplicationIcons::~TCDescApplicationIcons()
{
    DeleteAll();
}

void TCDescApplicationIcons::DeleteAll()
{
    m_iconLocator = TTRawRun();
    m_iconFlags = 0;
}

TCBaseDesc* TCDescApplicationIcons::Fork() const
{
    return t_ForkAs(new TCDescApplicationIcons());
}

int TCDescApplicationIcons::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_iconLocator = zum_text::TakeRun<TTRawRun>(reader, payload, static_cast<int>(reader.U8()));
    if (reader.Has(2))
        m_iconFlags = static_cast<unsigned short>(reader.U16());
    return length;
}

std::string TCDescApplicationIcons::IconLocatorText() const
{
    return RunText(t_At(m_iconLocator), m_iconLocator.length);
}

// ---------------------------------------------------------------- storage capability

TCDescApplicationStorageCapability::TCDescApplicationStorageCapability() : TCBaseDesc(0x10) {}

TCDescApplicationStorageCapability::~TCDescApplicationStorageCapability()
{
    DeleteAll();
}

void TCDescApplicationStorageCapability::DeleteAll()
{
    m_storageProperty = 0;
    m_notLaunchableFromBroadcast = 0;
    m_launchableCompletelyFromCache = 0;
    m_isLaunchableWithOlderVersion = 0;
    m_version = 0;
    m_priority = 0;
}

TCBaseDesc* TCDescApplicationStorageCapability::Fork() const
{
    return t_ForkAs(new TCDescApplicationStorageCapability());
}

int TCDescApplicationStorageCapability::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length != kStorageCapabilityLength)
        return 0;
    m_storageProperty = payload[0];
    m_notLaunchableFromBroadcast = (payload[1] >> 7) & 0x01;
    m_launchableCompletelyFromCache = (payload[1] >> 6) & 0x01;
    m_isLaunchableWithOlderVersion = (payload[1] >> 5) & 0x01;
    m_version = ReadBE32(payload + 2) & 0x7FFFFFFF;
    m_priority = payload[6];
    return kStorageCapabilityLength;
}

// ---------------------------------------------------------------- simple location

TCDescApplicationSimpleLocation::TCDescApplicationSimpleLocation() : TCBaseDesc(0x15) {}

TCDescApplicationSimpleLocation::~TCDescApplicationSimpleLocation()
{
    DeleteAll();
}

void TCDescApplicationSimpleLocation::DeleteAll()
{
    m_initialPath = TTRawRun();
}

TCBaseDesc* TCDescApplicationSimpleLocation::Fork() const
{
    return t_ForkAs(new TCDescApplicationSimpleLocation());
}

int TCDescApplicationSimpleLocation::t_Parse(const unsigned char* payload, unsigned char length)
{
    m_initialPath = t_Run(payload, payload, length);
    return length;
}

std::string TCDescApplicationSimpleLocation::InitialPath() const
{
    return RunText(t_At(m_initialPath), m_initialPath.length);
}

// ---------------------------------------------------------------- usage

TCDescApplicationUsage::TCDescApplicationUsage() : TCBaseDesc(0x16) {}

TCDescApplicationUsage::~TCDescApplicationUsage()
{
    DeleteAll();
}

void TCDescApplicationUsage::DeleteAll()
{
    m_usageType = -1;
}

TCBaseDesc* TCDescApplicationUsage::Fork() const
{
    return t_ForkAs(new TCDescApplicationUsage());
}

int TCDescApplicationUsage::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length != 1)
        return 0;
    m_usageType = payload[0];
    return 1;
}

// ---------------------------------------------------------------- boundary

TCDescApplicationBoundary::TCDescApplicationBoundary() : TCBaseDesc(0x17) {}

TCDescApplicationBoundary::~TCDescApplicationBoundary()
{
    DeleteAll();
}

void TCDescApplicationBoundary::DeleteAll()
{
    m_extensions.clear();
}

TCBaseDesc* TCDescApplicationBoundary::Fork() const
{
    return t_ForkAs(new TCDescApplicationBoundary());
}

int TCDescApplicationBoundary::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    const int count = payload[0];
    int at = 1;
    for (int i = 0; i < count; ++i) {
        // An entry that would pass the end stops the walk before it.
        if (at >= length || at + 1 + payload[at] > length)
            return at;
        m_extensions.push_back(t_Run(payload, payload + at + 1, payload[at]));
        at += 1 + payload[at];
    }
    return at;
}

std::string TCDescApplicationBoundary::BoundaryExtension(unsigned int index) const
{
    return index < m_extensions.size() ? RunText(t_At(m_extensions[index]), m_extensions[index].length)
                                       : std::string();
}

// ---------------------------------------------------------------- tags 0x67 and 0x69

TCDescUnboundApplication::TCDescUnboundApplication(int tag) : TCBaseDesc(tag) {}

TCDescUnboundApplication::~TCDescUnboundApplication()
{
    DeleteAll();
}

void TCDescUnboundApplication::DeleteAll()
{
    m_value24 = 0;
    m_value32 = 0;
}

TCBaseDesc* TCDescUnboundApplication::Fork() const
{
    return t_ForkAs(new TCDescUnboundApplication(m_tag));
}

int TCDescUnboundApplication::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_value24 = reader.U24();
    m_value32 = reader.U32();
    return reader.Consumed();
}

TCDescApplicationStorage::TCDescApplicationStorage(int tag) : TCBaseDesc(tag) {}

TCDescApplicationStorage::~TCDescApplicationStorage()
{
    DeleteAll();
}

void TCDescApplicationStorage::DeleteAll()
{
    m_value16 = 0;
    m_value8 = 0;
}

TCBaseDesc* TCDescApplicationStorage::Fork() const
{
    return t_ForkAs(new TCDescApplicationStorage(m_tag));
}

int TCDescApplicationStorage::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_value16 = static_cast<unsigned short>(reader.U16());
    m_value8 = static_cast<unsigned char>(reader.U8());
    return reader.Consumed();
}
