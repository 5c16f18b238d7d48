#ifndef ZUM_ISDB_ISDBNBITPARSER_H
#define ZUM_ISDB_ISDBNBITPARSER_H

#include <map>
#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

// One information record of a network board: at most two keys and a descriptor loop.
class ZUM_EXPORT TCISDBNBITInformation : public TCDescriptorHashOwner {
public:
    explicit TCISDBNBITInformation(const ZUMHandle& handle);

    // False when the record has more than two keys or its head does not fit
    // in `length`; `consumed` is the size the record declares.
    bool Parse(const unsigned char* data, int length, int& consumed);

    unsigned short InformationId() const { return m_informationId; }
    int InformationType() const { return m_informationType; }
    int DescriptionBodyLocation() const { return m_descriptionBodyLocation; }
    unsigned char UserDefined() const { return m_userDefined; }
    unsigned char NumberOfKeys() const { return m_numberOfKeys; }
    const std::vector<unsigned short>& KeyIds() const { return m_keyIds; }
    int DescriptorsLength() const { return m_descriptorsLength; }

private:
    ZUMHandle m_handle;
    unsigned short m_informationId = 0;
    int m_informationType = 0;
    int m_descriptionBodyLocation = 0;
    unsigned char m_userDefined = 0;
    unsigned char m_numberOfKeys = 0;
    std::vector<unsigned short> m_keyIds;
    int m_descriptorsLength = 0;
};

// The records of one original network, collected over the sections of its table.
class ZUM_EXPORT TCISDBNBITInstance : public TCBaseSection {
public:
    explicit TCISDBNBITInstance(const ZUMHandle& handle);
    ~TCISDBNBITInstance() override;

    void DeleteAll() override;
    // `length` counts the CRC field. False for a repeated, ignored or refused section.
    bool Parse(const unsigned char* data, int length, char version, unsigned char section, unsigned char lastSection,
               unsigned int crc);

    int NumOfInformation() const { return static_cast<int>(m_records.size()); }
    TCISDBNBITInformation* InformationOfIndex(unsigned int index) const;

private:
    ZUMHandle m_handle;
    std::vector<std::unique_ptr<TCISDBNBITInformation>> m_records;
};

// Network board information table, 0xC5 or 0xC6, one instance per original_network_id.
class ZUM_EXPORT TCISDBNBITParser : public TCSectionParser {
public:
    TCISDBNBITParser(unsigned char tableId, const ZUMHandle& handle);
    ~TCISDBNBITParser() override;

    TCISDBNBITInstance* NBITInstance(unsigned short id) const;
    unsigned short CurrentId() const { return m_currentId; }
    int NumOfNBITInstance() const { return static_cast<int>(m_instances.size()); }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    unsigned short m_currentId = 0;
    std::map<unsigned short, std::unique_ptr<TCISDBNBITInstance>> m_instances;
};

#endif
