#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dvb/DescLinkage.h"
#include "dvb/UNTParser.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

struct Platform { Bytes target, operational; };
struct Item { Bytes compatibility; std::vector<Platform> platforms; };

Bytes Unt(unsigned actionType, unsigned oui, unsigned version, unsigned section, unsigned last, const Bytes& common,
          const std::vector<Item>& items)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(0x4B, (actionType << 8) | ((oui ^ (oui >> 8) ^ (oui >> 16)) & 0xFF),
                                                  version, section, last, true));
    b.U24(oui).U8(0x01).Begin16(12).Raw(common).End();
    for (const Item& item : items) {
        b.Begin16(16, 0).Raw(item.compatibility).End().Begin16(16, 0);
        for (const Platform& p : item.platforms)
            b.Begin16(12).Raw(p.target).End().Begin16(12).Raw(p.operational).End();
        b.End();
    }
    return b.Build();
}

std::string Compatibility(const TCUNTItem& item, unsigned short size)
{
    unsigned char buffer[32] = {};
    const bool ok = item.GetCompatibilityDescriptor(buffer, size);
    return ok ? std::to_string(size) + ":" + std::string(buffer, buffer + size) : "false";
}

} // namespace

TEST(UNTParser, InstancesItemsAndLoops)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("DEU");
    TCUNTParser unt(kZUMDefaultHandle);
    unt.Initialize();
    // The SSU location names where the update is carried (data_broadcast_id, association tag).
    const Bytes location = Desc(0x03, {0x00, 0x0A, 0x12, 0x34});
    const Bytes target = Desc(0x0C, {0xC0, 0xA8, 0x00, 0x01});
    const Item two = {{'C', 'O', 'M', 'P', 'A', 'T', 'I', 'B', 'L', 'E'}, {{target, location}, {{}, {}}}};
    const Bytes a0 = Unt(1, 0x00015A, 3, 0, 1, Desc(0x01, {}), {two, {{}, {}}});
    const Bytes a1 = Unt(1, 0x00015A, 3, 1, 1, {}, {});
    EXPECT_FALSE(unt.Parse(0x20, a0.data()));
    EXPECT_TRUE(unt.Parse(0x20, Unt(2, 0x0000FF, 0, 0, 0, Bytes(4, 0xFF) /* a cut descriptor */, {}).data()));
    EXPECT_TRUE(unt.Parse(0x20, a1.data()));
    ASSERT_EQ(unt.NumOfUNTIntance(), 2);
    EXPECT_EQ(unt.UNTInstanceOfIndex(0), unt.UNTInstance(0xFF));
    EXPECT_EQ(unt.UNTInstanceOfIndex(2), nullptr);
    EXPECT_EQ(unt.UNTInstance(0x123), nullptr);

    const TCUNTInstance* maker = unt.UNTInstance(0x00015A);
    ASSERT_NE(maker, nullptr);
    EXPECT_EQ(std::vector<unsigned>({maker->ActionType(), maker->OUIHash(), maker->OUI(), maker->ProcessingOrder(),
                                     maker->CommonDescriptorsLength(), unsigned(maker->NumOfDescriptors())}),
              (std::vector<unsigned>{1, 0x5B, 0x15A, 1, 0 /* of the last section */, 1}));
    ASSERT_EQ(maker->NumOfItem(), 2);
    EXPECT_EQ(maker->UNTItem(2), nullptr);
    const TCUNTItem* item = maker->UNTItem(0);
    EXPECT_EQ(Compatibility(*item, 4), "4:COMP");
    EXPECT_EQ(Compatibility(*item, 20), "10:COMPATIBLE");
    EXPECT_EQ(Compatibility(*item, 0), "false");
    unsigned short size = 4;
    EXPECT_FALSE(item->GetCompatibilityDescriptor(nullptr, size));
    EXPECT_EQ(Compatibility(*maker->UNTItem(1), 4), "false");
    ASSERT_EQ(item->NumOfElementary(), 2);
    EXPECT_EQ(item->UNTElementary(2), nullptr);
    const TCUNTElementary* platform = item->UNTElementary(0);
    EXPECT_EQ(platform->TargetLoopLength(), 6u);
    EXPECT_EQ(platform->OperationalLoopLength(), 6u);
    EXPECT_EQ(platform->NumOfTargetDescriptors(), 1);
    const auto* ssu = dynamic_cast<const TCDescSSULocation*>(platform->Descriptors().DescriptorByIndex(1));
    ASSERT_NE(ssu, nullptr);
    EXPECT_EQ(ssu->TableId(), 0x4B);
    EXPECT_EQ(item->UNTElementary(1)->Descriptors().NumOfDescriptors(), 0);

    // A repetition of a complete table is ignored; a section number above the last one is logged.
    zumtest::LogCapture log;
    EXPECT_FALSE(unt.Parse(0x20, a1.data()));
    EXPECT_FALSE(unt.Parse(0x20, Unt(1, 0x00015A, 3, 2, 1, {}, {}).data()));
    EXPECT_EQ(log.Count("TCUNTInstance Section Ignored... "), 1);
    EXPECT_EQ(maker->NumOfItem(), 2);

    // Common descriptors that fill the body leave no item; lengths that claim more than the body are cut.
    const TCUNTInstance* other = unt.UNTInstance(0xFF);
    EXPECT_EQ(other->NumOfItem(), 0);
    EXPECT_EQ(other->ActionType(), 2);
    zumtest::SectionBuilder cut(zumtest::LongHeader(0x4B, 0x0100, 0, 0, 0, true));
    cut.U24(0x000001).U8(0).U16(0xF000).U16(0x0001).Raw({'X'}).U16(0x0100).U16(0xF0FF).Raw(location);
    EXPECT_TRUE(unt.Parse(0x20, cut.Build().data()));
    const TCUNTItem* cutItem = unt.UNTInstance(1)->UNTItem(0);
    ASSERT_NE(cutItem, nullptr);
    EXPECT_EQ(Compatibility(*cutItem, 20), "1:X");
    EXPECT_EQ(cutItem->PlatformLoopLength(), 0x100);
    ASSERT_EQ(cutItem->NumOfElementary(), 1);
    EXPECT_EQ(cutItem->UNTElementary(0)->TargetLoopLength(), 0xFFu);
    EXPECT_EQ(cutItem->UNTElementary(0)->Descriptors().NumOfDescriptors(), 1);
    unt.Initialize();
    EXPECT_EQ(unt.NumOfUNTIntance(), 0);
}
