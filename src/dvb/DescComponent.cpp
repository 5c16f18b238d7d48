#include "DescComponent.h"

#include <initializer_list>

#include "../core/ByteReader.h"
#include "DescText.h"

namespace {

constexpr int kAnyExt = -1;

bool OneOf(unsigned char value, std::initializer_list<unsigned char> values)
{
    for (unsigned char v : values)
        if (v == value)
            return true;
    return false;
}

bool Within(unsigned char value, unsigned char low, unsigned char high)
{
    return value >= low && value <= high;
}

} // namespace

// ---------------------------------------------------------------- component

TCDescComponent::TCDescComponent(int system) : TCBaseDesc(0x50), m_system(system) {}

TCDescComponent::~TCDescComponent()
{
    DeleteAll();
}

void TCDescComponent::DeleteAll()
{
    m_text = TTRawRun();
}

TCBaseDesc* TCDescComponent::Fork() const
{
    return t_ForkAs(new TCDescComponent(m_system));
}

int TCDescComponent::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    if (!reader.Has(1))
        return 0;
    const unsigned int contents = reader.U8();
    m_streamContentExt = static_cast<unsigned char>(contents >> 4);
    m_streamContent = static_cast<unsigned char>(contents & 0x0F);
    if (!reader.Has(1))
        return reader.Consumed();
    m_componentType = static_cast<unsigned char>(reader.U8());
    if (!reader.Has(1))
        return reader.Consumed();
    m_componentTag = static_cast<unsigned char>(reader.U8());
    if (!reader.Has(3))
        return reader.Consumed();
    m_language = reader.U24();
    m_text = zum_text::TakeRun<TTRawRun>(reader, payload, reader.Left());
    return reader.Consumed();
}

bool TCDescComponent::TextChar(char* buffer, int* size) const
{
    return zum_text::Copy(t_At(m_text), m_text.length, buffer, size);
}

bool TCDescComponent::m_Is(unsigned char content, int ext) const
{
    return m_streamContent == content && (ext == kAnyExt || m_streamContentExt == ext);
}

// Next generation audio (content 0xB, ext 0xE) keeps its feature flags in the component tag.
bool TCDescComponent::m_IsNGAFlag(unsigned char flag) const
{
    return m_Is(0xB, 0xE) && (m_componentTag & flag) != 0;
}

bool TCDescComponent::IsHD() const
{
    const unsigned char type = m_componentType;
    if (m_Is(0x5, kAnyExt) && OneOf(type, {0x0B, 0x0C, 0x0F, 0x10}))
        return true;
    if (m_Is(0x9, 0) && type < 4)
        return true;
    if (m_Is(0x1, kAnyExt) && Within(type, 0x09, 0x10))
        return true;
    return m_system == 1 && m_Is(0x1, kAnyExt) && OneOf(type, {0xB1, 0xB3, 0xB4, 0xC1, 0xC3, 0xC4});
}

bool TCDescComponent::IsUHD() const
{
    return m_Is(0x9, 0) && m_componentType == 4;
}

bool TCDescComponent::IsSubtitle() const
{
    return m_Is(0x3, kAnyExt) && (Within(m_componentType, 0x10, 0x14) || Within(m_componentType, 0x20, 0x24));
}

bool TCDescComponent::IsSignLanguage() const
{
    return m_Is(0x3, kAnyExt) && m_componentType == 0x30;
}

bool TCDescComponent::IsAD() const
{
    const unsigned char type = m_componentType;
    if (m_Is(0x6, kAnyExt) && OneOf(type, {0x40, 0x44, 0x47, 0x48, 0x49, 0x4A}))
        return true;
    if (m_Is(0x2, kAnyExt) && OneOf(type, {0x40, 0x47, 0x48}))
        return true;
    if (m_Is(0x9, 1) && Within(type, 0x06, 0x0D))
        return true;
    return m_IsNGAFlag(1 << 2);
}

bool TCDescComponent::IsDE() const
{
    if (m_Is(0x9, 1) && OneOf(m_componentType, {1, 3, 5, 7, 9, 11}))
        return true;
    return m_IsNGAFlag(1 << 4);
}

bool TCDescComponent::IsSpS() const
{
    return m_IsNGAFlag(1 << 3);
}

bool TCDescComponent::IsTTML() const
{
    return m_Is(0x9, 2);
}

// ---------------------------------------------------------------- stream identifier

TCDescStreamIdentifier::TCDescStreamIdentifier() : TCBaseDesc(0x52) {}

TCDescStreamIdentifier::~TCDescStreamIdentifier()
{
    DeleteAll();
}

void TCDescStreamIdentifier::DeleteAll() {}

TCBaseDesc* TCDescStreamIdentifier::Fork() const
{
    return t_ForkAs(new TCDescStreamIdentifier());
}

int TCDescStreamIdentifier::t_Parse(const unsigned char* payload, unsigned char length)
{
    TCByteReader reader(payload, length);
    m_componentTag = static_cast<unsigned char>(reader.U8());
    return reader.Consumed();
}
