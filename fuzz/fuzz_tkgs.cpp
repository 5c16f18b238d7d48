// The TKGS table 0xA7: arbitrary sections (first byte odd), or the input as
// one long stream that is cut into sections (first byte even), fed out of
// order, with a section missing or a version change mid-stream as the second
// byte says. Every section sits in an exactly-sized buffer; every accessor is
// read after each one.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <list>
#include <map>
#include <memory>
#include <vector>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "ReadDescFields.h"
#include "dvb/DVBSDTParser.h"
#include "dvb/DVBTKGSParser.h"
#include "psi/PMTParser.h"

namespace {

void ReadAll(const TCDVBTKGSParser& p)
{
    for (unsigned int id : {0u, 1u, 2u, 3u, 0x1FFFu}) {
        TCServiceKey key;
        unsigned int index = 0;
        fuzzfields::Take(p.GetServiceKey(id, key) + key.m_serviceId);
        if (p.GetDeliverySystemIndex(id, index) && p.DescriptorByIndex(index))
            fuzzfields::Read(p.DescriptorByIndex(index));
    }
    std::map<ELanguageCode, TCDVBTKGSParser::TTText> names;
    std::map<unsigned int, unsigned short> numbers;
    for (unsigned int i = 0; i <= p.NumOfServiceLists(); ++i)
        fuzzfields::Take(p.GetServiceListTranslationByIndex(i, names) + p.GetServicLcnByIndex(i, numbers));
    for (int i = 0; i <= p.NumOfDescriptors(); ++i)
        if (TCBaseDesc* d = p.DescriptorByIndex(static_cast<unsigned int>(i)))
            fuzzfields::Read(d);
    std::list<TCBaseDesc*> clones;
    p.GetDescriptor(&clones);
    for (TCBaseDesc* clone : clones)
        delete clone;
    fuzzfields::Take(p.InterfaceVersion() + p.InfoTexts().size() + p.ServicesBySource().size() + p.IsComplete() +
                     static_cast<unsigned>(p.LastCheck()) + static_cast<unsigned>(p.NumOfDescriptors(0x92)));
    if (p.SDTParser())
        fuzzfields::Take(static_cast<unsigned>(p.SDTParser()->NumOfDVBSDTInstance()));
    if (p.PMTParser())
        fuzzfields::Take(static_cast<unsigned>(p.PMTParser()->NumOfPMTInstance()));
}

// One section of the stream, `body` bytes behind the header, in an exact buffer.
std::unique_ptr<uint8_t[]> Section(const uint8_t* body, size_t size, unsigned version, unsigned number, unsigned last)
{
    const size_t length = size + 5 + 4;
    std::unique_ptr<uint8_t[]> s(new uint8_t[length + 3]);
    const uint8_t header[] = {0xA7,
                              static_cast<uint8_t>(0xB0 | (length >> 8)),
                              static_cast<uint8_t>(length),
                              0x00,
                              0x01,
                              static_cast<uint8_t>(0xC1 | (version << 1)),
                              static_cast<uint8_t>(number),
                              static_cast<uint8_t>(last)};
    std::memcpy(s.get(), header, sizeof header);
    if (size)
        std::memcpy(s.get() + 8, body, size);
    // The closing four bytes are the section's fingerprint: unique per section and version.
    const uint8_t fingerprint[] = {static_cast<uint8_t>(version), static_cast<uint8_t>(number), 0x5A, 0xA5};
    std::memcpy(s.get() + 8 + size, fingerprint, 4);
    return s;
}

void Stream(TCDVBTKGSParser& p, uint8_t mode, const uint8_t* data, size_t size)
{
    const size_t chunk = 16 + (mode & 0x0F) * 64;
    const size_t count = std::min<size_t>(256, std::max<size_t>(1, (size + chunk - 1) / chunk));
    std::vector<unsigned> order(count);
    for (unsigned i = 0; i < count; ++i)
        order[i] = i;
    if (mode & 0x10)
        std::reverse(order.begin(), order.end());
    if (mode & 0x20)
        std::rotate(order.begin(), order.begin() + count / 2, order.end());
    // A missing section, or the version moving on at the middle section.
    const unsigned skip = (mode & 0x40) ? order[count / 2] : 0xFFFF;
    for (unsigned n = 0; n < count; ++n) {
        const unsigned i = order[n];
        if (i == skip)
            continue;
        const unsigned version = (mode & 0x80) && n >= count / 2 ? 1 : 0;
        const size_t from = std::min(size, i * chunk);
        const std::unique_ptr<uint8_t[]> s =
            Section(data + from, std::min(chunk, size - from), version, i, static_cast<unsigned>(count - 1));
        p.Parse(0x1FF0, s.get());
        ReadAll(p);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
        return 0;
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode("TUR");
    settings.country = ECOUNTRY_TURKEY;
    settings.privateDataSpecifier = (data[0] & 2) ? 0x011FFFFF : 0;
    zum_platform::SetBinder(settings);

    TCDVBTKGSParser p{ZUMHandle()};
    p.Initialize();
    if (data[0] & 1)
        zumfuzz::ForEachSection(data + 2, size - 2, 0xA7, [&p](const zumfuzz::ExactSection& section) {
            p.Parse(0x1FF0, section.data());
            ReadAll(p);
        });
    else
        Stream(p, data[1], data + 2, size - 2);
    if (data[0] & 4)
        p.DeleteAll();
    ReadAll(p);
    return 0;
}
