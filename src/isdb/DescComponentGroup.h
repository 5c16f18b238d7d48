#ifndef ZUM_ISDB_DESCCOMPONENTGROUP_H
#define ZUM_ISDB_DESCCOMPONENTGROUP_H

#include <vector>

#include "../core/BaseDesc.h"
#include "../dvb/DescText.h"

// component_group_descriptor of ARIB (0xD9): the groups of components of a
// multi-view event, each with its CA units, bit rate and raw text.
class ZUM_EXPORT TCDescComponentGroup : public TCBaseDesc {
public:
    class ZUM_EXPORT ComponentGroup {
    public:
        class ZUM_EXPORT CAUnit {
        public:
            // 0, 1, or 2 for every higher id.
            int CAUnitId() const { return m_caUnitId; }
            int NumOfComponent() const { return m_numOfComponent; }
            // 0 for an index outside the list or a tag the descriptor did not hold.
            unsigned char ComponentTag(int index) const;

        private:
            friend class TCDescComponentGroup;
            int m_caUnitId = 0;
            int m_numOfComponent = 0;
            zum_text::TTText m_tags;
        };

        // Whether the 4-bit id is not 0.
        bool ComponentGroupId() const { return m_componentGroupId; }
        int NumOfCAUnit() const { return m_numOfCAUnit; }
        // Owned by the descriptor; null for an index outside the list.
        const CAUnit* Unit(int index) const;
        unsigned char TotalBitRate() const { return m_totalBitRate; }
        // The length as the stream gives it, also for a text that the descriptor cuts short.
        int TextLength() const { return m_textLength; }
        // Text copy of the bytes that the descriptor holds.
        bool TextChar(char* buffer, int* size) const;

    private:
        friend class TCDescComponentGroup;
        bool m_componentGroupId = false;
        int m_numOfCAUnit = 0;
        size_t m_firstUnit = 0;
        const CAUnit* m_units = nullptr;
        unsigned char m_totalBitRate = 0;
        int m_textLength = 0;
        zum_text::TTText m_text;
    };

    TCDescComponentGroup();
    ~TCDescComponentGroup() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // Whether the 3-bit type is not 0.
    bool ComponentGroupType() const { return m_componentGroupType; }
    bool TotalBitRateFlag() const { return m_totalBitRateFlag; }
    int NumOfGroup() const { return m_numOfGroup; }
    // Owned by the descriptor; null for an index outside the list.
    const ComponentGroup* Group(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    bool m_ParseGroup(ComponentGroup& group, const unsigned char* data, int size, int& consumed);
    bool m_ParseUnit(ComponentGroup::CAUnit& unit, const unsigned char* data, int size, int& used);

    bool m_componentGroupType = false;
    bool m_totalBitRateFlag = false;
    int m_numOfGroup = 0;
    std::vector<ComponentGroup> m_groups;
    // The units of all groups, in order; each group points at its own.
    std::vector<ComponentGroup::CAUnit> m_units;
};

#endif
