#ifndef ZUM_LANG_FREQUENCYINFORMATIONPARSER_H
#define ZUM_LANG_FREQUENCYINFORMATIONPARSER_H

#include <list>
#include <memory>

#include "../core/Export.h"

// The frequency information block: a four-byte header with the data length,
// a 12-bit count of elements, the elements, and trailing bytes up to the end
// of the data. The format gives widths and order only, so the field names
// are positional.
class ZUM_EXPORT TCFrequencyInformationParser {
public:
    // 13 bytes: two 24-bit numbers, then seven single bytes.
    struct tagDetailInfomation {
        unsigned int first = 0;
        unsigned int second = 0;
        unsigned char field[7] = {};
    };

    // 5 bytes, then its details.
    struct tagSchedule {
        unsigned short firstWord = 0;
        unsigned char secondField = 0;
        unsigned short detailCount = 0;
        std::list<tagDetailInfomation> details;
    };

    // 8 bytes: two 24-bit numbers, then two single bytes.
    struct tagUnchange_transmitter {
        unsigned int first = 0;
        unsigned int second = 0;
        unsigned char third = 0;
        unsigned char fourth = 0;
    };

    // At least 12 bytes.
    struct tagFreqInfo {
        unsigned short firstWord = 0;
        unsigned short secondWord = 0;
        unsigned char thirdField = 0;
        unsigned short fourthField = 0;
        unsigned char fifthField = 0; // 4 bits
        std::list<unsigned char> bytes; // up to 15
        unsigned char scheduleCount = 0;
        std::list<tagSchedule> schedules;
        unsigned short transmitterCount = 0;
        std::list<tagUnchange_transmitter> transmitters;
        unsigned char privateLength = 0;
        std::unique_ptr<unsigned char[]> privateBytes; // null for length 0
    };

    TCFrequencyInformationParser() = default;
    ~TCFrequencyInformationParser();
    TCFrequencyInformationParser(const TCFrequencyInformationParser&) = delete;
    TCFrequencyInformationParser& operator=(const TCFrequencyInformationParser&) = delete;

    // 1 for a block read to its end, 0 otherwise; the elements read whole
    // before a shortage stay. A data length that leaves no room for the
    // count, or elements that run past it, is refused.
    int Parse(const unsigned char* data, unsigned int size);

    unsigned char HeaderByte0() const { return m_headerByte0; }
    unsigned short DataLength() const { return m_dataLength; }
    unsigned char HeaderByte3() const { return m_headerByte3; }
    const std::list<tagFreqInfo>& FreqInfoList() const { return m_freqInfo; }
    // Bytes behind the last element up to the end of the data; null when there are none.
    const unsigned char* TrailingBytes() const { return m_trailing.get(); }
    unsigned int TrailingLength() const { return m_trailingLength; }

private:
    void m_clearAllData();

    unsigned char m_headerByte0 = 0;
    unsigned short m_dataLength = 0;
    unsigned char m_headerByte3 = 0;
    std::list<tagFreqInfo> m_freqInfo;
    std::unique_ptr<unsigned char[]> m_trailing;
    unsigned int m_trailingLength = 0;
};

#endif
