#include <gtest/gtest.h>

#include <list>
#include <memory>

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
    explicit CountingDesc(int consumedDelta = 0) : TCBaseDesc(0x4D), m_delta(consumedDelta) {}
    int hookRuns = 0;
    int firstByte = -1;
    void DeleteAll() override {}
    TCBaseDesc* Fork() const override { return t_ForkAs(new CountingDesc(m_delta)); }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override
    {
        ++hookRuns;
        firstByte = payload[0];
        return length + m_delta;
    }

private:
    int m_delta;
};

std::unique_ptr<TCBaseDesc> Decoded(TCBaseDesc* d, const Bytes& raw)
{
    d->Parse(raw.data());
    return std::unique_ptr<TCBaseDesc>(d);
}

} // namespace

TEST(BaseDesc, RawCopyAndLengths)
{
    struct Case {
        Bytes raw;
        int parseResult;
        bool hasCopy;
    } cases[] = {
        {Desc(0x4D, {}), 2, false},
        {Desc(0x4D, {0x01}), 3, true},
        {Desc(0x4D, Bytes(255, 0xAB)), 257, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.raw.size());
        CountingDesc d;
        zumtest::LogCapture log;
        EXPECT_EQ(d.Parse(c.raw.data()), c.parseResult);
        EXPECT_EQ(d.Tag(), 0x4D);
        EXPECT_EQ(d.Length(), c.parseResult);
        EXPECT_EQ(d.hookRuns, c.hasCopy ? 1 : 0);
        EXPECT_TRUE(log.Lines().empty());

        unsigned char buffer[300];
        int size = sizeof buffer;
        EXPECT_EQ(d.GetDescriptor(buffer, &size), c.hasCopy);
        if (c.hasCopy) {
            EXPECT_EQ(Bytes(buffer, buffer + size), c.raw);
            // One byte short of the capacity: refused, size untouched.
            size = static_cast<int>(c.raw.size()) - 1;
            EXPECT_FALSE(d.GetDescriptor(buffer, &size));
            EXPECT_EQ(size, static_cast<int>(c.raw.size()) - 1);
        } else {
            EXPECT_EQ(size, 0);
        }
    }
}

TEST(BaseDesc, HookWorksOnItsOwnCopyAndMismatchWarns)
{
    Bytes raw = Desc(0x4D, {0x11, 0x22, 0x33});
    CountingDesc d(-1);
    zumtest::LogCapture log;
    EXPECT_EQ(d.Parse(raw.data()), 5);
    EXPECT_EQ(log.Lines(3), std::vector<std::string>{"[Warning] Descriptor[0x4d] length mismatch!inLen=3, outLen=2"});
    EXPECT_EQ(d.firstByte, 0x11);

    // A second Parse replaces the raw copy.
    raw = Desc(0x4D, {0x44});
    d.Parse(raw.data());
    unsigned char buffer[8];
    int size = sizeof buffer;
    ASSERT_TRUE(d.GetDescriptor(buffer, &size));
    EXPECT_EQ(size, 3);
    EXPECT_EQ(buffer[2], 0x44);
}

TEST(BaseDesc, FlagEqual)
{
    auto a = Decoded(new CountingDesc, Desc(0x4D, {1, 2, 3}));
    auto b = Decoded(new CountingDesc, Desc(0x4D, {1, 2, 3}));
    auto c = Decoded(new CountingDesc, Desc(0x4D, {1, 2, 4}));
    auto d = Decoded(new CountingDesc, Desc(0x4D, {1, 2}));
    auto zeroA = Decoded(new TCDescDefault(0x10), Desc(0x10, {}));
    auto zeroB = Decoded(new TCDescDefault(0x99), Desc(0x99, {}));
    EXPECT_TRUE(a->FlagEqual(b.get()));
    EXPECT_FALSE(a->FlagEqual(c.get()));
    EXPECT_FALSE(a->FlagEqual(d.get()));
    EXPECT_TRUE(zeroA->FlagEqual(zeroB.get()));

    zumtest::LogCapture log;
    EXPECT_FALSE(a->FlagEqual(nullptr));
    EXPECT_TRUE(log.Contains("Failed: pInDesc"));
    unsigned char* none = nullptr;
    int size = 10;
    EXPECT_FALSE(a->GetDescriptor(none, &size));
    EXPECT_TRUE(log.Contains("Failed: pBuff"));
}

TEST(BaseDesc, ForkDecodesTheCopyAgain)
{
    auto original = Decoded(new CountingDesc, Desc(0x4D, {9, 8, 7}));
    std::unique_ptr<TCBaseDesc> clone(original->Fork());
    auto* counted = dynamic_cast<CountingDesc*>(clone.get());
    ASSERT_NE(counted, nullptr);
    EXPECT_EQ(counted->hookRuns, 1);
    EXPECT_EQ(counted->firstByte, 9);
    EXPECT_TRUE(clone->FlagEqual(original.get()));

    // Deleting the original leaves the clone whole.
    original.reset();
    unsigned char buffer[8];
    int size = sizeof buffer;
    EXPECT_TRUE(clone->GetDescriptor(buffer, &size));
    EXPECT_EQ(Bytes(buffer, buffer + size), Desc(0x4D, {9, 8, 7}));

    // A clone of an object without raw copy is a new empty object.
    CountingDesc empty;
    std::unique_ptr<TCBaseDesc> emptyClone(empty.Fork());
    EXPECT_EQ(dynamic_cast<CountingDesc*>(emptyClone.get())->hookRuns, 0);
    EXPECT_EQ(emptyClone->TableId(), -1);
}

TEST(DescExtension, TagFollowsTheExtensionByte)
{
    TCDescExtension fresh;
    EXPECT_EQ(fresh.Tag(), -1);

    struct Case {
        Bytes raw;
        int tag;
    } cases[] = {
        {Desc(0x7F, {}), -1},
        {Desc(0x7F, {0x08}), 0x7F08},
        {Desc(0x7F, {0xA3, 1, 2}), 0x7FA3},
        {Desc(0x7F, {0xFF}), 0x7FFF},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.tag);
        std::unique_ptr<TCBaseDesc> d(TCDescExtension::ProcessExtensionDescriptor(c.raw.data(), 0xFFFFFFFF));
        ASSERT_NE(d, nullptr);
        EXPECT_NE(dynamic_cast<TCDescExtension*>(d.get()), nullptr);
        EXPECT_EQ(d->Parse(c.raw.data()), static_cast<int>(c.raw.size()));
        EXPECT_EQ(d->Tag(), c.tag);
        std::unique_ptr<TCBaseDesc> clone(d->Fork());
        EXPECT_EQ(clone->Tag(), c.tag);
    }
    EXPECT_EQ(TCDescExtension::ProcessExtensionDescriptor(nullptr, 0), nullptr);
}

TEST(DescriptorHash, ByTagAndByArrival)
{
    TCDescriptorHash hash;
    const Bytes a = Desc(0x48, {1}), b = Desc(0x4D, {2}), c = Desc(0x48, {3});
    for (const Bytes* raw : {&a, &b, &c}) {
        auto* d = new TCDescDefault((*raw)[0]);
        d->Parse(raw->data());
        hash.Add(d);
    }
    hash.Add(nullptr);
    EXPECT_EQ(hash.NumOfDescriptors(), 3);
    EXPECT_EQ(hash.NumOfDescriptors(0x48), 2);
    EXPECT_EQ(hash.NumOfDescriptors(0x4D), 1);
    EXPECT_EQ(hash.NumOfDescriptors(0x99), 0);
    EXPECT_EQ(hash.Descriptor(0x4D, 0), hash.DescriptorByIndex(1));
    EXPECT_EQ(hash.Descriptor(0x4D, 1), nullptr);
    EXPECT_EQ(hash.Descriptor(0x48, 1), hash.DescriptorByIndex(2));
    EXPECT_EQ(hash.Descriptor(0x77, 0), nullptr);
    EXPECT_EQ(hash.DescriptorByIndex(3), nullptr);
}

TEST(DescriptorHash, ClonesAndCopiesShareNothing)
{
    auto make = [](const Bytes& raw) {
        auto* d = new TCDescDefault(raw[0]);
        d->Parse(raw.data());
        return d;
    };
    auto original = std::make_unique<TCDescriptorHash>();
    original->Add(make(Desc(0x48, {1, 2})));
    original->Add(make(Desc(0x4A, {3})));

    std::list<TCBaseDesc*> clones;
    ASSERT_TRUE(original->GetDescriptor(&clones));
    ASSERT_EQ(clones.size(), 2u);
    EXPECT_NE(clones.front(), original->DescriptorByIndex(0));

    TCDescriptorHash copy;
    copy.Add(make(Desc(0x99, {})));
    copy = *original;
    TCDescriptorHash constructed(*original);
    EXPECT_TRUE(copy == *original);
    EXPECT_TRUE(constructed == *original);
    EXPECT_NE(copy.DescriptorByIndex(0), original->DescriptorByIndex(0));

    original.reset();
    EXPECT_EQ(copy.NumOfDescriptors(0x48), 1);
    unsigned char buffer[8];
    int size = sizeof buffer;
    EXPECT_TRUE(copy.DescriptorByIndex(0)->GetDescriptor(buffer, &size));
    EXPECT_EQ(size, 4);
    for (TCBaseDesc* d : clones) {
        size = sizeof buffer;
        EXPECT_TRUE(d->GetDescriptor(buffer, &size));
        delete d;
    }

    TCDescriptorHash empty;
    std::list<TCBaseDesc*> untouched{nullptr};
    EXPECT_FALSE(empty.GetDescriptor(&untouched));
    EXPECT_EQ(untouched.size(), 1u);
    EXPECT_FALSE(copy == empty);
    zumtest::LogCapture log;
    EXPECT_FALSE(copy.GetDescriptor(nullptr));
    EXPECT_TRUE(log.Contains("Failed: pDesc"));
}

TEST(DescriptorDataTranslator, BitsBytesAndBounds)
{
    const unsigned char data[] = {0xA5, 0x3C};
    TCDescriptorDataTranslator all(data, 2);
    std::string bits;
    for (int i = 0; i < 16; ++i)
        bits += all.GetBits(1) ? '1' : '0';
    EXPECT_EQ(bits, "1010010100111100");
    EXPECT_EQ(all.GetBits(1), 0u);
    EXPECT_TRUE(all.EndOfData());

    TCDescriptorDataTranslator t(data, 2);
    t.SkipBits(16);
    EXPECT_EQ(t.GetBits(4), 0xAu);
    EXPECT_EQ(t.GetBits(0), 0u);
    EXPECT_EQ(t.GetBits(13), 0u); // 4 + 13 > 16: refused, position kept
    EXPECT_EQ(t.GetBits(12), 0x53Cu);

    TCDescriptorDataTranslator u(data, 2);
    EXPECT_EQ(u.GetBits(3), 0x5u);
    EXPECT_EQ(u.GetUInt8(), 0xA5);
    EXPECT_EQ(u.GetBits(8), 0x3Cu);
    zumtest::LogCapture log;
    EXPECT_EQ(u.GetUInt8(), 0);
    EXPECT_EQ(log.Lines(6), std::vector<std::string>{"Reading out of bonds!"});

    const unsigned char wide[] = {0x80, 0, 0, 0, 0, 0, 0, 0x01};
    TCDescriptorDataTranslator w(wide, 8);
    EXPECT_EQ(w.GetBits(64), 0x8000000000000001ull);
}
