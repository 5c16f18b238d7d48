#ifndef ZUM_APPS_DESCAPPLICATION_H
#define ZUM_APPS_DESCAPPLICATION_H

#include <string>
#include <vector>

#include "../core/BaseDesc.h"

// The descriptors of one application in an AIT and the records they hand out.

// One application profile of an application descriptor.
class ZUM_EXPORT TCAppProfile {
public:
    // Returns the five bytes a profile takes.
    int Parse(const unsigned char* data);

    unsigned short ApplicationProfile() const { return m_applicationProfile; }
    unsigned char VersionMajor() const { return m_versionMajor; }
    unsigned char VersionMinor() const { return m_versionMinor; }
    unsigned char VersionMicro() const { return m_versionMicro; }

private:
    unsigned short m_applicationProfile = 0;
    unsigned char m_versionMajor = 0;
    unsigned char m_versionMinor = 0;
    unsigned char m_versionMicro = 0;
};

// application_descriptor (0x00): profiles, binding, visibility, priority and
// the labels of the transport protocols that carry the application.
class ZUM_EXPORT TCDescApplication : public TCBaseDesc {
public:
    TCDescApplication();
    ~TCDescApplication() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char ApplicationProfilesLength() const { return m_applicationProfilesLength; }
    unsigned char ServiceBoundFlag() const { return m_serviceBoundFlag; }
    unsigned char Visibility() const { return m_visibility; }
    unsigned char ApplicationPriority() const { return m_applicationPriority; }
    unsigned int TransportProtocolLabelCount() const { return m_labels.length; }
    // 0 past the end.
    unsigned char TransportProtocolLabel(unsigned int index) const;
    unsigned int NumOfAppProfile() const { return static_cast<unsigned int>(m_profiles.size()); }
    // Null past the end.
    TCAppProfile* AppProfile(unsigned int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_applicationProfilesLength = 0;
    unsigned char m_serviceBoundFlag = 0;
    unsigned char m_visibility = 0;
    unsigned char m_applicationPriority = 0;
    TTRawRun m_labels;
    std::vector<TCAppProfile> m_profiles;
};

// One name of an application, in one language; the name stays in the
// descriptor's raw copy.
class ZUM_EXPORT TCAppNameChar {
public:
    virtual ~TCAppNameChar() = default;
    // Returns the name length + 4; a name that runs past `remaining` keeps what is there.
    int Parse(const unsigned char* data, int remaining);
    int Parse(const unsigned char* data) { return Parse(data, 4 + 255); }

    // Three letters, the first in bits 23..16.
    unsigned int Language() const { return m_language; }
    unsigned char NameLength() const { return m_nameLength; }
    // The name bytes; null when the name is longer than `capacity` or empty.
    const unsigned char* ApplicationNameChar(unsigned char capacity) const;

private:
    unsigned int m_language = 0;
    unsigned char m_nameLength = 0;
    const unsigned char* m_pName = nullptr;
};

// application_name_descriptor (0x01).
class ZUM_EXPORT TCDescApplicationName : public TCBaseDesc {
public:
    TCDescApplicationName();
    ~TCDescApplicationName() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int NumOfAppNameChar() const { return static_cast<unsigned int>(m_names.size()); }
    TCAppNameChar* AppNameChar(unsigned int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    std::vector<TCAppNameChar> m_names;
};

// One application that the external application authorisation descriptor allows.
class ZUM_EXPORT TCExtAppAuth {
public:
    virtual ~TCExtAppAuth() = default;
    // Returns the seven bytes an entry takes.
    int Parse(const unsigned char* data);

    unsigned int OrganisationId() const { return m_organisationId; }
    unsigned short ApplicationId() const { return m_applicationId; }
    unsigned char ApplicationPriority() const { return m_applicationPriority; }

private:
    unsigned int m_organisationId = 0;
    unsigned short m_applicationId = 0;
    unsigned char m_applicationPriority = 0;
};

// external_application_authorisation_descriptor (0x05).
class ZUM_EXPORT TCDescExternalApplicationAuthrisation : public TCBaseDesc {
public:
    TCDescExternalApplicationAuthrisation();
    ~TCDescExternalApplicationAuthrisation() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int NumOfExtAppAuth() const { return static_cast<unsigned int>(m_entries.size()); }
    TCExtAppAuth* ExtAppAuth(unsigned int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    std::vector<TCExtAppAuth> m_entries;
};

// application_icons_descriptor (0x0B).
class ZUM_EXPORT TCDescApplicationIcons : public TCBaseDesc {
public:
    TCDescApplicationIcons();
    ~TCDescApplicationIcons() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char IconLocatorLength() const { return m_iconLocator.length; }
    // The locator bytes; null when empty.
    const unsigned char* IconLocator() const { return t_At(m_iconLocator); }
    std::string IconLocatorText() const;
    unsigned short IconFlags() const { return m_iconFlags; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    TTRawRun m_iconLocator;
    unsigned short m_iconFlags = 0;
};

// application_storage_descriptor (0x10): how an application may be kept.
class ZUM_EXPORT TCDescApplicationStorageCapability : public TCBaseDesc {
public:
    TCDescApplicationStorageCapability();
    ~TCDescApplicationStorageCapability() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char StorageProperty() const { return m_storageProperty; }
    unsigned char NotLaunchableFromBroadcast() const { return m_notLaunchableFromBroadcast; }
    unsigned char LaunchableCompletelyFromCache() const { return m_launchableCompletelyFromCache; }
    unsigned char IsLaunchableWithOlderVersion() const { return m_isLaunchableWithOlderVersion; }
    unsigned int Version() const { return m_version; }
    unsigned char Priority() const { return m_priority; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_storageProperty = 0;
    unsigned char m_notLaunchableFromBroadcast = 0;
    unsigned char m_launchableCompletelyFromCache = 0;
    unsigned char m_isLaunchableWithOlderVersion = 0;
    unsigned int m_version = 0;
    unsigned char m_priority = 0;
};

// simple_application_location_descriptor (0x15): the initial path of the
// application below the URL base of its transport.
class ZUM_EXPORT TCDescApplicationSimpleLocation : public TCBaseDesc {
public:
    TCDescApplicationSimpleLocation();
    ~TCDescApplicationSimpleLocation() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    std::string InitialPath() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    TTRawRun m_initialPath;
};

// application_usage_descriptor (0x16).
class ZUM_EXPORT TCDescApplicationUsage : public TCBaseDesc {
public:
    TCDescApplicationUsage();
    ~TCDescApplicationUsage() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // -1 when not read.
    int UsageType() const { return m_usageType; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_usageType = -1;
};

// simple_application_boundary_descriptor (0x17): URL prefixes that belong to
// the application.
class ZUM_EXPORT TCDescApplicationBoundary : public TCBaseDesc {
public:
    TCDescApplicationBoundary();
    ~TCDescApplicationBoundary() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int NumOfBoundaryExtension() const { return static_cast<unsigned int>(m_extensions.size()); }
    // Empty past the end.
    std::string BoundaryExtension(unsigned int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    std::vector<TTRawRun> m_extensions;
};

// Tag 0x67 of the application table: two values handed on as carried.
class ZUM_EXPORT TCDescUnboundApplication : public TCBaseDesc {
public:
    // Served under 0x67 and 0xAF; the object answers the tag it came with.
    explicit TCDescUnboundApplication(int tag = 0x67);
    ~TCDescUnboundApplication() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int Value24() const { return m_value24; }
    unsigned int Value32() const { return m_value32; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_value24 = 0;
    unsigned int m_value32 = 0;
};

// Tag 0x69 of the application table: two values handed on as carried.
class ZUM_EXPORT TCDescApplicationStorage : public TCBaseDesc {
public:
    // Served under 0x69 and 0xB0; the object answers the tag it came with.
    explicit TCDescApplicationStorage(int tag = 0x69);
    ~TCDescApplicationStorage() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short Value16() const { return m_value16; }
    unsigned char Value8() const { return m_value8; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_value16 = 0;
    unsigned char m_value8 = 0;
};

#endif
