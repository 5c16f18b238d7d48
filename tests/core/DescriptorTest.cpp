#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/DescConfBase.h"
#include "core/DescExtension.h"
#include "core/Descriptor.h"
#include "dvb/DescContent.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

struct Made {
    int tag;
    unsigned int pds;
};

// Wraps the loop's real factory: records what it was asked, and keeps every
// descriptor (as the real factory's class or a default one) so that the
// loop's own decisions can be seen in the hash.
class RecordingConf : public TCDescConfBase {
public:
    RecordingConf(TCDescConfBase* real, std::vector<Made>& made) : m_real(real), m_made(made) {}
    TCBaseDesc* NewDescriptor(int tag, const unsigned char* data, unsigned int pds) override
    {
        m_made.push_back({tag, pds});
        TCBaseDesc* d = m_real->NewDescriptor(tag, data, pds);
        return d ? d : new TCDescDefault(tag);
    }

private:
    std::unique_ptr<TCDescConfBase> m_real;
    std::vector<Made>& m_made;
};

class RecordingDVB : public TCDescriptorDVB {
public:
    RecordingDVB() : TCDescriptorDVB(ZUMHandle(5, 6, 7)) {}
    std::vector<Made> made;

protected:
    TCDescConfBase* t_GetDescConf(unsigned char tableId) override
    {
        TCDescConfBase* real = TCDescriptorDVB::t_GetDescConf(tableId);
        return real ? new RecordingConf(real, made) : nullptr;
    }
};

std::vector<int> Tags(const TCDescriptorHash& hash)
{
    std::vector<int> tags;
    for (int i = 0; i < hash.NumOfDescriptors(); ++i)
        tags.push_back(hash.DescriptorByIndex(static_cast<unsigned>(i))->Tag());
    return tags;
}

Bytes Pds(unsigned int value)
{
    return Desc(0x5F, {static_cast<uint8_t>(value >> 24), static_cast<uint8_t>(value >> 16),
                       static_cast<uint8_t>(value >> 8), static_cast<uint8_t>(value)});
}

int ParseLoop(TCDescriptorBase& loop, const Bytes& bytes, TCDescriptorHash& hash, unsigned char tableId = 0x40)
{
    return loop.Parse(bytes.data(), static_cast<int>(bytes.size()), hash, tableId);
}

} // namespace

// The broadcast system follows the receiver's country: seen through which
// table scopes have a factory at all, and whether private tags are put to
// the binder (only DVB tracks specifiers).
TEST(Descriptor, CountrySwitch)
{
    struct Case {
        const char* country;
        unsigned int op;
        const char* system;
    } cases[] = {
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
        binder->acceptSpecifier = [&binderAsked](unsigned int) {
            ++binderAsked;
            return true;
        };
        TCDescriptor descriptor{ZUMHandle()};
        auto decodes = [&](unsigned char tableId) {
            TCDescriptorHash hash;
            return descriptor.Parse(loop.data(), static_cast<int>(loop.size()), hash, tableId) != 0;
        };
        std::string system;
        if (decodes(0xC7))
            system = "ATSC";
        else if (decodes(0xC4))
            system = "JPN";
        else if (decodes(0x4A))
            system = "DVB";
        else if (decodes(0x40))
            system = "ISDB";
        EXPECT_EQ(system, c.system);
        EXPECT_EQ(binderAsked > 0, system == "DVB");
        // All systems read program tables, but ATSC has no CAT scope.
        EXPECT_TRUE(decodes(0x02));
        EXPECT_EQ(decodes(0x01), system != "ATSC");
        // EIT schedule loops are decoded by nobody.
        EXPECT_FALSE(decodes(0x52));
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
    EXPECT_EQ(descriptor.Parse(loop.data(), static_cast<int>(loop.size()), hash, 0x42), 0);
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

TEST(Descriptor, SpecifierIsCarriedWithinOneLoopOnly)
{
    zumtest::BinderScope binder;
    std::vector<unsigned int> asked;
    binder->acceptSpecifier = [&asked](unsigned int pds) {
        asked.push_back(pds);
        return pds != 0x99;
    };
    RecordingDVB loop;
    TCDescriptorHash hash;

    const Bytes first = Concat({Pds(0x28), Desc(0x88, {1}), Desc(0x48, {2})});
    ParseLoop(loop, first, hash);
    // The specifier descriptor itself is not kept; what follows sees its value.
    EXPECT_EQ(Tags(hash), (std::vector<int>{0x88, 0x48}));
    ASSERT_EQ(loop.made.size(), 2u);
    EXPECT_EQ(loop.made[0].pds, 0x28u);
    EXPECT_EQ(loop.made[1].pds, 0x28u);
    EXPECT_EQ(asked, std::vector<unsigned int>{0x28});
    EXPECT_EQ(hash.DescriptorByIndex(0)->TableId(), 0x40);

    // The next loop starts without a specifier.
    loop.made.clear();
    asked.clear();
    TCDescriptorHash second;
    ParseLoop(loop, Desc(0x88, {1}), second, 0x42);
    ASSERT_EQ(loop.made.size(), 1u);
    EXPECT_EQ(loop.made[0].pds, 0u);
    EXPECT_EQ(asked, std::vector<unsigned int>{0});
    EXPECT_EQ(second.DescriptorByIndex(0)->TableId(), 0x42);
}

TEST(Descriptor, SpecifierRules)
{
    struct Case {
        const char* name;
        Bytes loop;
        std::vector<int> kept;
        std::vector<unsigned int> factoryPds;
    } cases[] = {
        {"EACEM specifier is kept as a descriptor", Concat({Pds(0x22C6), Desc(0x83, {1})}), {0x5F, 0x83},
         {0x22C6, 0x22C6}},
        {"FSAT cleared by tag 0x0F", Concat({Pds(0x46534154), Desc(0xD3, {}), Desc(0x0F, {}), Desc(0xD3, {})}),
         {0xD3, 0x0F, 0xD3},
         {0x46534154, 0, 0}},
        {"0x0F leaves other specifiers", Concat({Pds(0x28), Desc(0x0F, {}), Desc(0x88, {})}), {0x0F, 0x88},
         {0x28, 0x28}},
        {"refused specifier drops private tags only", Concat({Pds(0x99), Desc(0x88, {}), Desc(0xFF, {}), Desc(0x48, {})}),
         {0xFF, 0x48},
         {0x99, 0x99}},
        {"a later specifier replaces the earlier", Concat({Pds(0x28), Pds(0x22), Desc(0x83, {})}), {0x83}, {0x22}},
        {"short specifier body names none", Concat({Desc(0x5F, {0, 0, 0x28}), Desc(0x83, {})}), {0x83}, {0}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::BinderScope binder;
        binder->acceptSpecifier = [](unsigned int pds) { return pds != 0x99; };
        RecordingDVB loop;
        TCDescriptorHash hash;
        EXPECT_EQ(ParseLoop(loop, c.loop, hash), static_cast<int>(c.loop.size()));
        EXPECT_EQ(Tags(hash), c.kept);
        std::vector<unsigned int> pds;
        for (const Made& m : loop.made)
            pds.push_back(m.pds);
        EXPECT_EQ(pds, c.factoryPds);
    }
}

TEST(Descriptor, RunOverAndShortLoops)
{
    struct Case {
        const char* name;
        Bytes bytes;
        int length;
        std::vector<int> kept;
        std::string warning; // empty: none
    } cases[] = {
        {"first descriptor claims more than the loop", Desc(0x48, {1, 2, 3}), 4, {},
         "[Warning] TCDescriptorBase::Parse total len is not correct!inLen=4, outLen=5"},
        {"second runs over, first stays", Concat({Desc(0x48, {1}), Desc(0x4D, {1, 2})}), 6, {0x48},
         "[Warning] TCDescriptorBase::Parse total len is not correct!inLen=6, outLen=7"},
        {"tag byte alone at the end", Concat({Desc(0x48, {1}), Bytes{0x4D}}), 4, {0x48},
         "[Warning] TCDescriptorBase::Parse total len is not correct!inLen=4, outLen=3"},
        {"zero-length descriptors", Concat({Desc(0x48, {}), Desc(0x4D, {})}), 4, {0x48, 0x4D}, ""},
        {"empty loop", Bytes{}, 0, {}, ""},
        {"negative length", Desc(0x48, {}), -1, {},
         "[Warning] TCDescriptorBase::Parse total len is not correct!inLen=-1, outLen=0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::BinderScope binder;
        TCDescriptor descriptor{ZUMHandle()};
        TCDescriptorHash hash;
        zumtest::LogCapture log;
        // The loop's bytes sit in a buffer of exactly `length` (or more for the tag-alone case).
        const std::unique_ptr<uint8_t[]> exact(new uint8_t[c.bytes.size() + 1]);
        std::copy(c.bytes.begin(), c.bytes.end(), exact.get());
        EXPECT_EQ(descriptor.Parse(exact.get(), c.length, hash, 0x42), c.length);
        EXPECT_EQ(Tags(hash), c.kept);
        EXPECT_EQ(log.Lines(3), c.warning.empty() ? std::vector<std::string>{} : std::vector<std::string>{c.warning});
    }

    // A scope without a factory logs nothing, even for a length of 0.
    zumtest::BinderScope binder;
    TCDescriptor descriptor{ZUMHandle()};
    TCDescriptorHash hash;
    zumtest::LogCapture log;
    EXPECT_EQ(descriptor.Parse(nullptr, 0, hash, 0x52), 0);
    const Bytes loop = Desc(0x48, {1, 2, 3});
    EXPECT_EQ(descriptor.Parse(loop.data(), 3, hash, 0x52), 0);
    EXPECT_TRUE(log.Lines().empty());
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

TEST(Descriptor, CachedSpecifierReachesHooksNotFactory)
{
    zumtest::BinderScope binder;
    RecordingDVB loop;
    EXPECT_TRUE(loop.SetCachedPDSD(0x1234));
    TCDescriptorHash hash;
    ParseLoop(loop, Concat({Pds(0x28), Desc(0x83, {})}), hash);
    ASSERT_EQ(loop.made.size(), 1u);
    EXPECT_EQ(loop.made[0].pds, 0x28u);
}

TEST(Descriptor, LinkageTagStandsAsUnknownUntilDecodedContentDecodes)
{
    zumtest::BinderScope binder;
    TCDescriptor descriptor{ZUMHandle()};
    TCDescriptorHash hash;
    const Bytes loop = Concat({Desc(0x4A, {0, 1, 0, 2, 0, 3, 0x80}), Desc(0x54, {0x12, 0}), Desc(0x76, {})});
    descriptor.Parse(loop.data(), static_cast<int>(loop.size()), hash, 0x4E);
    EXPECT_EQ(Tags(hash), (std::vector<int>{0x4A, 0x54, 0x76}));
    EXPECT_NE(dynamic_cast<TCDescContent*>(hash.Descriptor(0x54, 0)), nullptr);
}

// A content descriptor takes the loop's specifier only on a UK receiver whose
// binder accepts it, both asked with the handle 1, 0, 0; it stays in any case.
TEST(Descriptor, ContentDescriptorTakesTheSpecifierInTheUK)
{
    struct Case {
        const char* name;
        const char* country;
        bool accept;
        bool binder;
        unsigned int stored;
    } cases[] = {
        {"UK receiver, specifier accepted", "GBR", true, true, 0x233A},
        {"other country", "DEU", true, true, 0},
        {"specifier refused", "GBR", false, true, 0},
        {"no binder", "GBR", true, false, 0},
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
        TCDescriptorHash hash;
        ParseLoop(loop, Concat({Pds(0x233A), Desc(0x54, {0x12, 0x34})}), hash, 0x4E);
        ASSERT_EQ(Tags(hash), (std::vector<int>{0x54}));
        auto* content = dynamic_cast<TCDescContent*>(hash.Descriptor(0x54, 0));
        ASSERT_NE(content, nullptr);
        EXPECT_EQ(content->PDSD(), c.stored);
        if (c.binder) {
            EXPECT_EQ(zum_platform::LastBinderHandle(), kZUMDefaultHandle);
        }
    }
}

namespace {

// Tag 0x54 made as a class that is neither the content class nor a plain default one.
class NotContent : public TCDescDefault {
public:
    NotContent() : TCDescDefault(0x54) {}
};

class NotContentConf : public TCDescConfBase {
public:
    TCBaseDesc* NewDescriptor(int tag, const unsigned char*, unsigned int) override
    {
        return tag == 0x54 ? new NotContent() : new TCDescDefault(tag);
    }
};

class NotContentDVB : public TCDescriptorDVB {
public:
    NotContentDVB() : TCDescriptorDVB(ZUMHandle()) {}

protected:
    TCDescConfBase* t_GetDescConf(unsigned char) override { return new NotContentConf(); }
};

} // namespace

TEST(Descriptor, ContentTagOfAnotherClassIsDropped)
{
    zumtest::BinderScope binder;
    NotContentDVB loop;
    TCDescriptorHash hash;
    ParseLoop(loop, Concat({Desc(0x54, {0x12, 0x34}), Desc(0x42, {})}), hash, 0x4E);
    EXPECT_EQ(Tags(hash), (std::vector<int>{0x42}));
}
