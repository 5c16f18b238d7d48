#include "DescShortEvent.h"

#include "../core/ByteReader.h"
#include "../core/CompareISO8859Char.h"
#include "../core/Log.h"
#include "DescText.h"

namespace {

// Numbers, language and length of items come before the items.
const int kItemsStart = 5;

} // namespace

// ---------------------------------------------------------------- short event

TCDescShortEvent::TCDescShortEvent() : TCBaseDesc(0x4D) {}

TCDescShortEvent::~TCDescShortEvent()
{
    TCDescShortEvent::DeleteAll();
}

void TCDescShortEvent::DeleteAll()
{
    m_eventName = TTRawRun();
    m_text = TTRawRun();
    m_textLength = 0;
}

TCBaseDesc* TCDescShortEvent::Fork() const
{
    return t_ForkAs(new TCDescShortEvent());
}

int TCDescShortEvent::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    // Without the name length byte, 4 + the name length already reaches the end.
    if (!reader.Has(4)) {
        m_language = reader.Has(3) ? reader.U24() : 0;
        return length;
    }
    m_language = reader.U24();
    const int nameLength = static_cast<int>(reader.U8());
    m_eventName = zum_text::TakeRun<TTRawRun>(reader, payload, nameLength);
    // A name that reaches the end leaves no text length to read.
    if (4 + nameLength >= length)
        return length;
    const int textLengthAt = reader.Consumed();
    m_textLength = static_cast<unsigned char>(reader.U8());
    // A text that runs over is not kept; its length stays as read, and the
    // hook answers where that length stands.
    if (m_textLength > length - reader.Consumed())
        return textLengthAt;
    m_text = zum_text::TakeRun<TTRawRun>(reader, payload, m_textLength);
    return reader.Consumed();
}

bool TCDescShortEvent::EventNameChar(unsigned char* buffer, unsigned short* size) const
{
    return zum_text::Copy(t_At(m_eventName), m_eventName.length, buffer, size);
}

bool TCDescShortEvent::TextChar(unsigned char* buffer, unsigned short* size) const
{
    return zum_text::Copy(t_At(m_text), m_text.length, buffer, size);
}

// ---------------------------------------------------------------- ISDB short event

TCBaseDesc* TCDescShortEventISDB::Fork() const
{
    return t_ForkAs(new TCDescShortEventISDB());
}

int TCDescShortEventISDB::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    // Each field takes what the body still holds.
    TCByteReader reader(payload, length);
    if (!reader.Has(3))
        return 0;
    m_language = reader.U24();
    if (reader.Has(1))
        m_eventName = zum_text::TakeRun<TTRawRun>(reader, payload, static_cast<int>(reader.U8()));
    if (reader.Has(1)) {
        m_text = zum_text::TakeRun<TTRawRun>(reader, payload, static_cast<int>(reader.U8()));
        m_textLength = m_text.length;
    }
    return reader.Consumed();
}

// ---------------------------------------------------------------- extended event item

int TCDescExtendedEvent::CitemDesc::Parse(const unsigned char* data, int size)
{
    if (!data || size < 1) {
        ZUM_LOGE("ERROR!, Func:%s, Line:%d, data: %p, len: %d", __func__, __LINE__, static_cast<const void*>(data),
                 size);
        return size;
    }
    TCByteReader reader(data, size);
    m_description = zum_text::Take(reader, static_cast<int>(reader.U8()));
    m_item = zum_text::TTText();
    if (!reader.Has(1))
        return size;
    m_item = zum_text::Take(reader, static_cast<int>(reader.U8()));
    return reader.Consumed();
}

bool TCDescExtendedEvent::CitemDesc::ItemDescriptionChar(char* buffer, int* size) const
{
    return zum_text::Copy(m_description, buffer, size);
}

bool TCDescExtendedEvent::CitemDesc::ItemChar(char* buffer, int* size) const
{
    return zum_text::Copy(m_item, buffer, size);
}

// ---------------------------------------------------------------- extended event

TCDescExtendedEvent::TCDescExtendedEvent() : TCBaseDesc(0x4E) {}

TCDescExtendedEvent::~TCDescExtendedEvent()
{
    DeleteAll();
}

void TCDescExtendedEvent::DeleteAll()
{
    m_items.Clear();
    m_text = TTRawRun();
    m_textLength = 0;
}

TCBaseDesc* TCDescExtendedEvent::Fork() const
{
    return t_ForkAs(new TCDescExtendedEvent());
}

int TCDescExtendedEvent::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (!payload || length == 0) {
        ZUM_LOGE("ERROR!, Func:%s, Line:%d, data: %p, len: %d", __func__, __LINE__,
                 static_cast<const void*>(payload), length);
        return length;
    }
    DeleteAll();
    TCByteReader reader(payload, length);
    const unsigned int numbers = reader.U8();
    m_descriptorNumber = static_cast<unsigned char>(numbers >> 4);
    m_lastDescriptorNumber = static_cast<unsigned char>(numbers & 0x0F);
    if (!reader.Has(4))
        return reader.Consumed();
    m_language = reader.U24();
    m_lengthOfItems = static_cast<unsigned char>(reader.U8());
    const int itemsStart = kItemsStart;
    // Items that reach the end leave no text length to read.
    if (itemsStart + m_lengthOfItems >= length)
        return itemsStart;
    const int textLength = payload[itemsStart + m_lengthOfItems];
    const int position = itemsStart + m_lengthOfItems + 1;
    // A text that runs over keeps neither text nor items; the hook answers
    // where its length stands.
    if (textLength > length - position)
        return position - 1;

    m_items.Count(payload + itemsStart, m_lengthOfItems);
    m_text = t_Run(payload, payload + position, textLength);
    m_textLength = static_cast<unsigned int>(textLength);
    return position + textLength;
}

bool TCDescExtendedEvent::TextChar(unsigned char* buffer, unsigned short* size) const
{
    return zum_text::Copy(t_At(m_text), m_text.length, buffer, size, true);
}

bool TCDescExtendedEvent::FlagEqual(const TCDescExtendedEvent* other) const
{
    if (!other)
        return false;
    return m_descriptorNumber == other->m_descriptorNumber &&
           m_lastDescriptorNumber == other->m_lastDescriptorNumber &&
           TCCompareISO8859Char::IsEqual(m_language, other->m_language);
}

const TCDescExtendedEvent::CitemDesc* TCDescExtendedEvent::Item(unsigned int index) const
{
    const unsigned char* payload = t_Payload();
    if (!payload || index >= static_cast<unsigned int>(m_items.Size()))
        return nullptr;
    return m_items.At(payload + kItemsStart, m_lengthOfItems, static_cast<int>(index));
}
