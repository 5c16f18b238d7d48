// ISDB network and transport descriptors, their factory rows, and a real ISDB-T NIT as the inspector's scan reads it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "av/DescAC3.h"
#include "dvb/DescLoopProbe.h"
#include "inspect/IsdbNetView.h"
#include "inspect/Session.h"
#include "isdb/DescARIBTerrestrialDeliverySystem.h"
#include "isdb/DescCAContractInfo.h"
#include "isdb/DescCarouselIdent.h"
#include "isdb/DescDownloadContent.h"
#include "isdb/DescExtendedBroadcaster.h"

using namespace svctest;

namespace {

template <class T>
std::string Item(const T* item)
{
    return item ? Join(item->table_id, item->table_description_length,
                       item->table_description ? int(item->table_description[0]) : -1)
                : "none";
}

} // namespace

// Area, guard interval, mode, then the frequencies around both ends of the list.
TEST(DescARIBTerrestrialDeliverySystem, Bodies)
{
    ExpectBodies(0xFA, [] { return new TCDescARIBTerrestrialDeliverySystem(); },
        [](const TCDescARIBTerrestrialDeliverySystem& d) {
            return Join(d.AreaCode(), d.GuardInterval(), d.TransmissionMode(), d.NumOfFrequency(), d.Frequency(-1),
                        d.Frequency(0), d.Frequency(1), d.Frequency(2));
        }, {
        {{0x3E, 0x1B, 0x0C, 0x4A, 0xFF, 0xFF}, "993 2 3 2 0 3146 65535 0"},
        {{0x3E, 0x1B, 0x0C, 0x4A, 0x0C}, "993 2 3 1 0 3146 0 0", "inLen=5, outLen=4"},
        {{0x3E, 0x1B, 0x0C}, "993 2 3 0 0 0 0 0", "inLen=3, outLen=2"},
        {{0xFF, 0xF4}, "4095 1 0 0 0 0 0 0"},
        {{0x3E}, "0 0 0 0 0 0 0 0", "inLen=1, outLen=0"},
    });
}

TEST(DescPartialReception, Bodies)
{
    ExpectBodies(0xFB, [] { return new TCDescPartialReception(); },
        [](const TCDescPartialReception& d) { return Join(d.Count(), d.ServiceId(0), d.ServiceId(1), d.ServiceId(2)); },
        {
            {{0x04, 0x01, 0xFF, 0xFE}, "2 1025 65534 0"},
            {{0x04, 0x01, 0x04}, "0 0 0 0", "inLen=3, outLen=0"},
        });
}

// Key, name length, type count, name, then per record its type, count and ids, one past each end.
TEST(DescTSInformation, Bodies)
{
    auto show = [](const TCDescTSInformation& d) {
        std::string out = Join(d.RemoteControlKeyId(), d.LengthOfTsName(), d.TransmissionTypeCount(),
                               TextOf(d, &TCDescTSInformation::TSNameChar));
        for (unsigned char r = 0; r <= d.TransmissionTypeCount(); ++r) {
            out += " | " + Join(d.TransmissionTypeInfo(r), d.NumOfService(r));
            for (unsigned char i = 0; i <= d.NumOfService(r); ++i)
                out += " " + std::to_string(d.ServiceId(r, i));
        }
        return out;
    };
    const Bytes whole = {5, 0x0E, 'A', 'B', 'C', 0x0F, 2, 0x04, 0x01, 0x04, 0x02, 0xAF, 1, 0x05, 0x88};
    ExpectBodies(0xCD, [] { return new TCDescTSInformation(); }, show, {
        {whole, "5 3 2 ABC | 15 2 1025 1026 0 | 175 1 1416 0 | 0 0 0"},
        // Trailing bytes behind the last record are not looked at.
        {{5, 0x0D, 'A', 'B', 'C', 0x0F, 0, 0xEE}, "5 3 1 ABC | 15 0 0 | 0 0 0"},
        {{9, 0x0C, 'A', 'B', 'C', 0xEE}, "9 3 0 ABC | 0 0 0"},
        // A name of 3 in a body of 4: no name, and no name length.
        {{5, 0x0E, 'A', 'B'}, "5 0 2 <none> | 0 0 0 | 0 0 0 | 0 0 0", "inLen=4, outLen=2"},
        // Stopped inside the first record's ids: the count stays, the ids missing read 0.
        {{5, 0x0E, 'A', 'B', 'C', 0x0F, 3, 0x04, 0x01, 0x04}, "5 3 2 ABC | 15 3 1025 0 0 0 | 0 0 0 | 0 0 0",
         "inLen=10, outLen=9"},
        // One byte for the second record's head.
        {{5, 0x02, 0x0F, 1, 0x04, 0x01, 0xAF}, "5 0 2 <none> | 15 1 1025 0 | 0 0 0 | 0 0 0", "inLen=7, outLen=6"},
        {{5}, "0 0 0 <none> | 0 0 0", "inLen=1, outLen=0"},
    });
    auto d = Decode(new TCDescTSInformation(), Desc(0xCD, whole));
    ExpectCopies(*d, &TCDescTSInformation::TSNameChar,
                 {{0, false, 0, "##"}, {2, false, 2, "AB##"}, {3, true, 3, "ABC##"}, {5, true, 3, "ABC####"}});
}

TEST(DescHierarchicalTransmission, Bodies)
{
    ExpectBodies(0xC0, [] { return new TCDescHierarchicalTransmission(); },
        [](const TCDescHierarchicalTransmission& d) { return Join(d.QualityLevel(), d.ReferencePID()); }, {
            {{0xFE, 0xE1, 0x11}, "0 273"},
            {{0xFF, 0xFF, 0xFF}, "1 8191"},
            {{0x00, 0xE1, 0x11, 0x00}, "1 65535"},
            {{0x00, 0xE1}, "1 65535"},
        });
}

// Type 1 or 2: the two loops and what follows; any other type keeps all behind byte 0.
TEST(DescExtendedBroadcaster, Bodies)
{
    auto show = [](const TCDescExtendedBroadcaster& d) {
        return Join(d.BroadcasterType(), d.TerrestrialBroadcasterId(), d.NumberOfAffiliationIdLoop(),
                    d.NumberOfBroadcasterIdLoop(), d.NumOfAffiliationId(), d.AffiliationId(0), d.AffiliationId(1),
                    d.AffiliationId(2), d.NumOfBroadcasterEntry(), d.BroadcasterEntry(0), d.BroadcasterEntry(1),
                    d.PrivateDataLength(), d.OtherDataLength());
    };
    const Bytes type1 = {0x1F, 0x01, 0x23, 0x21, 5, 6, 0x7F, 0xE0, 0x09, 0xAA, 0xBB};
    ExpectBodies(0xCE, [] { return new TCDescExtendedBroadcaster(); }, show, {
        {type1, "1 291 2 1 2 5 6 0 1 622560 0 2 0"},
        {Bytes(type1.begin(), type1.begin() + 9), "1 291 2 1 2 5 6 0 1 622560 0 0 0"},
        {Bytes(type1.begin(), type1.begin() + 8), "1 291 2 1 0 0 0 0 0 0 0 0 0", "inLen=8, outLen=4"},
        {{0x20, 0x01, 0x23}, "2 0 0 0 0 0 0 0 0 0 0 0 0", "inLen=3, outLen=1"},
        {{0x30, 0xAA, 0xBB}, "3 0 0 0 0 0 0 0 0 0 0 0 2"},
        {{0x30}, "3 0 0 0 0 0 0 0 0 0 0 0 0"},
    });
}

// The date from MJD 44244 in seconds, the two identifiers, and the table descriptions that fit.
TEST(DescSIPrimeTS, Bodies)
{
    auto show = [](const TCDescSIPrimeTS& d) {
        return Join(d.ParameterVersion(), d.UpdateTime(), d.SIPrimeTsNetworkId(), d.SIPrimeTransportStreamId(),
                    d.NumOfTableDescription(), Item(d.TableDescription(0)), Item(d.TableDescription(1)),
                    Item(d.TableDescription(2)));
    };
    const Bytes head = {3, 0xAC, 0xD4, 0x00, 0x04, 0x40, 0x10};
    auto with = [&head](const Bytes& tail) {
        Bytes body = head;
        body.insert(body.end(), tail.begin(), tail.end());
        return body;
    };
    ExpectBodies(0xDA, [] { return new TCDescSIPrimeTS(); }, show, {
        {head, "3 0 4 16400 0 none none none"},
        {{3, 0xAC, 0xD5, 0x00, 0x04, 0x40, 0x10, 0x40, 2, 1, 2, 0x42, 0}, "3 86400 4 16400 2 64 2 1 66 0 -1 none"},
        {with({0x40, 2, 1, 2, 0x4E, 5, 1}), "3 0 4 16400 1 64 2 1 none none", "inLen=14, outLen=13"},
        {with({0x40}), "3 0 4 16400 0 none none none", "inLen=8, outLen=7"},
        {Bytes(head.begin(), head.begin() + 6), "0 0 0 0 0 none none none", "inLen=6, outLen=0"},
    });
}

TEST(DescLogoTransmission, Bodies)
{
    auto show = [](const TCDescLogoTransmission& d) {
        return Join(d.LogoTransmissionType(), d.LogoId(), d.LogoVersion(), d.DownloadDataId(), d.NumOfLogoChar(),
                    TextOf(d, &TCDescLogoTransmission::LogoChar));
    };
    ExpectBodies(0xCF, [] { return new TCDescLogoTransmission(); }, show, {
        {{1, 0xFF, 0x23, 0xF1, 0x02, 0x12, 0x34}, "1 291 258 4660 0 <none>"},
        {{1, 0xFE, 0x23, 0xF1}, "1 35 0 0 0 <none>", "inLen=4, outLen=3"},
        {{2, 0x01, 0x00, 0xF1, 0x02}, "2 256 0 0 0 <none>", "inLen=5, outLen=3"},
        {{3, 'N', 'H', 'K'}, "3 65535 0 0 3 NHK"},
        {{3}, "3 65535 0 0 0 <none>"},
        {{5, 1, 2}, "5 65535 0 0 0 <none>"},
    });
}

TEST(DescTargetRegionJPN, Bodies)
{
    ExpectBodies(0xC6, [] { return new TCDescTargetRegionJPN(); },
        [](const TCDescTargetRegionJPN& d) {
            return Join(d.RegionSpecType(), d.BitmapLength(), d.Bitmap() ? int(d.Bitmap()[0]) : -1);
        }, {
            {{1, 0xFF, 0x80}, "1 2 255"},
            {{1}, "1 0 -1"},
            {{2, 0xAA}, "2 0 -1"},
        });
}

// No factory makes it: the flag and identifier bits, then every byte behind.
TEST(DescSystemManagement, Bodies)
{
    ExpectBodies(0xFF, [] { return new TCDescSystemManagement(); },
        [](const TCDescSystemManagement& d) {
            return Join(d.BroadcastingFlag(), d.BroadcastingIdentifier(), d.AdditionalBroadcastingIdentification(),
                        d.NumOfAdditionalIdentificationInfo(), d.AdditionalIdentificationInfo(-1),
                        d.AdditionalIdentificationInfo(0), d.AdditionalIdentificationInfo(1),
                        d.AdditionalIdentificationInfo(2));
        }, {
            {{0x83, 0x01, 0x08, 0x09}, "2 3 1 2 0 8 9 0"},
            {{0x43}, "1 3 0 0 0 0 0 0"},
        });
}

// Every tag of these descriptors has its class in the rows of its system and scope, and only there.
TEST(DescIsdbNetwork, FactoryRows)
{
    auto loop = [](int tag) { return Desc(static_cast<unsigned>(tag), Bytes(20, 0x10)); };
    using T = std::type_index;
    const T none = typeid(TCDescDefault);
    ExpectRows({
        {"JPN BRA", 0x40, loop(0xFA), 0xFA, T(typeid(TCDescARIBTerrestrialDeliverySystem))},
        {"JPN BRA", 0x40, loop(0xFB), 0xFB, T(typeid(TCDescPartialReception))},
        {"JPN cri", 0x40, loop(0xCD), 0xCD, T(typeid(TCDescTSInformation))},
        {"JPN ARG", 0x42, loop(0xCF), 0xCF, T(typeid(TCDescLogoTransmission))},
        {"JPN", 0xC4, loop(0xCE), 0xCE, T(typeid(TCDescExtendedBroadcaster))},
        {"JPN", 0x40, loop(0xDA), 0xDA, T(typeid(TCDescSIPrimeTS))},
        {"JPN", 0xC3, loop(0xC9), 0xC9, T(typeid(TCDescDownloadContent))},
        // The Japanese rows only in a Japanese SI table.
        {"BRA", 0x40, loop(0xCE), 0xCE, none},
        {"BRA", 0x40, loop(0xC9), 0xC9, none},
        {"JPN", 0x91, loop(0xDA), 0xDA, none},
        {"JPN BRA", 0x02, loop(0xC0), 0xC0, T(typeid(TCDescHierarchicalTransmission))},
        {"JPN BRA", 0x02, loop(0xC6), 0xC6, T(typeid(TCDescTargetRegionJPN))},
        {"JPN BRA", 0x01, loop(0xCA), 0xCA, T(typeid(TCDescCA_EMM_TS))},
        {"JPN BRA", 0x02, loop(0xCB), 0xCB, T(typeid(TCDescCAContractInfo))},
        {"JPN BRA", 0x02, loop(0xCC), 0xCC, T(typeid(TCDescCAService))},
        {"GBR", 0x02, loop(0xCB), 0xCB, none},
        {"USA", 0x02, loop(0xCC), 0xCC, T(typeid(TCDescATSCEnhancedAC3))},
        // The carousel rows of all program factories.
        {"JPN GBR USA KOR", 0x02, loop(0x13), 0x13, T(typeid(TCDescCarouselIdent))},
        {"JPN GBR USA", 0x02, loop(0x14), 0x14, T(typeid(TCDescAssociationTag))},
        {"BRA DEU", 0x02, loop(0x15), 0x15, T(typeid(TCDescDeferredAssociationTags))},
        {"JPN DEU", 0x02, loop(0x18), 0x18, T(typeid(TCDescNPTReference))},
        {"JPN DEU", 0x02, loop(0x21), 0x21, T(typeid(TCDescStreamEvent))},
        {"JPN DEU", 0x02, loop(0x17), 0x17, none},
    });
}

namespace {

// The transport streams of the NIT of a capture, as the inspector models them for a receiver in `country`.
zuminspect::Json CapturedStreams(const std::string& name, const char* country)
{
    std::ifstream in(std::filesystem::path(ZUM_CAPTURES_DIR) / name, std::ios::binary);
    const Bytes data((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    zuminspect::InspectSettings settings;
    settings.country = country;
    zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
    zuminspect::Session session(zuminspect::DetectInputKind(data.data(), data.size()), settings);
    session.Feed(data.data(), data.size());
    session.Finish();
    const auto model = session.Model();
    return model["nits"].size() == 1 ? model["nits"][0]["transportStreams"] : zuminspect::Json::array();
}

} // namespace

// Real ISDB-T NITs (Tokyo MX, and TV Integracao in Brazil): each transport stream as a scan reads it.
TEST(DescIsdbNetwork, CapturedNitScan)
{
    if (!std::filesystem::is_directory(ZUM_CAPTURES_DIR))
        GTEST_SKIP() << "no captures at " << ZUM_CAPTURES_DIR;
    const zuminspect::Json streams = CapturedStreams("youzaka_ariblib__test_nit.ts", "JPN");
    ASSERT_EQ(streams.size(), 1u);
    const auto& ts = streams[0];
    ASSERT_TRUE(ts.contains("isdbScan")) << ts.dump();
    const auto& scan = ts["isdbScan"];
    EXPECT_EQ(scan["remoteControlKey"], 9);
    EXPECT_FALSE(scan["tsName"].get<std::string>().empty());
    // Eleven UHF relay frequencies in 1/7 MHz units, the first 3606 (515.143 MHz).
    ASSERT_EQ(scan["frequenciesMHz"].size(), 11u);
    EXPECT_EQ(scan["frequencies"][0], 3606);
    EXPECT_DOUBLE_EQ(scan["frequenciesMHz"][0].get<double>(), 515.143);
    EXPECT_EQ(scan["partialReceptionServiceIds"].dump(), "[23992,23993]");
    EXPECT_EQ(ts["services"].size(), 6u);
    for (const auto& d : ts["descriptors"])
        EXPECT_TRUE(d.contains("fields")) << d.dump();

    const zuminspect::Json brazil = CapturedStreams("tsduck_tsduck-test__ref_test-170.tstables.bin", "BRA");
    ASSERT_EQ(brazil.size(), 1u);
    EXPECT_EQ(zuminspect::IsdbScanLine(brazil[0]["isdbScan"]),
              "ISDB scan: remote control key 7, TS name \"TV INTEGRAÇÃO\", 3984 (569.143 MHz), one-segment 0x5C38");
}
