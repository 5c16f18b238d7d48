#ifndef ZUM_ATSC_MGTPARSER_H
#define ZUM_ATSC_MGTPARSER_H

#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

// One table type of the master guide table: where it comes and which version it has.
class ZUM_EXPORT TCMGTTable : public TCDescriptorHashOwner {
public:
    explicit TCMGTTable(const ZUMHandle& handle) : m_handle(handle) {}

    // Returns the bytes the entry takes; `size` when it does not fit in them.
    int Parse(const unsigned char* data, int size);
    void DeleteAll();

    unsigned short TableType() const { return m_tableType; }
    unsigned short PID() const { return m_pid; }
    unsigned char Version() const { return m_version; }
    unsigned int NumberBytes() const { return m_numberBytes; }

private:
    ZUMHandle m_handle;
    unsigned short m_tableType = 0xFFFF;
    unsigned short m_pid = 0xFFFF;
    unsigned char m_version = 0xFF;
    unsigned int m_numberBytes = 0xFFFFFFFF;
};

// Master guide table (0xC7): the PID, version and size of every other PSIP
// table. Only the first section of a version is read.
class ZUM_EXPORT TCMGTParser : public TCSectionParser, public TCBaseSection, public TCDescriptorHashOwner {
public:
    explicit TCMGTParser(const ZUMHandle& handle);
    ~TCMGTParser() override;

    void DeleteAll() override;

    unsigned int NumOfTable() const { return static_cast<unsigned int>(m_tables.size()); }
    TCMGTTable* MGTTable(unsigned short tableType) const;
    // In ascending table type order.
    TCMGTTable* MGTTableOfIndex(unsigned int index) const;
    // Entries of the EIT (0x0100..0x017F) and ETT (0x0200..0x027F) types,
    // duplicates of a type included.
    unsigned int NumOfEIT() const { return m_eitCount; }
    unsigned int NumOfETT() const { return m_ettCount; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;
    bool t_CheckPSIPTable(unsigned char tableId) override;

private:
    std::vector<std::unique_ptr<TCMGTTable>>::const_iterator m_LowerBound(int tableType) const;

    unsigned int m_eitCount = 0;
    unsigned int m_ettCount = 0;
    // One entry a table type, in ascending order: a sorted list, one block
    // for a section's entries instead of a tree node each.
    std::vector<std::unique_ptr<TCMGTTable>> m_tables;
};

#endif
