#include "OOBSectionParser.h"

#include "../core/DescriptorContainer.h"
#include "../core/Diagnostics.h"
#include "../core/Log.h"
#include "DescRevisionDetection.h"

TCOOBSectionParser::TCOOBSectionParser(int tableId, const ZUMHandle& handle) : TCSectionParser(tableId, handle) {}

TCOOBSectionParser::~TCOOBSectionParser()
{
    t_ClearAllVersionList();
}

bool TCOOBSectionParser::t_CheckRecieved(const unsigned char* data, int size)
{
    std::unique_ptr<TCBaseCheckSection> record;
    switch (m_tableId) {
    case 0xC2: record = std::make_unique<TCNITCheckSection>(); break;
    case 0xC3: record = std::make_unique<TCNTTCheckSection>(); break;
    case 0xC4: record = std::make_unique<TCSVCTCheckSection>(); break;
    default: return false;
    }
    record->SetData(data, size);
    if (t_CheckExist(record.get()))
        return true;
    t_AddVersionList(record.release());
    return false;
}

bool TCOOBSectionParser::t_CheckExist(TCBaseCheckSection* pData)
{
    if (!ZUM_ASSERT(pData))
        return false;
    for (const auto& held : m_versionList) {
        if (pData->FlagEqual(held.get())) {
            ZUM_LOGD("TCOOBSectionParser::t_CheckExist Return true ... Table ID = 0x%x , List Size = %zu", m_tableId,
                     m_versionList.size());
            return true;
        }
    }
    ZUM_LOGD("TCOOBSectionParser::t_CheckExist Return false ... Table ID = 0x%x , List Size = %zu", m_tableId,
             m_versionList.size());
    return false;
}

bool TCOOBSectionParser::t_AddVersionList(const TCBaseCheckSection* record)
{
    m_versionList.emplace_back(record);
    return true;
}

bool TCOOBSectionParser::t_ClearAllVersionList()
{
    m_versionList.clear();
    m_repeatCount = 0;
    return true;
}

TCDescRevisionDetection* TCOOBSectionParser::t_RevisionDetection(const IDescriptorContainer& descriptors)
{
    auto* revision = dynamic_cast<TCDescRevisionDetection*>(descriptors.Descriptor(0x93, 0));
    return revision && revision->LastSectionNumber() != 0 ? revision : nullptr;
}
