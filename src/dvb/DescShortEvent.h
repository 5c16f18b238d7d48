#ifndef ZUM_DVB_DESCSHORTEVENT_H
#define ZUM_DVB_DESCSHORTEVENT_H

#include "../core/BaseDesc.h"
#include "DescText.h"
#include "RecordsOnAccess.h"

// short_event_descriptor (0x4D): language, event name and text, raw.
class ZUM_EXPORT TCDescShortEvent : public TCBaseDesc {
public:
    TCDescShortEvent();
    ~TCDescShortEvent() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int Language() const { return m_language; }
    unsigned char EventNameLength() const { return m_eventName.length; }
    // The length the body gave, also when the text itself was not kept.
    unsigned char TextLength() const { return m_textLength; }
    // Text copy.
    bool EventNameChar(unsigned char* buffer, unsigned short* size) const;
    bool TextChar(unsigned char* buffer, unsigned short* size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

    unsigned int m_language = 0;
    TTRawRun m_eventName;
    // The length as sent; the run is empty when the text is not kept.
    unsigned char m_textLength = 0;
    TTRawRun m_text;
};

// The ISDB short event: the same fields, the text not held to the body's
// declared end but only to its bytes.
class ZUM_EXPORT TCDescShortEventISDB : public TCDescShortEvent {
public:
    TCDescShortEventISDB() = default;
    TCBaseDesc* Fork() const override;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;
};

// extended_event_descriptor (0x4E): one piece of an event's long text, with
// its items.
class ZUM_EXPORT TCDescExtendedEvent : public TCBaseDesc {
public:
    // One item: description and text, raw, where they stand in the bytes
    // that Parse read, which must outlive the item.
    class CitemDesc {
    public:
        // Reads no more than `size` bytes; answers the bytes taken.
        int Parse(const unsigned char* data, int size);
        int ItemDescriptionLength() const { return m_description.length; }
        int ItemLength() const { return m_item.length; }
        // Text copy.
        bool ItemDescriptionChar(char* buffer, int* size) const;
        bool ItemChar(char* buffer, int* size) const;

    private:
        zum_text::TTText m_description;
        zum_text::TTText m_item;
    };

    TCDescExtendedEvent();
    ~TCDescExtendedEvent() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char DescriptorNumber() const { return m_descriptorNumber; }
    unsigned char LastDescriptorNumber() const { return m_lastDescriptorNumber; }
    unsigned int Language() const { return m_language; }
    unsigned char LengthOfItems() const { return m_lengthOfItems; }
    unsigned int TextLength() const { return m_textLength; }
    // Text copy, but a cut copy also answers true.
    bool TextChar(unsigned char* buffer, unsigned short* size) const;
    // The same piece of a text: equal descriptor numbers and language (case aside).
    bool FlagEqual(const TCDescExtendedEvent* other) const;
    // Null for an index outside the items.
    const CitemDesc* Item(unsigned int index) const;
    unsigned int SizeOfItem() const { return static_cast<unsigned int>(m_items.Size()); }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    TCRecordsOnAccess<CitemDesc, 1> m_items;
    unsigned char m_descriptorNumber = 0;
    unsigned char m_lastDescriptorNumber = 0;
    unsigned int m_language = 0;
    unsigned char m_lengthOfItems = 0;
    unsigned int m_textLength = 0;
    TTRawRun m_text;
};

using CitemDesc = TCDescExtendedEvent::CitemDesc;

#endif
