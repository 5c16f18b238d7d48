#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "AtscCapture.h"
#include "atsc/MGTParser.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

struct Table {
    unsigned type, pid, version, bytes;
    Bytes descriptors = {};
    int descriptorsLength = -1; // forced length field; -1 for the real one
};

Bytes Mgt(unsigned version, const std::vector<Table>& tables, const Bytes& descriptors = {}, unsigned section = 0,
          unsigned last = 0, int descriptorsLength = -1)
{
    zumtest::SectionHeader header = zumtest::LongHeader(0xC7, 0, version, section, last);
    header.protocolVersion = 0;
    zumtest::SectionBuilder b(header);
    b.U16(static_cast<unsigned>(tables.size()));
    for (const Table& t : tables) {
        b.U16(t.type).U16(0xE000 | t.pid).U8(0xE0 | t.version).U32(t.bytes);
        if (t.descriptorsLength >= 0)
            b.U16(0xF000 | static_cast<unsigned>(t.descriptorsLength)).Raw(t.descriptors);
        else
            b.Begin16(12, 0xF000).Raw(t.descriptors).End();
    }
    if (descriptorsLength >= 0)
        b.U16(0xF000 | static_cast<unsigned>(descriptorsLength)).Raw(descriptors);
    else
        b.Begin16(12, 0xF000).Raw(descriptors).End();
    return b.Build();
}

// tables_defined says 2, one entry follows.
Bytes TwoClaimedOneSent()
{
    Bytes s = Mgt(0, {{0x0000, 0x1FFB, 0, 0}});
    s[10] = 2;
    return s;
}

std::vector<unsigned> Types(const TCMGTParser& mgt)
{
    std::vector<unsigned> types;
    for (unsigned i = 0; i < mgt.NumOfTable(); ++i)
        types.push_back(mgt.MGTTableOfIndex(i)->TableType());
    return types;
}

zum_platform::BinderSettings Usa()
{
    zum_platform::BinderSettings s;
    s.countryCode = ZumPackCode("USA");
    return s;
}

} // namespace

TEST(MGTParser, TablesInTypeOrderWithCountersAndDescriptors)
{
    zumtest::BinderScope binder(Usa());
    TCMGTParser mgt(ZUMHandle{});
    mgt.Initialize();
    const std::vector<Table> tables = {
        {0x0100, 0x1D00, 3, 1000, Desc(0xB0, {1, 2})},
        {0x0000, 0x1FFB, 31, 0xFFFFFFFF},
        {0x0100, 0x1234, 4, 5},
        {0x017F, 0x1D7F, 0, 0},
        {0x0180, 0x1D80, 0, 0},
        {0x0200, 0x1E00, 0, 0},
        {0x027F, 0x1E7F, 0, 0},
        {0x0280, 0x1E80, 0, 0},
    };
    EXPECT_TRUE(mgt.Parse(0x1FFB, Mgt(7, tables, Desc(0xA0, {0})).data()));
    EXPECT_EQ(Types(mgt), (std::vector<unsigned>{0x0000, 0x0100, 0x017F, 0x0180, 0x0200, 0x027F, 0x0280}));
    EXPECT_EQ(std::make_tuple(mgt.NumOfEIT(), mgt.NumOfETT()), std::make_tuple(3u, 2u));
    // The first entry of a repeated type stays.
    const TCMGTTable* eit0 = mgt.MGTTable(0x0100);
    ASSERT_NE(eit0, nullptr);
    EXPECT_EQ(std::make_tuple(eit0->PID(), eit0->Version(), eit0->NumberBytes(), eit0->NumOfDescriptors(0xB0)),
              std::make_tuple(0x1D00, 3, 1000u, 1));
    EXPECT_EQ(eit0->DescriptorByIndex(0)->TableId(), 0xC7);
    const TCMGTTable* vct = mgt.MGTTable(0x0000);
    EXPECT_EQ(std::make_tuple(vct->PID(), vct->Version(), vct->NumberBytes()),
              std::make_tuple(0x1FFB, 31, 0xFFFFFFFFu));
    EXPECT_EQ(mgt.MGTTable(0x0003), nullptr);
    EXPECT_EQ(mgt.MGTTableOfIndex(7), nullptr);
    EXPECT_EQ(mgt.NumOfDescriptors(0xA0), 1);

    // Empty table list.
    mgt.Initialize();
    EXPECT_TRUE(mgt.Parse(0x1FFB, Mgt(0, {}).data()));
    EXPECT_EQ(mgt.NumOfTable(), 0u);
    EXPECT_EQ(mgt.NumOfDescriptors(), 0);
}

TEST(MGTParser, OnlyTheFirstSectionOfAVersionIsRead)
{
    zumtest::BinderScope binder(Usa());
    zumtest::LogCapture log;
    TCMGTParser mgt(ZUMHandle{});
    mgt.Initialize();
    struct Step { Bytes section; bool result; std::vector<unsigned> types; } steps[] = {
        {Mgt(1, {{0x0000, 0x1FFB, 1, 0}}, {}, 0, 1), true, {0x0000}},
        {Mgt(1, {{0x0000, 0x1FFB, 1, 0}}, {}, 0, 1), false, {0x0000}},
        {Mgt(1, {{0x0004, 0x1D00, 1, 0}}, {}, 1, 1), false, {0x0000}},
        {Mgt(2, {{0x0004, 0x1D00, 1, 0}}), true, {0x0004}},
        {Mgt(2, {{0x0001, 0x1D00, 1, 0}}, {}, 2, 1), false, {0x0004}},
    };
    for (const Step& s : steps) {
        SCOPED_TRACE(&s - steps);
        EXPECT_EQ(mgt.Parse(0x1FFB, s.section.data()), s.result);
        EXPECT_EQ(Types(mgt), s.types);
    }
    EXPECT_EQ(log.Count("MGT Section Ignored... "), 1);
    EXPECT_EQ(log.Count("TABLE_IGNORE :: sectionNum > lastSectionNum "), 1);
}

TEST(MGTParser, MalformedEntriesEndTheSectionAndKeepEarlierOnes)
{
    zumtest::BinderScope binder(Usa());
    struct Case {
        const char* name;
        Bytes section;
        bool result;
        unsigned tables;
        std::vector<std::string> log;
    } cases[] = {
        {"entry descriptors run over",
         Mgt(0, {{0x0000, 0x1FFB, 0, 0}, {0x0001, 0x1FFB, 0, 0, {}, 0xFFF}}), false, 1,
         {"MGT Descriptor Parsing error total size = 17 , parsed len = 4106",
          "TCMGTParser::t_Parse error... parsed len = 28 , total size = 30"}},
        {"entry descriptors one byte too long",
         Mgt(0, {{0x0000, 0x1FFB, 0, 0, {}, 7}}), false, 0,
         {"MGT Descriptor Parsing error total size = 17 , parsed len = 18",
          "TCMGTParser::t_Parse error... parsed len = 17 , total size = 19"}},
        {"more entries than bytes", TwoClaimedOneSent(),
         false, 1,
         {"MGT Descriptor Parsing error total size = 6 , parsed len = 11",
          "TCMGTParser::t_Parse error... parsed len = 17 , total size = 19"}},
        {"table descriptors run over", Mgt(0, {{0x0000, 0x1FFB, 0, 0}}, {}, 0, 0, 0xFFF), false, 1,
         {"TCMGTParser::Descriptor parsing error... parsed len = 11 , total size = 19"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        TCMGTParser mgt(ZUMHandle{});
        mgt.Initialize();
        EXPECT_EQ(mgt.Parse(0x1FFB, c.section.data()), c.result);
        EXPECT_EQ(mgt.NumOfTable(), c.tables);
        EXPECT_EQ(log.Lines(), c.log);
    }
}

TEST(MGTParser, RealCapture)
{
    const std::vector<Bytes> sections = atsctest::CaptureSections(0xC7);
    if (sections.empty())
        GTEST_SKIP() << "captures not available";
    zumtest::BinderScope binder(Usa());
    TCMGTParser mgt(ZUMHandle{});
    mgt.Initialize();
    for (const Bytes& section : sections)
        EXPECT_TRUE(mgt.Parse(0x1FFB, section.data()));
    EXPECT_EQ(mgt.NumOfTable(), 11u);
    const TCMGTTable* tvct = mgt.MGTTable(0x0000);
    ASSERT_NE(tvct, nullptr);
    EXPECT_EQ(std::make_tuple(tvct->PID(), tvct->Version(), tvct->NumberBytes()), std::make_tuple(0x1FFB, 11, 0xDAu));
    EXPECT_EQ(mgt.NumOfEIT(), 4u);
    EXPECT_EQ(mgt.NumOfETT(), 4u);
}
