#include <gtest/gtest.h>

#include <climits>
#include <list>
#include <memory>
#include <tuple>
#include <typeinfo>

#include "core/BaseDesc.h"
#include "core/DescExtension.h"
#include "core/DescriptorDataTranslator.h"
#include "core/DescriptorHash.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

// A decoded class as later descriptors are written: it counts its hook runs
// and can claim a consumed length of its own choice.
class CountingDesc : public TCBaseDesc {
public:
    explicit CountingDesc(int consumedDelta = 0) : TCBaseDesc(0x4D), delta(consumedDelta) {}
    const int delta;
    int hookRuns = 0, firstByte = -1;
    void DeleteAll() override {}
    TCBaseDesc* Fork() const override { return t_ForkAs(new CountingDesc(delta)); }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override
    {
        ++hookRuns;
        firstByte = payload[0];
        return length + delta;
    }
};

// Made from its raw bytes, as a default object unless another one is given.
TCBaseDesc* Decoded(const Bytes& raw, TCBaseDesc* d = nullptr)
{
    d = d ? d : new TCDescDefault(raw[0]);
    d->Parse(raw.data());
    return d;
}

Bytes RawOf(const TCBaseDesc& d)
{
    unsigned char b[300];
    int n = sizeof b;
    return d.GetDescriptor(b, &n) ? Bytes(b, b + n) : Bytes();
}

} // namespace

TEST(BaseDesc, RawCopyLengthsAndHook)
{
    for (const Bytes& raw : {Desc(0x4D, {}), Desc(0x4D, {0x01}), Desc(0x4D, Bytes(255, 0xAB))}) {
        SCOPED_TRACE(raw.size());
        const int size = static_cast<int>(raw.size());
        const bool hasCopy = size > 2;
        CountingDesc d;
        zumtest::LogCapture log;
        EXPECT_EQ(d.Parse(raw.data()), size);
        EXPECT_EQ(d.Length(), size);
        EXPECT_EQ(d.hookRuns, hasCopy ? 1 : 0);
        EXPECT_TRUE(log.Lines().empty());
        EXPECT_EQ(RawOf(d), hasCopy ? raw : Bytes());
        // Exact fit, then one byte short: refused, size untouched (0 without a copy).
        unsigned char buffer[257];
        int capacity = size;
        EXPECT_EQ(d.GetDescriptor(buffer, &capacity), hasCopy);
        capacity = size - 1;
        EXPECT_FALSE(d.GetDescriptor(buffer, &capacity));
        EXPECT_EQ(capacity, hasCopy ? size - 1 : 0);
    }

    CountingDesc d(-1);
    zumtest::LogCapture log;
    EXPECT_EQ(d.Parse(Desc(0x4D, {0x11, 0x22, 0x33}).data()), 5);
    EXPECT_EQ(log.Lines(3), std::vector<std::string>{"[Warning] Descriptor[0x4d] length mismatch!inLen=3, outLen=2"});
    EXPECT_EQ(d.firstByte, 0x11);
    d.Parse(Desc(0x4D, {0x44}).data()); // a second Parse replaces the raw copy
    EXPECT_EQ(RawOf(d), Desc(0x4D, {0x44}));
    log.Clear();
    int size = 10;
    EXPECT_FALSE(d.GetDescriptor(nullptr, &size));
    EXPECT_TRUE(log.Contains("Failed: pBuff"));
}

TEST(BaseDesc, FlagEqualAndFork)
{
    std::unique_ptr<TCBaseDesc> a(Decoded(Desc(0x4D, {1, 2, 3}), new CountingDesc));
    std::unique_ptr<TCBaseDesc> same(Decoded(Desc(0x4D, {1, 2, 3}))), other(Decoded(Desc(0x4D, {1, 2, 4}))),
        shorter(Decoded(Desc(0x4D, {1, 2}))), zeroA(Decoded(Desc(0x10, {}))), zeroB(Decoded(Desc(0x99, {})));
    EXPECT_TRUE(a->FlagEqual(same.get()));
    EXPECT_FALSE(a->FlagEqual(other.get()) || a->FlagEqual(shorter.get()));
    EXPECT_TRUE(zeroA->FlagEqual(zeroB.get())); // whatever their tags
    zumtest::LogCapture log;
    EXPECT_FALSE(a->FlagEqual(nullptr));
    EXPECT_TRUE(log.Contains("Failed: pInDesc"));

    // A clone decodes the raw copy again and outlives its original.
    std::unique_ptr<TCBaseDesc> clone(a->Fork());
    a.reset();
    auto& counted = dynamic_cast<CountingDesc&>(*clone);
    EXPECT_EQ(counted.hookRuns, 1);
    EXPECT_EQ(counted.firstByte, 1);
    EXPECT_EQ(RawOf(*clone), Desc(0x4D, {1, 2, 3}));
    // A clone of an object without raw copy is a new empty object.
    std::unique_ptr<TCBaseDesc> emptyClone(CountingDesc().Fork());
    EXPECT_EQ(dynamic_cast<CountingDesc&>(*emptyClone).hookRuns, 0);
    EXPECT_EQ(emptyClone->TableId(), -1);
}

TEST(DescExtension, TagFollowsTheExtensionByte)
{
    EXPECT_EQ(TCDescExtension().Tag(), -1);
    EXPECT_EQ(TCDescExtension::ProcessExtensionDescriptor(nullptr, 0), nullptr);
    // The byte behind a zero-length extension belongs to the next descriptor (0x04 would pick a class).
    struct Case { Bytes raw; int tag; } cases[] = {
        {Desc(0x7F, {}), -1}, {Bytes{0x7F, 0x00, 0x04}, -1}, {Desc(0x7F, {0x0B}), 0x7F0B},
        {Desc(0x7F, {0xA3, 1, 2}), 0x7FA3}, {Desc(0x7F, {0xFF}), 0x7FFF}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.tag);
        std::unique_ptr<TCBaseDesc> d(TCDescExtension::ProcessExtensionDescriptor(c.raw.data(), 0xFFFFFFFF));
        ASSERT_NE(d, nullptr);
        const TCBaseDesc& made = *d;
        EXPECT_EQ(typeid(made), typeid(TCDescExtension));
        d->Parse(c.raw.data());
        EXPECT_EQ(d->Tag(), c.tag);
        EXPECT_EQ(std::unique_ptr<TCBaseDesc>(d->Fork())->Tag(), c.tag);
    }
}

TEST(DescriptorHash, ByTagByArrivalAndOwnership)
{
    auto original = std::make_unique<TCDescriptorHash>();
    TCDescriptorHash& h = *original;
    for (const Bytes& raw : {Desc(0x48, {1, 2}), Desc(0x4D, {2}), Desc(0x48, {3})})
        h.Add(Decoded(raw));
    h.Add(nullptr);
    EXPECT_EQ(std::make_tuple(h.NumOfDescriptors(), h.NumOfDescriptors(0x48), h.NumOfDescriptors(0x99)),
              std::make_tuple(3, 2, 0));
    EXPECT_EQ(h.Descriptor(0x4D, 0), h.DescriptorByIndex(1)); // the first of its tag, though others came before
    EXPECT_EQ(h.Descriptor(0x48, 1), h.DescriptorByIndex(2));
    for (TCBaseDesc* none : {h.Descriptor(0x4D, 1), h.Descriptor(0x77, 0), h.DescriptorByIndex(3)})
        EXPECT_EQ(none, nullptr);

    std::list<TCBaseDesc*> clones;
    ASSERT_TRUE(h.GetDescriptor(&clones));
    ASSERT_EQ(clones.size(), 3u);
    EXPECT_NE(clones.front(), h.DescriptorByIndex(0));
    TCDescriptorHash copy;
    copy.Add(Decoded(Desc(0x99, {})));
    copy = h;
    TCDescriptorHash constructed(h);
    EXPECT_TRUE(copy == h && constructed == h);
    EXPECT_NE(copy.DescriptorByIndex(0), h.DescriptorByIndex(0));

    // Copies and clones outlive the container they came from.
    original.reset();
    EXPECT_EQ(copy.NumOfDescriptors(0x48), 2);
    EXPECT_EQ(RawOf(*copy.DescriptorByIndex(0)), Desc(0x48, {1, 2}));
    for (TCBaseDesc* clone : clones)
        EXPECT_FALSE(RawOf(*std::unique_ptr<TCBaseDesc>(clone)).empty());

    TCDescriptorHash empty;
    std::list<TCBaseDesc*> untouched{nullptr};
    EXPECT_FALSE(empty.GetDescriptor(&untouched));
    EXPECT_EQ(untouched.size(), 1u);
    EXPECT_FALSE(copy == empty);
    // Same count, one byte apart in the last descriptor.
    TCDescriptorHash differs;
    for (const Bytes& raw : {Desc(0x48, {1, 2}), Desc(0x4D, {2}), Desc(0x48, {4})})
        differs.Add(Decoded(raw));
    EXPECT_FALSE(copy == differs);
    zumtest::LogCapture log;
    EXPECT_FALSE(copy.GetDescriptor(nullptr));
    EXPECT_TRUE(log.Contains("Failed: pDesc"));
}

TEST(DescriptorDataTranslator, BitsBytesAndBounds)
{
    const unsigned char data[] = {0xA5, 0x3C};
    TCDescriptorDataTranslator t(data, 2);
    std::string bits;
    while (bits.size() < 16)
        bits += t.GetBits(1) ? '1' : '0';
    EXPECT_EQ(bits, "1010010100111100");
    EXPECT_EQ(t.GetBits(1), 0u);
    EXPECT_TRUE(t.EndOfData());

    TCDescriptorDataTranslator u(data, 2);
    u.SkipBits(16); // would reach the end: the position stays
    EXPECT_EQ(u.GetBits(3), 0x5u);
    EXPECT_EQ(u.GetBits(0), 0u);
    EXPECT_EQ(u.GetBits(14), 0u); // 3 + 14 > 16: refused, position kept
    EXPECT_EQ(u.GetBits(INT_MAX), 0u);
    u.SkipBits(INT_MAX);
    u.SkipBits(INT_MIN);
    EXPECT_EQ(u.GetUInt8(), 0xA5);
    EXPECT_EQ(u.GetBits(8), 0x3Cu);
    zumtest::LogCapture log;
    EXPECT_EQ(u.GetUInt8(), 0);
    EXPECT_EQ(log.Lines(6), std::vector<std::string>{"Reading out of bonds!"});

    const unsigned char wide[] = {0x80, 0, 0, 0, 0, 0, 0, 0x01};
    EXPECT_EQ(TCDescriptorDataTranslator(wide, 8).GetBits(64), 0x8000000000000001ull);
}
