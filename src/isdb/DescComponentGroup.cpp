#include "DescComponentGroup.h"

#include <algorithm>

#include "../core/RecordAt.h"

unsigned char TCDescComponentGroup::ComponentGroup::CAUnit::ComponentTag(int index) const
{
    if (index < 0 || index >= m_numOfComponent || index >= m_tags.length)
        return 0;
    return m_tags.at[index];
}

const TCDescComponentGroup::ComponentGroup::CAUnit* TCDescComponentGroup::ComponentGroup::Unit(int index) const
{
    if (!m_units || index < 0 || index >= m_numOfCAUnit)
        return nullptr;
    return m_units + index;
}

bool TCDescComponentGroup::ComponentGroup::TextChar(char* buffer, int* size) const
{
    return zum_text::Copy(m_text, buffer, size);
}

TCDescComponentGroup::TCDescComponentGroup() : TCBaseDesc(0xD9) {}

TCDescComponentGroup::~TCDescComponentGroup()
{
    DeleteAll();
}

void TCDescComponentGroup::DeleteAll()
{
    m_componentGroupType = false;
    m_totalBitRateFlag = false;
    m_numOfGroup = 0;
    m_groups.clear();
    m_units.clear();
}

TCBaseDesc* TCDescComponentGroup::Fork() const
{
    return t_ForkAs(new TCDescComponentGroup());
}

const TCDescComponentGroup::ComponentGroup* TCDescComponentGroup::Group(int index) const
{
    return RecordAt(m_groups, index);
}

int TCDescComponentGroup::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length == 0)
        return 0;
    const unsigned char head = payload[0];
    m_componentGroupType = head >= 32;
    m_totalBitRateFlag = (head & 0x10) != 0;
    m_numOfGroup = head & 0x0F;
    m_groups.resize(static_cast<size_t>(m_numOfGroup));
    int position = 1;
    for (int i = 0; i < m_numOfGroup; ++i) {
        int consumed = 0;
        const bool whole = m_ParseGroup(m_groups[static_cast<size_t>(i)], payload + position, length - position,
                                        consumed);
        position += consumed;
        // The failed group stays countable with what it got.
        if (!whole) {
            m_numOfGroup = i + 1;
            m_groups.resize(static_cast<size_t>(m_numOfGroup));
            break;
        }
    }
    for (ComponentGroup& group : m_groups)
        group.m_units = m_units.empty() ? nullptr : m_units.data() + group.m_firstUnit;
    return position;
}

bool TCDescComponentGroup::m_ParseGroup(ComponentGroup& group, const unsigned char* data, int size, int& consumed)
{
    consumed = 0;
    if (size < 1)
        return false;
    group.m_componentGroupId = data[0] > 15;
    group.m_numOfCAUnit = data[0] & 0x0F;
    group.m_firstUnit = m_units.size();
    m_units.resize(group.m_firstUnit + static_cast<size_t>(group.m_numOfCAUnit));
    int position = 1;
    for (int i = 0; i < group.m_numOfCAUnit; ++i) {
        int used = 0;
        const bool whole = m_ParseUnit(m_units[group.m_firstUnit + static_cast<size_t>(i)], data + position,
                                       size - position, used);
        position += used;
        if (!whole) {
            group.m_numOfCAUnit = i + 1;
            m_units.resize(group.m_firstUnit + static_cast<size_t>(group.m_numOfCAUnit));
            consumed = position;
            return false;
        }
    }
    // The bit rate and the text length are read only where the descriptor holds them.
    if (m_totalBitRateFlag) {
        if (position >= size) {
            consumed = position;
            return false;
        }
        group.m_totalBitRate = data[position++];
    }
    if (position >= size) {
        consumed = position;
        return false;
    }
    group.m_textLength = data[position++];
    // A text that the descriptor cuts short keeps its declared length.
    group.m_text.at = data + position;
    group.m_text.length = std::min(group.m_textLength, size - position);
    consumed = position + group.m_text.length;
    return true;
}

bool TCDescComponentGroup::m_ParseUnit(ComponentGroup::CAUnit& unit, const unsigned char* data, int size, int& used)
{
    used = 0;
    if (size <= 0)
        return false;
    unit.m_caUnitId = std::min(data[0] >> 4, 2);
    unit.m_numOfComponent = data[0] & 0x0F;
    unit.m_tags.at = data + 1;
    unit.m_tags.length = std::min(unit.m_numOfComponent, size - 1);
    used = 1 + unit.m_tags.length;
    return true;
}
