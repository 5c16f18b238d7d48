#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "psi/DVBCATParser.h"
#include "psi/DescCA.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

Bytes Cat(unsigned version, unsigned section, unsigned last, const Bytes& descriptors)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(0x01, 0xFFFF, version, section, last));
    b.Raw(descriptors);
    return b.Build();
}

Bytes Ca(unsigned system, unsigned pid) { return Desc(0x09, {uint8_t(system >> 8), uint8_t(system), uint8_t(0xE0 | pid >> 8), uint8_t(pid)}); }

unsigned PidOf(const TCDVBCATParser& cat, unsigned index)
{
    const auto* ca = dynamic_cast<const TCDescCA*>(cat.Descriptor(0x09, index));
    return ca ? ca->CAPid() : 0;
}

} // namespace

TEST(DVBCATParser, AllSectionsOfAVersion)
{
    zumtest::BinderScope binder;
    TCDVBCATParser cat(kZUMDefaultHandle);
    cat.Initialize();
    EXPECT_FALSE(cat.Parse(1, Cat(4, 1, 1, Ca(0x0500, 0x101)).data()));
    const Bytes s0 = Cat(4, 0, 1, zumtest::Concat({Ca(0x0100, 0x102), Ca(0x1800, 0x103)}));
    EXPECT_TRUE(cat.Parse(1, s0.data()));
    EXPECT_EQ(cat.NumOfDescriptors(), 3);
    // In order of arrival.
    EXPECT_EQ(std::vector<unsigned>({PidOf(cat, 0), PidOf(cat, 1), PidOf(cat, 2)}),
              std::vector<unsigned>({0x101, 0x102, 0x103}));
    EXPECT_FALSE(cat.Parse(1, s0.data()));
    EXPECT_EQ(cat.NumOfDescriptors(), 3);
    // A new version drops the old descriptors.
    EXPECT_TRUE(cat.Parse(1, Cat(5, 0, 0, Ca(0x0100, 0x104)).data()));
    EXPECT_EQ(cat.NumOfDescriptors(), 1);
    EXPECT_EQ(PidOf(cat, 0), 0x104u);
    // No factory serves the CAT in ATSC countries: an empty loop, yet the table is received.
    binder->countryCode = ZumPackCode("USA");
    TCDVBCATParser atsc(kZUMDefaultHandle);
    EXPECT_TRUE(atsc.Parse(1, Cat(0, 0, 0, Ca(0x0100, 0x104)).data()));
    EXPECT_EQ(atsc.NumOfDescriptors(), 0);
}

TEST(DVBCATParser, RealCaptures)
{
    for (const char* name : {"tsduck_tsduck__psi_cat_r3_sections.0.CAT.bin", "tsduck_tsduck__psi_cat_r6_sections.0.CAT.bin"}) {
        std::ifstream in(std::string(ZUM_CAPTURES_DIR) + "/" + name, std::ios::binary);
        if (!in)
            GTEST_SKIP() << "captures not present";
        const Bytes s((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        zumtest::BinderScope binder;
        binder->countryCode = ZumPackCode("FRA");
        TCDVBCATParser cat(kZUMDefaultHandle);
        EXPECT_TRUE(cat.Parse(1, s.data())) << name;
        ASSERT_GT(cat.NumOfDescriptors(0x09), 0) << name;
        for (int i = 0; i < cat.NumOfDescriptors(0x09); ++i)
            EXPECT_NE(static_cast<const TCDescCA*>(cat.Descriptor(0x09, static_cast<unsigned>(i)))->CAPid(), 0) << name;
    }
}
