#include "RelatedContentLink.h"

#include <zum-platform/UnicodeConverter.h>

#include "../atsc/MultipleStringStruct.h"
#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../dvb/DescShortEvent.h"

namespace {

constexpr unsigned char kLinkLoopTableId = 0x76;
constexpr int kTagShortEvent = 0x4D;
// The one classification scheme read, with its two terms and what they become.
constexpr unsigned char kSchemeId = 2;
constexpr int kTermIsRelated = 2;
constexpr int kTermAlsoAvailable = 5;
constexpr int kHowRelatedTerm2 = 49;
constexpr int kHowRelatedTerm5 = 50;
// Link type, scheme and term, group and precedence, then the URI length.
constexpr int kUriLengthAt = 4;
constexpr int kLanguageLength = 3;
constexpr int kMaxEventName = 255;

} // namespace

TCRelatedContentLink::TSISOString::TSISOString(unsigned int lang, std::basic_string<unsigned short>* txt)
    : language(lang), text(txt)
{
}

void TCRelatedContentLink::TSISOString::Convert(TCUniCodeText& out) const
{
    std::string bytes;
    Convert(bytes);
    // An empty text would only assert there; the holder keeps what it had, as it would after that assertion.
    if (bytes.empty())
        return;
    out.SetUniCodeText(static_cast<int>(language), reinterpret_cast<unsigned char*>(&bytes[0]),
                       static_cast<unsigned short>(bytes.size()));
}

void TCRelatedContentLink::TSISOString::Convert(std::string& out) const
{
    out.clear();
    if (text)
        out.assign(reinterpret_cast<const char*>(text->data()), text->size() * sizeof(unsigned short));
}

TCRelatedContentLink::TCRelatedContentLink(const ZUMHandle& handle) : m_handle(handle) {}

TCRelatedContentLink::~TCRelatedContentLink()
{
    DeleteAll();
}

void TCRelatedContentLink::m_Free(std::vector<TSISOString>& texts)
{
    for (TSISOString& entry : texts) {
        delete entry.text;
        entry.text = nullptr;
    }
    texts.clear();
}

void TCRelatedContentLink::DeleteAll()
{
    m_Free(m_eventNames);
    m_Free(m_promotionalTexts);
}

std::basic_string<unsigned short>* TCRelatedContentLink::m_Convert(const unsigned char* text, int length) const
{
    auto* converted = new std::basic_string<unsigned short>();
    unsigned short size = static_cast<unsigned short>(length);
    TCUnicodeConverter converter(m_handle);
    converter.ConvertToUnicode(const_cast<unsigned char*>(text), size, *converted, false,
                               static_cast<ELanguageCode>(-1), false);
    return converted;
}

int TCRelatedContentLink::Parse(const unsigned char* data, unsigned int length)
{
    const int len = static_cast<int>(length);
    if (!data || len < 1)
        return 0;
    // A link of another kind stays empty and counts as read.
    m_linkType = data[0] >> 4;
    if (m_linkType != 0 || len < 3)
        return len;
    m_schemeId = static_cast<unsigned char>(((data[0] & 0x03) << 4) | (data[1] >> 4));
    if (m_schemeId != kSchemeId)
        return len;
    const int term = ((data[1] & 0x0F) << 8) | data[2];
    if (term != kTermIsRelated && term != kTermAlsoAvailable)
        return len;
    m_howRelated = term == kTermIsRelated ? kHowRelatedTerm2 : kHowRelatedTerm5;

    if (len <= kUriLengthAt || len < data[kUriLengthAt] + kUriLengthAt + 1)
        return kUriLengthAt + 1;
    const int uriLength = data[kUriLengthAt];
    m_uri.assign(reinterpret_cast<const char*>(data + kUriLengthAt + 1), static_cast<size_t>(uriLength));
    int at = kUriLengthAt + 1 + uriLength;

    if (at >= len)
        return at;
    const int items = data[at] & 0x3F;
    ++at;
    for (int i = 0; i < items; ++i) {
        if (len - at < kLanguageLength + 1)
            return at;
        const unsigned int language = ReadBE24(data + at);
        const int textLength = data[at + kLanguageLength];
        at += kLanguageLength + 1;
        if (textLength > len - at)
            return at;
        m_promotionalTexts.emplace_back(language, m_Convert(data + at, textLength));
        at += textLength;
    }

    if (len - at < 2)
        return at;
    const unsigned int iconLoop = ReadBE16(data + at);
    m_defaultIcon = (iconLoop & 0x8000) != 0;
    m_iconId = static_cast<unsigned char>((iconLoop >> 12) & 0x07);
    const int loopLength = static_cast<int>(iconLoop & 0x0FFF);
    at += 2;
    if (loopLength > len - at)
        return at;
    TCDescriptor loop(m_handle);
    if (loop.Parse(data + at, loopLength, m_descriptors, kLinkLoopTableId) >= loopLength) {
        for (int i = 0; i < m_descriptors.NumOfDescriptors(kTagShortEvent); ++i) {
            const auto* event =
                dynamic_cast<const TCDescShortEvent*>(m_descriptors.Descriptor(kTagShortEvent, static_cast<unsigned>(i)));
            if (!event || event->EventNameLength() == 0)
                continue;
            unsigned char name[kMaxEventName];
            unsigned short size = kMaxEventName;
            event->EventNameChar(name, &size);
            m_eventNames.emplace_back(event->Language(), m_Convert(name, size));
        }
    }
    return at + loopLength;
}

const TCRelatedContentLink::TSISOString* TCRelatedContentLink::m_At(const std::vector<TSISOString>& texts,
                                                                   unsigned int index)
{
    return index < texts.size() ? &texts[index] : nullptr;
}

bool TCRelatedContentLink::GetInternalEventName(unsigned int index, std::string& text) const
{
    const TSISOString* entry = m_At(m_eventNames, index);
    if (entry)
        entry->Convert(text);
    return entry != nullptr;
}

bool TCRelatedContentLink::GetInternalEventName(unsigned int index, TCUniCodeText& text) const
{
    const TSISOString* entry = m_At(m_eventNames, index);
    if (entry)
        entry->Convert(text);
    return entry != nullptr;
}

bool TCRelatedContentLink::GetInternalPromotionalText(unsigned int index, std::string& text) const
{
    const TSISOString* entry = m_At(m_promotionalTexts, index);
    if (entry)
        entry->Convert(text);
    return entry != nullptr;
}

bool TCRelatedContentLink::GetInternalPromotionalText(unsigned int index, TCUniCodeText& text) const
{
    const TSISOString* entry = m_At(m_promotionalTexts, index);
    if (entry)
        entry->Convert(text);
    return entry != nullptr;
}

bool TCRelatedContentLink::GetInternalURI(std::string& uri) const
{
    if (m_uri.empty())
        return false;
    uri = m_uri;
    return true;
}
