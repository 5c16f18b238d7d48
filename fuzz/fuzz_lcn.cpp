// Private channel number table 0x85 over arbitrary sections, several in a row
// so that version and section tracking are exercised across inputs.

#include <cstddef>
#include <cstdint>

#include "FuzzSection.h"
#include "dvb/DVBLCNParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    TCDVBLCNParser lcn{ZUMHandle()};
    lcn.Initialize();
    zumfuzz::ForEachSection(data, size, 0x85, [&](const zumfuzz::ExactSection& section) {
        lcn.Parse(0x20, section.data());
        unsigned int sum = lcn.HeaderValue1() + lcn.HeaderValue2() + lcn.HeaderValue3();
        for (const auto& item : lcn.GetLCNInfo())
            sum += item.second.m_logicalChannelNumber + static_cast<unsigned int>(item.first.m_first);
        (void)sum;
        lcn.IsRecv();
    });
    return 0;
}
