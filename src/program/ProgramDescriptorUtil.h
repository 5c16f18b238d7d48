#ifndef ZUM_PROGRAM_PROGRAMDESCRIPTORUTIL_H
#define ZUM_PROGRAM_PROGRAMDESCRIPTORUTIL_H

#include <list>
#include <string>
#include <vector>

#include <zum-platform/ProgramData.h>
#include <zum-platform/ZUMHandle.h>

#include "../core/DescriptorHash.h"
#include "../core/Export.h"

class CEXTEventLinkageInfo;

// A guide's questions about one stored event: the event's raw descriptor loop
// is decoded again with the country's loop, the descriptors a guide asks
// about are kept, and the answers are read from them.
class ZUM_EXPORT TCProgramDescriptorUtil {
public:
    explicit TCProgramDescriptorUtil(const TCProgramData& programData);
    virtual ~TCProgramDescriptorUtil();

    int SizeOfDescriptor() const;
    int SizeOfDescriptor(int tag) const;
    // Null for a bad index; the object keeps ownership.
    TCBaseDesc* Descriptor(int tag, int index);
    TCBaseDesc* DescriptorByIndex(int index) const;

    bool IsADAvailable();
    bool IsSubtitleAvailable();
    bool IsSignLanguageAvailable();
    bool IsHD();
    // The first simulcast linkage (type 13); the outputs stay without one.
    bool HDSimulcastEvent(unsigned short& transportStreamId, unsigned short& originalNetworkId,
                          unsigned short& serviceId, unsigned short& eventId, bool& simulcast);
    // Appends the event links of the linkages; linkageType is the last linkage's type.
    bool GetEventLinkageInfoList(std::list<CEXTEventLinkageInfo>& list, unsigned char& linkageType);

    // From the event group descriptors: the event this one relays, the group of a type, the common events.
    bool GetRelayedEventInfo(TCProgramData::TTEventInfo& info);
    bool GetEventGroupInfoList(int groupType, std::list<TCProgramData::TTEventInfo>& list);
    bool GetCommonEvent(std::list<TCProgramData::TTEventInfo>& list);
    // The series descriptor; the series name is converted with the handle's converter.
    bool GetSeriesInfo(TCProgramData::TTSeriesItem& item, const ZUMHandle& handle);

    bool DataServiceAvailable();
    // Types 0 to 3; the first call makes the components and keeps them in the copy of the record.
    int NumOfComponent(TCProgramData::EComponentType type);
    bool GetComponent(TCProgramData::EComponentType type, int index, TCProgramData::TTComp& comp);
    bool GetComponentList(TCProgramData::EComponentType type, std::vector<TCProgramData::TTComp>& list);
    int NumOfComponentGroup();
    // The text of the component descriptor of that tag, at most maxLength bytes of it, converted.
    bool GetComponentText(unsigned char componentTag, int maxLength, std::basic_string<unsigned short>& text);
    bool GetRatingInfo(TSRatingInfo& info);

    TCProgramDescriptorUtil(const TCProgramDescriptorUtil&) = delete;
    TCProgramDescriptorUtil& operator=(const TCProgramDescriptorUtil&) = delete;

protected:
    // Whether a descriptor of the tag is kept, by the record's source kind.
    bool t_IsAvailableDescriptor(int tag) const;

    TCProgramData m_programData;
    TCDescriptorHash m_descriptors;

private:
    // Steps 1 and 2 of a component query: the record's components, made and
    // stored in the copy on the first call.
    void m_CompData(TCProgramData::TCProgCompData& compData);
};

#endif
