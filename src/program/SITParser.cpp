#include "SITParser.h"

#include <algorithm>
#include <cstring>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Diagnostics.h"

namespace {

const int kDefaultTableId = 0xD5;
const unsigned int kMaxProgramKind = 5;
const int kCrcSize = 4;

// A text of `size` bytes at the reader's position; false when it runs past the end.
bool TakeText(TCByteReader& reader, unsigned int size, std::string& text)
{
    const unsigned char* at = reader.Here();
    if (!reader.Skip(static_cast<int>(size)))
        return false;
    text.assign(reinterpret_cast<const char*>(at), size);
    return true;
}

} // namespace

int TCSITProgram::Parse(const unsigned char* data, int length)
{
    for (std::string& text : m_text)
        text.clear();
    TCByteReader reader(data, length);
    m_programNumber = static_cast<unsigned short>(reader.U16());
    if (!TakeText(reader, reader.U8(), m_text[3]))
        return 0;
    const unsigned int kind = reader.U8();
    if (reader.IsShort())
        return 0;
    if (kind > kMaxProgramKind)
        return -1;
    m_programKind = static_cast<unsigned char>(kind);
    m_startTime = reader.U32();
    const unsigned int flagAndCode = reader.U8();
    m_flag = (flagAndCode & 0x80) != 0;
    m_code = static_cast<unsigned char>(flagAndCode & 0x7F);
    m_duration = reader.U24() & 0xFFFFF;
    if (!TakeText(reader, reader.U8(), m_text[TEXT_TYPE_TITLE]) ||
        !TakeText(reader, reader.U16() & 0x0FFF, m_text[1]) || !TakeText(reader, reader.U16() & 0x0FFF, m_text[2]) ||
        reader.IsShort())
        return 0;
    return reader.Consumed();
}

void TCSITProgram::SetText(char* text, int length, int type)
{
    if (!ZUM_ASSERT(type >= TEXT_TYPE_TITLE && type < MAX_TEXT_TYPE))
        return;
    if (text == nullptr || length <= 0)
        m_text[type].clear();
    else
        m_text[type].assign(text, static_cast<size_t>(length));
}

bool TCSITProgram::GetText(char* text, int* length, int type) const
{
    if (!ZUM_ASSERT(type >= TEXT_TYPE_TITLE && type < MAX_TEXT_TYPE))
        return false;
    if (text == nullptr || length == nullptr || *length <= 0)
        return false;
    const std::string& stored = m_text[type];
    if (stored.empty()) {
        *length = 0;
        return true;
    }
    const bool fits = stored.size() <= static_cast<size_t>(*length);
    const size_t count = fits ? stored.size() : static_cast<size_t>(*length);
    // strncpy's way: up to the first zero byte, the rest of `count` zero-filled.
    std::strncpy(text, stored.c_str(), count);
    if (fits)
        *length = static_cast<int>(stored.size());
    return true;
}

int TCSITProgram::TextLength(int type) const
{
    if (!ZUM_ASSERT(type >= TEXT_TYPE_TITLE && type < MAX_TEXT_TYPE))
        return 0;
    return static_cast<int>(m_text[type].size());
}

TCSITParser::TCSITParser(const ZUMHandle& handle) : TCSectionParser(kDefaultTableId, handle) {}

TCSITParser::TCSITParser(int tableId, const ZUMHandle& handle) : TCSectionParser(tableId, handle) {}

TCSITParser::~TCSITParser()
{
    Initialize();
}

void TCSITParser::DeleteAll()
{
    m_programCount = 0;
    m_descriptorsLength = 0;
    m_programs.clear();
    m_descriptors.DeleteAll();
}

void TCSITParser::t_Initialize()
{
    InitSection();
    DeleteAll();
}

bool TCSITParser::t_CheckPSIPTable(unsigned char /*tableId*/)
{
    return true;
}

TCSITProgram* TCSITParser::Program(unsigned int index) const
{
    return index < m_programs.size() ? m_programs[index].get() : nullptr;
}

bool TCSITParser::t_Parse(const unsigned char* body, int length)
{
    const int result = t_CheckVersion(m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
    if (result == TABLE_SAME || result == TABLE_IGNORE)
        return false;

    // The payload ends before the CRC_32.
    TCByteReader reader(body, std::max(length - kCrcSize, 0));
    m_programCount = static_cast<unsigned char>(reader.U8());
    for (unsigned int i = 0; i < m_programCount; ++i) {
        std::unique_ptr<TCSITProgram> program(new TCSITProgram());
        const int taken = program->Parse(reader.Here(), reader.Left());
        if (taken < 0) {
            // A refused program takes every program held with it.
            m_programs.clear();
            return false;
        }
        // A record cut by the section's end: keep what came whole, read no further.
        if (taken == 0)
            return IsValid();
        m_programs.push_back(std::move(program));
        reader.Skip(taken);
    }

    const unsigned int loopLength = reader.U16();
    if (reader.IsShort())
        return IsValid();
    m_descriptorsLength = static_cast<int>(loopLength & 0x0FFF);
    TCDescriptor descriptor(m_handle);
    descriptor.Parse(reader.Here(), std::min(m_descriptorsLength, reader.Left()), m_descriptors, m_tableId);
    return IsValid();
}
