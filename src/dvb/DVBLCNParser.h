#ifndef ZUM_DVB_DVBLCNPARSER_H
#define ZUM_DVB_DVBLCNPARSER_H

#include <map>
#include <tuple>

#include "../core/BaseSection.h"
#include "../core/SectionParser.h"

// Key of one record of the private channel number table: three key fields
// from the record and a fourth that the table leaves at -1. Sorted by the
// fourth field first.
class ZUM_EXPORT TCCacheLCNServiceKey {
public:
    TCCacheLCNServiceKey() = default;
    TCCacheLCNServiceKey(int first, int second, int third, int fourth)
        : m_first(first), m_second(second), m_third(third), m_fourth(fourth)
    {
    }

    bool operator<(const TCCacheLCNServiceKey& o) const { return m_Order() < o.m_Order(); }
    bool operator==(const TCCacheLCNServiceKey& o) const { return m_Order() == o.m_Order(); }
    bool operator!=(const TCCacheLCNServiceKey& o) const { return !(*this == o); }

    int m_first = -1;
    int m_second = -1;
    int m_third = -1;
    int m_fourth = -1;

private:
    std::tuple<int, int, int, int> m_Order() const { return std::make_tuple(m_fourth, m_first, m_second, m_third); }
};

struct TTLCNInfo {
    unsigned short m_logicalChannelNumber;
    unsigned char m_visible;
    unsigned short m_extra;
    unsigned short m_reserved;
};

// Private table 0x85: channel numbers of many services in one list.
class ZUM_EXPORT TCDVBLCNParser : public TCSectionParser, public TCBaseSection {
public:
    using LCNInfoMap = std::multimap<TCCacheLCNServiceKey, TTLCNInfo>;

    explicit TCDVBLCNParser(const ZUMHandle& handle);
    ~TCDVBLCNParser() override;

    void DeleteAll() override;

    bool IsRecv() const { return m_isParsed && IsValid(); }
    // The records of the section parsed last.
    const LCNInfoMap& GetLCNInfo() const { return m_lcnInfo; }
    unsigned short HeaderValue1() const { return m_headerValue1; }
    unsigned short HeaderValue2() const { return m_headerValue2; }
    unsigned short HeaderValue3() const { return m_headerValue3; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    bool m_Parse(const unsigned char* body, int length);
    void m_AddLCNInfo(const TCCacheLCNServiceKey& key, const TTLCNInfo& info);

    LCNInfoMap m_lcnInfo;
    unsigned short m_headerValue1 = 100;
    unsigned short m_headerValue2 = 300;
    unsigned short m_headerValue3 = 500;
};

#endif
