#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "atsc/DescATSCLinakge.h"
#include "atsc/DescCaptionService.h"
#include "atsc/DescComponentList.h"
#include "atsc/DescDCCRequest.h"
#include "atsc/DescDaylightSavingTime.h"
#include "atsc/DescModulationParameters.h"
#include "atsc/DescTimeShiftedService.h"
#include "core/Descriptor.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

template <class T>
std::unique_ptr<T> Parsed(unsigned tag, const Bytes& body)
{
    std::unique_ptr<T> d(new T());
    const Bytes raw = Desc(tag, body);
    d->Parse(raw.data());
    return d;
}

zum_platform::BinderSettings Country(const char* code)
{
    zum_platform::BinderSettings s;
    s.countryCode = ZumPackCode(code);
    return s;
}

} // namespace

TEST(DescAtsc, FactoryRowsByTableAndCountry)
{
    zumtest::BinderScope binder(Country("USA"));
    const Bytes loop = zumtest::Concat({Desc(0x00, {1, 0, 2}), Desc(0x01, {1, 2, 0, 3}), Desc(0x86, {0xC0}),
                                        Desc(0x87, {0xC0}), Desc(0xA2, {}), Desc(0xAD, {}), Desc(0xBB, {0}),
                                        Desc(0xE0, {0}), Desc(0x37, {1}), Desc(0x96, {0, 0})});
    struct Case {
        const char* country;
        unsigned tableId;
        std::vector<int> decoded; // tags that got a class of their own
    };
    const Case cases[] = {
        {"USA", 0xCB, {0x00, 0x01, 0x86, 0x87, 0xA2, 0xAD, 0xBB, 0xE0}},
        {"USA", 0x02, {0x86, 0x87}},
        {"KOR", 0x02, {0x86, 0x87, 0x37}},
        {"USA", 0xC5, {0x00, 0x01, 0x86, 0x87, 0xA2, 0xAD, 0xBB, 0xE0, 0x96}},
        {"GBR", 0xCB, {}},
    };
    for (const Case& c : cases) {
        zum_platform::Binder().countryCode = ZumPackCode(c.country);
        TCDescriptor walker{ZUMHandle()};
        TCDescriptorHash hash;
        walker.Parse(loop.data(), static_cast<int>(loop.size()), hash, static_cast<unsigned char>(c.tableId));
        std::vector<int> decoded;
        for (int i = 0; i < hash.NumOfDescriptors(); ++i) {
            const TCBaseDesc* d = hash.DescriptorByIndex(static_cast<unsigned>(i));
            if (dynamic_cast<const TCDescDefault*>(d) == nullptr)
                decoded.push_back(d->Tag());
        }
        EXPECT_EQ(decoded, c.decoded) << c.country << " " << c.tableId;
    }
}

TEST(DescAtsc, CaptionServices)
{
    zumtest::UseReleasedImage();
    zumtest::LogCapture log;
    // eng analogue field 1, kor digital service 5 with easy reader and Korean code.
    const Bytes two = {0xC2, 'e', 'n', 'g', 0x41, 0x40, 0xFF, 'k', 'o', 'r', 0xC5, 0xA0, 0xFF};
    auto d = Parsed<TCDescCaptionService>(0x86, two);
    EXPECT_EQ(d->NumberOfServices(), 2);
    EXPECT_EQ(d->Language(0), 0x656E67u);
    EXPECT_EQ(d->CcType(0), 0u);
    EXPECT_EQ(d->Line21Field(0), 1u);
    EXPECT_EQ(d->CaptionServiceNumber(0), 0xFFu);
    EXPECT_EQ(d->WideAspectRatio(0), 1u);
    EXPECT_EQ(d->CcType(1), 1u);
    EXPECT_EQ(d->Line21Field(1), 0xFFu);
    EXPECT_EQ(d->CaptionServiceNumber(1), 5u);
    EXPECT_EQ(d->EasyReader(1), 1u);
    EXPECT_EQ(d->KoreanCode(1), 1u);
    EXPECT_EQ(d->Language(5), 0xFFFFFFFFu);
    // Two announced, one sent.
    auto cut = Parsed<TCDescCaptionService>(0x86, Bytes(two.begin(), two.begin() + 8));
    EXPECT_EQ(log.Count("TCDescCaptionService::t_Parse wrong number of services"), 1);
    EXPECT_EQ(cut->NumberOfServices(), 2);
    EXPECT_EQ(cut->Language(0), 0x656E67u);
    EXPECT_EQ(cut->Language(1), 0xFFFFFFFFu);
    auto none = Parsed<TCDescCaptionService>(0x86, {0xE0});
    EXPECT_EQ(none->Language(0), 0u);
    EXPECT_TRUE(log.Contains("Failed: m_service"));
}

TEST(DescAtsc, ComponentList)
{
    zumtest::LogCapture log;
    struct Case {
        const char* name;
        Bytes body;
        unsigned components;
        std::vector<unsigned char> lastDetail;
    };
    const Case cases[] = {
        {"count 0 reads one", {0x00, 0x1B, 'H', 'D', 'M', 'V', 2, 0x40, 0x20}, 1, {0x40, 0x20}},
        {"detail past the end keeps what exists", {0x01, 0x24, 'H', 'E', 'V', 'C', 5, 0x01}, 1, {0x01}},
        {"last component of six bytes stops before it", {0x02, 0x1B, 'A', 'V', 'C', ' ', 0, 0x24, 0, 0, 0, 0, 0}, 1, {}},
    };
    for (const Case& c : cases) {
        auto d = Parsed<TCDescComponentList>(0xBB, c.body);
        ASSERT_EQ(d->NumberOfComponet(), c.components) << c.name;
        TCDescComponentList::TTDescComponetList out;
        out.detail = {7, 7, 7};
        d->GetComponentList(static_cast<int>(c.components) - 1, out);
        EXPECT_EQ(out.detail, c.lastDetail) << c.name;
        EXPECT_EQ(out.detailLength, c.lastDetail.size()) << c.name;
    }
    EXPECT_TRUE(log.Contains("TCDescComponentList::t_Parse, len[8] < parsing size[12]"));

    auto d = Parsed<TCDescComponentList>(0xBB, {0x02, 0x1B, 'H', 'D', 'M', 'V', 2, 0xBF, 0xE0, 0x1B, 'H', 'D', 'M',
                                                'V', 1, 0x01});
    TTAVCVideoInfo avc;
    d->GetStreamInfoDetailForAVC(0, &avc);
    EXPECT_EQ(avc.value1, 2);
    EXPECT_EQ(avc.value2, 0x3F);
    EXPECT_EQ(avc.value3, 7);
    TTStreoScopicVideoInfo s3d;
    d->GetStreamInfoDetailFor3D(0, &s3d); // base video flag set
    EXPECT_EQ(s3d.baseVideoFlag, 1);
    EXPECT_EQ(s3d.leftViewFlag, 1);
    EXPECT_EQ(s3d.horizontalUpsamplingFactor, 0);
    d->GetStreamInfoDetailFor3D(1, &s3d); // clear, one byte: b1 counts as 0
    EXPECT_EQ(s3d.baseVideoFlag, 0);
    EXPECT_EQ(s3d.usableAs2D, 1);
    EXPECT_EQ(s3d.verticalUpsamplingFactor, 0);
    d->GetStreamInfoDetailForAVC(1, &avc);
    EXPECT_TRUE(log.Contains("TCDescComponentList::GetStreamInfoDetailForAVC index[1], detail_Info_Length[1]"));
    auto empty = Parsed<TCDescComponentList>(0xBB, {});
    EXPECT_EQ(empty->NumberOfComponet(), 0);
}

TEST(DescAtsc, ChannelAndCarrierDescriptors)
{
    zumtest::UseReleasedImage();
    zumtest::LogCapture log;
    auto shifted = Parsed<TCDescTimeShiftedService>(0xA2, {0xE2, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFC, 0x1E, 0x00,
                                                           0x2C, 0x05});
    ASSERT_EQ(shifted->NumOfServices(), 2);
    EXPECT_EQ(shifted->TimeShift(0), 0x3FF);
    EXPECT_EQ(shifted->MajorChannelNumber(0), 0x3FF);
    EXPECT_EQ(shifted->MinorChannelNumber(0), 0x3FF);
    EXPECT_EQ(shifted->TimeShift(1), 30);
    EXPECT_EQ(shifted->MajorChannelNumber(1), 11);
    EXPECT_EQ(shifted->MinorChannelNumber(1), 5);
    EXPECT_EQ(shifted->TimeShift(2), 0);
    // A count that does not match the length leaves the earlier parse.
    const Bytes wrong = Desc(0xA2, {0xE3, 0, 0, 0, 0, 0});
    shifted->Parse(wrong.data());
    EXPECT_EQ(shifted->NumOfServices(), 2);
    EXPECT_TRUE(log.Contains("[Warning] Descriptor[0xa2] length mismatch!inLen=6, outLen=0"));

    auto two = Parsed<TCDescTwoPartChannel>(0x94, {0xFE, 0x0A, 0xFC, 0x03});
    EXPECT_EQ(two->MajorChannelNumber(), 0x20A);
    EXPECT_EQ(two->MinorChannelNumber(), 3);
    auto props = Parsed<TCDescChannelProperities>(0x95, {0x12, 0x34, 0x02, 0x85});
    EXPECT_EQ(props->ChannelTSID(), 0x1234);
    EXPECT_EQ(props->OutOfBandChannel(), 1);
    EXPECT_EQ(props->AccessControlled(), 0);
    EXPECT_EQ(props->HideGuide(), 1);
    EXPECT_EQ(props->ServiceType(), 5);
    Parsed<TCDescChannelProperities>(0x95, {1, 2, 3});
    EXPECT_EQ(log.Count("TCDescChannelProperities Len[3] is wrong!"), 1);
    auto type = Parsed<TCDescChannelType>(0xE0, {0x81});
    EXPECT_EQ(type->Flag1(), 1);
    EXPECT_EQ(type->Flag2(), 0);
    EXPECT_EQ(type->ChannelType(), 1);
    EXPECT_EQ(Parsed<TCDescChannelType>(0xE0, {1, 2})->ChannelType(), 0xFF);

    auto dst = Parsed<TCDescDaylightSavingTime>(0x96, {0x9F, 23});
    EXPECT_EQ(dst->DSStatus(), 1);
    EXPECT_EQ(dst->DSDayOfMonth(), 31);
    EXPECT_EQ(dst->DSHour(), 23);
    TCDescDaylightSavingTime unset;
    EXPECT_EQ(unset.DSHour(), 0);
    EXPECT_TRUE(log.Contains("Failed: m_dSStatus != (char)INVALID"));

    auto frequency = Parsed<TCDescFrequencySpecification>(0x90, {0x81, 0x00});
    EXPECT_EQ(frequency->FrequencyUnit(), 1);
    EXPECT_EQ(frequency->CarrierFrequency(), 0x100);
    auto modulation = Parsed<TCDescModulationParameters>(0x91, {0x21, 0x88, 0xF5, 0x06, 0x9A, 0x00});
    EXPECT_EQ(modulation->TransmissionSystem(), 2);
    EXPECT_EQ(modulation->InnerCodingMode(), 1);
    EXPECT_EQ(modulation->SplitBitstreamMode(), 1);
    EXPECT_EQ(modulation->ModulationFormat(), 8);
    EXPECT_EQ(modulation->SymbolRate(), 0x5069Au);
    auto details = Parsed<TCDescInBandDetailsChannel>(0x00, {7, 0x12, 0x34});
    EXPECT_EQ(details->RFChannel(), 7);
    EXPECT_EQ(details->ProgramNumber(), 0x1234);
    auto exceptions = Parsed<TCDescInBandExceptionChannels>(0x01, {2, 3, 0, 1, 4, 0, 2});
    EXPECT_EQ(exceptions->ExceptionRFChannel(1), 4);
    EXPECT_EQ(exceptions->ExceptionProgramNumber(1), 2);
    EXPECT_EQ(exceptions->ExceptionProgramNumber(2), 0);
    EXPECT_EQ(Parsed<TCDescInBandExceptionChannels>(0x01, {2, 3, 0, 1})->ExceptionChannelCount(), 0);
    EXPECT_EQ(log.Count("TCDescInBandExceptionChannels::t_Parse ERROR, m_exception_channel_count[2]"), 1);
}

TEST(DescAtsc, TextsAndKoreanDescriptors)
{
    zumtest::LogCapture log;
    auto dcc = Parsed<TCDescDCCArrivingRequest>(0xA9, {0x01, 3, 'a', 'b', 'c'});
    char text[8] = {};
    struct Copy {
        int capacity;
        bool result;
        int length;
    };
    for (const Copy& c : {Copy{3, true, 3}, Copy{8, true, 3}, Copy{2, false, 2}, Copy{0, false, 0}}) {
        int length = c.capacity;
        EXPECT_EQ(dcc->GetDCCArrivingRequestText(text, &length), c.result) << c.capacity;
        EXPECT_EQ(length, c.length) << c.capacity;
    }
    EXPECT_EQ(dcc->RequestType(), 1);
    EXPECT_EQ(Parsed<TCDescDCCDepartingRequest>(0xA8, {2, 9, 'x'})->TextLength(), 9);

    struct Link {
        Bytes body;
        int type, program;
        std::string url, code;
        const char* line;
    };
    const Link links[] = {
        {{0x01, 0x12, 0x34}, 1, 0x1234, "", "", nullptr},
        {{0x01, 0x12}, 1, 0xFFFF, "", "", "TCDescATSCLinakge::t_Parse, len[2] < PROGRAM_NUMBER_BODY_LENGTH[2]"},
        {{0x02, 0, 2, 'w', 'w', 0x02, 'p', 'c'}, 2, 0xFFFF, "ww", "pc", nullptr},
        {{0x02, 0, 9, 'w'}, 2, 0xFFFF, "", "", "TCDescATSCLinakge::t_Parse, len[4] < m_URL_Length[9]"},
        {{0x02, 0, 1, 'w', 0x05, 'p'}, 2, 0xFFFF, "w", "", "TCDescATSCLinakge::t_Parse, len[6] < m_Program_Code_Length[5]"},
        {{}, 0xFF, 0xFFFF, "", "", nullptr},
    };
    for (const Link& l : links) {
        log.Clear();
        auto d = Parsed<TCDescATSCLinakge>(0x37, l.body);
        EXPECT_EQ(d->LinkType(), l.type);
        EXPECT_EQ(d->ProgramNumber(), l.program);
        char buffer[16];
        int length = sizeof buffer;
        EXPECT_EQ(d->GetURLByte(buffer, &length) ? std::string(buffer, length) : "", l.url);
        length = sizeof buffer;
        EXPECT_EQ(d->GetProgramCode(buffer, &length) ? std::string(buffer, length) : "", l.code);
        if (l.line) {
            EXPECT_EQ(log.Count(l.line), 1) << l.line;
        }
    }

    using Detail = TCDescATSCPrivateInformation::TTPrivateInfoDetail;
    auto info = Parsed<TCDescATSCPrivateInformation>(
        0xAD, {'T', 'T', 'A', '0', 4, 1, 1, 0xC5, 2, 2, 0x12, 0x34, 9, 1, 0, 1, 1, 0x05});
    ASSERT_EQ(info->NumOfPrivateInfoDetail(), 4u);
    Detail d;
    info->GetPrivateInfoDetail(1, d);
    EXPECT_EQ(std::vector<int>(d.value, d.value + 6), (std::vector<int>{1, 1, 0xFF, 0x12, 3, 4}));
    ASSERT_TRUE(info->GetPrivateInfoDetailByType(TTA0_TYPE_1, d));
    EXPECT_EQ(std::vector<int>(d.value, d.value + 6), (std::vector<int>{1, 1, 5, 0xFF, 0xFF, 0xFF}));
    info->GetPrivateInfoDetail(2, d);
    EXPECT_EQ(std::vector<int>(d.value, d.value + 6), (std::vector<int>{1, 1, 0xFF, 0xFF, 0xFF, 0xFF}));
    Detail untouched;
    info->GetPrivateInfoDetail(4, untouched);
    EXPECT_EQ(untouched.length, 0);
    EXPECT_EQ(Parsed<TCDescATSCPrivateInformation>(0xAD, {'T', 'T', 'A', '1', 1, 1, 1, 0})->NumOfPrivateInfoDetail(), 0u);
    EXPECT_EQ(Parsed<TCDescATSCPrivateInformation>(0xAD, {'T', 'T', 'A', '0', 1, 1, 2, 0, 0})->NumOfPrivateInfoDetail(),
              0u);
    EXPECT_EQ(log.Count("TCDescATSCPrivateInformation::t_Parse, Invalid PrivateInfo Length [2]"), 1);
}
