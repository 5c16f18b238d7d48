#include "DVBTDTParser.h"

#include "DescLocalTimeOffset.h"

namespace {

// UTC_time: 16-bit MJD and six BCD digits.
const int kUtcTimeSize = 5;

} // namespace

TCDVBTDTParser::TCDVBTDTParser(const ZUMHandle& handle) : TCSectionParser(0x70, handle) {}

TCDVBTDTParser::~TCDVBTDTParser() = default;

void TCDVBTDTParser::DeleteAll() {}

void TCDVBTDTParser::t_Initialize() {}

bool TCDVBTDTParser::t_Parse(const unsigned char* body, int length)
{
    // The table is UTC_time and nothing else.
    if (length != kUtcTimeSize)
        return false;
    m_time = TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(body);
    return true;
}
