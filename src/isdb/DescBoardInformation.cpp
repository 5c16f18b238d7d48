#include "DescBoardInformation.h"

#include <algorithm>
#include <vector>

#include <zum-platform/UnicodeConverter.h>

#include "../core/Log.h"

namespace {

// Converts `length` bytes of broadcast text into `target`; `size` is the
// capacity in and the converter's output size out.
void Convert(const unsigned char* text, int length, char* target, int& size)
{
    unsigned short sourceLength = static_cast<unsigned short>(length);
    unsigned short targetLength = static_cast<unsigned short>(std::min(size, 0xFFFF));
    TCUnicodeConverter converter(kZUMDefaultHandle);
    converter.ConvertToUnicode(const_cast<unsigned char*>(text), sourceLength,
                               reinterpret_cast<unsigned char*>(target), targetLength, false,
                               static_cast<ELanguageCode>(-1), true);
    size = targetLength;
}

int ConvertedLength(const unsigned char* text, int length, int scratch)
{
    if (!text)
        return 0;
    std::vector<char> target(static_cast<size_t>(scratch));
    int size = scratch;
    Convert(text, length, target.data(), size);
    return size & 0xFF;
}

} // namespace

TCDescBoardInformation::TCDescBoardInformation() : TCBaseDesc(0xDB) {}

TCDescBoardInformation::~TCDescBoardInformation()
{
    DeleteAll();
}

void TCDescBoardInformation::DeleteAll()
{
    m_titleLength = 0;
    m_textLength = 0;
    m_title = TTRawRun();
    m_text = TTRawRun();
}

TCBaseDesc* TCDescBoardInformation::Fork() const
{
    return t_ForkAs(new TCDescBoardInformation());
}

int TCDescBoardInformation::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length == 0)
        return 0;
    m_titleLength = payload[0];
    // A title that leaves no room for the text length is not kept.
    if (length - 1 <= m_titleLength)
        return length;
    m_title = t_Run(payload, payload + 1, m_titleLength);
    int position = 1 + m_titleLength;
    m_textLength = payload[position++];
    if (m_textLength > length - position)
        return length;
    if (m_textLength == 0)
        return position;
    m_text = t_Run(payload, payload + position, m_textLength);
    return position + m_textLength;
}

bool TCDescBoardInformation::Title(int& size, char* buffer) const
{
    const unsigned char* title = t_At(m_title);
    if (size <= 0 || !buffer || !title) {
        size = 0;
        return false;
    }
    ZUM_LOGD("TCDescBoardInformation::Text len_in_out[%d] title_length_[%d]", size, m_titleLength);
    Convert(title, m_title.length, buffer, size);
    return true;
}

bool TCDescBoardInformation::Text(int& size, char* buffer) const
{
    const unsigned char* text = t_At(m_text);
    if (size <= 0 || !buffer || !text) {
        ZUM_LOGD("TCDescBoardInformation::Text invalid length");
        size = 0;
        return false;
    }
    ZUM_LOGD("TCDescBoardInformation::Text len_in_out[%d] text_length_[%d]", size, m_textLength);
    Convert(text, m_text.length, buffer, size);
    return true;
}

int TCDescBoardInformation::TitleLength() const
{
    return ConvertedLength(t_At(m_title), m_title.length, 40);
}

int TCDescBoardInformation::TextLength() const
{
    return ConvertedLength(t_At(m_text), m_text.length, 400);
}
