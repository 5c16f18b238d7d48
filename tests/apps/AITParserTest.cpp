#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apps/AITParser.h"
#include "apps/DescApplication.h"
#include "apps/DescTransportProtocol.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

struct App {
    unsigned organisationId;
    unsigned applicationId;
    unsigned control = 1;
    Bytes descriptors = {};
};

Bytes AitBody(const Bytes& common, const std::vector<App>& apps)
{
    zumtest::ByteWriter b;
    b.Begin16(12, 0xF000).Raw(common).End().Begin16(12, 0xF000);
    for (const App& a : apps)
        b.U32(a.organisationId).U16(a.applicationId).U8(a.control).Begin16(12, 0xF000).Raw(a.descriptors).End();
    b.End();
    return b.Data();
}

Bytes Ait(unsigned extension, unsigned version, unsigned section, unsigned last, const Bytes& body)
{
    zumtest::SectionBuilder s(zumtest::LongHeader(0x74, extension, version, section, last));
    s.Raw(body);
    return s.Build();
}

Bytes Ait(unsigned extension, unsigned version, unsigned section, unsigned last, const std::vector<App>& apps,
          const Bytes& common = {})
{
    return Ait(extension, version, section, last, AitBody(common, apps));
}

const Bytes kName = Desc(0x01, {'i', 't', 'a', 4, 'P', 'l', 'a', 'y'});
const Bytes kHttp = Desc(0x02, {0x00, 0x03, 0x01, 4, 'h', 't', 't', 'p', 0});

std::string NameOf(const TCAITApplication* app)
{
    const auto* d = dynamic_cast<const TCDescApplicationName*>(app ? app->Descriptor(0x01, 0) : nullptr);
    const TCAppNameChar* n = d ? d->AppNameChar(0) : nullptr;
    return n ? std::string(reinterpret_cast<const char*>(n->ApplicationNameChar(0xFF)), n->NameLength()) : "-";
}

} // namespace

TEST(AITParser, ApplicationsAndTheirFields)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("ITA");
    TCAITParser ait(0x74, ZUMHandle());
    ait.Initialize();
    const Bytes s = Ait(0x0010, 3, 0, 0, {{0x10, 1, 1, kName}, {0x10, 2, 4}, {0x11, 1, 2}}, kHttp);
    EXPECT_TRUE(ait.Parse(0x1EC5, s.data()));

    const TCAitInstance* hbbtv = ait.AITInstance(0x0010);
    ASSERT_NE(hbbtv, nullptr);
    EXPECT_EQ(hbbtv->TableId(), 0x74);
    EXPECT_EQ(hbbtv->ApplicationType(), 0x0010);
    EXPECT_EQ(hbbtv->TestApplicationFlag(), 0);
    ASSERT_EQ(hbbtv->NumOfAITApplication(), 3);
    EXPECT_EQ(hbbtv->AITApplication(3), nullptr);
    const TCAITApplication* first = hbbtv->AITApplication(0);
    EXPECT_EQ(first->OrganisationId(), 0x10u);
    EXPECT_EQ(first->ApplicationId(), 1);
    EXPECT_EQ(first->ApplicationControlCode(), 1);
    EXPECT_EQ(first->ApplicationReservedData(), 0x0F);
    EXPECT_EQ(NameOf(first), "Play");
    EXPECT_EQ(hbbtv->AITApplication(1)->ApplicationControlCode(), 4);
    EXPECT_EQ(hbbtv->AITApplicationByAppIdent(0x11, 1), hbbtv->AITApplication(2));
    // The same application id under another organisation is another application.
    EXPECT_EQ(hbbtv->AITApplicationByAppIdent(0x12, 1), nullptr);
    const auto* http = dynamic_cast<const TCDescTransportProtocol*>(hbbtv->Descriptor(0x02, 0));
    ASSERT_NE(http, nullptr);
    EXPECT_EQ(http->URLBase(), "http");
    EXPECT_EQ(ait.AITInstance(0x0001), nullptr);
}

TEST(AITParser, SectionsAndVersionsPerApplicationType)
{
    struct Step {
        const char* what;
        unsigned extension, version, section, last, apps;
        bool result;
        int instances, hbbtvApps, testFlag, firstType;
    };
    const Step steps[] = {
        {"first of two sections", 0x0010, 1, 0, 1, 1, false, 1, 1, 0, 0x10},
        {"the same again changes nothing", 0x0010, 1, 0, 1, 1, false, 1, 1, 0, 0x10},
        {"test applications join the instance", 0x8010, 1, 1, 1, 2, true, 1, 3, 0, 0x10},
        {"another application type", 0x0001, 0, 0, 0, 1, true, 2, 3, 0, 0x01},
        {"a new version starts again", 0x0010, 2, 0, 0, 1, true, 2, 1, 0, 0x01},
    };
    TCAITParser ait(0x74, ZUMHandle());
    ait.Initialize();
    unsigned next = 1;
    for (const Step& step : steps) {
        SCOPED_TRACE(step.what);
        std::vector<App> apps;
        for (unsigned i = 0; i < step.apps; ++i)
            apps.push_back({0x10, next++});
        const Bytes s = Ait(step.extension, step.version, step.section, step.last, apps);
        EXPECT_EQ(ait.Parse(0x1EC5, s.data()), step.result);
        EXPECT_EQ(ait.NumOfAITInstance(), step.instances);
        EXPECT_EQ(ait.GetInstance(0x10)->NumOfAITApplication(), step.hbbtvApps);
        EXPECT_EQ(ait.GetInstance(0x10)->TestApplicationFlag(), step.testFlag);
        EXPECT_EQ(ait.GetFirstInstance()->ApplicationType(), step.firstType);
    }
    // A test-only table makes its instance a test instance.
    TCAITParser test(0x74, ZUMHandle());
    test.Initialize();
    const Bytes s = Ait(0x8010, 0, 0, 0, std::vector<App>{});
    EXPECT_TRUE(test.Parse(0x1EC5, s.data()));
    EXPECT_EQ(test.AITInstance(0x10)->TestApplicationFlag(), 1);
}

TEST(AITParser, LengthsThatDoNotFit)
{
    zumtest::BinderScope binder;
    struct Case {
        const char* what;
        Bytes body;
        bool result;
        int common, apps;
    };
    const Case cases[] = {
        {"no applications", {0xF0, 0x00, 0xF0, 0x00}, true, 0, 0},
        {"a common length of 1 parses nothing", {0xF0, 0x01, 0x55, 0xF0, 0x00}, true, 0, 0},
        {"a loop length one too long keeps the common loop",
         zumtest::Concat({{0xF0, static_cast<uint8_t>(kHttp.size())}, kHttp, {0xF0, 0x01}}), false, 1, 0},
        {"a loop length one too long", {0xF0, 0x00, 0xF0, 0x0A, 0, 0, 0, 0x10, 0, 1, 1, 0xF0, 0x00}, false, 0, 0},
        {"a common loop that fills the section", {0xF0, 0x04, 0x02, 0x00, 0x00}, false, 0, 0},
        {"a body too short for the lengths", {0xF0}, false, 0, 0},
        // The record claims more descriptors than its loop holds: read to the loop's end, then the walk stops.
        {"a record past the loop", {0xF0, 0x00, 0xF0, 0x0B, 0, 0, 0, 0x10, 0, 1, 1, 0xF0, 0xFF, 0x16, 0x00}, true, 0, 1},
        {"two records", Bytes(AitBody({}, {{0x10, 1}, {0x10, 2}})), true, 0, 2},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        TCAITParser ait(0x74, ZUMHandle());
        ait.Initialize();
        const Bytes s = Ait(0x0010, 0, 0, 0, c.body);
        EXPECT_EQ(ait.Parse(0x1EC5, s.data()), c.result);
        const TCAitInstance* instance = ait.GetFirstInstance();
        ASSERT_NE(instance, nullptr);
        EXPECT_EQ(instance->NumOfDescriptors(), c.common);
        EXPECT_EQ(instance->NumOfAITApplication(), c.apps);
    }
}

TEST(AITParser, CopyOutlivesTheSource)
{
    zumtest::BinderScope binder;
    TCAITParser kept(0x74, ZUMHandle());
    {
        TCAITParser ait(0x74, ZUMHandle());
        ait.Initialize();
        const Bytes s = Ait(0x0010, 1, 0, 0, {{0x10, 7, 1, kName}}, kHttp);
        ASSERT_TRUE(ait.Parse(0x1EC5, s.data()));
        kept = ait;
        ait.Initialize();
        EXPECT_EQ(ait.GetFirstInstance(), nullptr);
    }
    const TCAitInstance* copy = kept.GetFirstInstance();
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->ApplicationType(), 0x10);
    EXPECT_EQ(copy->LastVersionCheck(), TABLE_FIRST);
    EXPECT_EQ(copy->NumOfDescriptors(), 1);
    EXPECT_EQ(NameOf(copy->AITApplicationByAppIdent(0x10, 7)), "Play");
    // The section tracking is not copied.
    EXPECT_FALSE(copy->IsValid());
}
