#include "DVBFSatPostCodeParser.h"

#include "../core/Log.h"

namespace {

const int kCrcSize = 4;

} // namespace

// ---------------------------------------------------------------- subtable

TCDVBFSatPostCodeBlock::~TCDVBFSatPostCodeBlock() = default;

void TCDVBFSatPostCodeBlock::DeleteAll()
{
    m_sections.clear();
}

bool TCDVBFSatPostCodeBlock::Parse(const unsigned char* body, int length, int version, int section, int lastSection,
                                   unsigned int crc, int /*currentNext*/)
{
    const int size = length - kCrcSize;
    if (size < 1) {
        // Both subtables log under the tree's name.
        ZUM_LOGE("[TCDVBFSatPostCodeTree::%s] invalid section size[%d]", "Parse", size);
        return false;
    }
    const int result = t_CheckVersion(version, section, lastSection, crc);
    if (result != TABLE_FIRST && result != TABLE_ADD && result != TABLE_CHANGED)
        return false;
    m_sections[section].assign(body, body + size);
    return TCBaseSection::IsValid();
}

std::unique_ptr<std::vector<unsigned char>> TCDVBFSatPostCodeBlock::GetDatabase() const
{
    std::size_t total = 0;
    for (const auto& stored : m_sections)
        total += stored.second.size();
    auto database = std::make_unique<std::vector<unsigned char>>();
    database->reserve(total);
    for (int number = 0; number < static_cast<int>(m_sections.size()); ++number) {
        const auto stored = m_sections.find(number);
        if (stored == m_sections.end() || stored->second.empty())
            return nullptr;
        database->insert(database->end(), stored->second.begin(), stored->second.end());
    }
    return database;
}

// ---------------------------------------------------------------- parser

TCDVBFSatPostCodeParser::TCDVBFSatPostCodeParser(const ZUMHandle& handle) : TCSectionParser(0xD2, handle) {}

TCDVBFSatPostCodeParser::~TCDVBFSatPostCodeParser()
{
    Initialize();
}

void TCDVBFSatPostCodeParser::DeleteAll()
{
    m_tree.DeleteAll();
    m_region.DeleteAll();
}

void TCDVBFSatPostCodeParser::t_Initialize()
{
    DeleteAll();
    m_tree.InitSection();
    m_region.InitSection();
}

bool TCDVBFSatPostCodeParser::t_Parse(const unsigned char* body, int length)
{
    TCDVBFSatPostCodeBlock* subtable = nullptr;
    const TCDVBFSatPostCodeBlock* other = nullptr;
    switch (m_tableIdExtension) {
    case 0: subtable = &m_tree; other = &m_region; break;
    case 1: subtable = &m_region; other = &m_tree; break;
    default: return false;
    }
    const bool complete = subtable->Parse(body, length, m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc,
                                          m_currentNextIndicator);
    return complete && other->IsValid();
}
