// Real ISDB broadcasts through the inspector: Japanese service and event
// names in ARIB text come out converted, Brazilian ones in Latin text.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "inspect/Session.h"
#include "support/TestEnvironment.h"

using zuminspect::Json;

namespace {

// The model of one capture under `country`; null without the capture.
Json ModelOf(const std::string& name, const char* country, zuminspect::InputKind kind)
{
    const std::filesystem::path file = std::filesystem::path(ZUM_CAPTURES_DIR) / name;
    std::ifstream in(file, std::ios::binary);
    if (!in)
        return nullptr;
    const std::vector<uint8_t> data((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    zuminspect::InspectSettings settings;
    settings.country = country;
    zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
    zuminspect::Session session(kind, settings);
    session.Feed(data.data(), data.size());
    session.Finish();
    return session.Model();
}

std::set<std::string> ServiceNames(const Json& model)
{
    std::set<std::string> names;
    for (const Json& sdt : model["sdts"])
        for (const Json& service : sdt["services"])
            names.insert(service["name"].get<std::string>());
    return names;
}

// The text field `field` of each event descriptor of class `cls`.
std::set<std::string> EventFields(const Json& model, const std::string& cls, const std::string& field)
{
    std::set<std::string> out;
    for (const Json& service : model["eit"])
        for (const Json& event : service["events"])
            for (const Json& d : event["descriptors"])
                if (d["class"] == cls)
                    out.insert(d["fields"][field].get<std::string>());
    return out;
}

} // namespace

TEST(InspectIsdbEvent, JapaneseNamesInAribText)
{
    const Json tables = ModelOf("tsduck_tsduck__japanese-tables.bin", "JPN", zuminspect::InputKind::Sections);
    const Json bs = ModelOf("tsduck_tsduck-test__test-101.ts", "JPN", zuminspect::InputKind::TransportStream);
    if (tables.is_null() || bs.is_null())
        GTEST_SKIP() << "no captures at " << ZUM_CAPTURES_DIR;
    const std::set<std::string> services = ServiceNames(tables);
    for (const char* name : {"ＮＨＫ総合１・秋田", "ＮＨＫ総合２・秋田", "ＮＨＫ携帯Ｇ・秋田"})
        EXPECT_TRUE(services.count(name)) << name << " in " << testing::PrintToString(services);

    const std::set<std::string> events = EventFields(bs, "TCDescShortEventISDB", "name");
    for (const char* name : {"テレビショッピング研究所ＴＶショッピング", "東北魂ＴＶ　＃２２４　爆笑ユニットコント",
                             "🈔＜ＢＳフジ４Ｋシアター＞　映画　『ジュマンジ』"})
        EXPECT_TRUE(events.count(name)) << name;
    const std::set<std::string> texts = EventFields(bs, "TCDescShortEventISDB", "text");
    EXPECT_TRUE(texts.count("ジュマンジ　－　。それはこの世で最も危険なゲーム！　１９９５年公開")) << *texts.begin();
    // The event's audio and data components, copy rules and event groups are decoded, not raw.
    std::set<std::string> described;
    for (const Json& service : bs["eit"])
        for (const Json& event : service["events"])
            for (const Json& d : event["descriptors"])
                if (d.contains("fields"))
                    described.insert(d["class"].get<std::string>());
    for (const char* cls : {"TCDescAudioComponent", "TCDescDataContent", "TCDescDigitalCopyControl", "TCDescEventGroup"})
        EXPECT_TRUE(described.count(cls)) << cls;
}

// Brazil's ISDB-Tb sends Latin text: the same road, no ARIB decoding.
TEST(InspectIsdbEvent, BrazilianNamesInLatinText)
{
    const Json model = ModelOf("tsduck_tsduck-test__ref_test-170.tstables.bin", "BRA", zuminspect::InputKind::Sections);
    if (model.is_null())
        GTEST_SKIP() << "no capture at " << ZUM_CAPTURES_DIR;
    EXPECT_EQ(ServiceNames(model), (std::set<std::string>{"TV INTEGRAÇÃO HD", "TV INTEGRAÇÃO 1-SEG"}));
    EXPECT_EQ(EventFields(model, "TCDescShortEventISDB", "name"), std::set<std::string>{"JORNAL HOJE"});
}
