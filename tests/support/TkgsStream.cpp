#include "support/TkgsStream.h"

#include <algorithm>

namespace zumtest {

namespace {

void Texts(ByteWriter& w, const std::vector<TkgsText>& texts)
{
    for (const TkgsText& t : texts)
        w.Text(t.first).U8(static_cast<unsigned>(t.second.size())).Text(t.second);
}

} // namespace

Bytes TkgsStreamBytes(const TkgsStream& stream)
{
    ByteWriter w;
    w.Begin16(16, 0);
    if (!stream.infoTexts.empty()) {
        w.U8(0x90).Begin8();
        Texts(w, stream.infoTexts);
        w.End();
    }
    if (stream.interfaceVersion >= 0)
        w.U8(0x91).U8(1).U8(static_cast<unsigned>(stream.interfaceVersion));
    w.End();

    w.Begin24().U8(2 + static_cast<unsigned>(stream.sourceData.size())).U8(stream.sourceTag).Begin8();
    w.Raw(stream.sourceData).End().Begin24();
    for (const TkgsTransport& t : stream.transports) {
        w.Begin8().Raw(t.delivery).End();
        for (const Bytes& sdt : t.sdts)
            w.Raw(sdt);
        w.Begin16(16, 0);
        for (const auto& pmt : t.pmts)
            w.U16(0xE000 | pmt.first).Raw(pmt.second);
        w.End();
    }
    w.End().End();

    w.Begin24();
    for (const TkgsServiceList& list : stream.lists) {
        w.Begin16(16, 0);
        for (const TkgsText& name : list.names) {
            w.U8(0x93).Begin8();
            Texts(w, {name});
            w.End();
        }
        for (const auto& number : list.numbers)
            w.U8(0x94).U8(4).U16(number.first).U16(0xE000 | number.second);
        w.End();
    }
    w.End();

    w.Begin16(16, 0).Raw(stream.categories).End();
    for (int i = 0; i < stream.trailer; ++i)
        w.U8(0xFF);
    return w.Data();
}

std::vector<Bytes> TkgsSections(const Bytes& stream, unsigned version, size_t chunk)
{
    const size_t count = std::max<size_t>(1, (stream.size() + chunk - 1) / chunk);
    std::vector<Bytes> sections;
    for (size_t i = 0; i < count; ++i) {
        SectionBuilder s(LongHeader(0xA7, 0x0001, version, static_cast<unsigned>(i),
                                    static_cast<unsigned>(count - 1)));
        const size_t from = std::min(stream.size(), i * chunk);
        s.Raw(Bytes(stream.begin() + static_cast<long>(from),
                    stream.begin() + static_cast<long>(std::min(stream.size(), from + chunk))));
        sections.push_back(s.Build());
    }
    return sections;
}

} // namespace zumtest
