#ifndef ZUM_ISDB_ISDBBITPARSER_H
#define ZUM_ISDB_ISDBBITPARSER_H

#include <map>
#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

// One broadcaster of a broadcaster information table, with its descriptor loop.
class ZUM_EXPORT TCISDBBITBroadcaster : public TCDescriptorHashOwner {
public:
    explicit TCISDBBITBroadcaster(const ZUMHandle& handle);

    // The bytes the broadcaster takes, 3 + its descriptors length.
    int Parse(const unsigned char* data);
    // As above, reading no further than `length` bytes from `data`.
    int Parse(const unsigned char* data, int length);

    unsigned char BroadcasterId() const { return m_broadcasterId; }
    int DescriptorsLength() const { return m_descriptorsLength; }

private:
    ZUMHandle m_handle;
    unsigned char m_broadcasterId = 0;
    int m_descriptorsLength = 0;
};

// The first loop and the broadcasters of one original network.
class ZUM_EXPORT TCISDBBITInstance : public TCBaseSection, public TCDescriptorHashOwner {
public:
    explicit TCISDBBITInstance(const ZUMHandle& handle);
    ~TCISDBBITInstance() override;

    // Also empties the instance's own descriptors.
    void DeleteAll() override;
    // `length` counts the CRC field. False for a repeated or ignored section.
    bool Parse(const unsigned char* data, int length, char version, unsigned char section, unsigned char lastSection,
               unsigned int crc);

    bool BroadcastViewPropriety() const { return m_broadcastViewPropriety; }
    int FirstDescriptorsLength() const { return m_firstDescriptorsLength; }
    int NumOfBroadcaster() const { return static_cast<int>(m_records.size()); }
    TCISDBBITBroadcaster* BroadcasterOfIndex(unsigned int index) const;

private:
    ZUMHandle m_handle;
    bool m_broadcastViewPropriety = false;
    int m_firstDescriptorsLength = 0;
    std::vector<std::unique_ptr<TCISDBBITBroadcaster>> m_records;
};

// Broadcaster information table 0xC4, one instance per original_network_id.
class ZUM_EXPORT TCISDBBITParser : public TCSectionParser {
public:
    explicit TCISDBBITParser(const ZUMHandle& handle);
    ~TCISDBBITParser() override;

    TCISDBBITInstance* BITInstance(unsigned short id) const;
    unsigned short CurrentId() const { return m_currentId; }
    int NumOfBITInstance() const { return static_cast<int>(m_instances.size()); }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    unsigned short m_currentId = 0;
    std::map<unsigned short, std::unique_ptr<TCISDBBITInstance>> m_instances;
};

#endif
