#include "DescAudioComponent.h"

#include "../core/ByteReader.h"
#include "../dvb/DescText.h"

// ---------------------------------------------------------------- audio component

TCDescAudioComponent::TCDescAudioComponent() : TCBaseDesc(0xC4) {}

TCDescAudioComponent::~TCDescAudioComponent()
{
    DeleteAll();
}

void TCDescAudioComponent::DeleteAll()
{
    m_language2 = 0;
    m_text = TTRawRun();
}

TCBaseDesc* TCDescAudioComponent::Fork() const
{
    return t_ForkAs(new TCDescAudioComponent());
}

int TCDescAudioComponent::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_streamContent = static_cast<unsigned char>(reader.U8() & 0x0F);
    m_componentType = static_cast<unsigned char>(reader.U8());
    m_componentTag = static_cast<unsigned char>(reader.U8());
    m_streamType = static_cast<unsigned char>(reader.U8());
    m_simulcastGroupTag = static_cast<unsigned char>(reader.U8());
    const unsigned int flags = reader.U8();
    m_esMultiLingualFlag = (flags & 0x80) != 0;
    m_mainComponentFlag = (flags & 0x40) != 0;
    m_qualityIndicator = static_cast<unsigned char>((flags >> 4) & 0x03);
    m_samplingRate = static_cast<unsigned char>((flags >> 1) & 0x07);
    m_language = reader.U24();
    if (m_esMultiLingualFlag)
        m_language2 = reader.U24();
    if (!reader.IsShort())
        m_text = zum_text::TakeRun<TTRawRun>(reader, payload, reader.Left());
    return reader.Consumed();
}

bool TCDescAudioComponent::TextChar(char* buffer, int* size) const
{
    return zum_text::Copy(t_At(m_text), m_text.length, buffer, size);
}

// ---------------------------------------------------------------- data content

TCDescDataContent::TCDescDataContent() : TCBaseDesc(0xC7) {}

TCDescDataContent::~TCDescDataContent()
{
    DeleteAll();
}

void TCDescDataContent::DeleteAll()
{
    m_selectorLength = 0;
    m_numOfComponentRef = 0;
    m_textLength = 0;
    m_language = 0;
    m_selector = TTRawRun();
    m_componentRefs = TTRawRun();
    m_text = TTRawRun();
}

TCBaseDesc* TCDescDataContent::Fork() const
{
    return t_ForkAs(new TCDescDataContent());
}

int TCDescDataContent::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_dataComponentId = static_cast<unsigned short>(reader.U16());
    if (reader.IsShort())
        return reader.Consumed();
    m_entryComponent = static_cast<unsigned char>(reader.U8());
    // Each length byte is read only where the descriptor still holds it.
    if (!reader.Has(1))
        return reader.Consumed();
    m_selectorLength = static_cast<unsigned char>(reader.U8());
    m_selector = zum_text::TakeRun<TTRawRun>(reader, payload, m_selectorLength);
    if (!reader.Has(1))
        return reader.Consumed();
    m_numOfComponentRef = static_cast<unsigned char>(reader.U8());
    m_componentRefs = zum_text::TakeRun<TTRawRun>(reader, payload, m_numOfComponentRef);
    m_language = reader.U24();
    if (reader.IsShort() || !reader.Has(1))
        return reader.Consumed();
    m_textLength = static_cast<unsigned char>(reader.U8());
    m_text = zum_text::TakeRun<TTRawRun>(reader, payload, m_textLength);
    return reader.Consumed();
}

bool TCDescDataContent::SelectorByte(unsigned char* buffer, int* size) const
{
    return zum_text::Copy(t_At(m_selector), m_selector.length, buffer, size);
}

bool TCDescDataContent::ComponentRef(unsigned char* buffer, int* size) const
{
    return zum_text::Copy(t_At(m_componentRefs), m_componentRefs.length, buffer, size);
}

bool TCDescDataContent::TextChar(char* buffer, int* size) const
{
    return zum_text::Copy(t_At(m_text), m_text.length, buffer, size);
}

// ---------------------------------------------------------------- data component

TCDescDataComponent::TCDescDataComponent() : TCBaseDesc(0xFD) {}

TCDescDataComponent::~TCDescDataComponent()
{
    DeleteAll();
}

void TCDescDataComponent::DeleteAll()
{
    m_info = TTRawRun();
}

TCBaseDesc* TCDescDataComponent::Fork() const
{
    return t_ForkAs(new TCDescDataComponent());
}

int TCDescDataComponent::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_dataComponentId = static_cast<unsigned short>(reader.U16());
    if (reader.IsShort())
        return reader.Consumed();
    m_info = zum_text::TakeRun<TTRawRun>(reader, payload, reader.Left());
    return length;
}

bool TCDescDataComponent::AdditionalDataCompInfo(unsigned char* buffer, int* size) const
{
    return zum_text::Copy(t_At(m_info), m_info.length, buffer, size);
}
