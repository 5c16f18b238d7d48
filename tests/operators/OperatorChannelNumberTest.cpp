#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <typeindex>
#include <vector>

#include <zum-platform/Dlog.h>

#include "core/DescExtension.h"
#include "dvb/DVBItemMux.h"
#include "dvb/DescLoopProbe.h"
#include "operators/DescADBLCNv2Activate.h"
#include "operators/DescChannelOrder.h"
#include "operators/DescDigiturkLogicalChannel.h"

using svctest::Join;
using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

// One body: what the object reads back, the value t_Parse returned (seen through the length warning,
// "" for none), and the operator's own log line ("" for none).
struct Case { Bytes body; std::string fields; std::string warning; std::string message; };

template <class T>
void Expect(int tag, std::function<T*()> make, std::function<std::string(T&)> show, const std::vector<Case>& cases)
{
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.body));
        zumtest::LogCapture log;
        std::unique_ptr<T> d = svctest::Decode(make(), Desc(static_cast<unsigned>(tag), c.body));
        EXPECT_EQ(show(*d), c.fields);
        std::string warning, message;
        for (const std::string& line : log.Lines()) {
            const size_t at = line.find("length mismatch!");
            (at == std::string::npos ? message : warning) = at == std::string::npos ? line : line.substr(at + 16);
        }
        EXPECT_EQ(warning, c.warning);
        EXPECT_EQ(message, c.message);
        svctest::ExpectClone(*d);
    }
}

std::string Numbers(IDescLogicalChannel& d, std::initializer_list<unsigned short> ids)
{
    std::string out = std::to_string(d.NumOfServices(0)) + ":";
    for (unsigned short id : ids)
        out += " " + std::to_string(int(d.LogicalChannelNumber(id))) + "/" + std::to_string(d.VisibleServiceFlag(id, 0));
    return out;
}

Bytes Pds(unsigned v) { return Desc(0x5F, {uint8_t(v >> 24), uint8_t(v >> 16), uint8_t(v >> 8), uint8_t(v)}); }

} // namespace

TEST(OperatorChannelNumbers, LogicalChannelSubclasses)
{
    Expect<TCDescDigiturkLogicalChannel>(0x83, [] { return new TCDescDigiturkLogicalChannel(0x2FFFFF); },
        [](TCDescDigiturkLogicalChannel& d) {
            unsigned short a = 7, b = 7;
            const bool found = d.GetDPIds(0x10, a, b);
            const bool absent = d.GetDPIds(0x99, a, b);
            return Join(d.HeadValue(), d.HeadFlag(), Numbers(d, {0x10}), found, absent, a, b);
        }, {
        {{0x2E, 0xE0, 0x01}, "12000000 1 0: -1/1 0 0 7 7", "", ""},
        {{0x00, 0x02, 0xFE, 0x00, 0x10, 0x01, 0x2C, 0x00, 0x05, 0x00, 0x06, 0x00, 0x10, 0x00, 0x01, 0x00, 0x08, 0x00, 0x09},
         "2000 0 2: 300/1 1 0 5 6", "", ""},
        {{0x2E, 0xE0, 0x01, 0x00}, "4294967295 4294967295 0: -1/1 0 0 7 7", "inLen=4, outLen=0",
         "[Digiturk] Wrong length of Digiturk LCN descriptor, length = 4."},
        {{}, "4294967295 4294967295 0: -1/1 0 0 7 7", "", ""},
    });
    Expect<TCDescPolsatLogicalChannel>(0x81, [] { return new TCDescPolsatLogicalChannel(0x4FFFFF); },
        [](TCDescPolsatLogicalChannel& d) {
            std::list<unsigned short> ids = {1, 2};
            const bool one = d.PolsatServiceId(0x10, ids);
            std::string out = Join(Numbers(d, {0x10, 0x11}), one, ids.size() ? ids.back() : 0);
            const bool none = d.PolsatServiceId(0x99, ids);
            return Join(out, none, ids.size());
        }, {
        {{0x00, 0x10, 0x00, 0x07, 0x12, 0x34, 0x00, 0x11, 0x00, 0x08, 0x00, 0x01, 0x00, 0x10, 0x00, 0x09, 0x56, 0x78},
         "3: 7/1 8/1 1 22136 0 0", "", ""},
        {{0x00, 0x10, 0x00, 0x07, 0x12}, "0: -1/1 -1/1 0 0 0 0", "inLen=5, outLen=0", ""},
        {{}, "0: -1/1 -1/1 0 0 0 0", "", ""},
    });
    Expect<TCDescTelekartaLogicalChannel>(0x83, [] { return new TCDescTelekartaLogicalChannel(0x5FFFFF); },
        [](TCDescTelekartaLogicalChannel& d) { return Numbers(d, {0x0102}); }, {
        // Packages 3, 0, 0: the second block numbers the service (hidden, 5).
        {{0x01, 0x02, 0x8C, 0x01, 0x40, 0x05, 0x80, 0x07}, "1: 5/0", "", ""},
        {{0x01, 0x02, 0x83, 0xFF}, "1: 1023/1", "", ""},
        {{0x01, 0x02, 0x84, 0x01, 0x88, 0x01}, "0: -1/1", "", ""},
        {{0x01}, "0: -1/1", "", ""},
    });
}

TEST(OperatorChannelNumbers, ChannelOrdersAndLists)
{
    Expect<TCDescPolsatChannelListInfo>(0xD1, [] { return new TCDescPolsatChannelListInfo(); },
        [](TCDescPolsatChannelListInfo& d) {
            const auto i = d.GetChannelListInfo();
            return Join(i.version, i.firstOther, i.secondOther, i.update);
        }, {
        {{0x07, 0x00, 0x01, 0x00, 0x02, 0x01, 0x00, 0x00}, "7 1 2 65536", "", ""},
        {{0x07, 0x00, 0x01, 0x00}, "7 1 1000 262144", "inLen=4, outLen=8", ""},
        {{}, "255 1000 1000 262144", "", ""},
    });
    Expect<TCDescEutelsatChannelNumber>(0x83, [] { return new TCDescEutelsatChannelNumber(); },
        [](TCDescEutelsatChannelNumber& d) {
            std::multimap<TCServiceKey, unsigned short> services = {{TCServiceKey(9, 9, 9), 9}};
            d.GetServices(services);
            std::string out;
            for (const auto& s : services)
                out += Join(s.first.m_originalNetworkId, s.first.m_transportStreamId, s.first.m_serviceId, s.second) + ";";
            return out;
        }, {
        {{0x00, 0x01, 0x00, 0x02, 0x00, 0x03, 0x01, 0x2F, 0x00, 0x01, 0x00, 0x02, 0x00, 0x03, 0xFF, 0xF0}, "1 2 3 18;1 2 3 4095;", "", ""},
        {{0x00, 0x01, 0x00, 0x02, 0x00, 0x03, 0x01}, "", "inLen=7, outLen=0",
         "[ECN Descriptor] Wrong length of Eutelsat Channel Number descriptor, length = 7."},
        {{}, "", "", ""},
    });
    Expect<TCDescSogecablePrivateChannelList>(0x84, [] { return new TCDescSogecablePrivateChannelList(0x84); },
        [](TCDescSogecablePrivateChannelList& d) {
            unsigned short a = 7, b = 7;
            const bool found = d.GetChannelNumber(0x10, a);
            const bool absent = d.GetChannelNumber(0x11, b);
            return Join(d.Tag(), found, a, absent, b);
        }, {
        {{0x00, 0x10, 0x00, 0x05, 0x00, 0x10, 0x00, 0x06, 0x00}, "132 1 5 0 7", "inLen=9, outLen=8", ""},
        {{0x00, 0x10, 0x00}, "132 0 7 0 7", "inLen=3, outLen=0",
         "[Digital+] Wrong length of private channel list descriptor, length = 3."},
    });
    Expect<TCDescNXTServiceOrder>(0x93, [] { return new TCDescNXTServiceOrder(); },
        [](TCDescNXTServiceOrder& d) { return Join(d.Count(), d.ServiceId(1), d.ServiceOrder(1), d.ServiceId(2)); }, {
        {{0x00, 0x10, 0x00, 0x01, 0x00, 0x11, 0x00, 0x02, 0x00, 0x12}, "2 17 2 0", "inLen=10, outLen=8", ""},
        {{}, "0 0 0 0", "", ""},
    });
    Expect<TCDescOtauChannelOrder>(0xE4, [] { return new TCDescOtauChannelOrder(); },
        [](TCDescOtauChannelOrder& d) { return Join(d.GetOrder(0x10), d.GetOrder(0x11)); }, {
        {{0x00, 0x10, 0x00, 0x50, 0x00, 0x00, 0x10, 0x12, 0x30, 0x00}, "291 4294967295", "", ""},
        {{0x00, 0x10, 0x00, 0x50, 0x00, 0x00, 0x11, 0x12, 0x30}, "5 4294967295", "inLen=9, outLen=7", ""},
        {{0x00, 0x10, 0x00, 0x50, 0x00, 0x00}, "5 4294967295", "inLen=6, outLen=5", ""},
        {{}, "4294967295 4294967295", "", ""},
    });
}

TEST(OperatorChannelNumbers, AdbActivation)
{
    const auto text = [](const std::string& s) {
        Bytes b = {0xA3, 0x01, 0x02};
        b.insert(b.end(), s.begin(), s.end());
        return b;
    };
    Expect<TCDescADBLCNv2Activate>(0x7F, [] { return new TCDescADBLCNv2Activate(); },
        [](TCDescADBLCNv2Activate& d) { return Join(d.Tag(), d.FirstByte(), d.SecondByte(), int(d.ID())); }, {
        {text("ID=12"), "32675 1 2 12", "", ""},
        {text("ID= -7;"), "32675 1 2 -7", "", ""},
        {text("NAME=3"), "32675 1 2 -1", "", ""},
        {text("ID=x"), "32675 1 2 -1", "", "TCDescADBLCNv2Activate::t_Parse [x] Invalid argument:stoi"},
        {text("AID=7"), "32675 1 2 -1", "", "TCDescADBLCNv2Activate::t_Parse [A7] Invalid argument:stoi"},
        {text("ID=99999999999"), "32675 1 2 -1", "", "TCDescADBLCNv2Activate::t_Parse [99999999999] Invalid argument:stoi"},
        {{0xA3, 0x01, 0x02}, "32675 1 2 -1", "", "TCDescADBLCNv2Activate::t_Parse Invalid dataLen: 0"},
        {{0xA3, 0x01}, "32675 1 4294967295 -1", "", ""},
        {{0xA3}, "32675 4294967295 4294967295 -1", "", ""},
        {{0xA4, 0x01, 0x02, 0x03}, "32675 4294967295 4294967295 -1", "inLen=4, outLen=1",
         "TCDescADBLCNv2Activate::t_Parse Invalid Extension Tag: 164"},
    });
}

// Where each tag goes under each specifier, with the binder's specifier where the rule asks for it.
TEST(OperatorChannelNumbers, FactoryRows)
{
    struct Row { unsigned binderPds; unsigned streamPds; int tag; Bytes body; std::type_index type; };
    const std::vector<Row> rows = {
        {0, 0x2FFFFF, 0x83, {0, 0, 0}, typeid(TCDescDigiturkLogicalChannel)},
        {0, 0x2FFFFF, 0x81, {}, typeid(TCDescLogicalChannel)},
        {0x2FFFFF, 0, 0x83, {0, 0, 0}, typeid(TCDescDigiturkLogicalChannel)},
        {0x4FFFFF, 0, 0x81, {}, typeid(TCDescPolsatLogicalChannel)},
        {0x4FFFFF, 0x1234, 0x81, {}, typeid(TCDescPolsatLogicalChannel)},
        {0x4FFFFF, 0, 0xD1, {}, typeid(TCDescPolsatChannelListInfo)},
        {0, 0x4FFFFF, 0xD1, {}, typeid(void)},
        {0, 0x5FFFFF, 0x83, {}, typeid(TCDescTelekartaLogicalChannel)},
        {0, 0x55F, 0x83, {}, typeid(TCDescEutelsatChannelNumber)},
        {0, 0x1FFFFF, 0x82, {}, typeid(TCDescSogecablePrivateChannelList)},
        {0, 0x1FFFFF, 0x84, {}, typeid(TCDescSogecablePrivateChannelList)},
        {0, 0x6002, 0x93, {}, typeid(TCDescNXTServiceOrder)},
        {0, 0x6003, 0x82, {}, typeid(TCDescLogicalChannel)},
        {0x3FFFFF, 0, 0xE4, {}, typeid(TCDescOtauChannelOrder)},
        {0, 0x3FFFFF, 0xE4, {}, typeid(void)},
        {0, 0x41444250, 0x7FA3, {0xA3}, typeid(TCDescADBLCNv2Activate)},
        {0, 0x55F, 0x7FA3, {0xA3}, typeid(TCDescExtension)},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(testing::Message() << std::hex << r.binderPds << " " << r.streamPds << " " << r.tag);
        zumtest::BinderScope binder;
        binder->countryCode = ZumPackCode("POL");
        binder->privateDataSpecifier = r.binderPds;
        const Bytes loop = Concat({r.streamPds ? Pds(r.streamPds) : Bytes{}, Desc(r.tag > 0xFF ? 0x7F : r.tag, r.body)});
        TCDescriptorHash hash;
        TCDescriptor{ZUMHandle()}.Parse(loop.data(), static_cast<int>(loop.size()), hash, 0x41);
        const TCBaseDesc* d = hash.Descriptor(r.tag, 0);
        EXPECT_EQ(svctest::ClassOf(d), r.type == typeid(void) ? "none" : r.type.name());
        if (const auto* lcn = dynamic_cast<const TCDescLogicalChannel*>(d)) {
            EXPECT_EQ(lcn->PrivateDataSpecifier(), r.streamPds ? r.streamPds : r.binderPds);
        }
    }
}

// The NIT's and BAT's choice of the descriptor that numbers a service, under each operator's specifier and country.
TEST(OperatorChannelNumbers, PriorityOfEachOperator)
{
    struct Op { const char* name; const char* country; unsigned binderPds; unsigned streamPds; unsigned tag; Bytes body;
                int number; };
    const std::vector<Op> ops = {
        {"Digiturk", "TUR", 0, 0x2FFFFF, 0x83, {0, 1, 0, 0x01, 0x01, 0x00, 0x2A, 0, 1, 0, 2}, 42},
        {"Digiturk by binder", "TUR", 0x2FFFFF, 0, 0x83, {0, 1, 0, 0x01, 0x01, 0x00, 0x2B, 0, 1, 0, 2}, 43},
        {"Telekarta", "RUS", 0, 0x5FFFFF, 0x83, {0x01, 0x01, 0x80, 0x09}, 9},
        {"NXT", "ESP", 0, 0x6002, 0x82, {0x01, 0x01, 0x00, 0x0C}, 12},
        // Polsat's numbers come under 0x81, which the priority does not ask for.
        {"Polsat", "POL", 0x4FFFFF, 0, 0x81, {0x01, 0x01, 0x00, 0x05, 0x00, 0x01}, -1},
        // These operators number their channels through interfaces of their own.
        {"Fransat", "FRA", 0, 0x55F, 0x83, {0, 1, 0, 2, 0x01, 0x01, 0x00, 0x50}, -1},
        {"Digital+", "ESP", 0, 0x1FFFFF, 0x82, {0x01, 0x01, 0x00, 0x05}, -1},
        {"Otau", "KAZ", 0x3FFFFF, 0, 0xE4, {0x01, 0x01, 0x00, 0x50, 0x00}, -1},
    };
    for (const Op& o : ops) {
        SCOPED_TRACE(o.name);
        zumtest::BinderScope binder;
        binder->countryCode = ZumPackCode(o.country);
        binder->privateDataSpecifier = o.binderPds;
        zumtest::ByteWriter mux;
        mux.U16(0x10).U16(0x20).Begin16(12);
        if (o.streamPds)
            mux.Raw(Pds(o.streamPds));
        mux.Descriptor(o.tag, o.body).End();
        for (unsigned char tableId : {0x40, 0x4A}) {
            TCDVBItemMux item(tableId, ZUMHandle());
            item.Parse(mux.Data().data(), static_cast<int>(mux.Size()));
            const IDescLogicalChannel* lcn = item.LCNDescriptorbyPriority(true, 0x0101, ZumPackCode(o.country), true);
            EXPECT_EQ(lcn ? int(lcn->LogicalChannelNumber(0x0101)) : -1, o.number);
        }
    }
}
