#ifndef ZUM_ATSC_SVCTPARSERDCM_H
#define ZUM_ATSC_SVCTPARSERDCM_H

#include <list>
#include <map>

#include "SVCTParserSubtype.h"

// Defined channels map (subtype 1): which virtual channel numbers exist.
// A cycle of sections is over once every channel of it came again; the
// channels of the last finished cycle form the list.
class ZUM_EXPORT TCSVCTParserDCM : public TCSVCTParserSubtype {
public:
    ~TCSVCTParserDCM() override;
    int t_Parse(const unsigned char* data, int* status) override;
    void DeleteAll() override;

    // Appends a new int per defined channel, in ascending order; the caller
    // owns them. False when no cycle has finished.
    bool GetDCMChannelList(std::list<int*>* pChannelList) const;
    int ChannelCount() const { return m_channelCount; }

private:
    int m_repeatCount = 0;
    std::map<int, int> m_cycle;
    std::list<int> m_channels;
    int m_channelCount = 0;
};

#endif
