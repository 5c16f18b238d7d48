#ifndef ZUM_ISDB_ISDBECMPARSER_H
#define ZUM_ISDB_ISDBECMPARSER_H

#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/SectionParser.h"

// Entitlement control message 0x82, split into its fields and kept as bytes:
// the fields of the last section parsed. Nothing is decrypted or checked.
class ZUM_EXPORT TCISDBECMParser : public TCSectionParser, public TCBaseSection {
public:
    explicit TCISDBECMParser(const ZUMHandle& handle);
    ~TCISDBECMParser() override;

    void DeleteAll() override;

    // Byte runs: a null `out` or a capacity below 1 gives length 0 and false;
    // otherwise the capacity is cut to what is stored and the bytes copied.
    bool GetPayload(int& length, unsigned char* out) const;
    bool GetScramblingKeyOdd(int& length, unsigned char* out) const;
    bool GetScramblingKeyEven(int& length, unsigned char* out) const;
    bool GetVariablePart(int& length, unsigned char* out) const;

    const unsigned char* ProtocolGroupAndWorkKey() const { return m_head; }
    unsigned char JudgementType() const { return m_judgementType; }
    // Seconds since 1980-01-06 00:00:00.
    unsigned int DateTime() const { return m_dateTime; }
    unsigned char RecordingControl() const { return m_recordingControl; }
    unsigned int AuthenticationField() const { return m_authentication; }
    int VariablePartSize() const { return static_cast<int>(m_variablePart.size()); }
    int PayloadSize() const { return static_cast<int>(m_payload.size()); }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    unsigned char m_head[3] = {};
    std::vector<unsigned char> m_keyOdd;
    std::vector<unsigned char> m_keyEven;
    unsigned char m_judgementType = 0;
    unsigned int m_dateTime = 0;
    unsigned char m_recordingControl = 0;
    unsigned int m_authentication = 0;
    std::vector<unsigned char> m_variablePart;
    std::vector<unsigned char> m_payload;
};

#endif
