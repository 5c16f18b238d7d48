#include "DescShortEvent.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/CompareISO8859Char.h"
#include "../core/Log.h"
#include "DescText.h"

// ---------------------------------------------------------------- short event

TCDescShortEvent::TCDescShortEvent() : TCBaseDesc(0x4D) {}

TCDescShortEvent::~TCDescShortEvent()
{
    TCDescShortEvent::DeleteAll();
}

void TCDescShortEvent::DeleteAll()
{
    m_pEventName.reset();
    m_pText.reset();
    m_eventNameLength = 0;
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
    if (!reader.Has(4)) {
        m_language = reader.Has(3) ? reader.U24() : 0;
        return reader.Consumed();
    }
    m_language = reader.U24();
    const int nameLength = static_cast<int>(reader.U8());
    m_eventNameLength = static_cast<unsigned char>(zum_text::Take(reader, nameLength, m_pEventName));
    // A name that reaches the end leaves no text length to read.
    if (4 + nameLength >= length)
        return length;
    m_textLength = static_cast<unsigned char>(reader.U8());
    const int position = reader.Consumed();
    // A text that runs over is not kept; its length stays as read.
    if (m_textLength > length - position)
        return position;
    zum_text::Take(reader, m_textLength, m_pText);
    return reader.Consumed();
}

bool TCDescShortEvent::EventNameChar(unsigned char* buffer, unsigned short* size) const
{
    return zum_text::Copy(m_pEventName.get(), m_eventNameLength, buffer, size);
}

bool TCDescShortEvent::TextChar(unsigned char* buffer, unsigned short* size) const
{
    return zum_text::Copy(m_pText.get(), m_textLength, buffer, size);
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
        m_eventNameLength = static_cast<unsigned char>(zum_text::Take(reader, static_cast<int>(reader.U8()),
                                                                      m_pEventName));
    if (reader.Has(1))
        m_textLength = static_cast<unsigned char>(zum_text::Take(reader, static_cast<int>(reader.U8()), m_pText));
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
    m_descriptionLength = std::min(static_cast<int>(data[0]), size - 1);
    m_pDescription = zum_text::Keep(data + 1, m_descriptionLength);
    m_itemLength = 0;
    m_pItem.reset();
    if (1 + m_descriptionLength == size)
        return size;
    m_itemLength = std::min(static_cast<int>(data[1 + m_descriptionLength]), size - m_descriptionLength - 2);
    m_pItem = zum_text::Keep(data + 2 + m_descriptionLength, m_itemLength);
    return 2 + m_descriptionLength + m_itemLength;
}

bool TCDescExtendedEvent::CitemDesc::ItemDescriptionChar(char* buffer, int* size) const
{
    return zum_text::Copy(m_pDescription.get(), m_descriptionLength, buffer, size);
}

bool TCDescExtendedEvent::CitemDesc::ItemChar(char* buffer, int* size) const
{
    return zum_text::Copy(m_pItem.get(), m_itemLength, buffer, size);
}

// ---------------------------------------------------------------- extended event

TCDescExtendedEvent::TCDescExtendedEvent() : TCBaseDesc(0x4E) {}

TCDescExtendedEvent::~TCDescExtendedEvent()
{
    DeleteAll();
}

void TCDescExtendedEvent::DeleteAll()
{
    m_items.clear();
    m_pText.reset();
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
    const int itemsStart = reader.Consumed();
    // Items that reach the end leave no text length to read.
    if (itemsStart + m_lengthOfItems >= length)
        return itemsStart;
    const int textLength = payload[itemsStart + m_lengthOfItems];
    const int position = itemsStart + m_lengthOfItems + 1;
    // A text that runs over keeps neither text nor items.
    if (textLength > length - position)
        return position;

    for (int at = 0; at < m_lengthOfItems;) {
        std::unique_ptr<CitemDesc> item(new CitemDesc());
        const int taken = item->Parse(payload + itemsStart + at, m_lengthOfItems - at);
        m_items.push_back(std::move(item));
        if (taken <= 0)
            break;
        at += taken;
    }
    m_pText = zum_text::Keep(payload + position, textLength);
    m_textLength = static_cast<unsigned int>(textLength);
    return position + textLength;
}

bool TCDescExtendedEvent::TextChar(unsigned char* buffer, unsigned short* size) const
{
    return zum_text::Copy(m_pText.get(), static_cast<int>(m_textLength), buffer, size, true);
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
    return index < m_items.size() ? m_items[index].get() : nullptr;
}
