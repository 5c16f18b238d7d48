#include "zum-platform/ProgramData.h"

#include <algorithm>
#include <cstring>
#include <utility>

bool TCProgramId::operator==(const TCProgramId& other) const
{
    return serviceId == other.serviceId && eventId == other.eventId && utcStartTime == other.utcStartTime &&
           utcDuration == other.utcDuration && eitTableId == other.eitTableId && eitNumber == other.eitNumber;
}

TCProgramData::TTComp::TTComp(const TTComp& other)
    : TCMarshalable(other),
      componentTag(other.componentTag),
      componentType(other.componentType),
      language(other.language),
      qualityIndicator(other.qualityIndicator)
{
    SetText(other.text.get(), other.textLength);
}

TCProgramData::TTComp& TCProgramData::TTComp::operator=(const TTComp& other)
{
    if (this != &other) {
        TTComp copy(other);
        *this = std::move(copy);
    }
    return *this;
}

void TCProgramData::TTComp::SetText(const unsigned char* data, unsigned short length)
{
    if (data == nullptr || length == 0) {
        text.reset();
        textLength = 0;
        return;
    }
    std::unique_ptr<unsigned char[]> fresh(new unsigned char[length]);
    std::memcpy(fresh.get(), data, length);
    text = std::move(fresh);
    textLength = length;
}

const std::vector<TCProgramData::TTComp>* TCProgramData::TCProgCompData::m_List(EComponentType type) const
{
    if (type <= COMP_TYPE_INVALID || type >= COMP_TYPE_MAX)
        return nullptr;
    return &m_components[static_cast<size_t>(type)];
}

bool TCProgramData::TCProgCompData::AddComponent(EComponentType type, const TTComp& comp)
{
    if (m_List(type) == nullptr)
        return false;
    m_components[static_cast<size_t>(type)].push_back(comp);
    return true;
}

int TCProgramData::TCProgCompData::NumOfComponent(EComponentType type) const
{
    const std::vector<TTComp>* list = m_List(type);
    return list ? static_cast<int>(list->size()) : 0;
}

bool TCProgramData::TCProgCompData::GetComponent(EComponentType type, int index, TTComp& comp) const
{
    const std::vector<TTComp>* list = m_List(type);
    if (list == nullptr || index < 0 || static_cast<size_t>(index) >= list->size())
        return false;
    comp = (*list)[static_cast<size_t>(index)];
    return true;
}

bool TCProgramData::TCProgCompData::GetComponentList(EComponentType type, std::vector<TTComp>& list) const
{
    const std::vector<TTComp>* own = m_List(type);
    if (own == nullptr) {
        list.clear();
        return false;
    }
    list = *own;
    return !list.empty();
}

bool TCProgramData::GetProgramId(TCProgramId& id) const
{
    id = m_programId;
    return true;
}

void TCProgramData::SetProgramId(const TCProgramId& id) { m_programId = id; }

unsigned int TCProgramData::TitleLength() const { return static_cast<unsigned int>(m_title.size()); }

bool TCProgramData::Title(unsigned short* title, unsigned int* length) const
{
    if (title == nullptr || length == nullptr || *length == 0) {
        if (length != nullptr)
            *length = 0;
        return false;
    }
    // One unit stays free for the terminator.
    const size_t copied = std::min<size_t>(m_title.size(), *length - 1);
    std::copy_n(m_title.begin(), copied, title);
    title[copied] = 0;
    *length = static_cast<unsigned int>(copied);
    return copied == m_title.size();
}

void TCProgramData::SetTitle(const unsigned short* title, unsigned int length)
{
    if (title == nullptr)
        m_title.clear();
    else
        m_title.assign(title, length);
}

bool TCProgramData::GetDescriptorRawDataBuffer(unsigned char*& data, unsigned short& length, int& tableId) const
{
    if (m_descriptorRaw.empty())
        return false;
    // The caller reads through this pointer only; the signature is the platform's.
    data = const_cast<unsigned char*>(m_descriptorRaw.data());
    length = static_cast<unsigned short>(m_descriptorRaw.size());
    tableId = m_descriptorTableId;
    return true;
}

void TCProgramData::SetDescriptorRawData(const unsigned char* data, unsigned short length, int tableId)
{
    if (data == nullptr)
        m_descriptorRaw.clear();
    else
        m_descriptorRaw.assign(data, data + length);
    m_descriptorTableId = tableId;
}

bool TCProgramData::GetProgCompData(TCProgCompData& comp) const
{
    if (!m_hasCompData)
        return false;
    comp = m_compData;
    return true;
}

void TCProgramData::SetProgCompData(TCProgCompData& comp)
{
    m_compData = comp;
    m_hasCompData = true;
}

TCProgramData::EComponentType TCProgramData::ISDBCompType(unsigned char componentTag)
{
    // Tag ranges of ISDB component_tag: video, audio, captions and superimposed
    // text, data; the rest belong to no component type.
    if (componentTag <= 0x0F)
        return COMP_TYPE_VIDEO;
    if (componentTag <= 0x2F)
        return COMP_TYPE_AUDIO;
    if (componentTag <= 0x3F)
        return COMP_TYPE_SUBTITLE;
    if (componentTag <= 0x7F)
        return COMP_TYPE_DATA;
    return COMP_TYPE_INVALID;
}
