#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

#include "core/DescConfDVB.h"
#include "core/DescConfPSIBase.h"
#include "core/Descriptor.h"
#include "dvb/DescLinkage.h"
#include "psi/DescCA.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

using Fields = std::vector<unsigned>;

// The head: transport stream 0x0102, original network 0x0304, service 0x0506, then the type.
Bytes Linkage(unsigned type, const Bytes& rest)
{
    return Desc(0x4A, Concat({{0x01, 0x02, 0x03, 0x04, 0x05, 0x06, static_cast<uint8_t>(type)}, rest}));
}

// Every type-bound reader, in a fixed order.
Fields Readers(const TCDescLinkage& d)
{
    return {d.LinkageType(),    d.HandOverType(), d.OriginType(),    d.NetworkId(), d.InitialServiceId(),
            d.OUIDataLength(),  static_cast<unsigned>(d.NumOfSSULinkLoop()),    d.TableType(), d.Simulcast(),
            d.TargetId(),       static_cast<unsigned>(d.NumOfExtLinkageLoop()), d.LCNTablePID(),
            static_cast<unsigned>(d.NumOfPrivateDataByte())};
}

template <class T>
std::unique_ptr<T> Decoded(const Bytes& bytes)
{
    auto d = std::make_unique<T>();
    d->Parse(bytes.data());
    return d;
}

} // namespace

// Each linkage type reads its own fields; the readers of the other types answer 0.
TEST(DescLinkage, FieldsByLinkageType)
{
    struct Case { const char* name; Bytes bytes; Fields fields; } cases[] = {
        {"head alone", Linkage(0x01, {}), {1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
        {"information service with private data", Linkage(0x04, {9, 9, 9}), {4, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3}},
        {"hand-over 1 from the NIT", Linkage(0x08, {0x10, 0x12, 0x34, 0x56, 0x78, 7, 7}),
         {8, 1, 0, 0x1234, 0x5678, 0, 0, 0, 0, 0, 0, 0, 2}},
        {"hand-over 0: the service id at offset 8", Linkage(0x08, {0x00, 0xAB, 0xCD}),
         {8, 0, 0, 0, 0xABCD, 0, 0, 0, 0, 0, 0, 0, 0}},
        {"hand-over 2 from the SDT", Linkage(0x08, {0x21, 0x01, 0x02, 7}), {8, 2, 1, 0x0102, 0, 0, 0, 0, 0, 0, 0, 0, 1}},
        {"hand-over cut short", Linkage(0x08, {0x10, 0x12}), {8, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}},
        {"update without OUI loop", Linkage(0x09, {0x00, 5, 5}), {9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2}},
        {"update with two OUIs", Linkage(0x09, {9, 0x00, 0x01, 0x5A, 1, 0xAA, 0, 0, 2, 0, 5}),
         {9, 0, 0, 0, 0, 9, 2, 0, 0, 0, 0, 0, 1}},
        {"update loop past the body", Linkage(0x09, {0x20, 0, 0}), {9, 0, 0, 0, 0, 0x20, 0, 0, 0, 0, 0, 0, 0}},
        {"table type: no private data", Linkage(0x0A, {2, 9, 9}), {0x0A, 0, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0, 0}},
        {"event linkage", Linkage(0x0D, {0x43, 0x21, 0x40}), {0x0D, 0, 0, 0, 0, 0, 0, 0, 1, 0x4321, 0, 0, 0}},
        {"channel number table PID", Linkage(0x85, {0xE1, 0x23}), {0x85, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x0123, 0}},
        {"user defined", Linkage(0x80, {1, 2}), {0x80, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2}},
        {"home transponders with a wrong marker", Linkage(0x88, {0x77, 0x00, 1}),
         {0x88, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const auto d = Decoded<TCDescLinkage>(c.bytes);
        EXPECT_EQ(Readers(*d), c.fields);
        EXPECT_EQ(std::vector<unsigned>({d->TransportStreamId(), d->OriginalNetworkId(), d->ServiceId()}),
                  std::vector<unsigned>({0x0102, 0x0304, 0x0506}));
        EXPECT_EQ(d->M7HomeTPData(), nullptr);
        std::unique_ptr<TCBaseDesc> fork(d->Fork());
        EXPECT_EQ(Readers(static_cast<const TCDescLinkage&>(*fork)), c.fields);
    }
    // A body shorter than the head decodes nothing.
    EXPECT_EQ(Decoded<TCDescLinkage>(Desc(0x4A, {1, 2, 3, 4, 5, 6}))->TransportStreamId(), 0);

    const auto ssu = Decoded<TCDescLinkage>(Linkage(0x09, {9, 0x00, 0x01, 0x5A, 1, 0xAA, 0, 0, 2, 0, 5}));
    ASSERT_NE(ssu->SSULinkLoop(1), nullptr);
    EXPECT_EQ(ssu->SSULinkLoop(2), nullptr);
    EXPECT_EQ(std::vector<unsigned>({ssu->SSULinkLoop(0)->OUI(), ssu->SSULinkLoop(0)->SelectorLength(),
                                     ssu->SSULinkLoop(1)->OUI(), ssu->SSULinkLoop(1)->SelectorLength()}),
              std::vector<unsigned>({0x15A, 1, 2, 0}));
    char selector[4] = {};
    int size = 4;
    EXPECT_TRUE(ssu->SSULinkLoop(0)->SelectorByte(selector, &size));
    EXPECT_EQ(size, 1);
    EXPECT_EQ(static_cast<unsigned char>(selector[0]), 0xAA);
}

// The byte copies: nothing to copy or into, the whole run, a truncated run.
TEST(DescLinkage, PrivateDataCopyContract)
{
    const auto d = Decoded<TCDescLinkage>(Linkage(0x80, {1, 2, 3}));
    struct Case { bool buffer, size; int capacity; bool result; int after; Bytes copied; } cases[] = {
        {false, true, 3, false, 3, {0, 0, 0}},
        {true, false, 3, false, 3, {0, 0, 0}},
        {true, true, 0, false, 0, {0, 0, 0}},
        {true, true, 5, true, 3, {1, 2, 3}},
        {true, true, 2, false, 2, {1, 2, 0}},
    };
    for (const Case& c : cases) {
        char buffer[5] = {};
        int size = c.capacity;
        EXPECT_EQ(d->PrivateDataByte(c.buffer ? buffer : nullptr, c.size ? &size : nullptr), c.result);
        EXPECT_EQ(size, c.after);
        EXPECT_EQ(Bytes(buffer, buffer + 3), c.copied);
    }
    char buffer[4];
    int size = 4;
    EXPECT_FALSE(Decoded<TCDescLinkage>(Linkage(0x0A, {2, 9}))->PrivateDataByte(buffer, &size));
}

// Extended event linkage: targets by the flags, and an entry that the loop's last three bytes cut short.
TEST(DescLinkage, ExtendedEventLinkageLoop)
{
    const Bytes loop = {0x01, 0x01, 0x08,                                           // type 2, no flags
                        0x02, 0x02, 0x57, 0x0A, 0x0A, 0x0B, 0x0B, 0x0C, 0x0C,       // type 1, both flags
                        0x03, 0x03, 0x0C, 0x77, 0x77};                              // user defined id
    const auto d = Decoded<TCDescLinkage>(Linkage(0x0E, Concat({{static_cast<uint8_t>(loop.size())}, loop})));
    ASSERT_EQ(d->NumOfExtLinkageLoop(), 3);
    EXPECT_EQ(d->EXTEventLinkageInfoLoop(3), nullptr);
    auto fields = [](const CEXTEventLinkageInfo* e) {
        return Fields{e->TargetEventId(), e->LinkType(), e->TargetIdType(), e->UserDefinedId(),
                      e->TargetTransportStreamId(), e->TargetOriginalNetworkId(), e->TargetServiceId(),
                      e->EventSimulcast()};
    };
    EXPECT_EQ(fields(d->EXTEventLinkageInfoLoop(0)),
              (Fields{0x0101, 0, 2, 0, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0}));
    EXPECT_EQ(fields(d->EXTEventLinkageInfoLoop(1)), (Fields{0x0202, 1, 1, 0, 0x0A0A, 0x0B0B, 0x0C0C, 1}));
    EXPECT_EQ(fields(d->EXTEventLinkageInfoLoop(2)),
              (Fields{0x0303, 0, 3, 0, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0}));
    EXPECT_EQ(Decoded<TCDescLinkage>(Linkage(0x1F, {2, 0, 0}))->NumOfExtLinkageLoop(), 0);
}

TEST(DescLinkage, HomeTransponderData)
{
    using Op = M7HomeTPLinkageData::TSOperatorID;
    const Bytes first = {0x00, 0x01, 0x02, 0x00, 0x10, 0x00, 0x11, 0x00, 0x12, 0x00, 0x13, 0x01, 0x00, 0xE5};
    Bytes second = first; // the same operator again: it does not replace the first
    second[12] = 0x02;
    const Bytes other = {0x00, 0x02, 0x00, 0, 1, 0, 2, 0, 3, 0, 4, 0x00, 0x30, 0x07};
    const auto d = Decoded<TCDescLinkage>(Linkage(0x89, Concat({{0x77, 0x01}, first, second, other})));
    const M7HomeTPLinkageData* m7 = d->M7HomeTPData();
    ASSERT_NE(m7, nullptr);
    EXPECT_EQ(m7->GetVersion(Op{1, 2}), 5u);
    EXPECT_EQ(m7->GetPID(Op{1, 2}), 0x0100u);
    EXPECT_EQ(m7->GetHomeTransponders(Op{1, 2}),
              (std::vector<M7HomeTPLinkageData::HomeTransponder>{{0x10, 0x11}, {0x12, 0x13}}));
    EXPECT_EQ(m7->GetPID(Op{2, 0}), 0x30u);
    EXPECT_EQ(m7->GetVersion(Op{1, 0}), 0xFFFFFFFFu);
    EXPECT_TRUE(m7->GetHomeTransponders(Op{9, 9}).empty());
    EXPECT_EQ(m7->Operators().size(), 2u);
    // The bytes went to the operators: none stand as private data, though their number does.
    char buffer[64];
    int size = 64;
    EXPECT_FALSE(d->PrivateDataByte(buffer, &size));
    EXPECT_EQ(d->NumOfPrivateDataByte(), 2 + 3 * 14);

    // What Parse reports for a body cut inside a record.
    const Bytes body = Concat({{0x77, 0xFF}, first});
    for (auto c : std::vector<std::pair<int, int>>{{16, 16}, {15, 15}, {14, 13}, {5, 5}, {3, 2}, {1, 0}}) {
        M7HomeTPLinkageData data;
        EXPECT_EQ(data.Parse(body.data(), c.first), c.second) << c.first;
        EXPECT_EQ(data.GetVersion(Op{1, 2}), c.first == 16 ? 5u : 0xFFFFFFFFu);
    }
    const Op a{1, 2}, b{1, 3}, c{1, 9}, d2{2, 0};
    EXPECT_TRUE(a < b && c < d2 && a != b && !(d2 < c));
}

// The loop stores its specifier in every linkage; operator 70 keeps only its own private linkages.
TEST(DescLinkage, LoopHookSpecifierAndOperator70)
{
    const Bytes ownSpecifier = Desc(0x5F, {0, 0, 0, 0xBE});
    struct Case { const char* name; unsigned op; Bytes prefix; unsigned type; bool binder, kept; unsigned pds; } cases[] = {
        {"operator 70, private type, no specifier", 70, {}, 0x80, true, false, 0},
        {"operator 70, its own specifier", 70, ownSpecifier, 0xFE, true, true, 0xBE},
        {"operator 70, standard type", 70, {}, 0x7F, true, true, 0},
        {"operator 70, type 0xFF", 70, {}, 0xFF, true, true, 0},
        {"another operator", 71, Desc(0x5F, {0, 0, 0, 0x28}), 0x80, true, true, 0x28},
        {"no binder", 70, {}, 0x80, false, true, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::BinderScope binder;
        binder->operatorId = c.op;
        if (!c.binder)
            zum_platform::RemoveBinder();
        TCDescriptorDVB loop(kZUMDefaultHandle);
        TCDescriptorHash hash;
        const Bytes bytes = Concat({c.prefix, Linkage(c.type, {1})});
        loop.Parse(bytes.data(), static_cast<int>(bytes.size()), hash, 0x40);
        const auto* linkage = dynamic_cast<const TCDescLinkage*>(hash.Descriptor(0x4A, 0));
        EXPECT_EQ(linkage != nullptr, c.kept);
        if (!linkage)
            continue;
        EXPECT_EQ(linkage->GetPDSD(), c.pds);
        std::unique_ptr<TCBaseDesc> fork(linkage->Fork());
        EXPECT_EQ(static_cast<const TCDescLinkage&>(*fork).GetPDSD(), c.pds);
    }
}

TEST(DescDataBroadcast, FieldsAndShortBodies)
{
    const auto d = Decoded<TCDescDataBroadcast>(
        Desc(0x64, {0x01, 0x23, 0x05, 0x02, 0xA1, 0xA2, 'e', 'n', 'g', 0x02, 'h', 'i'}));
    EXPECT_EQ(Fields({d->DataBroadcastId(), d->ComponentTag(), d->SelectorLength(), d->Language(),
                      static_cast<unsigned>(d->TextLength())}),
              (Fields{0x0123, 5, 2, 0x656E67, 2}));
    char text[2];
    int size = 1;
    EXPECT_FALSE(d->TextChar(text, &size));
    EXPECT_EQ(text[0], 'h');
    size = 2;
    EXPECT_TRUE(d->SelectorByte(text, &size));
    // A selector that does not fit stops the decoding behind its length byte.
    zumtest::LogCapture log;
    const auto cut = Decoded<TCDescDataBroadcast>(Desc(0x64, {0x01, 0x23, 0x05, 0x09, 0xA1}));
    EXPECT_EQ(Fields({cut->DataBroadcastId(), cut->ComponentTag(), cut->SelectorLength(), cut->Language()}),
              (Fields{0x0123, 5, 0, 0}));
    EXPECT_TRUE(log.Contains("[Warning] Descriptor[0x64] length mismatch!inLen=5, outLen=4"));
}

TEST(DescDataBroadcastId, UpdateLoopsOrSelector)
{
    const auto ssu = Decoded<TCDescDataBroadcastId>(Desc(
        0x66, {0x00, 0x0A, 13, 0x00, 0x01, 0x5A, 0xF1, 0x25, 1, 0x99, 0x00, 0x00, 0x02, 0x02, 0x03, 0, 0xC1, 0xC2}));
    EXPECT_EQ(Fields({ssu->OUIDataLength(), static_cast<unsigned>(ssu->NumOfSSUInfoLoop()),
                      static_cast<unsigned>(ssu->NumOfPrivateDataByte()),
                      static_cast<unsigned>(ssu->NumOfIDSelectorByte())}),
              (Fields{13, 2, 2, 0}));
    const CSSUInfoLoop* first = ssu->SSUInfoLoop(0);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(Fields({first->OUI(), first->UpdateType(), first->UpdateVersioningFlag(), first->UpdateVersion(),
                      first->SelectorLength()}),
              (Fields{0x15A, 1, 1, 5, 1}));
    EXPECT_EQ(Fields({ssu->SSUInfoLoop(1)->OUI(), ssu->SSUInfoLoop(1)->UpdateType()}), (Fields{2, 2}));
    EXPECT_EQ(ssu->SSUInfoLoop(2), nullptr);

    const auto other = Decoded<TCDescDataBroadcastId>(Desc(0x66, {0x01, 0x06, 7, 8, 9}));
    EXPECT_EQ(Fields({other->OUIDataLength(), static_cast<unsigned>(other->NumOfSSUInfoLoop()),
                      static_cast<unsigned>(other->NumOfPrivateDataByte()),
                      static_cast<unsigned>(other->NumOfIDSelectorByte())}),
              (Fields{0, 0, 0, 3}));
    char buffer[3];
    int size = 3;
    EXPECT_FALSE(other->PrivateDataByte(buffer, &size));
    EXPECT_TRUE(other->IDSelectorByte(buffer, &size));
    // An update loop whose selector runs past the body reads nothing beyond it.
    const auto cut = Decoded<TCDescDataBroadcastId>(Desc(0x66, {0x00, 0x0A, 40, 0, 0, 1, 0, 0, 200}));
    EXPECT_EQ(cut->NumOfSSUInfoLoop(), 1);
    EXPECT_EQ(cut->SSUInfoLoop(0)->OUI(), 1u);
}

TEST(DescSSULocationAndCA, Fields)
{
    const auto update = Decoded<TCDescSSULocation>(Desc(0x03, {0x00, 0x0A, 0x12, 0x34, 0x55}));
    EXPECT_EQ(Fields({update->DataBroadcastId(), update->AssociationTag(),
                      static_cast<unsigned>(update->NumOfPrivateDataByte())}),
              (Fields{0x0A, 0x1234, 1}));
    const auto other = Decoded<TCDescSSULocation>(Desc(0x03, {0x01, 0x05, 0x12, 0x34}));
    EXPECT_EQ(Fields({other->DataBroadcastId(), other->AssociationTag(),
                      static_cast<unsigned>(other->NumOfPrivateDataByte())}),
              (Fields{0x105, 0, 2}));

    const auto ca = Decoded<TCDescCA>(Desc(0x09, {0x05, 0x00, 0xE1, 0xFF, 0xAA, 0xBB}));
    EXPECT_EQ(Fields({ca->CASystemId(), ca->CAPid(), static_cast<unsigned>(ca->PrivateDataLength())}),
              (Fields{0x0500, 0x01FF, 2}));
    EXPECT_EQ(ca->PrivateData()[1], 0xBB);
    const auto bare = Decoded<TCDescCA>(Desc(0x09, {0x4A, 0xE0, 0x00, 0x10}));
    EXPECT_EQ(bare->PrivateDataLength(), 0);
    EXPECT_EQ(bare->PrivateData(), nullptr);
}

// The factory rows of the family, in the SI and the program table factories.
TEST(DescLinkage, FactoryRows)
{
    zumtest::BinderScope binder;
    TCDescConfDVB si(kZUMDefaultHandle);
    TCDescConfPsiDVB psi(kZUMDefaultHandle);
    struct Case { TCDescConfBase* factory; int tag; const std::type_info& type; } cases[] = {
        {&si, 0x03, typeid(TCDescSSULocation)},   {&si, 0x4A, typeid(TCDescLinkage)},
        {&si, 0x64, typeid(TCDescDataBroadcast)}, {&si, 0x66, typeid(TCDescDataBroadcastId)},
        {&psi, 0x09, typeid(TCDescCA)},           {&psi, 0x66, typeid(TCDescDataBroadcastId)},
        {&si, 0x09, typeid(TCDescDefault)},
    };
    for (const Case& c : cases) {
        const Bytes bytes = Desc(static_cast<unsigned>(c.tag), {});
        std::unique_ptr<TCBaseDesc> d(c.factory->NewDescriptor(c.tag, bytes.data(), 0));
        ASSERT_NE(d, nullptr);
        const TCBaseDesc& made = *d;
        EXPECT_EQ(typeid(made), c.type) << c.tag;
    }
}

TEST(DescLinkage, UpdateLoopDebugLines)
{
    struct Case { Bytes rest; std::vector<std::string> lines; } cases[] = {
        {{6, 0x00, 0x01, 0x5A, 1, 0xAA, 0x00},
         {"Linkage Type = 0x9", "[TCDescLinkage::t_Parse] endIndex=m_OUIDataLength=6, len=14",
          "[CSSULinkLoop::Parse] m_OUI=346, m_selectorLength=1", "[CSSULinkLoop::Parse] size=5"}},
        {{5, 0x00, 0x00, 0x01, 3, 0xAA},
         {"Linkage Type = 0x9", "[TCDescLinkage::t_Parse] endIndex=m_OUIDataLength=5, len=13",
          "[exception handling] m_selectorLength = 3. len = 5"}},
    };
    for (const Case& c : cases) {
        zumtest::LogCapture log;
        Decoded<TCDescLinkage>(Linkage(0x09, c.rest));
        EXPECT_EQ(log.Lines(3), c.lines);
    }
}
