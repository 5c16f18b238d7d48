#ifndef ZUM_ATSC_DESCDCCREQUEST_H
#define ZUM_ATSC_DESCDCCREQUEST_H

#include "../core/BaseDesc.h"

// The request of a directed channel change: a type and a text (a multiple
// string structure, raw), read from the raw copy.
class ZUM_EXPORT TCDescDCCRequest : public TCBaseDesc {
public:
    void DeleteAll() override;

    unsigned char RequestType() const { return m_requestType; }
    unsigned char TextLength() const { return m_textLength; }

protected:
    explicit TCDescDCCRequest(int tag);
    int t_Parse(const unsigned char* payload, unsigned char length) override;
    // False for a null argument, *length 0 or no text; a smaller buffer gets
    // what fits and false.
    bool t_Text(char* text, int* length) const;

private:
    unsigned char m_requestType = 0;
    unsigned char m_textLength = 0;
    TTRawRun m_text;
};

// DCC_departing_request_descriptor (0xA8); no factory creates it.
class ZUM_EXPORT TCDescDCCDepartingRequest : public TCDescDCCRequest {
public:
    TCDescDCCDepartingRequest();
    TCBaseDesc* Fork() const override;
    bool GetDCCDepartingRequestText(char* text, int* length) const { return t_Text(text, length); }
};

// DCC_arriving_request_descriptor (0xA9); no factory creates it.
class ZUM_EXPORT TCDescDCCArrivingRequest : public TCDescDCCRequest {
public:
    TCDescDCCArrivingRequest();
    TCBaseDesc* Fork() const override;
    bool GetDCCArrivingRequestText(char* text, int* length) const { return t_Text(text, length); }
};

#endif
