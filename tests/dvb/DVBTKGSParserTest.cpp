#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "dvb/DVBSDTParser.h"
#include "dvb/DVBTKGSParser.h"
#include "operators/DescTKGSComponent.h"
#include "psi/PMTParser.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"
#include "support/TkgsStream.h"

using zumtest::Bytes;
using zumtest::Desc;
using zumtest::TkgsStream;

namespace {

using Text16 = std::basic_string<unsigned short>;
using Names = std::map<ELanguageCode, Text16>;
using Numbers = std::map<unsigned int, unsigned short>;

Text16 U16(const std::u16string& s)
{
    return Text16(s.begin(), s.end());
}

const ELanguageCode kTur = ZumPackCode("tur");
const ELanguageCode kEng = ZumPackCode("eng");

Bytes Sdt(unsigned onid, unsigned tsid)
{
    zumtest::SectionBuilder s(zumtest::LongHeader(0x42, tsid, 1));
    s.U16(onid).U8(0xFF).U16(0x0101).U8(0xFD).Begin16(12, 0x8000).Descriptor(0x48, {1, 0, 2, 'T', 'V'}).End();
    return s.Build();
}

Bytes Pmt(unsigned program)
{
    zumtest::SectionBuilder s(zumtest::LongHeader(0x02, program, 2));
    s.U16(0xE100).Begin16().End().U8(0x1B).U16(0xE101).Begin16().End();
    return s.Build();
}

const Bytes kSatellite = Desc(0x43, {0x01, 0x19, 0x20, 0x00, 0x00, 0x42, 0x81, 0x02, 0x75, 0x00, 0x03});

// Two transports of three services, two lists, one category label.
TkgsStream LineUp()
{
    TkgsStream s;
    s.infoTexts = {{"TUR", "\x05TKGS"}, {"eng", "TKGS"}};
    s.sourceData = {0x01, 0x02};
    s.transports = {{kSatellite, {Sdt(1, 0x100)}, {{1, Pmt(0x101)}, {2, Pmt(0x102)}}},
                    {kSatellite, {Sdt(1, 0x200)}, {{3, Pmt(0x201)}}}};
    s.lists = {{{{"tur", "\x05Ulusal"}, {"ENG", "National"}}, {{1, 1}, {2, 2}, {3, 3}}},
               {{{"tur", "Haber"}}, {{10, 3}}}};
    s.categories = Desc(0x92, {0xF0, 0x05, 't', 'u', 'r', 5, 'H', 'a', 'b', 'e', 'r'});
    return s;
}

// Feeds the sections in the given order; the result of the last one.
bool Feed(TCDVBTKGSParser& p, const std::vector<Bytes>& sections, const std::vector<int>& order)
{
    bool last = false;
    for (int i : order)
        last = p.Parse(0x1FF0, sections[static_cast<size_t>(i)].data());
    return last;
}

zum_platform::BinderSettings Turkey()
{
    zum_platform::BinderSettings b;
    b.countryCode = ZumPackCode("TUR");
    b.country = ECOUNTRY_TURKEY;
    b.privateDataSpecifier = 0x011FFFFF;
    return b;
}

} // namespace

TEST(DVBTKGSParser, LineUpFromSectionsInAnyOrder)
{
    zumtest::BinderScope binder(Turkey());
    const std::vector<Bytes> sections = zumtest::TkgsSections(zumtest::TkgsStreamBytes(LineUp()), 4, 40);
    ASSERT_GE(sections.size(), 3u);
    std::vector<int> forward(sections.size()), shuffled;
    for (size_t i = 0; i < forward.size(); ++i)
        forward[i] = static_cast<int>(i);
    shuffled = forward;
    std::rotate(shuffled.begin(), shuffled.end() - 1, shuffled.end());

    for (const auto& order : {forward, shuffled}) {
        TCDVBTKGSParser p{ZUMHandle()};
        p.Initialize();
        EXPECT_EQ(p.NumOfDescriptors(), 0);
        // Only the section that completes the stream answers true.
        EXPECT_FALSE(Feed(p, sections, std::vector<int>(order.begin(), order.end() - 1)));
        EXPECT_EQ(p.NumOfServiceLists(), 0u);
        EXPECT_TRUE(Feed(p, sections, {order.back()}));
        EXPECT_TRUE(p.IsComplete());
        EXPECT_EQ(p.InterfaceVersion(), 17u);
        EXPECT_EQ(p.InfoTexts(), (Names{{kTur, U16(u"TKGS")}, {kEng, U16(u"TKGS")}}));

        const std::tuple<unsigned, unsigned, unsigned, unsigned> keys[] = {
            {1, 0x100, 0x101, 0}, {2, 0x100, 0x102, 0}, {3, 0x200, 0x201, 1}};
        for (const auto& k : keys) {
            TCServiceKey key;
            ASSERT_TRUE(p.GetServiceKey(std::get<0>(k), key));
            EXPECT_EQ(key, TCServiceKey(1, std::get<1>(k), std::get<2>(k)));
            unsigned int index = 99;
            EXPECT_TRUE(p.GetDeliverySystemIndex(std::get<0>(k), index));
            EXPECT_EQ(index, std::get<3>(k));
            EXPECT_EQ(p.DescriptorByIndex(index)->Tag(), 0x43);
        }
        TCServiceKey key;
        unsigned int index = 99;
        EXPECT_FALSE(p.GetServiceKey(4, key));
        EXPECT_FALSE(p.GetDeliverySystemIndex(4, index));
        EXPECT_EQ(index, 99u);
        EXPECT_EQ(p.ServicesBySource().at(EANTENNA_MODE_SATELLITE), (std::vector<unsigned int>{1, 2, 3}));
        EXPECT_EQ(p.SDTParser()->NumOfDVBSDTInstance(), 2);
        EXPECT_EQ(p.PMTParser()->NumOfPMTInstance(), 3);

        Names names;
        Numbers numbers;
        ASSERT_EQ(p.NumOfServiceLists(), 2u);
        EXPECT_TRUE(p.GetServiceListTranslationByIndex(0, names));
        EXPECT_EQ(names, (Names{{kTur, U16(u"Ulusal")}, {kEng, U16(u"National")}}));
        EXPECT_TRUE(p.GetServicLcnByIndex(1, numbers));
        EXPECT_EQ(numbers, (Numbers{{3, 10}}));
        EXPECT_FALSE(p.GetServicLcnByIndex(2, numbers));
        EXPECT_FALSE(p.GetServiceListTranslationByIndex(2, names));

        const auto* label = dynamic_cast<TCDescTKGSMultilingualCategoryLabel*>(p.Descriptor(0x92, 0));
        ASSERT_NE(label, nullptr);
        Text16 name;
        EXPECT_TRUE(label->GetCategoryName(kTur, name));
        EXPECT_EQ(name, U16(u"Haber"));

        // A repeated section of the joined version is ignored.
        EXPECT_FALSE(Feed(p, sections, {0}));
        EXPECT_EQ(p.LastCheck(), TABLE_SAME);
        EXPECT_EQ(p.NumOfServiceLists(), 2u);
    }
}

TEST(DVBTKGSParser, StreamFaults)
{
    zumtest::BinderScope binder(Turkey());
    const std::string kHead = "TCDVBTKGSParser::m_Parse  ";
    const std::string kInfo = kHead + "Fail to parse TKGS Info section";
    const std::string kSource = kHead + "Fail to parse Broadcast Source section";
    const std::string kLists = kHead + "Fail to parse Service List section";
    const std::string kCategory = kHead + "Fail to parse Category section";
    using Change = std::function<void(TkgsStream&)>;
    using Patch = std::function<void(Bytes&)>;
    // The first byte of `pattern` in the stream.
    const auto at = [](Bytes& b, const Bytes& pattern) {
        return static_cast<size_t>(std::search(b.begin(), b.end(), pattern.begin(), pattern.end()) - b.begin());
    };
    const Bytes haber = {0x93, 0x09, 't', 'u', 'r', 5};
    const auto sourceAt = [](Bytes& b) { return 2u + (b[0] << 8 | b[1]); };
    struct Case {
        const char* name;
        Change change;
        Patch patch;
        std::string error; // empty: no error line
        bool complete;
        unsigned keys, lists, index1; // what stands afterwards; index1 of service 1
    };
    const unsigned kNone = TCDVBTKGSParser::NO_DELIVERY_INDEX;
    const Case cases[] = {
        {"no interface version", [](TkgsStream& s) { s.interfaceVersion = -1; }, nullptr,
         kHead + "Wrong interface version supported:17, current:0", false, 0, 0, kNone},
        {"version 18", [](TkgsStream& s) { s.interfaceVersion = 18; }, nullptr,
         kHead + "Wrong interface version supported:17, current:18", false, 0, 0, kNone},
        {"info past the stream", nullptr, [](Bytes& b) { b[0] = 0xFF; }, kInfo, false, 0, 0, kNone},
        {"source block length 0", nullptr,
         [&](Bytes& b) { b[sourceAt(b)] = 0xF0, b[sourceAt(b) + 1] = b[sourceAt(b) + 2] = 0; }, kSource, false, 0, 0,
         kNone},
        {"source tag unknown", [](TkgsStream& s) { s.sourceTag = 0xA3; }, nullptr, kSource, false, 0, 0, kNone},
        {"transports past their block", nullptr, [&](Bytes& b) { b[sourceAt(b) + 8] = 0x0F; }, kSource, false, 0, 0,
         kNone},
        {"PMT past the stream", nullptr,
         [&](Bytes& b) { b[at(b, {0xE0, 0x03, 0x02}) + 3] = 0x3F; }, kSource, false, 2, 0, 0},
        {"two delivery descriptors", [](TkgsStream& s) { s.transports[0].delivery = zumtest::Concat({kSatellite, kSatellite}); },
         nullptr, "", true, 3, 2, kNone},
        {"no lists", [](TkgsStream& s) { s.lists.clear(); }, nullptr, "", true, 3, 0, 0},
        {"list past its block", nullptr, [&](Bytes& b) { b[at(b, haber) - 2] = 0x7F; }, kLists, false, 3, 2, 0},
        {"name of 3 bytes", nullptr, [&](Bytes& b) { b[at(b, haber) + 1] = 3; }, kLists, false, 3, 2, 0},
        {"number of 3 bytes", nullptr, [&](Bytes& b) { b[at(b, {0x94, 4, 0, 10}) + 1] = 3; }, kLists, false, 3, 2, 0},
        {"category past the stream", nullptr, [](Bytes& b) { b[b.size() - 2 - 13 - 2] = 0x7F; }, kCategory, false, 3, 2,
         0},
        {"spare byte too many", [](TkgsStream& s) { s.trailer = 3; }, nullptr, "", false, 3, 2, 0},
        {"spare byte too few", [](TkgsStream& s) { s.trailer = 1; }, nullptr, "", false, 3, 2, 0},
    };
    for (const Case& c : cases) {
        TkgsStream s = LineUp();
        if (c.change)
            c.change(s);
        Bytes bytes = zumtest::TkgsStreamBytes(s);
        if (c.patch)
            c.patch(bytes);
        zumtest::LogCapture log;
        TCDVBTKGSParser p{ZUMHandle()};
        EXPECT_EQ(p.Parse(0x1FF0, zumtest::TkgsSections(bytes, 0, 4000)[0].data()), c.complete) << c.name;
        EXPECT_EQ(p.IsComplete(), c.complete) << c.name;
        EXPECT_EQ(log.Lines(6), c.error.empty() ? std::vector<std::string>{} : std::vector<std::string>{c.error})
            << c.name;
        EXPECT_EQ(p.ServiceKeys().size(), c.keys) << c.name;
        EXPECT_EQ(p.NumOfServiceLists(), c.lists) << c.name;
        unsigned int index = 7;
        EXPECT_EQ(p.GetDeliverySystemIndex(1, index), c.keys > 0 && c.index1 != kNone) << c.name;
        EXPECT_EQ(index, c.keys > 0 ? c.index1 : 7u) << c.name;
    }
}

TEST(DVBTKGSParser, SectionTracking)
{
    zumtest::BinderScope binder(Turkey());
    const std::vector<Bytes> v1 = zumtest::TkgsSections(zumtest::TkgsStreamBytes(LineUp()), 1, 60);
    TkgsStream second = LineUp();
    second.lists.pop_back();
    const std::vector<Bytes> v2 = zumtest::TkgsSections(zumtest::TkgsStreamBytes(second), 2, 60);
    ASSERT_GE(v1.size(), 3u);

    TCDVBTKGSParser p{ZUMHandle()};
    // A missing section: nothing is joined.
    EXPECT_FALSE(Feed(p, v1, {0, 2}));
    EXPECT_EQ(p.LastCheck(), TABLE_ADD);
    EXPECT_EQ(p.NumOfDescriptors(), 0);
    // The version changes mid-stream: what was collected of version 1 is gone.
    EXPECT_FALSE(Feed(p, v2, {1}));
    EXPECT_EQ(p.LastCheck(), TABLE_CHANGED);
    std::vector<int> rest;
    for (int i = 0; i < static_cast<int>(v2.size()); ++i)
        if (i != 1)
            rest.push_back(i);
    EXPECT_TRUE(Feed(p, v2, rest));
    EXPECT_EQ(p.NumOfServiceLists(), 1u);
    // Version 1 again, whole: it replaces version 2 once its last section is in.
    EXPECT_FALSE(Feed(p, v1, {0}));
    EXPECT_EQ(p.NumOfServiceLists(), 0u);
    EXPECT_EQ(p.InterfaceVersion(), 17u);
    std::vector<int> all(v1.size());
    for (size_t i = 0; i < all.size(); ++i)
        all[i] = static_cast<int>(i);
    EXPECT_TRUE(Feed(p, v1, all));
    EXPECT_EQ(p.NumOfServiceLists(), 2u);
    p.DeleteAll();
    EXPECT_EQ(p.NumOfDescriptors(), 0);
    EXPECT_EQ(p.ServiceKeys().size(), 0u);
}
