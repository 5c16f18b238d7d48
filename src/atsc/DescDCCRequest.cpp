#include "DescDCCRequest.h"

#include "../dvb/DescText.h"

TCDescDCCRequest::TCDescDCCRequest(int tag) : TCBaseDesc(tag) {}

void TCDescDCCRequest::DeleteAll()
{
    m_requestType = 0;
    m_textLength = 0;
    m_text = TTRawRun();
}

int TCDescDCCRequest::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_requestType = static_cast<unsigned char>(reader.U8());
    m_textLength = static_cast<unsigned char>(reader.U8());
    m_text = zum_text::TakeRun<TTRawRun>(reader, payload, m_textLength);
    return m_textLength + 2;
}

bool TCDescDCCRequest::t_Text(char* text, int* length) const
{
    return zum_text::Copy(t_At(m_text), m_text.length, text, length);
}

TCDescDCCDepartingRequest::TCDescDCCDepartingRequest() : TCDescDCCRequest(0xA8) {}

TCBaseDesc* TCDescDCCDepartingRequest::Fork() const
{
    return t_ForkAs(new TCDescDCCDepartingRequest());
}

TCDescDCCArrivingRequest::TCDescDCCArrivingRequest() : TCDescDCCRequest(0xA9) {}

TCBaseDesc* TCDescDCCArrivingRequest::Fork() const
{
    return t_ForkAs(new TCDescDCCArrivingRequest());
}
