#include <gtest/gtest.h>

#include <string>
#include <typeindex>

#include <zum-platform/Dlog.h>
#include <zum-platform/PlatformConfig.h>
#include <zum-platform/UnicodeConverter.h>

#include "dvb/DescLoopProbe.h"
#include "dvb/DescService.h"
#include "support/LogCapture.h"

using svctest::Bytes;
using svctest::Copied;
using svctest::CopyWith;
using svctest::Decode;
using zumtest::Concat;
using zumtest::Desc;

namespace {

Bytes ServiceBody(unsigned char type, const std::string& provider, const std::string& name)
{
    zumtest::ByteWriter w;
    w.U8(type).U8(static_cast<unsigned>(provider.size())).Text(provider);
    w.U8(static_cast<unsigned>(name.size())).Text(name);
    return w.Data();
}

std::string ProviderName(const TCDescService& d)
{
    unsigned char buffer[256];
    unsigned short size = sizeof buffer;
    return d.ServiceProviderNameText(buffer, size) ? std::string(buffer, buffer + size) : "<none>";
}

std::string ServiceName(const TCDescService& d)
{
    unsigned char buffer[256];
    unsigned short size = sizeof buffer;
    return d.ServiceNameText(buffer, size) ? std::string(buffer, buffer + size) : "<none>";
}

} // namespace

TEST(DescService, DecodesTypeAndNames)
{
    zumtest::BinderScope binder;
    zumtest::LogCapture log;
    int parsed = 0;
    auto d = Decode(new TCDescService(), Desc(0x48, ServiceBody(0x19, "BBC", "BBC One HD")), &parsed);
    EXPECT_EQ(parsed, 2 + 1 + 4 + 11);
    EXPECT_EQ(d->Tag(), 0x48);
    EXPECT_EQ(d->ServiceType(), 0x19);
    EXPECT_EQ(ProviderName(*d), "BBC");
    EXPECT_EQ(ServiceName(*d), "BBC One HD");
    EXPECT_FALSE(log.Contains("length mismatch"));
}

// The receiver's list of service types: an unknown one reads 0xFF, and type
// 0x90 depends on the Dolby certification mode.
TEST(DescService, ServiceTypeAsTheReceiverKnowsIt)
{
    struct Case {
        unsigned char type;
        bool binder;
        bool dolby;
        unsigned char expected;
        const char* log;
    } cases[] = {
        {0x00, true, false, 0x00, nullptr},
        {0x0C, true, false, 0x0C, nullptr},
        {0x0D, true, false, 0xFF, nullptr},
        {0x0E, true, false, 0x0E, nullptr},
        {0x20, true, false, 0x20, nullptr},
        {0x21, true, false, 0xFF, nullptr},
        {0x8A, true, false, 0x8A, nullptr},
        {0x8B, true, false, 0xFF, nullptr},
        {0x97, true, false, 0xFF, nullptr},
        {0x9B, true, false, 0x9B, nullptr},
        {0xA2, true, false, 0xFF, nullptr},
        {0xA7, true, false, 0xA7, nullptr},
        {0xD3, true, false, 0xD3, nullptr},
        {0xF9, true, false, 0xF9, nullptr},
        {0xFF, true, false, 0xFF, nullptr},
        {0x90, true, true, 0x90, "t_AllocateServiceType Dolby Cert Mode Enabled"},
        {0x90, true, false, 0xFF, "t_AllocateServiceType Dolby Cert Mode Disabled"},
        {0x90, false, false, 0x00, "ASSERT!, Func:t_AllocateServiceType"},
        {0x19, false, false, 0x19, nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "type 0x" << std::hex << int(c.type) << " binder " << c.binder);
        zumtest::BinderScope binder;
        binder->dolbyCertMode = c.dolby;
        if (!c.binder)
            zum_platform::RemoveBinder();
        zumtest::LogCapture log;
        auto d = Decode(new TCDescService(), Desc(0x48, ServiceBody(c.type, "P", "Name")));
        EXPECT_EQ(d->ServiceType(), c.expected);
        // The names stay whatever the type says.
        EXPECT_EQ(ServiceName(*d), "Name");
        if (c.log)
            EXPECT_TRUE(log.Contains(c.log));
        else
            EXPECT_TRUE(log.Lines(DLOG_ERROR).empty());
    }
}

// A body that ends early keeps what it got; a name that claims more than is
// left keeps the bytes that are there.
TEST(DescService, ShortBodies)
{
    struct Case {
        const char* name;
        Bytes body;
        unsigned char type;
        std::string provider;
        std::string service;
    } cases[] = {
        {"type only", {0x01}, 0x01, "<none>", "<none>"},
        {"provider length only", {0x01, 0x03}, 0x01, "<none>", "<none>"},
        {"provider cut", {0x01, 0x05, 'A', 'B'}, 0x01, "AB", "<none>"},
        {"no service length", {0x01, 0x01, 'A'}, 0x01, "A", "<none>"},
        {"service cut", {0x02, 0x00, 0x09, 'X', 'Y', 'Z'}, 0x02, "<none>", "XYZ"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::BinderScope binder;
        auto d = Decode(new TCDescService(), Desc(0x48, c.body));
        EXPECT_EQ(d->ServiceType(), c.type);
        EXPECT_EQ(ProviderName(*d), c.provider);
        EXPECT_EQ(ServiceName(*d), c.service);
    }
}

TEST(DescService, LengthZeroRunsNoHook)
{
    zumtest::BinderScope binder;
    zumtest::LogCapture log;
    int parsed = 0;
    auto d = Decode(new TCDescService(), Desc(0x48, {}), &parsed);
    EXPECT_EQ(parsed, 2);
    EXPECT_EQ(d->ServiceType(), 0);
    EXPECT_EQ(ServiceName(*d), "<none>");
    EXPECT_TRUE(log.Lines().empty());
}

// Text copy through a reference: a short buffer gets its capacity and false,
// nothing to copy reports size 0.
TEST(DescService, NameCopyAtItsBoundaries)
{
    zumtest::BinderScope binder;
    auto d = Decode(new TCDescService(), Desc(0x48, ServiceBody(0x01, "", "0123456789")));
    struct Case {
        int capacity;
        bool result;
        int size;
        std::string bytes;
    } cases[] = {
        {11, true, 10, "0123456789###"},
        {10, true, 10, "0123456789##"},
        {9, false, 9, "012345678##"},
        {4, false, 4, "0123##"},
        {0, false, 0, "##"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.capacity);
        Copied got = CopyWith<unsigned char, unsigned short>(
            c.capacity, [&](unsigned char* b, unsigned short* s) { return d->ServiceNameText(b, *s); });
        EXPECT_EQ(got.result, c.result);
        EXPECT_EQ(got.size, c.size);
        EXPECT_EQ(got.bytes, c.bytes);
    }
    // An empty provider name copies nothing and reports size 0.
    Copied empty = CopyWith<unsigned char, unsigned short>(
        8, [&](unsigned char* b, unsigned short* s) { return d->ServiceProviderNameText(b, *s); });
    EXPECT_FALSE(empty.result);
    EXPECT_EQ(empty.size, 0);
    unsigned short size = 8;
    EXPECT_FALSE(d->ServiceNameText(nullptr, size));
    EXPECT_EQ(size, 0);
}

// Names stay raw: the character table selector reaches the caller, whose
// converter then reads the right table.
TEST(DescService, NamesReachTheConverterRaw)
{
    zumtest::BinderScope binder;
    struct Case {
        const char* name;
        std::string raw;
        std::basic_string<unsigned short> text;
    } cases[] = {
        {"ISO 8859-9", std::string("\x05" "D\xF0" "a", 4), {'D', 0x11F, 'a'}},
        {"UTF-8", std::string("\x15" "Caf\xC3\xA9", 6), {'C', 'a', 'f', 0xE9}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        auto d = Decode(new TCDescService(), Desc(0x48, ServiceBody(0x01, "", c.raw)));
        unsigned char buffer[256];
        unsigned short size = sizeof buffer;
        ASSERT_TRUE(d->ServiceNameText(buffer, size));
        EXPECT_EQ(std::string(buffer, buffer + size), c.raw);
        TCUnicodeConverter converter(kZUMDefaultHandle);
        std::basic_string<unsigned short> text;
        ASSERT_TRUE(converter.ConvertToUnicode(buffer, size, text, false, ZumPackCode("tur"), true));
        EXPECT_EQ(text, c.text);
    }
}

TEST(DescServiceList, DecodesEntriesAndAnswersAllBitsOutside)
{
    struct Case {
        const char* name;
        Bytes body;
        int count;
        const char* warning;
    } cases[] = {
        {"two entries", {0x10, 0x01, 0x01, 0x10, 0x02, 0x19}, 2, nullptr},
        {"trailing byte", {0x10, 0x01, 0x01, 0x10, 0x02, 0x19, 0xAA}, 2, "inLen=7, outLen=6"},
        {"below one entry", {0x10, 0x01}, 0, "inLen=2, outLen=0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        auto d = Decode(new TCDescServiceList(), Desc(0x41, c.body));
        if (c.warning)
            EXPECT_TRUE(log.Contains(c.warning));
        else
            EXPECT_FALSE(log.Contains("length mismatch"));
        EXPECT_EQ(d->NumberOfLoop(), c.count);
        if (c.count == 2) {
            EXPECT_EQ(d->ServiceId(0), 0x1001);
            EXPECT_EQ(d->ServiceType(0), 0x01);
            EXPECT_EQ(d->ServiceId(1), 0x1002);
            EXPECT_EQ(d->ServiceType(1), 0x19);
        }
        for (int index : {-1, c.count, 100}) {
            EXPECT_EQ(d->ServiceId(index), 0xFFFF);
            EXPECT_EQ(d->ServiceType(index), 0xFF);
        }
    }
    auto empty = Decode(new TCDescServiceList(), Desc(0x41, {}));
    EXPECT_EQ(empty->NumberOfLoop(), 0);
    EXPECT_EQ(empty->ServiceId(0), 0xFFFF);
}

// A clone decodes its raw copy anew and equals the original.
TEST(DescService, ForkDecodesAgain)
{
    zumtest::BinderScope binder;
    auto d = Decode(new TCDescService(), Desc(0x48, ServiceBody(0x16, "Sky", "Sky News")));
    std::unique_ptr<TCBaseDesc> clone(d->Fork());
    auto* service = dynamic_cast<TCDescService*>(clone.get());
    ASSERT_NE(service, nullptr);
    EXPECT_EQ(service->ServiceType(), 0x16);
    EXPECT_EQ(ServiceName(*service), "Sky News");
    EXPECT_TRUE(service->FlagEqual(d.get()));
}

// The SI factory rows of the service and network names, through a loop.
TEST(DescService, FactoryRowsThroughLoops)
{
    const svctest::Row rows[] = {
        {"GBR", 0x42, Desc(0x48, ServiceBody(1, "", "A")), 0x48, typeid(TCDescService)},
        {"GBR", 0x40, Desc(0x41, {0, 1, 1}), 0x41, typeid(TCDescServiceList)},
        {"BRA", 0x42, Desc(0x48, ServiceBody(1, "", "A")), 0x48, typeid(TCDescService)},
        // Program tables know no service descriptor.
        {"GBR", 0x02, Desc(0x48, ServiceBody(1, "", "A")), 0x48, typeid(TCDescDefault)},
    };
    for (const svctest::Row& row : rows) {
        SCOPED_TRACE(row.expected.name());
        EXPECT_EQ(svctest::ClassOfRow(row), row.expected.name());
    }
}
