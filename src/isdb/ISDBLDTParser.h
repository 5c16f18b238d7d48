#ifndef ZUM_ISDB_ISDBLDTPARSER_H
#define ZUM_ISDB_ISDBLDTPARSER_H

#include <map>
#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

// One description of a linked description table: an id and its descriptor loop.
class ZUM_EXPORT TCISDBLDTDescription : public TCDescriptorHashOwner {
public:
    explicit TCISDBLDTDescription(const ZUMHandle& handle);

    // Always true; the loop is read as far as its length says.
    bool Parse(const unsigned char* data);
    // As above, reading no further than `length` bytes from `data`.
    bool Parse(const unsigned char* data, int length);

    unsigned short DescriptionId() const { return m_descriptionId; }
    int DescriptorsLength() const { return m_descriptorsLength; }
    // Bytes the description takes in the stream: descriptors length + 5.
    int Size() const { return m_size; }

private:
    ZUMHandle m_handle;
    unsigned short m_descriptionId = 0;
    int m_descriptorsLength = 0;
    int m_size = 0;
};

// The descriptions of one original_service_id.
class ZUM_EXPORT TCISDBLDTInstance : public TCBaseSection {
public:
    explicit TCISDBLDTInstance(const ZUMHandle& handle);
    ~TCISDBLDTInstance() override;

    void DeleteAll() override;
    // The tracker's verdict on a section, which the parser hands to Parse.
    int CheckVersion(char version, unsigned char section, unsigned char lastSection, unsigned int crc)
    {
        return t_CheckVersion(version, section, lastSection, crc);
    }
    // `length` counts the CRC field, so an ordinary section answers false here:
    // completeness is read from IsValid().
    bool Parse(const unsigned char* data, int length, int checkResult);

    unsigned short TransportStreamId() const { return m_transportStreamId; }
    unsigned short OriginalNetworkId() const { return m_originalNetworkId; }
    int NumOfDescription() const { return static_cast<int>(m_records.size()); }
    TCISDBLDTDescription* DescriptionOfIndex(unsigned int index) const;

private:
    ZUMHandle m_handle;
    unsigned short m_transportStreamId = 0;
    unsigned short m_originalNetworkId = 0;
    std::vector<std::unique_ptr<TCISDBLDTDescription>> m_records;
};

// Linked description table 0xC7, one instance per original_service_id.
class ZUM_EXPORT TCISDBLDTParser : public TCSectionParser {
public:
    explicit TCISDBLDTParser(const ZUMHandle& handle);
    ~TCISDBLDTParser() override;

    TCISDBLDTInstance* LDTInstance(unsigned short id) const;
    unsigned short CurrentId() const { return m_currentId; }
    int NumOfLDTInstance() const { return static_cast<int>(m_instances.size()); }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    unsigned short m_currentId = 0;
    std::map<unsigned short, std::unique_ptr<TCISDBLDTInstance>> m_instances;
};

#endif
