// ISDB conditional access and download descriptors, and the DSM-CC compatibility descriptor.
#include <gtest/gtest.h>

#include "dvb/DescLoopProbe.h"
#include "isdb/DescCAContractInfo.h"
#include "isdb/DescDownloadContent.h"

using namespace svctest;

// Each refusal returns 0 and keeps what came before it.
TEST(DescCAContractInfo, Bodies)
{
    auto show = [](const TCDescCAContractInfo& d) {
        return Join(d.CASystemId(), d.CAUnitId(), d.NumOfComponent(), d.ComponentTag(-1), d.ComponentTag(0),
                    d.ComponentTag(1), d.ComponentTag(2), d.ContractVerificationInfoLength(),
                    d.ContractVerificationInfo(0), d.ContractVerificationInfo(2), d.ContractVerificationInfo(3), "|",
                    d.FeeNameLength(), d.FeeName(0), d.FeeName(1), d.FeeName(2));
    };
    ExpectBodies(0xCB, [] { return new TCDescCAContractInfo(); }, show, {
        {{0x00, 0x05, 0x12, 0x30, 0x40, 3, 10, 11, 12, 2, 'F', 'N'}, "5 1 2 0 48 64 0 3 10 12 0 | 2 70 78 0"},
        {{0x00, 0x05, 0x12, 0x30, 0x40, 3, 10, 11, 12, 3, 'F', 'N'}, "5 1 2 0 48 64 0 3 10 12 0 | 0 0 0 0",
         "inLen=12, outLen=0"},
        {{0x00, 0x05, 0x12, 0x30, 0x40, 4, 10, 11, 12}, "5 1 2 0 48 64 0 0 0 0 0 | 0 0 0 0", "inLen=9, outLen=0"},
        // No byte left for the verification length.
        {{0x00, 0x05, 0x12, 0x30, 0x40}, "5 1 2 0 48 64 0 0 0 0 0 | 0 0 0 0", "inLen=5, outLen=0"},
        {{0x00, 0x05, 0x1F, 0x30, 0x40, 0}, "5 1 15 0 0 0 0 0 0 0 0 | 0 0 0 0", "inLen=6, outLen=0"},
        {{0x00, 0x05, 0x10, 0}, "0 0 0 0 0 0 0 0 0 0 0 | 0 0 0 0", "inLen=4, outLen=0"},
    });
}

TEST(DescCAService, Bodies)
{
    ExpectBodies(0xCC, [] { return new TCDescCAService(); },
        [](const TCDescCAService& d) {
            return Join(d.CASystemId(), d.CABroadcasterGroupId(), d.MessageControl(), d.Count(), d.ServiceID(-1),
                        d.ServiceID(0), d.ServiceID(1), d.ServiceID(2));
        }, {
            {{0x00, 0x05, 1, 2, 0x04, 0x01, 0xFF, 0xFF}, "5 1 2 2 0 1025 65535 0"},
            {{0x00, 0x05, 1, 2, 0x04, 0x01, 0x04, 0x02, 0xEE}, "5 1 2 2 0 1025 1026 0", "inLen=9, outLen=8"},
            {{0x00, 0x05, 1, 2, 0x04}, "5 1 2 0 0 0 0 0", "inLen=5, outLen=4"},
            {{0x00, 0x05, 1}, "0 0 0 0 0 0 0 0", "inLen=3, outLen=0"},
        });
}

TEST(DescCA_EMM_TS, Bodies)
{
    ExpectBodies(0xCA, [] { return new TCDescCA_EMM_TS(); },
        [](const TCDescCA_EMM_TS& d) {
            return Join(d.CASystemId(), d.TransportStreamId(), d.OriginalNetworkId(), d.PowerSupplyPeriod());
        }, {
            {{0x00, 0x05, 0x7F, 0xE1, 0x7F, 0xE0, 10}, "5 32737 32736 10"},
            {{0x00, 0x05, 0x7F, 0xE1, 0x7F, 0xE0, 10, 0xEE}, "5 32737 32736 10", "inLen=8, outLen=7"},
            {{0x00, 0x05, 0x7F, 0xE1, 0x7F, 0xE0}, "65535 65535 65535 255", "inLen=6, outLen=0"},
        });
}

namespace {

// All flags clear; 4096 bytes, download 7, DII timeout 10000, leak rate 64, component tag 0x40.
const Bytes kFixed = {0x00, 0, 0, 0x10, 0, 0, 0, 0, 7, 0, 0, 0x27, 0x10, 0x00, 0x01, 0x03, 0x40};

Bytes Download(unsigned char flags, const Bytes& tail)
{
    Bytes body = kFixed;
    body[0] = flags;
    body.insert(body.end(), tail.begin(), tail.end());
    return body;
}

std::string Compat(const TCCompatibilityDescriptor& c)
{
    std::string out = Join(c.DescriptorCount(), c.NumOfDescriptor());
    for (int i = 0; i < c.NumOfDescriptor(); ++i) {
        const auto* e = c.Descriptor(i);
        out += " [" + Join(e->descriptorType, e->specifierData[2], e->model, e->version, e->subDescriptorCount);
        for (const SubDescriptor& s : e->subDescriptors)
            out += " " + Join(s.SubDescriptorType(), s.SubDescriptorLength(),
                              s.AdditionalInformation() ? int(s.AdditionalInformation()[0]) : -1);
        out += "]";
    }
    return out;
}

} // namespace

// The fixed part, then compatibility, modules, private data and text as the flags say; each stops where a part
// does not fit.
TEST(DescDownloadContent, Bodies)
{
    auto show = [](const TCDescDownloadContent& d) {
        std::string out = Join(d.Reboot(), d.AddOn(), d.CompatibilityFlag(), d.ModuleInfoFlag(), d.TextInfoFlag(),
                               d.ComponentSize(), d.DownloadId(), d.TimeOutValueDII(), d.LeakRate(), d.ComponentTag(),
                               "|", Compat(d.Compatibility()), "|", d.NumOfModules(), d.NumOfModuleList());
        for (int i = 0; i < d.NumOfModuleList(); ++i)
            out += " " + Join(d.Module(i)->module_id, d.Module(i)->module_size, d.Module(i)->module_info_length,
                              int(d.Module(i)->module_info[0]));
        const std::string text = d.Text() ? std::string(d.Text(), d.Text() + d.TextLength()) : "-";
        return out + " | " + Join(d.PrivateDataLength(), d.PrivateData() ? 1 : 0, Code(d.ISO639LanguageCode()),
                                  d.TextLength(), text);
    };
    const std::string fixed = "0 0 0 0 0 4096 7 10000 64 64";
    const Bytes modules = {0, 3, 0, 1, 0, 0, 0, 9, 2, 0xA, 0xB, 0, 2, 0, 0, 0, 9, 0, 0, 3, 0, 0, 0, 9, 1, 0xC};
    Bytes text = {0, 'j', 'p', 'n', 200};
    text.insert(text.end(), 10, 'x');
    const Bytes compat = {0x00, 0x10, 0x00, 0x01, 1, 9, 1, 0, 0, 0x0E, 0x12, 0x34, 0, 1, 1, 2, 1, 0x55, 0};
    ExpectBodies(0xC9, [] { return new TCDescDownloadContent(); }, show, {
        {Bytes(kFixed.begin(), kFixed.begin() + 16), "0 0 0 0 0 0 0 0 0 0 | 0 0 | 0 0 | 0 0 - 0 -",
         "inLen=16, outLen=0"},
        {kFixed, fixed + " | 0 0 | 0 0 | 0 0 - 0 -"},
        {Download(0xD0, modules), "1 1 0 1 0 4096 7 10000 64 64 | 0 0 | 3 2 1 9 2 10 3 9 1 12 | 0 0 - 0 -"},
        {Download(0x10, Bytes(modules.begin(), modules.begin() + 10)), "0 0 0 1 0 4096 7 10000 64 64 | 0 0 | 3 0 | 0 0 - 0 -",
         "inLen=27, outLen=26"},
        {Download(0x08, text), "0 0 0 0 1 4096 7 10000 64 64 | 0 0 | 0 0 | 0 0 jpn 10 xxxxxxxxxx"},
        {Download(0x08, {0, 'j', 'p'}), "0 0 0 0 1 4096 7 10000 64 64 | 0 0 | 0 0 | 0 0 - 0 -", "inLen=20, outLen=18"},
        {Download(0x08, {0, 'j', 'p', 'n', 0}), "0 0 0 0 1 4096 7 10000 64 64 | 0 0 | 0 0 | 0 0 jpn 0 -"},
        {Download(0x00, {5, 1, 2}), fixed + " | 0 0 | 0 0 | 5 0 - 0 -", "inLen=20, outLen=18"},
        {Download(0x00, {2, 1, 2}), fixed + " | 0 0 | 0 0 | 2 1 - 0 -"},
        {Download(0x20, compat), "0 0 1 0 0 4096 7 10000 64 64 | 1 1 [1 14 4660 1 1 2 1 85] | 0 0 | 0 0 - 0 -"},
        {Download(0x20, {0x00, 0x20, 0x00}), "0 0 1 0 0 4096 7 10000 64 64 | 0 0 | 0 0 | 0 0 - 0 -",
         "inLen=20, outLen=17"},
    });
}

// Parse and used: the fixed 11 bytes of an entry move the walk, not its descriptorLength; a failing sub
// descriptor drops its entry and keeps those before.
TEST(DescDownloadContent, CompatibilityDescriptor)
{
    const Bytes entry = {1, 9, 1, 0, 0, 0x0E, 0x12, 0x34, 0, 1, 1, 2, 1, 0x55};
    auto two = [&entry](const Bytes& second) {
        Bytes data = {0x00, 0x00, 0x00, 0x02};
        data.insert(data.end(), entry.begin(), entry.end());
        data.insert(data.end(), second.begin(), second.end());
        return data;
    };
    struct Case { Bytes data; std::string result; };
    const Case cases[] = {
        {{0x00, 0x00, 0x00}, "0 0 0 0"},
        {{0x00, 0x20, 0x00, 0x01}, "0 2 0 0"},
        {{0x00, 0x08, 0x00, 0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, "1 4 0 0"},
        {two(entry), "1 32 2 2 [1 14 4660 1 1 2 1 85] [1 14 4660 1 1 2 1 85]"},
        {two({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}), "0 18 2 1 [1 14 4660 1 1 2 1 85]"},
        {two({1, 200, 1, 0, 0, 0, 0, 0, 0, 0, 1, 2}), "0 21 2 1 [1 14 4660 1 1 2 1 85]"},
        {two({1, 9, 1, 0, 0, 0, 0, 0, 0, 0, 2, 2, 1, 0x55, 3, 4, 0}), "0 34 2 1 [1 14 4660 1 1 2 1 85]"},
        {two({1, 9, 1, 0, 0, 0, 0, 0, 0, 0, 2, 2, 1, 0x55, 3}), "0 32 2 1 [1 14 4660 1 1 2 1 85]"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.data));
        TCCompatibilityDescriptor compat;
        unsigned int used = 99;
        const int result = compat.Parse(c.data.data(), static_cast<unsigned int>(c.data.size()), used);
        EXPECT_EQ(Join(result, used, Compat(compat)), c.result);
    }
    // Entries copied keep their own bytes.
    TCCompatibilityDescriptor compat;
    unsigned int used = 0;
    Bytes data = two(entry);
    compat.Parse(data.data(), static_cast<unsigned int>(data.size()), used);
    const TCCompatibilityDescriptor copy = compat;
    data.assign(data.size(), 0);
    EXPECT_EQ(Compat(copy), "2 2 [1 14 4660 1 1 2 1 85] [1 14 4660 1 1 2 1 85]");
}
