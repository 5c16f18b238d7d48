#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/DescConfBase.h"
#include "core/Descriptor.h"
#include "dvb/DescContent.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

constexpr unsigned int kNone = 0xFFFFFFFF;
using Lines = std::vector<std::string>;

// Tag 0x54 made as a class that is neither the content class nor a plain default one.
struct NotContent : TCDescDefault { NotContent() : TCDescDefault(0x54) {} };

// The DVB loop with its real factories, seen from outside: records the specifier each factory
// call was given, keeps what the factory would skip, and can answer tag 0x54 with NotContent.
class RecordingDVB : public TCDescriptorDVB {
public:
    RecordingDVB() : TCDescriptorDVB(ZUMHandle(5, 6, 7)) {}
    std::vector<unsigned int> made;
    bool foreignContent = false;

protected:
    struct Conf : TCDescConfBase {
        Conf(TCDescConfBase* real, RecordingDVB& loop) : real(real), loop(loop) {}
        TCBaseDesc* NewDescriptor(int tag, const unsigned char* data, unsigned int pds) override
        {
            loop.made.push_back(pds);
            if (tag == 0x54 && loop.foreignContent)
                return new NotContent();
            TCBaseDesc* d = real->NewDescriptor(tag, data, pds);
            return d ? d : new TCDescDefault(tag);
        }
        std::unique_ptr<TCDescConfBase> real;
        RecordingDVB& loop;
    };
    TCDescConfBase* t_GetDescConf(unsigned char tableId) override
    {
        TCDescConfBase* real = TCDescriptorDVB::t_GetDescConf(tableId);
        return real ? new Conf(real, *this) : nullptr;
    }
};

std::vector<int> Tags(const TCDescriptorHash& hash)
{
    std::vector<int> tags;
    for (int i = 0; i < hash.NumOfDescriptors(); ++i)
        tags.push_back(hash.DescriptorByIndex(static_cast<unsigned>(i))->Tag());
    return tags;
}

Bytes Pds(unsigned int v) { return Desc(0x5F, {uint8_t(v >> 24), uint8_t(v >> 16), uint8_t(v >> 8), uint8_t(v)}); }

template <class Loop>
int ParseLoop(Loop& loop, const Bytes& bytes, TCDescriptorHash& hash, unsigned char tableId = 0x40)
{
    return loop.Parse(bytes.data(), static_cast<int>(bytes.size()), hash, tableId);
}

} // namespace

// The broadcast system follows the receiver's country: seen through which
// table scopes have a factory, and whether private tags are put to the
// binder (only DVB tracks specifiers).
TEST(Descriptor, CountrySwitch)
{
    // Which of the table ids 0xC7, 0xC4, 0x4A, 0x40, 0x02, 0x01, 0x52 the system decodes
    // (ATSC reads the out-of-band tables, 0xC4 among them).
    const std::map<std::string, std::string> scopes = {
        {"ATSC", "1100100"}, {"JPN", "0101110"}, {"ISDB", "0001110"}, {"DVB", "0011110"}};
    struct Case { const char* country; unsigned int op; const char* system; } cases[] = {
        {"KOR", 0, "ATSC"},  {"USA", 0, "ATSC"}, {"JPN", 0, "JPN"},  {"ARG", 0, "ISDB"}, {"BOL", 0, "ISDB"},
        {"BRA", 0, "ISDB"},  {"CHL", 0, "ISDB"}, {"EQU", 0, "ISDB"}, {"PAR", 0, "ISDB"}, {"PER", 0, "ISDB"},
        {"URU", 0, "ISDB"},  {"cri", 0, "ISDB"}, {"CRI", 0, "DVB"},  {"bra", 0, "DVB"},  {"PHL", 113, "ISDB"},
        {"PHL", 112, "DVB"}, {"GBR", 0, "DVB"},  {"", 0, "DVB"},
    };
    const Bytes loop = Desc(0x90, {1});
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.country) + " " + std::to_string(c.op));
        zumtest::BinderScope binder;
        binder->countryCode = ZumPackCode(c.country);
        binder->operatorId = c.op;
        int binderAsked = 0;
        binder->acceptSpecifier = [&binderAsked](unsigned int) { ++binderAsked; return true; };
        TCDescriptor descriptor{ZUMHandle()};
        std::string decoded;
        for (unsigned char tableId : {0xC7, 0xC4, 0x4A, 0x40, 0x02, 0x01, 0x52}) {
            TCDescriptorHash hash;
            decoded += ParseLoop(descriptor, loop, hash, tableId) ? '1' : '0';
        }
        EXPECT_EQ(decoded, scopes.at(c.system));
        EXPECT_EQ(binderAsked > 0, std::string(c.system) == "DVB");
    }
}

TEST(Descriptor, WithoutBinderNothingIsDecoded)
{
    zumtest::BinderScope scope;
    zum_platform::RemoveBinder();
    zumtest::LogCapture log;
    TCDescriptor descriptor{ZUMHandle()};
    EXPECT_TRUE(log.Contains("Failed: pBinder"));
    TCDescriptorHash hash;
    const Bytes loop = Desc(0x48, {1, 2});
    EXPECT_EQ(ParseLoop(descriptor, loop, hash, 0x42), 0);
    EXPECT_EQ(descriptor.ParseByCount(loop.data(), 1, hash, 0x42), 0);
    EXPECT_FALSE(descriptor.SetCachedPDSD(1));
    EXPECT_EQ(hash.NumOfDescriptors(), 0);

    // A DVB loop built by hand skips private tags when the binder is gone.
    TCDescriptorDVB dvb{ZUMHandle()};
    log.Clear();
    const Bytes mixed = Concat({Desc(0x88, {1}), Desc(0x48, {2}), Desc(0xFF, {3})});
    EXPECT_EQ(ParseLoop(dvb, mixed, hash), static_cast<int>(mixed.size()));
    EXPECT_EQ(Tags(hash), (std::vector<int>{0x48, 0xFF}));
    EXPECT_TRUE(log.Contains("Failed: pBinder"));
}

// What each specifier does to the loop, what the factory and the binder are
// given, and that the next loop of the same object starts without one.
TEST(Descriptor, SpecifierRules)
{
    struct Case { const char* name; Bytes loop; std::vector<int> kept; std::vector<unsigned> factoryPds, asked; };
    const Case cases[] = {
        {"private tag", Concat({Pds(0x28), Desc(0x88, {1}), Desc(0x48, {2})}), {0x88, 0x48}, {0x28, 0x28}, {0x28}},
        {"EACEM is kept as a descriptor", Concat({Pds(0x22C6), Desc(0x83, {1})}), {0x5F, 0x83}, {0x22C6, 0x22C6},
         {0x22C6}},
        {"FSAT cleared by tag 0x0F", Concat({Pds(0x46534154), Desc(0xD3, {}), Desc(0x0F, {}), Desc(0xD3, {})}),
         {0xD3, 0x0F, 0xD3}, {0x46534154, 0, 0}, {0x46534154, 0}},
        {"0x0F leaves others", Concat({Pds(0x28), Desc(0x0F, {}), Desc(0x88, {})}), {0x0F, 0x88}, {0x28, 0x28}, {0x28}},
        {"refused specifier drops private tags only",
         Concat({Pds(0x99), Desc(0x88, {}), Desc(0xFF, {}), Desc(0x48, {})}), {0xFF, 0x48}, {0x99, 0x99}, {0x99}},
        {"the later one counts", Concat({Pds(0x28), Pds(0x22), Desc(0x83, {})}), {0x83}, {0x22}, {0x22}},
        {"a short body names none", Concat({Desc(0x5F, {0, 0, 0x28}), Desc(0x83, {})}), {0x83}, {0}, {0}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::BinderScope binder;
        std::vector<unsigned int> asked;
        binder->acceptSpecifier = [&asked](unsigned int pds) { asked.push_back(pds); return pds != 0x99; };
        RecordingDVB loop;
        TCDescriptorHash hash;
        EXPECT_EQ(ParseLoop(loop, c.loop, hash), static_cast<int>(c.loop.size()));
        EXPECT_EQ(Tags(hash), c.kept);
        EXPECT_EQ(loop.made, c.factoryPds);
        EXPECT_EQ(asked, c.asked);
        EXPECT_EQ(hash.DescriptorByIndex(0)->TableId(), 0x40);

        loop.made.clear();
        asked.clear();
        TCDescriptorHash next;
        ParseLoop(loop, Desc(0x88, {1}), next, 0x42);
        EXPECT_EQ(loop.made, std::vector<unsigned int>{0});
        EXPECT_EQ(asked, std::vector<unsigned int>{0});
        EXPECT_EQ(std::unique_ptr<TCBaseDesc>(next.DescriptorByIndex(0)->Fork())->TableId(), 0x42);
    }
}

TEST(Descriptor, RunOverAndShortLoops)
{
    const std::string warning = "[Warning] TCDescriptorBase::Parse total len is not correct!";
    // tail: the end of the warning line, empty for none
    struct Case { const char* name; Bytes raw; int length, table; std::vector<int> kept; std::string tail; };
    const Case cases[] = {
        {"first descriptor claims more than the loop", Desc(0x48, {1, 2, 3}), 4, 0x42, {}, "inLen=4, outLen=5"},
        {"second runs over", Concat({Desc(0x48, {1}), Desc(0x4D, {1, 2})}), 6, 0x42, {0x48}, "inLen=6, outLen=7"},
        {"tag byte alone at the end", Concat({Desc(0x48, {1}), Bytes{0x4D}}), 4, 0x42, {0x48}, "inLen=4, outLen=3"},
        {"zero-length descriptors", Concat({Desc(0x48, {}), Desc(0x4D, {})}), 4, 0x42, {0x48, 0x4D}, ""},
        {"empty loop", Bytes{}, 0, 0x42, {}, ""},
        {"negative length", Desc(0x48, {}), -1, 0x42, {}, "inLen=-1, outLen=0"},
        {"a scope without a factory walks nothing", Desc(0x48, {1, 2, 3}), 3, 0x52, {}, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::BinderScope binder;
        TCDescriptor descriptor{ZUMHandle()};
        TCDescriptorHash hash;
        zumtest::LogCapture log;
        // The loop's bytes sit in a buffer of exactly their size.
        const std::unique_ptr<uint8_t[]> exact(c.raw.empty() ? nullptr : new uint8_t[c.raw.size()]);
        std::copy(c.raw.begin(), c.raw.end(), exact.get());
        EXPECT_EQ(descriptor.Parse(exact.get(), c.length, hash, c.table), c.table == 0x52 ? 0 : c.length);
        EXPECT_EQ(Tags(hash), c.kept);
        EXPECT_EQ(log.Lines(), c.tail.empty() ? Lines{} : Lines{warning + c.tail});
    }
}

// A private tag that runs over the loop still meets the binder's test, and
// without a binder the assertion, before the run-over ends the loop.
TEST(Descriptor, RunOverPrivateTagMeetsTheHooksFirst)
{
    const Bytes loop = Concat({Desc(0x48, {1}), Bytes{0x88, 0x09, 0x01}});
    for (bool withBinder : {true, false}) {
        SCOPED_TRACE(withBinder ? "binder" : "no binder");
        zumtest::BinderScope binder;
        std::vector<unsigned int> asked;
        binder->acceptSpecifier = [&asked](unsigned int pds) { asked.push_back(pds); return true; };
        TCDescriptorDVB dvb{ZUMHandle()};
        if (!withBinder)
            zum_platform::RemoveBinder();
        zumtest::LogCapture log;
        TCDescriptorHash hash;
        EXPECT_EQ(ParseLoop(dvb, loop, hash), static_cast<int>(loop.size()));
        EXPECT_EQ(Tags(hash), std::vector<int>{0x48});
        EXPECT_EQ(asked.size(), withBinder ? 1u : 0u);
        EXPECT_EQ(log.Contains("Failed: pBinder"), !withBinder);
        EXPECT_TRUE(log.Contains("inLen=6, outLen=14"));
    }
}

TEST(Descriptor, ParseByCountAddsBeforeDecoding)
{
    zumtest::BinderScope binder;
    TCDescriptor descriptor{ZUMHandle()};
    TCDescriptorHash hash;
    const Bytes loop = Concat({Desc(0x7F, {0x08, 1}), Desc(0x48, {}), Desc(0x88, {5})});
    zumtest::LogCapture log;
    EXPECT_EQ(descriptor.ParseByCount(loop.data(), 3, hash, 0x42), static_cast<int>(loop.size()));
    // The extension was filed before its tag was known: reachable by index only.
    EXPECT_EQ(hash.NumOfDescriptors(-1), 1);
    EXPECT_EQ(hash.NumOfDescriptors(0x7F08), 0);
    EXPECT_EQ(hash.DescriptorByIndex(0)->Tag(), 0x7F08);
    // Private tags skip the binder and the null of the factory becomes a default object.
    EXPECT_EQ(hash.NumOfDescriptors(0x88), 1);
    EXPECT_EQ(hash.DescriptorByIndex(2)->TableId(), 0x42);
    EXPECT_TRUE(log.Lines().empty());

    // With a limit, a descriptor that would pass it ends the walk.
    TCDescriptorHash bounded;
    EXPECT_EQ(descriptor.ParseByCount(loop.data(), 3, bounded, 0x42, 6), 6);
    EXPECT_EQ(bounded.NumOfDescriptors(), 2);
}

// Tag 0x54 must be the content class; it takes the specifier in force only on
// a UK receiver whose binder accepts it, both asked with the handle 1, 0, 0.
// Linkage and CRID tags stand as unknown ones until their classes decode.
TEST(Descriptor, ContentLinkageAndCridHooks)
{
    struct Case { const char *name, *country; bool accept, binder, foreign; unsigned cached, stored; } cases[] = {
        {"UK receiver, specifier accepted", "GBR", true, true, false, kNone, 0x233A},
        {"a cached specifier reaches the hook, not the factory", "GBR", true, true, false, 0x1234, 0x1234},
        {"other country", "DEU", true, true, false, kNone, 0},
        {"specifier refused", "GBR", false, true, false, kNone, 0},
        {"no binder", "GBR", true, false, false, kNone, 0},
        {"tag 0x54 of another class is dropped", "GBR", true, true, true, kNone, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::BinderScope binder;
        binder->countryCode = ZumPackCode(c.country);
        const bool accept = c.accept;
        binder->acceptSpecifier = [accept](unsigned int) { return accept; };
        if (!c.binder)
            zum_platform::RemoveBinder();
        RecordingDVB loop; // its own handle is 5, 6, 7
        loop.foreignContent = c.foreign;
        if (c.cached != kNone) { EXPECT_TRUE(loop.SetCachedPDSD(c.cached)); }
        TCDescriptorHash hash;
        ParseLoop(loop,
                  Concat({Pds(0x233A), Desc(0x4A, {0, 1, 0, 2, 0, 3, 0x80}), Desc(0x54, {0x12, 0x34}), Desc(0x76, {})}),
                  hash, 0x4E);
        EXPECT_EQ(loop.made, (std::vector<unsigned int>{0x233A, 0x233A, 0x233A}));
        EXPECT_EQ(Tags(hash), (c.foreign ? std::vector<int>{0x4A, 0x76} : std::vector<int>{0x4A, 0x54, 0x76}));
        if (c.foreign)
            continue;
        auto* content = dynamic_cast<TCDescContent*>(hash.Descriptor(0x54, 0));
        ASSERT_NE(content, nullptr);
        EXPECT_EQ(content->PDSD(), c.stored);
        if (c.binder) { EXPECT_EQ(zum_platform::LastBinderHandle(), kZUMDefaultHandle); }
    }
}
