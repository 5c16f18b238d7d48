#ifndef ZUM_DVB_DVBRCTPARSER_H
#define ZUM_DVB_DVBRCTPARSER_H

#include <list>
#include <map>
#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

class TCRelatedContentLink;

// One related content table (a value of the table id extension): its links
// in stream order and the table's descriptor loop.
class ZUM_EXPORT TCDVBRCTInstance : public TCBaseSection, public TCDescriptorHashOwner {
public:
    explicit TCDVBRCTInstance(const ZUMHandle& handle);
    ~TCDVBRCTInstance() override;

    // Empties the loop and deletes the links.
    void DeleteAll() override;
    // `body` behind the section header, `length` with the CRC_32. Whether all
    // sections of the table are in.
    bool Parse(const unsigned char* body, int length, unsigned short id, int version, int section, int lastSection,
               unsigned int crc, int currentNext);
    // Appends the links; the instance keeps them.
    bool GetInternalRelatedContentLinks(std::list<TCRelatedContentLink*>& links) const;
    unsigned short Id() const { return m_id; }

private:
    void m_ParseLinks(const unsigned char* data, int length);

    ZUMHandle m_handle;
    unsigned short m_id = 0;
    std::vector<std::unique_ptr<TCRelatedContentLink>> m_links;
};

// The related content table (0x76): one instance per table id extension.
class ZUM_EXPORT TCDVBRCTParser : public TCSectionParser {
public:
    explicit TCDVBRCTParser(const ZUMHandle& handle);
    ~TCDVBRCTParser() override;

    // The instance of `id`, else that of 0xFFFF, else null.
    TCDVBRCTInstance* GetRCTInstance(unsigned short id) const;
    int NumOfRCTInstance() const { return static_cast<int>(m_instances.size()); }
    // In ascending order of id; null behind the last.
    TCDVBRCTInstance* RCTInstanceOfIndex(unsigned int index) const;
    void DeleteAll();

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    std::map<unsigned short, std::unique_ptr<TCDVBRCTInstance>> m_instances;
};

#endif
