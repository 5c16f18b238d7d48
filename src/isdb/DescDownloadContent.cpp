#include "DescDownloadContent.h"

#include "../core/ByteReader.h"
#include "../core/RecordAt.h"

namespace {

// The fixed part of a compatibility descriptor entry.
const unsigned int kEntrySize = 11;
// The fixed part of a download content descriptor, and of one module.
const int kFixedSize = 17;
const int kModuleSize = 7;

} // namespace

// ---------------------------------------------------------------- sub descriptor

int SubDescriptor::Parser(const unsigned char* data, unsigned int size, unsigned int& used)
{
    if (size < 2) {
        used = 0;
        return 0;
    }
    m_subDescriptorType = data[0];
    m_subDescriptorLength = data[1];
    if (size < m_subDescriptorLength + 2u) {
        used = 2;
        return 0;
    }
    m_bytes.assign(data + 2, data + 2 + m_subDescriptorLength);
    used = m_subDescriptorLength + 2u;
    return 1;
}

// ---------------------------------------------------------------- compatibility descriptor

void TCCompatibilityDescriptor::Clear()
{
    m_compatibilityDescriptorLength = 0;
    m_descriptorCount = 0;
    m_descriptors.clear();
}

const TCCompatibilityDescriptor::TTDescriptor* TCCompatibilityDescriptor::Descriptor(int index) const
{
    return RecordAt(m_descriptors, index);
}

int TCCompatibilityDescriptor::Parse(const unsigned char* data, unsigned int size, unsigned int& used)
{
    Clear();
    if (!data || size < 4) {
        used = 0;
        return 0;
    }
    m_compatibilityDescriptorLength = static_cast<unsigned short>(ReadBE16(data));
    if (size < m_compatibilityDescriptorLength + 2u) {
        used = 2;
        return 0;
    }
    m_descriptorCount = static_cast<unsigned short>(ReadBE16(data + 2));
    unsigned int position = 4;
    for (unsigned int i = 0; i < m_descriptorCount; ++i) {
        if (size - position < kEntrySize) {
            used = position;
            return 0;
        }
        const unsigned char* at = data + position;
        TTDescriptor entry;
        entry.descriptorLength = at[1];
        // The length is checked, not followed: the walk moves by what it reads.
        if (position + 3 + entry.descriptorLength > size) {
            used = position + 3;
            return 0;
        }
        entry.descriptorType = at[0];
        entry.specifierType = at[2];
        entry.specifierData[0] = at[3];
        entry.specifierData[1] = at[4];
        entry.specifierData[2] = at[5];
        entry.model = static_cast<unsigned short>(ReadBE16(at + 6));
        entry.version = static_cast<unsigned short>(ReadBE16(at + 8));
        entry.subDescriptorCount = at[10];
        position += kEntrySize;
        entry.subDescriptors.resize(entry.subDescriptorCount);
        for (SubDescriptor& sub : entry.subDescriptors) {
            unsigned int consumed = 0;
            const int whole = sub.Parser(data + position, size - position, consumed);
            position += consumed;
            if (!whole) {
                used = position;
                return 0;
            }
        }
        m_descriptors.push_back(std::move(entry));
    }
    used = position;
    return 1;
}

// ---------------------------------------------------------------- download content

TCDescDownloadContent::TCDescDownloadContent() : TCBaseDesc(0xC9) {}

TCDescDownloadContent::~TCDescDownloadContent()
{
    DeleteAll();
}

void TCDescDownloadContent::DeleteAll()
{
    m_reboot = 0;
    m_addOn = 0;
    m_compatibilityFlag = 0;
    m_moduleInfoFlag = 0;
    m_textInfoFlag = 0;
    m_componentSize = 0;
    m_downloadId = 0;
    m_timeOutValueDII = 0;
    m_leakRate = 0;
    m_componentTag = 0;
    m_compatibility.Clear();
    m_numOfModules = 0;
    m_modules.clear();
    m_privateDataLength = 0;
    m_privateData = TTRawRun();
    m_iso639LanguageCode = 0;
    m_text = TTRawRun();
}

TCBaseDesc* TCDescDownloadContent::Fork() const
{
    return t_ForkAs(new TCDescDownloadContent());
}

const TCDescDownloadContent::_tagModule* TCDescDownloadContent::Module(int index) const
{
    return RecordAt(m_modules, index);
}

int TCDescDownloadContent::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < kFixedSize)
        return 0;
    m_reboot = (payload[0] >> 7) & 0x01;
    m_addOn = (payload[0] >> 6) & 0x01;
    m_compatibilityFlag = (payload[0] >> 5) & 0x01;
    m_moduleInfoFlag = (payload[0] >> 4) & 0x01;
    m_textInfoFlag = (payload[0] >> 3) & 0x01;
    m_componentSize = ReadBE32(payload + 1);
    m_downloadId = ReadBE32(payload + 5);
    m_timeOutValueDII = ReadBE32(payload + 9);
    m_leakRate = ReadBE24(payload + 13) >> 2;
    m_componentTag = payload[16];
    int position = kFixedSize;

    if (m_compatibilityFlag) {
        unsigned int used = 0;
        const int whole = m_compatibility.Parse(payload + position, static_cast<unsigned int>(length - position), used);
        position += static_cast<int>(used);
        if (!whole)
            return position;
    }

    if (m_moduleInfoFlag) {
        if (length - position < 2)
            return position;
        m_numOfModules = static_cast<unsigned short>(ReadBE16(payload + position));
        position += 2;
        for (unsigned int i = 0; i < m_numOfModules; ++i) {
            if (length - position < kModuleSize)
                return position;
            const unsigned char* at = payload + position;
            _tagModule module;
            module.module_id = static_cast<unsigned short>(ReadBE16(at));
            module.module_size = ReadBE32(at + 2);
            module.module_info_length = at[6];
            position += kModuleSize;
            // A module without info is not listed.
            if (module.module_info_length == 0)
                continue;
            if (module.module_info_length > length - position)
                return position;
            module.module_info = payload + position;
            m_modules.push_back(module);
            position += module.module_info_length;
        }
    }

    if (position >= length)
        return position;
    m_privateDataLength = payload[position++];
    if (m_privateDataLength > length - position)
        return position;
    m_privateData = t_Run(payload, payload + position, m_privateDataLength);
    position += m_privateDataLength;

    if (!m_textInfoFlag || length - position < 4)
        return position;
    m_iso639LanguageCode = ReadBE24(payload + position);
    // A text that claims more than is left keeps what is there.
    const int textLength = payload[position + 3] < length - position - 4 ? payload[position + 3] : length - position - 4;
    position += 4;
    if (textLength == 0)
        return position;
    m_text = t_Run(payload, payload + position, textLength);
    return position + textLength;
}
