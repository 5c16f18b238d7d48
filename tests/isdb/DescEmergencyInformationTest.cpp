#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>
#include <typeindex>
#include <vector>

#include <zum-platform/Dlog.h>

#include "dvb/DescLoopProbe.h"
#include "isdb/DescEmergencyInformation.h"

using namespace svctest;

namespace {

std::unique_ptr<TCDescEmergencyInformation> Decode(const Bytes& body)
{
    return svctest::Decode(new TCDescEmergencyInformation(), Desc(0xFC, body));
}

// The count, then per loop service/start-end/signal level/number of codes: the codes in hex; "-" for a loop
// that answers nothing.
std::string Show(const TCDescEmergencyInformation& d)
{
    std::string out = std::to_string(d.NumOfDescLoop());
    for (unsigned long i = 0; i < d.NumOfDescLoop(); ++i) {
        unsigned short service = 0;
        bool startEnd = false, level = false;
        unsigned char count = 0;
        if (!d.GetServiceID(i, service) || !d.GetStartEndFlag(i, startEnd) || !d.GetSignalLevel(i, level) ||
            !d.GetAreaCodeLength(i, count)) {
            out += " | -";
            continue;
        }
        out += " | " + Join(service, startEnd, level, count) + ":";
        for (unsigned long a = 0; a < count; ++a) {
            unsigned short code = 0;
            char hex[8];
            std::snprintf(hex, sizeof hex, " %03X", d.GetAreaCode(i, a, code) ? code : 0xFFFF);
            out += hex;
        }
    }
    return out;
}

struct Case { Bytes body; std::string fields; std::vector<std::string> errors; };

} // namespace

// The loop count is the body length over the first loop's size; a count of codes is area_code_length / 2;
// a loop whose codes run over stops the walk with a count of 0, a loop whose head does not fit is not read.
TEST(DescEmergencyInformation, Bodies)
{
    const std::string runOver = "TCDescEmergencyInformation::t_Parse lenghth is wrong!! returned!";
    const std::string noLoop = "TCDescEmergencyInformation::ServiceID wrong index = 2";
    Bytes largest = {0x12, 0x34, 0x3F, 251};
    for (int i = 0; i < 251; ++i)
        largest.push_back(i % 2 ? 0x50 : 0x5A);
    const Case cases[] = {
        {{}, "0", {}},
        {{0x00, 0x01, 0xC0}, "0", {}},
        {{0x00, 0x01, 0xC0, 0x00}, "1 | 1 1 1 0:", {}},
        {{0x00, 0x01, 0xC0, 0xFF, 0x5A, 0x5F}, "0", {}},
        // Three loops of one size.
        {{0x00, 0x01, 0xC0, 2, 0x5A, 0x5F, 0x00, 0x02, 0x80, 2, 0x9B, 0x40, 0xFF, 0xFF, 0x3F, 2, 0xFF, 0xFF},
         "3 | 1 1 1 1: 5A5 | 2 1 0 1: 9B4 | 65535 0 0 1: FFF", {}},
        // A larger first loop: the division finds two of three, the third is not read.
        {{0x00, 0x01, 0x40, 4, 0x5A, 0x50, 0x8D, 0x50, 0x00, 0x02, 0x00, 2, 0x72, 0xA0, 0x00, 0x03, 0x00, 2, 0x16,
          0xB0},
         "2 | 1 0 1 2: 5A5 8D5 | 2 0 0 1: 72A", {}},
        // An odd area_code_length: the odd byte is not used, and the next loop starts on it.
        {{0x00, 0x01, 0xC0, 3, 0x5A, 0x50, 0xFF, 0x00, 0x02, 0x80, 3, 0x9B, 0x40, 0xEE},
         "2 | 1 1 1 1: 5A5 | 65280 0 0 0:", {runOver}},
        // Codes of a later loop that run over the body by three bytes.
        {{0x00, 0x07, 0x80, 0, 0x00, 0x08, 0x40, 4, 0x5A}, "2 | 7 1 0 0: | 8 0 1 0:", {runOver}},
        // Later loops larger than the first: the third head does not fit.
        {{0x00, 0x01, 0x80, 0, 0x00, 0x02, 0x80, 2, 0x5A, 0x50, 0x00, 0x03}, "3 | 1 1 0 0: | 2 1 0 1: 5A5 | -",
         {noLoop}},
        {largest, "1 | 4660 0 0 125:" + [] {
             std::string codes;
             for (int i = 0; i < 125; ++i)
                 codes += " 5A5";
             return codes;
         }(), {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.body));
        zumtest::LogCapture log;
        auto d = Decode(c.body);
        EXPECT_EQ(Show(*d), c.fields);
        EXPECT_EQ(log.Lines(DLOG_ERROR), c.errors);
        const std::string count = c.fields.substr(0, c.fields.find(' '));
        EXPECT_EQ(log.Count("TCDescEmergencyInformation::t_Parse m_numOfDescLoop = " + count), c.body.size() >= 4);
        ExpectClone(*d);
    }
}

// A bad index leaves the output untouched and logs the accessor's line.
TEST(DescEmergencyInformation, BadIndexes)
{
    auto d = Decode({0x00, 0x01, 0xC0, 2, 0x5A, 0x5F});
    zumtest::LogCapture log;
    unsigned short value = 7;
    bool flag = true;
    unsigned char count = 9;
    EXPECT_FALSE(d->GetServiceID(1, value));
    EXPECT_FALSE(d->GetStartEndFlag(1, flag));
    flag = false;
    EXPECT_FALSE(d->GetSignalLevel(5, flag));
    EXPECT_FALSE(d->GetAreaCodeLength(1, count));
    EXPECT_FALSE(d->GetAreaCode(1, 0, value));
    EXPECT_FALSE(d->GetAreaCode(0, 1, value));
    EXPECT_EQ(value, 7);
    EXPECT_FALSE(flag);
    EXPECT_EQ(count, 9);
    EXPECT_EQ(log.Lines(DLOG_ERROR), (std::vector<std::string>{
                                         "TCDescEmergencyInformation::ServiceID wrong index = 1",
                                         "TCDescEmergencyInformation::StartEndFlag wrong index = 1",
                                         "TCDescEmergencyInformation::SignalLevel wrong index = 5",
                                         "TCDescEmergencyInformation::AreaCodeLength wrong index = 1",
                                         "TCDescEmergencyInformation::GetAreaCode wrong index = 1",
                                         "TCDescEmergencyInformation::GetAreaCode wrong area index = 1"}));
    EXPECT_EQ(log.Lines(DLOG_DEBUG), std::vector<std::string>{});
}

// Every code of the wide area and prefecture tables, and one of neither.
TEST(DescEmergencyInformation, JapaneseAreas)
{
    struct Area { unsigned short code; int wide, prefecture; };
    const Area areas[] = {
        {0x5A5, 1, 63}, {0x8D5, 2, 63}, {0x72A, 3, 63}, {0x16B, 4, 63},
        {0x5D4, 0, 20}, {0x758, 0, 17}, {0xAC6, 0, 18}, {0xE4C, 0, 19}, {0x1AE, 0, 21}, {0x467, 0, 22},
        {0xAAC, 0, 23}, {0x56C, 0, 24}, {0x98B, 0, 25}, {0xC69, 0, 26}, {0x1C7, 0, 27}, {0xE38, 0, 28},
        {0x64B, 0, 29}, {0x9D2, 0, 30}, {0x4CE, 0, 31}, {0xD4A, 0, 32}, {0x966, 0, 33}, {0x6A6, 0, 34},
        {0xA5A, 0, 35}, {0x92D, 0, 36}, {0x539, 0, 37}, {0x2DC, 0, 38}, {0x31B, 0, 48}, {0x699, 0, 49},
        {0xB98, 0, 50}, {0xA65, 0, 39}, {0xCB2, 0, 40}, {0x59A, 0, 41}, {0x674, 0, 42}, {0x396, 0, 43},
        {0xA93, 0, 44}, {0xCE4, 0, 45}, {0x553, 0, 46}, {0xB31, 0, 46}, {0x2B5, 0, 47}, {0xD23, 0, 49},
        {0x19D, 0, 51}, {0xD45, 0, 58}, {0xD1C, 0, 59}, {0xC8D, 0, 60}, {0x959, 0, 61}, {0x372, 0, 62},
        {0x34D, 0, 64}, {0xE62, 0, 53}, {0x8A7, 0, 56}, {0x2E3, 0, 54}, {0x62D, 0, 55}, {0xA2B, 0, 57},
        {0x9B4, 0, 52},
    };
    const size_t n = sizeof areas / sizeof areas[0];
    Bytes body = {0x00, 0x01, 0x80, static_cast<UChar>(2 * (n + 1))};
    for (const Area& a : areas) {
        body.push_back(static_cast<UChar>(a.code >> 4));
        body.push_back(static_cast<UChar>((a.code << 4) | 0x0F));
    }
    body.insert(body.end(), {0x00, 0x1F});
    auto d = Decode(body);
    for (size_t i = 0; i < n; ++i) {
        SCOPED_TRACE(areas[i].code);
        EJapanWideArea wide = static_cast<EJapanWideArea>(-1);
        EJapanPrefecture prefecture = static_cast<EJapanPrefecture>(-1);
        EXPECT_TRUE(d->GetAreaCode(0, i, wide, prefecture));
        EXPECT_EQ(wide, areas[i].wide);
        EXPECT_EQ(prefecture, areas[i].prefecture);
    }
    zumtest::LogCapture log;
    EJapanWideArea wide = static_cast<EJapanWideArea>(9);
    EJapanPrefecture prefecture = static_cast<EJapanPrefecture>(9);
    EXPECT_FALSE(d->GetAreaCode(0, n, wide, prefecture));
    EXPECT_EQ(wide, EJAPAN_WIDE_AREA_NONE);
    EXPECT_EQ(prefecture, EJAPAN_PREFECTURE_NONE);
    EXPECT_FALSE(d->GetAreaCode(0, n + 1, wide, prefecture));
    EXPECT_EQ(log.Lines(DLOG_ERROR),
              (std::vector<std::string>{"TCDescEmergencyInformation::GetAreaCode There's no matched region!",
                                        "TCDescEmergencyInformation::GetAreaCode wrong area index = 54"}));
}

// The PMT factory of the ISDB countries makes the class; a DVB PMT and the ISDB SI tables keep the tag raw.
TEST(DescEmergencyInformation, FactoryRows)
{
    const Bytes loop = Desc(0xFC, {0x00, 0x01, 0xC0, 2, 0x5A, 0x5F});
    ExpectRows({
        {"JPN BRA cri", 0x02, loop, 0xFC, typeid(TCDescEmergencyInformation)},
        {"GBR USA KOR", 0x02, loop, 0xFC, typeid(TCDescDefault)},
        {"JPN BRA", 0x42, loop, 0xFC, typeid(TCDescDefault)},
    });
}
