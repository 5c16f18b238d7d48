#ifndef ZUM_ATSC_NTTPARSER_H
#define ZUM_ATSC_NTTPARSER_H

#include <map>
#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "OOBSectionParser.h"

class TCMultilingualTextString;

// One source name: a source or application id and its raw multilingual text.
class ZUM_EXPORT TCNTTRecord : public TCDescriptorHashOwner {
public:
    TCNTTRecord(char applicationType, unsigned short id, const ZUMHandle& handle);

    // Bytes consumed, 0 when the record does not fit in `size`.
    int Parse(const unsigned char* data, int size);
    // Fills `pSourceName` with the stored text; false when there is none.
    bool GetSourceName(TCMultilingualTextString* pSourceName) const;
    // Same name length, application type and name bytes.
    bool FlagEqual(TCNTTRecord* pCompare) const;

    unsigned char ApplicationType() const { return m_applicationType; }
    unsigned short Id() const { return m_id; }
    unsigned char NameLength() const { return m_nameLength; }
    const unsigned char* Name() const { return m_name.empty() ? nullptr : m_name.data(); }
    unsigned char DescriptorCount() const { return m_descriptorCount; }

private:
    ZUMHandle m_handle;
    unsigned char m_applicationType;
    unsigned short m_id;
    unsigned char m_nameLength = 0;
    std::vector<unsigned char> m_name;
    unsigned char m_descriptorCount = 0;
};

// Source name subtable: records keyed by id, application records behind all
// source records.
class ZUM_EXPORT TCNTTSNS {
public:
    explicit TCNTTSNS(const ZUMHandle& handle) : m_handle(handle) {}

    // Merges the records at `data`; see the parser. Returns the bytes consumed.
    int Parse(const unsigned char* data, bool& snsComplete, bool& completed, int size);
    unsigned int Size() const { return static_cast<unsigned int>(m_records.size()); }
    TCNTTRecord* GetNttRecord(unsigned int index) const;
    TCNTTRecord* SourceId(unsigned short id) const;
    TCNTTRecord* ApplicationId(unsigned short id) const;
    void DeleteAll() { m_records.clear(); }

private:
    TCNTTRecord* m_Find(int key) const;

    ZUMHandle m_handle;
    std::map<int, std::unique_ptr<TCNTTRecord>> m_records;
};

// Network text table (0xC3): the source names, kept only in a language the
// viewer can use; complete when its sections keep repeating.
class ZUM_EXPORT TCNTTParser : public TCOOBSectionParser, public TCBaseSection, public TCDescriptorHashOwner {
public:
    explicit TCNTTParser(const ZUMHandle& handle);
    ~TCNTTParser() override;

    void DeleteAll() override;
    // Completion was reported (or, for the NTT, the store takes no new records).
    bool IsCompleted() const { return m_completed; }

    unsigned char ProtocolVersion() const { return m_protocolVersionOOB; }
    unsigned int Language() const { return m_language; }
    unsigned char TransmissionMedium() const { return m_transmissionMedium; }
    unsigned char TableSubtype() const { return m_tableSubtype; }
    TCNTTSNS* SNS() { return &m_sns; }
    const TCNTTSNS* SNS() const { return &m_sns; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;
    virtual bool t_CheckCompleted();

    bool m_snsComplete = false;
    bool m_completed = false;

private:
    bool m_CheckPriorityOfISO639LANG(unsigned int language) const;

    unsigned char m_protocolVersionOOB = 0;
    unsigned int m_language = 0;
    unsigned char m_transmissionMedium = 0;
    unsigned char m_tableSubtype = 0;
    TCNTTSNS m_sns;
};

#endif
