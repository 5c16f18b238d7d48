#ifndef ZUM_ISDB_ISDBEMMMESSAGEPARSER_H
#define ZUM_ISDB_ISDBEMMMESSAGEPARSER_H

#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/SectionParser.h"

// A message of an EMM message section, common or individual, kept as bytes.
class ZUM_EXPORT TCISDBEMMMessagePayload {
public:
    enum { kCommon = 0, kIndividual = 1 };

    virtual ~TCISDBEMMMessagePayload();
    // False when the message does not fit; `consumed` is the bytes it takes.
    virtual bool Parse(const unsigned char* data, int length, int& consumed) = 0;
    virtual unsigned short MessagePresetTextNumber() const = 0;

    // A null `out` or a capacity below 1 gives length 0 and false; otherwise
    // the capacity is cut to what is stored and the bytes copied.
    bool GetMessageArea(int& length, unsigned char* out) const;

    int Kind() const { return m_kind; }
    unsigned short MessageLength() const { return m_messageLength; }
    unsigned char StoredByte() const { return m_storedByte; }

protected:
    explicit TCISDBEMMMessagePayload(int kind) : m_kind(kind) {}

    int m_kind;
    unsigned short m_messageLength = 0;
    unsigned char m_storedByte = 0;
    std::vector<unsigned char> m_messageArea;
};

// A message for every card: a preset text number and the message area.
class ZUM_EXPORT TCISDBEMMCommonMessage : public TCISDBEMMMessagePayload {
public:
    explicit TCISDBEMMCommonMessage(unsigned short presetTextNumber);

    // `length` counts the CRC field; the message length must be `length` - 13.
    bool Parse(const unsigned char* data, int length, int& consumed) override;
    unsigned short MessagePresetTextNumber() const override { return m_presetTextNumber; }
    const unsigned char* StoredBytes() const { return m_stored; }

private:
    unsigned short m_presetTextNumber;
    unsigned char m_stored[6] = {};
};

// A message for one card.
class ZUM_EXPORT TCISDBEMMIndividualMessage : public TCISDBEMMMessagePayload {
public:
    TCISDBEMMIndividualMessage();

    // False when fewer than 4 bytes would remain behind the message area.
    bool Parse(const unsigned char* data, int length, int& consumed) override;
    unsigned short MessagePresetTextNumber() const override { return 0; }
    bool CardID(int& length, unsigned char* out) const;
    unsigned char Byte8() const { return m_stored[0]; }
    unsigned short Word10() const { return static_cast<unsigned short>((m_stored[1] << 8) | m_stored[2]); }

private:
    std::vector<unsigned char> m_cardId;
    unsigned char m_stored[3] = {};
};

// EMM message section 0x85: common messages (table id extension not 0) or
// individual ones (0), added up over the sections of one table.
class ZUM_EXPORT TCISDBEMMMessageParser : public TCSectionParser, public TCBaseSection {
public:
    explicit TCISDBEMMMessageParser(const ZUMHandle& handle);
    ~TCISDBEMMMessageParser() override;

    void DeleteAll() override;

    int NumOfMessage() const { return static_cast<int>(m_messages.size()); }
    TCISDBEMMMessagePayload* MessageOfIndex(unsigned int index) const;

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    std::vector<std::unique_ptr<TCISDBEMMMessagePayload>> m_messages;
};

#endif
