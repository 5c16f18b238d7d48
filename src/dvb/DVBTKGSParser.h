#ifndef ZUM_DVB_DVBTKGSPARSER_H
#define ZUM_DVB_DVBTKGSPARSER_H

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <zum-platform/Codes.h>
#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorContainer.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"
#include "ServiceKey.h"

class TCDVBSDTParser;
class TCPMTParser;

// The TKGS table (0xA7): one long stream of an operator's whole line-up, cut
// into sections. The sections of a version are joined and the stream's four
// blocks read: info, one broadcast source with its transports (each with
// delivery descriptors and raw SDT and PMT sections), the service lists with
// channel numbers and names, and the categories. The delivery and category
// descriptors are this object's descriptor container.
class ZUM_EXPORT TCDVBTKGSParser : public TCSectionParser, public TCBaseSection, public IDescriptorContainer {
public:
    using TTText = std::basic_string<unsigned short>;

    // One service list of the stream.
    struct TSServicesLists {
        std::map<ELanguageCode, TTText> names;
        // Channel number by tkgsServiceId.
        std::map<unsigned int, unsigned short> numbers;
    };

    static constexpr unsigned int SUPPORTED_INTERFACE_VERSION = 17;
    static constexpr unsigned int NO_DELIVERY_INDEX = 0xFFFFFFFF;

    explicit TCDVBTKGSParser(const ZUMHandle& handle);
    ~TCDVBTKGSParser() override;

    bool GetServiceKey(unsigned int serviceId, TCServiceKey& key) const;
    // False with `index` untouched for an unknown id; else whether the index names a descriptor.
    bool GetDeliverySystemIndex(unsigned int serviceId, unsigned int& index) const;
    bool GetServiceListTranslationByIndex(unsigned int listIndex, std::map<ELanguageCode, TTText>& names) const;
    bool GetServicLcnByIndex(unsigned int listIndex, std::map<unsigned int, unsigned short>& numbers) const;

    // The parsed data and the collected sections.
    void DeleteAll() override;

    // The delivery and category descriptors; nothing before a stream was joined.
    int NumOfDescriptors(int tag) const override;
    TCBaseDesc* Descriptor(int tag, unsigned int index) const override;
    int NumOfDescriptors() const override;
    TCBaseDesc* DescriptorByIndex(unsigned int index) const override;
    bool GetDescriptor(std::list<TCBaseDesc*>* list) const override;

    // 0 until a stream's interface version descriptor was read; kept across streams.
    unsigned int InterfaceVersion() const { return m_interfaceVersion; }
    const std::map<ELanguageCode, TTText>& InfoTexts() const { return m_infoTexts; }
    // tkgsServiceIds of each source kind, one per PMT entry, in stream order.
    const std::map<EAntennaMode, std::vector<unsigned int>>& ServicesBySource() const { return m_servicesBySource; }
    const std::map<unsigned int, TCServiceKey>& ServiceKeys() const { return m_serviceKeys; }
    unsigned int NumOfServiceLists() const { return static_cast<unsigned int>(m_serviceLists.size()); }
    // The last joined stream was read to its end.
    bool IsComplete() const { return m_complete; }
    // The version check of the last section (TABLE_SAME ... TABLE_IGNORE).
    int LastCheck() const { return m_lastCheck; }
    // The parsers fed with the stream's sections; null before a stream was joined.
    const TCDVBSDTParser* SDTParser() const { return m_sdt.get(); }
    const TCPMTParser* PMTParser() const { return m_pmt.get(); }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    bool m_Parse(int sectionNumber, const unsigned char* body, int length);
    bool m_ParseTkgsInfo(unsigned int& offset);
    bool m_ParseBroadcastSource(unsigned int& offset);
    bool m_ParseTransport(unsigned int& offset, unsigned int end, EAntennaMode source);
    bool m_ParseServiceList(unsigned int& offset);
    bool m_ParseOneServiceList(unsigned int& offset, unsigned int end);
    bool m_ParseCategory(unsigned int& offset);
    void m_DeleteParsedData();
    // Bytes of the stream from `offset` to `end`, or to the stream's end if
    // that comes first; negative when the offset is already behind.
    long long m_Left(unsigned int offset, unsigned long long end) const;
    TTText m_Text(const unsigned char* text, int length, ELanguageCode language) const;

    std::map<int, std::vector<unsigned char>> m_rawSections;
    std::vector<unsigned char> m_stream;
    unsigned int m_interfaceVersion = 0;
    std::map<ELanguageCode, TTText> m_infoTexts;
    std::map<EAntennaMode, std::vector<unsigned int>> m_servicesBySource;
    std::map<unsigned int, TCServiceKey> m_serviceKeys;
    std::map<unsigned int, unsigned int> m_deliveryIndex;
    std::unique_ptr<TCDVBSDTParser> m_sdt;
    std::unique_ptr<TCPMTParser> m_pmt;
    std::unique_ptr<TCDescriptorHash> m_descriptors;
    std::vector<TSServicesLists> m_serviceLists;
    bool m_complete = false;
    int m_lastCheck = 1;
};

#endif
