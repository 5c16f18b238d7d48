#ifndef ZUM_ISDB_ISDBEMMPARSER_H
#define ZUM_ISDB_ISDBEMMPARSER_H

#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/SectionParser.h"

// One record of an entitlement management message, kept as bytes.
class ZUM_EXPORT TCISDBEMMPayload {
public:
    // Always true; `consumed` is 17 + the size of the variable part.
    bool Parse(const unsigned char* data, int length, int& consumed);

    bool GetPayload(int& length, unsigned char* out) const;
    bool GetVariablePart(int& length, unsigned char* out) const;
    bool CardID(int& length, unsigned char* out) const;

    unsigned char AssociatedLength() const { return m_associatedLength; }
    unsigned char ProtocolNumber() const { return m_protocolNumber; }
    unsigned char BroadcasterGroupId() const { return m_broadcasterGroupId; }
    unsigned short UpdateNumber() const { return m_updateNumber; }
    unsigned short ExpirationDate() const { return m_expirationDate; }
    unsigned int AuthenticationField() const { return m_authentication; }
    int VariablePartSize() const { return static_cast<int>(m_variablePart.size()); }

private:
    std::vector<unsigned char> m_cardId;
    unsigned char m_associatedLength = 0;
    unsigned char m_protocolNumber = 0;
    unsigned char m_broadcasterGroupId = 0;
    unsigned short m_updateNumber = 0;
    unsigned short m_expirationDate = 0;
    unsigned int m_authentication = 0;
    std::vector<unsigned char> m_variablePart;
    std::vector<unsigned char> m_record;
};

// Entitlement management message 0x84: its records, added up over the sections of one table.
class ZUM_EXPORT TCISDBEMMParser : public TCSectionParser, public TCBaseSection {
public:
    explicit TCISDBEMMParser(const ZUMHandle& handle);
    ~TCISDBEMMParser() override;

    void DeleteAll() override;

    int NumOfPayload() const { return static_cast<int>(m_records.size()); }
    TCISDBEMMPayload* PayloadOfIndex(unsigned int index) const;

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    std::vector<std::unique_ptr<TCISDBEMMPayload>> m_records;
};

#endif
