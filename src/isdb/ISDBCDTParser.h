#ifndef ZUM_ISDB_ISDBCDTPARSER_H
#define ZUM_ISDB_ISDBCDTPARSER_H

#include <list>
#include <map>
#include <memory>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

// One station logo of a common data table, with its own copy of the image bytes.
class ZUM_EXPORT CLogoData {
public:
    CLogoData() = default;
    // Reads the 7-byte head and the data at `data`, no further than `length` bytes:
    // data that runs past them is cut there, and DataSize() tells what is held.
    CLogoData(const unsigned char* data, int length);

    // A deep copy, which the caller owns.
    CLogoData* Fork() const;

    unsigned char LogoType() const { return m_logoType; }
    unsigned short LogoId() const { return m_logoId; }
    unsigned char LogoVersion() const { return m_logoVersion; }
    unsigned short DataSize() const { return m_dataSize; }
    // Null when the size is 0.
    const unsigned char* Data() const { return m_data.get(); }
    // Bytes the record takes in the stream: 7 + data_size as written.
    int RecordSize() const { return m_recordSize; }

    CLogoData(const CLogoData&) = delete;
    CLogoData& operator=(const CLogoData&) = delete;

private:
    unsigned char m_logoType = 0;
    unsigned short m_logoId = 0;
    unsigned char m_logoVersion = 0;
    unsigned short m_dataSize = 0;
    std::unique_ptr<unsigned char[]> m_data;
    int m_recordSize = 0;
};

// The logos and descriptors of one download_data_id.
class ZUM_EXPORT TCCDTInstance : public TCBaseSection, public TCDescriptorHashOwner {
public:
    explicit TCCDTInstance(const ZUMHandle& handle);
    ~TCCDTInstance() override;

    void DeleteAll() override;
    // `length` counts the CRC field. IsValid(), or false for a repeated or ignored section.
    bool Parse(const unsigned char* data, int length, unsigned short id, char version, bool currentNext,
               unsigned char section, unsigned char lastSection, unsigned int crc);

    int NumOfLogoData() const { return m_logoCount; }
    // Appends a Fork of every logo, which the caller owns; false when there are none.
    bool GetLogoDataList(std::list<CLogoData*>& logos) const;

    unsigned short DownloadDataId() const { return m_downloadDataId; }
    char Version() const { return m_version; }
    bool CurrentNext() const { return m_currentNext; }
    unsigned char SectionNumber() const { return m_sectionNumber; }
    unsigned char LastSectionNumber() const { return m_lastSectionNumber; }
    unsigned short OriginalNetworkId() const { return m_originalNetworkId; }
    unsigned char DataType() const { return m_dataType; }

private:
    bool m_Parse(const unsigned char* data, int length);

    ZUMHandle m_handle;
    unsigned short m_downloadDataId = 0;
    char m_version = static_cast<char>(0xFF);
    bool m_currentNext = false;
    unsigned char m_sectionNumber = 0xFF;
    unsigned char m_lastSectionNumber = 0xFF;
    unsigned short m_originalNetworkId = 0;
    unsigned char m_dataType = 0;
    std::list<std::unique_ptr<CLogoData>> m_logos;
    int m_logoCount = 0;
};

// Common data table 0xC8, one instance per download_data_id.
class ZUM_EXPORT TCISDBCDTParser : public TCSectionParser {
public:
    explicit TCISDBCDTParser(const ZUMHandle& handle);
    ~TCISDBCDTParser() override;

    TCCDTInstance* CDTInstance(unsigned short id) const;
    int NumOfCDTInstance() const { return static_cast<int>(m_instances.size()); }
    // In ascending order of id; null behind the last.
    TCCDTInstance* CDTInstanceOfIndex(unsigned int index) const;
    unsigned short CurrentId() const { return m_currentId; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    unsigned short m_currentId = 0xFFFF;
    std::map<unsigned short, std::unique_ptr<TCCDTInstance>> m_instances;
};

#endif
