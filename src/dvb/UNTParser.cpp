#include "UNTParser.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Log.h"

namespace {

constexpr unsigned char kTableIdUNT = 0x4B;
constexpr int kCrcSize = 4;

// Reads a 12-bit loop length and the loop behind it, bounded by what `in` holds.
unsigned int ReadLoop(TCByteReader& in, TCDescriptor& loop, TCDescriptorHash& hash)
{
    const unsigned int length = in.U16() & 0x0FFF;
    const int taken = std::min<int>(static_cast<int>(length), in.Left());
    loop.Parse(in.Here(), taken, hash, kTableIdUNT);
    in.Skip(taken);
    return length;
}

} // namespace

// ---------------------------------------------------------------- platform loop entry

TCUNTElementary::TCUNTElementary(const ZUMHandle& handle) : m_handle(handle) {}

int TCUNTElementary::Parse(const unsigned char* data, int remaining)
{
    m_descriptors.DeleteAll();
    TCByteReader in(data, remaining);
    TCDescriptor loop(m_handle);
    m_targetLoopLength = ReadLoop(in, loop, m_descriptors);
    m_targetCount = m_descriptors.NumOfDescriptors();
    m_operationalLoopLength = ReadLoop(in, loop, m_descriptors);
    return static_cast<int>(m_targetLoopLength + m_operationalLoopLength) + 4;
}

// ---------------------------------------------------------------- item

TCUNTItem::TCUNTItem(const ZUMHandle& handle) : m_handle(handle) {}

void TCUNTItem::DeleteAll()
{
    m_elementaries.clear();
    m_compatibility.clear();
}

int TCUNTItem::Parse(const unsigned char* data, int remaining)
{
    DeleteAll();
    TCByteReader in(data, remaining);
    m_compatibilityLength = static_cast<unsigned short>(in.U16());
    const int kept = std::min<int>(m_compatibilityLength, in.Left());
    m_compatibility.assign(in.Here(), in.Here() + kept);
    in.Skip(kept);
    m_platformLoopLength = static_cast<unsigned short>(in.U16());
    // The loop is read no further than the item's bytes reach.
    for (int left = std::min<int>(m_platformLoopLength, in.Left()); left > 0;) {
        m_elementaries.push_back(std::make_unique<TCUNTElementary>(m_handle));
        const int used = m_elementaries.back()->Parse(in.Here(), left);
        in.Skip(std::min(used, left));
        left -= used;
    }
    return m_compatibilityLength + m_platformLoopLength + 4;
}

TCUNTElementary* TCUNTItem::UNTElementary(unsigned int index) const
{
    return index < m_elementaries.size() ? m_elementaries[index].get() : nullptr;
}

bool TCUNTItem::GetCompatibilityDescriptor(unsigned char* buffer, unsigned short& size) const
{
    if (!buffer || m_compatibility.empty() || size == 0)
        return false;
    size = static_cast<unsigned short>(std::min<std::size_t>(size, m_compatibility.size()));
    std::memcpy(buffer, m_compatibility.data(), size);
    return true;
}

// ---------------------------------------------------------------- instance

TCUNTInstance::TCUNTInstance(const ZUMHandle& handle) : m_handle(handle) {}

TCUNTInstance::~TCUNTInstance()
{
    TCUNTInstance::DeleteAll();
}

void TCUNTInstance::DeleteAll()
{
    m_items.clear();
    m_descriptors.DeleteAll();
    m_commonDescriptorsLength = 0;
}

bool TCUNTInstance::Parse(const unsigned char* body, int length, unsigned char actionType, unsigned char ouiHash,
                          unsigned int oui, char version, int section, int last, unsigned int crc)
{
    if (length < 1)
        return false;
    m_actionType = actionType;
    m_ouiHash = ouiHash;
    m_oui = oui;
    m_processingOrder = body[0];
    const int result = t_CheckVersion(version, section, last, crc);
    if (result == TABLE_IGNORE) {
        ZUM_LOGD("TCUNTInstance Section Ignored... ");
        return false;
    }
    if (result == TABLE_SAME)
        return false;
    m_Parse(body + 1, length - 1);
    return IsValid();
}

void TCUNTInstance::m_Parse(const unsigned char* data, int length)
{
    // The CRC_32 closes the body: nothing is read from it.
    TCByteReader in(data, length - kCrcSize);
    TCDescriptor loop(m_handle);
    m_commonDescriptorsLength = static_cast<unsigned short>(ReadLoop(in, loop, m_descriptors));
    for (int rest = length - 2 - m_commonDescriptorsLength - kCrcSize; rest > 0 && in.Left() > 0;) {
        m_items.push_back(std::make_unique<TCUNTItem>(m_handle));
        const int used = m_items.back()->Parse(in.Here(), in.Left());
        in.Skip(std::min(used, in.Left()));
        rest -= used;
    }
}

TCUNTItem* TCUNTInstance::UNTItem(unsigned int index) const
{
    return index < m_items.size() ? m_items[index].get() : nullptr;
}

// ---------------------------------------------------------------- parser

TCUNTParser::TCUNTParser(const ZUMHandle& handle) : TCSectionParser(kTableIdUNT, handle) {}

TCUNTParser::~TCUNTParser()
{
    Initialize();
}

void TCUNTParser::t_Initialize()
{
    m_instances.clear();
    m_lastActionType = 1;
    m_lastOUI = 0;
}

bool TCUNTParser::t_Parse(const unsigned char* body, int length)
{
    if (length < 3)
        return false;
    m_lastActionType = static_cast<unsigned char>(m_tableIdExtension >> 8);
    m_lastOUIHash = static_cast<unsigned char>(m_tableIdExtension & 0xFF);
    m_lastOUI = ReadBE24(body);
    std::unique_ptr<TCUNTInstance>& instance = m_instances[static_cast<int>(m_lastOUI)];
    if (!instance)
        instance = std::make_unique<TCUNTInstance>(m_handle);
    return instance->Parse(body + 3, length - 3, m_lastActionType, m_lastOUIHash, m_lastOUI, m_versionNumber,
                           m_sectionNumber, m_lastSectionNumber, m_crc);
}

TCUNTInstance* TCUNTParser::UNTInstance(int oui) const
{
    const auto it = m_instances.find(oui);
    return it == m_instances.end() ? nullptr : it->second.get();
}

TCUNTInstance* TCUNTParser::UNTInstanceOfIndex(unsigned int index) const
{
    if (index >= m_instances.size())
        return nullptr;
    return std::next(m_instances.begin(), static_cast<long>(index))->second.get();
}
