#ifndef ZUM_ATSC_SVCTPARSERICM_H
#define ZUM_ATSC_SVCTPARSERICM_H

#include <map>
#include <memory>

#include "SVCTParserSubtype.h"

// Inverse channel map (subtype 2): from source id back to the virtual
// channel number, one record per running index.
class ZUM_EXPORT TCSVCTParserICM : public TCSVCTParserSubtype {
public:
    struct TTRecord {
        unsigned short index;
        unsigned short sourceId;
        unsigned short virtualChannelNumber;
    };

    ~TCSVCTParserICM() override;
    int t_Parse(const unsigned char* data, int* status) override;
    void DeleteAll() override;

    int RecordSize() const { return static_cast<int>(m_records.size()); }
    // In index order; null past the end.
    const TTRecord* Record(unsigned int position) const;
    // The record of this running index, or null.
    const TTRecord* RecordByIndex(int index) const;

private:
    std::map<int, std::unique_ptr<TTRecord>> m_records;
};

#endif
