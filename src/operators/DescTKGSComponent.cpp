#include "DescTKGSComponent.h"

#include <cstring>

#include "../core/ByteReader.h"
#include "../core/RecordAt.h"
#include "TKGSText.h"

namespace {

constexpr int kComponentSize = 5;
constexpr int kExtendedServiceHead = 6;
constexpr int kLabelHead = 2;

// The names of a label body: calls `visit(language, text, length)` for each
// whole entry behind the category id and answers where the walk stopped.
template <class Visit>
int WalkLabelNames(const unsigned char* payload, int length, Visit visit)
{
    int position = kLabelHead;
    while (position < length) {
        if (length - position < 3)
            break;
        const ELanguageCode language = TkgsLanguage(payload + position);
        position += 3;
        if (position >= length)
            break;
        const int textLength = payload[position++];
        if (textLength > length - position)
            break;
        visit(language, payload + position, textLength);
        position += textLength;
    }
    return position;
}

} // namespace

// ---------------------------------------------------------------- component

TCDescTKGSComponent::TCDescTKGSComponent() : TCBaseDesc(0x98) {}

TCDescTKGSComponent::~TCDescTKGSComponent()
{
    DeleteAll();
}

void TCDescTKGSComponent::DeleteAll()
{
    m_flag = false;
    m_found = false;
}

TCBaseDesc* TCDescTKGSComponent::Fork() const
{
    return t_ForkAs(new TCDescTKGSComponent());
}

int TCDescTKGSComponent::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < kComponentSize || std::memcmp(payload, "TKGS", 4) != 0)
        return length;
    m_flag = (payload[4] & 0x80) != 0;
    m_found = true;
    return kComponentSize;
}

// ---------------------------------------------------------------- extended service

TCDescTKGSExtendedService::TCDescTKGSExtendedService() : TCBaseDesc(0x95) {}

TCDescTKGSExtendedService::~TCDescTKGSExtendedService()
{
    DeleteAll();
}

void TCDescTKGSExtendedService::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescTKGSExtendedService::Fork() const
{
    return t_ForkAs(new TCDescTKGSExtendedService());
}

int TCDescTKGSExtendedService::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    DeleteAll();
    if (length <= kExtendedServiceHead)
        return kExtendedServiceHead;
    // An odd body ends in an entry of one byte, which counts.
    m_count = (length - kExtendedServiceHead + 1) / 2;
    return length;
}

unsigned int TCDescTKGSExtendedService::CategoryId(int index) const
{
    const unsigned char* payload = t_Payload();
    const unsigned char* entry =
        RawRecordAt(payload ? payload + kExtendedServiceHead : nullptr, m_count, 2, index);
    if (!entry)
        return 0xFFFFFFFF;
    const int at = static_cast<int>(entry - payload);
    // The half entry at the end of an odd body gives its high bits only.
    const unsigned int low = at + 1 < m_length ? entry[1] : 0;
    return ((static_cast<unsigned int>(entry[0]) << 8) | low) & 0x0FFF;
}

void TCDescTKGSExtendedService::GetCategories(std::vector<unsigned int>& ids) const
{
    ids.clear();
    ids.reserve(static_cast<size_t>(m_count));
    for (int i = 0; i < m_count; ++i)
        ids.push_back(CategoryId(i));
}

// ---------------------------------------------------------------- category label

TCDescTKGSMultilingualCategoryLabel::TCDescTKGSMultilingualCategoryLabel(const ZUMHandle& handle)
    : TCBaseDesc(0x92), m_handle(handle)
{
}

TCDescTKGSMultilingualCategoryLabel::~TCDescTKGSMultilingualCategoryLabel()
{
    DeleteAll();
}

void TCDescTKGSMultilingualCategoryLabel::DeleteAll()
{
    m_categoryId = 0;
}

TCBaseDesc* TCDescTKGSMultilingualCategoryLabel::Fork() const
{
    return t_ForkAs(new TCDescTKGSMultilingualCategoryLabel(kZUMDefaultHandle));
}

int TCDescTKGSMultilingualCategoryLabel::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < kLabelHead)
        return 0;
    m_categoryId = ReadBE16(payload) & 0x0FFF;
    return WalkLabelNames(payload, length, [](ELanguageCode, const unsigned char*, int) {});
}

bool TCDescTKGSMultilingualCategoryLabel::GetCategoryName(ELanguageCode language,
                                                           std::basic_string<unsigned short>& name) const
{
    const unsigned char* payload = t_Payload();
    if (!payload || m_length < kLabelHead)
        return false;
    // The last entry of the language stands.
    const unsigned char* text = nullptr;
    int textLength = 0;
    WalkLabelNames(payload, m_length, [&](ELanguageCode entry, const unsigned char* at, int size) {
        if (entry == language) {
            text = at;
            textLength = size;
        }
    });
    if (!text)
        return false;
    name = TkgsText(m_handle, text, textLength, language);
    return true;
}

void TCDescTKGSMultilingualCategoryLabel::GetCategoryNames(
    std::map<ELanguageCode, std::basic_string<unsigned short>>& names) const
{
    names.clear();
    const unsigned char* payload = t_Payload();
    if (!payload || m_length < kLabelHead)
        return;
    WalkLabelNames(payload, m_length, [&](ELanguageCode language, const unsigned char* at, int size) {
        names[language] = TkgsText(m_handle, at, size, language);
    });
}
