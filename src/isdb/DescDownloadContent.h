#ifndef ZUM_ISDB_DESCDOWNLOADCONTENT_H
#define ZUM_ISDB_DESCDOWNLOADCONTENT_H

#include <vector>

#include "../core/BaseDesc.h"

// One sub descriptor of a compatibility descriptor entry. It owns a copy of
// its bytes, so that an entry outlives the buffer it was read from.
class ZUM_EXPORT SubDescriptor {
public:
    unsigned char SubDescriptorType() const { return m_subDescriptorType; }
    unsigned char SubDescriptorLength() const { return m_subDescriptorLength; }
    // The additional information; null when there is none.
    const unsigned char* AdditionalInformation() const { return m_bytes.empty() ? nullptr : m_bytes.data(); }

    // 1 when the whole sub descriptor was in `size` bytes; `used` says how far it read.
    int Parser(const unsigned char* data, unsigned int size, unsigned int& used);

private:
    unsigned char m_subDescriptorType = 0;
    unsigned char m_subDescriptorLength = 0;
    std::vector<unsigned char> m_bytes;
};

// compatibilityDescriptor() of DSM-CC: the hardware and software a download
// is meant for. Not a descriptor object: a download content descriptor holds it.
class ZUM_EXPORT TCCompatibilityDescriptor {
public:
    // One entry: 11 fixed bytes and its sub descriptors.
    struct TTDescriptor {
        unsigned char descriptorType = 0;
        unsigned char descriptorLength = 0;
        unsigned char specifierType = 0;
        // The three bytes of the stream.
        unsigned char specifierData[3] = {0, 0, 0};
        unsigned short model = 0;
        unsigned short version = 0;
        unsigned char subDescriptorCount = 0;
        std::vector<SubDescriptor> subDescriptors;
    };

    unsigned short CompatibilityDescriptorLength() const { return m_compatibilityDescriptorLength; }
    unsigned short DescriptorCount() const { return m_descriptorCount; }
    // The entries read whole; fewer than DescriptorCount() when one failed.
    int NumOfDescriptor() const { return static_cast<int>(m_descriptors.size()); }
    // Null for an index out of range.
    const TTDescriptor* Descriptor(int index) const;

    // 1 when every entry was read; `used` says how far it read. Entries read
    // before a failure stay.
    int Parse(const unsigned char* data, unsigned int size, unsigned int& used);
    void Clear();

private:
    unsigned short m_compatibilityDescriptorLength = 0;
    unsigned short m_descriptorCount = 0;
    std::vector<TTDescriptor> m_descriptors;
};

// download_content_descriptor (0xC9) of ARIB: a software download, its
// modules, and the text shown for it.
class ZUM_EXPORT TCDescDownloadContent : public TCBaseDesc {
public:
    // One module with info; modules without info are not listed.
    struct _tagModule {
        unsigned short module_id = 0;
        unsigned int module_size = 0;
        unsigned char module_info_length = 0;
        // Into the descriptor's raw copy.
        const unsigned char* module_info = nullptr;
    };

    TCDescDownloadContent();
    ~TCDescDownloadContent() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char Reboot() const { return m_reboot; }
    unsigned char AddOn() const { return m_addOn; }
    unsigned char CompatibilityFlag() const { return m_compatibilityFlag; }
    unsigned char ModuleInfoFlag() const { return m_moduleInfoFlag; }
    unsigned char TextInfoFlag() const { return m_textInfoFlag; }
    unsigned int ComponentSize() const { return m_componentSize; }
    unsigned int DownloadId() const { return m_downloadId; }
    unsigned int TimeOutValueDII() const { return m_timeOutValueDII; }
    unsigned int LeakRate() const { return m_leakRate; }
    unsigned char ComponentTag() const { return m_componentTag; }
    const TCCompatibilityDescriptor& Compatibility() const { return m_compatibility; }
    // The count as signalled; the list holds the modules with info.
    unsigned short NumOfModules() const { return m_numOfModules; }
    int NumOfModuleList() const { return static_cast<int>(m_modules.size()); }
    // Null for an index out of range.
    const _tagModule* Module(int index) const;
    unsigned char PrivateDataLength() const { return m_privateDataLength; }
    // Null unless the bytes were there.
    const unsigned char* PrivateData() const { return t_At(m_privateData); }
    unsigned int ISO639LanguageCode() const { return m_iso639LanguageCode; }
    unsigned char TextLength() const { return m_text.length; }
    const unsigned char* Text() const { return t_At(m_text); }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_reboot = 0;
    unsigned char m_addOn = 0;
    unsigned char m_compatibilityFlag = 0;
    unsigned char m_moduleInfoFlag = 0;
    unsigned char m_textInfoFlag = 0;
    unsigned int m_componentSize = 0;
    unsigned int m_downloadId = 0;
    unsigned int m_timeOutValueDII = 0;
    unsigned int m_leakRate = 0;
    unsigned char m_componentTag = 0;
    TCCompatibilityDescriptor m_compatibility;
    unsigned short m_numOfModules = 0;
    std::vector<_tagModule> m_modules;
    unsigned char m_privateDataLength = 0;
    TTRawRun m_privateData;
    unsigned int m_iso639LanguageCode = 0;
    TTRawRun m_text;
};

#endif
