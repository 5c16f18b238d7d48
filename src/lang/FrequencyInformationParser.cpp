#include "FrequencyInformationParser.h"

#include "TableDataBytes.h"

namespace {

using Parser = TCFrequencyInformationParser;

// Header (4 bytes) and the element count (2 bytes).
const unsigned int kHeaderSize = 6;
// The data length counts from behind the first four bytes.
const unsigned int kDataStart = 4;

// One element; false, leaving `element` for the caller to drop, on any shortage.
bool ReadElement(TCByteReader& reader, Parser::tagFreqInfo& element)
{
    element.firstWord = static_cast<unsigned short>(reader.U16());
    element.secondWord = static_cast<unsigned short>(reader.U16());
    element.thirdField = static_cast<unsigned char>(reader.U8());
    element.fourthField = static_cast<unsigned short>(reader.U16());
    const unsigned int fifthAndCount = reader.U8();
    element.fifthField = static_cast<unsigned char>(fifthAndCount >> 4);
    const unsigned int byteCount = fifthAndCount & 0x0F;
    // The byte list and the smallest tail behind it: 12 bytes for an empty list.
    if (reader.IsShort() || !reader.Has(static_cast<int>(byteCount) + 4))
        return false;
    for (unsigned int i = 0; i < byteCount; ++i)
        element.bytes.push_back(static_cast<unsigned char>(reader.U8()));

    element.scheduleCount = static_cast<unsigned char>(reader.U8());
    for (unsigned int s = 0; s < element.scheduleCount; ++s) {
        Parser::tagSchedule schedule;
        schedule.firstWord = static_cast<unsigned short>(reader.U16());
        schedule.secondField = static_cast<unsigned char>(reader.U8());
        schedule.detailCount = static_cast<unsigned short>(reader.U16());
        if (reader.IsShort())
            return false;
        for (unsigned int d = 0; d < schedule.detailCount; ++d) {
            if (!reader.Has(13))
                return false;
            Parser::tagDetailInfomation detail;
            detail.first = reader.U24();
            detail.second = reader.U24();
            for (unsigned char& field : detail.field)
                field = static_cast<unsigned char>(reader.U8());
            schedule.details.push_back(detail);
        }
        element.schedules.push_back(std::move(schedule));
    }

    element.transmitterCount = static_cast<unsigned short>(reader.U16());
    for (unsigned int t = 0; t < element.transmitterCount; ++t) {
        if (!reader.Has(8))
            return false;
        Parser::tagUnchange_transmitter transmitter;
        transmitter.first = reader.U24();
        transmitter.second = reader.U24();
        transmitter.third = static_cast<unsigned char>(reader.U8());
        transmitter.fourth = static_cast<unsigned char>(reader.U8());
        element.transmitters.push_back(transmitter);
    }

    element.privateLength = static_cast<unsigned char>(reader.U8());
    return !reader.IsShort() && zumtabledata::TakeBytes(reader, element.privateLength, element.privateBytes);
}

} // namespace

TCFrequencyInformationParser::~TCFrequencyInformationParser()
{
    m_clearAllData();
}

void TCFrequencyInformationParser::m_clearAllData()
{
    m_freqInfo.clear();
    m_trailing.reset();
    m_trailingLength = 0;
}

int TCFrequencyInformationParser::Parse(const unsigned char* data, unsigned int size)
{
    m_clearAllData();
    if (data == nullptr || size < kHeaderSize)
        return 0;
    TCByteReader reader = zumtabledata::BlockReader(data, size);
    m_headerByte0 = static_cast<unsigned char>(reader.U8());
    m_dataLength = static_cast<unsigned short>(reader.U16());
    m_headerByte3 = static_cast<unsigned char>(reader.U8());
    const unsigned int count = reader.U16() & 0x0FFF;

    for (unsigned int i = 0; i < count; ++i) {
        tagFreqInfo element;
        if (!ReadElement(reader, element))
            return 0;
        m_freqInfo.push_back(std::move(element));
    }

    const unsigned int end = kDataStart + m_dataLength;
    const unsigned int position = static_cast<unsigned int>(reader.Consumed());
    if (size < end || position > end)
        return 0;
    if (position < end) {
        m_trailingLength = end - position;
        m_trailing.reset(new unsigned char[m_trailingLength]);
        std::memcpy(m_trailing.get(), reader.Here(), m_trailingLength);
    }
    return 1;
}
