#include <gtest/gtest.h>

#include <string>

#include "dvb/DescLoopProbe.h"
#include "isdb/DescAbstractService.h"
#include "isdb/DescScheduling.h"

using namespace svctest;

// The name of an abstract service goes out whole or not at all; certificates count only in whole bodies.
TEST(DescIsdbService, AbstractServiceAndCertificates)
{
    auto show = [](const TCDescAbstractService& d) {
        unsigned char b[8];
        int s = sizeof b;
        return Join(d.ServiceId(), d.AutoSelect(), d.ServiceNameLength(),
                    d.ServiceNameByte(b, &s) ? std::string(b, b + s) : "-");
    };
    ExpectBodies(0x66, [] { return new TCDescAbstractService(); }, show, {
        {{0x01, 0x02, 0x03, 0xFF, 'A', 'b'}, "66051 1 2 Ab"},
        {{0x01, 0x02, 0x03, 0xFE}, "66051 0 0 -"},
        {{0x01, 0x02, 0x03}, "0 0 0 -"},
    });
    auto d = Decode(new TCDescAbstractService(), Desc(0xAE, {0, 0, 1, 0, 'A', 'B', 'C'}));
    EXPECT_EQ(d->Tag(), 0x66);
    ExpectCopiesBy<unsigned char, int>([&](unsigned char* b, int* s) { return d->ServiceNameByte(b, s) == 1; },
                                       {{2, false, 2, "####"}, {3, true, 3, "ABC##"}});

    auto certs = [](const TCDescPrivilegedCertificate& c) {
        std::string out = std::to_string(c.NumOfCertificateIdentifierByte());
        for (unsigned int i = 0; const unsigned char* id = c.CertificateIdentifierByte(i); ++i)
            out += " " + std::to_string(id[0]) + "-" + std::to_string(id[19]);
        return out;
    };
    Bytes two(40);
    for (int i = 0; i < 40; ++i)
        two[static_cast<size_t>(i)] = static_cast<unsigned char>(i);
    Bytes ragged = two;
    ragged.push_back(0xFF);
    ExpectBodies(0x68, [] { return new TCDescPrivilegedCertificate(); }, certs, {
        {two, "2 0-19 20-39"},
        {ragged, "0", "inLen=41, outLen=40"},
        {Bytes(19, 1), "0", "inLen=19, outLen=0"},
    });
}

// Flags as all ones in the low byte, genres then spare bytes; the copies lower a larger size.
TEST(DescIsdbService, EPGInformation)
{
    auto show = [](const TCDescEPGInformation& d) {
        unsigned char g[8];
        int s = sizeof g;
        const std::string genres = d.Genres(g, &s) ? std::string(g, g + s) : "-";
        return Join(int(d.PushService()), int(d.AllowSurfing()), int(d.AllowSearchScan()), int(d.AllowListing()),
                    int(d.NumGenres()), genres, d.NumSpareBits());
    };
    ExpectBodies(0xCC, [] { return new TCDescEPGInformation(); }, show, {
        {{0xA2, 'x', 'y', 1, 2, 3}, "255 0 255 0 2 xy 3"},
        {{0x52, 'x', 'y'}, "0 255 0 255 2 xy 0"},
        {{0x10, 0x77}, "0 0 0 255 0 - 0", "inLen=2, outLen=1"},
        // Genres cut by the end of the descriptor.
        {{0x03, 'x'}, "0 0 0 0 3 x 0"},
    });
    auto d = Decode(new TCDescEPGInformation(), Desc(0xCC, {0x02, 'G', 'H', 's'}));
    ExpectCopies(*d, &TCDescEPGInformation::Genres, {{1, true, 1, "G##"}, {2, true, 2, "GH##"}, {5, true, 2, "GH#####"}});
    EXPECT_EQ(TextOf(*d, &TCDescEPGInformation::SpareEpgInfoBits), "s");
}

// Raw 40-bit times and the units byte; availability ids from byte 1; the identifier with its zeros.
TEST(DescIsdbService, SchedulingAvailabilityIdentifier)
{
    auto sched = [](const TCDescScheduling& d) {
        return Join(d.StartDateTime(), d.EndDateTime(), d.FinalAvailability(), d.PeriodicityFlag(), d.PeriodUnit(),
                    d.DurationUnit(), d.EstimatedCycleTimeUnit(), d.Period(), d.Duration(), d.EstimatedCycleTime(),
                    d.PrivateLength());
    };
    const Bytes times = {0xE6, 0x40, 0x12, 0x00, 0x00, 0xE6, 0x41, 0x12, 0x30, 0x00};
    ExpectBodies(0x01, [] { return new TCDescScheduling(); }, sched, {
        {zumtest::Concat({times, {0xDB, 1, 2, 3, 'p', 'q'}}), "988917399552 988934189056 1 1 1 2 3 1 2 3 2"},
        {zumtest::Concat({times, {0x00, 1, 2, 3}}), "988917399552 988934189056 0 0 0 0 0 1 2 3 0"},
        {zumtest::Concat({times, {0x00}}), "988917399552 988934189056 0 0 0 0 0 0 0 0 0", "inLen=11, outLen=10"},
    });
    auto avail = [](const TCDescServiceAvailability& d) {
        std::string out = Join(d.AvailabilityFlag(), d.Count());
        for (int i = 0; i < d.Count(); ++i)
            out += " " + std::to_string(d.CellId(i));
        return out + " " + std::to_string(d.CellId(d.Count()));
    };
    ExpectBodies(0x72, [] { return new TCDescServiceAvailability(); }, avail, {
        {{0x80, 0x00, 0x01, 0x12, 0x34}, "1 2 1 4660 65535"},
        {{0x00, 0x00, 0x07, 0xEE}, "0 1 7 65535", "inLen=4, outLen=3"},
        {{0x80, 0x00}, "1 0 65535", "inLen=2, outLen=1"},
    });
    auto ident = Decode(new TCDescServiceIdentifier(), Desc(0x71, {'a', 0, 'b'}));
    EXPECT_EQ(ident->ServiceIdentifier(), std::string("a\0b", 3));
    auto pdc = Decode(new TCDescPDC(), Desc(0x69, {0xFF, 0x12, 0x34}));
    EXPECT_EQ(pdc->ProgrammeIdentificationLabel(), 0xF1234u);
    auto tsid = Decode(new TCDescTransportStreamID(), Desc(0x92, {0x7E, 0xD0}));
    EXPECT_EQ(tsid->TransportStreamId(), 0x7ED0);
}

// Scheduling and the service rows in the SI tables of every system that reads them, AirTel's guide
// information under its specifier and operator, the application table's rows for both tags.
TEST(DescIsdbService, FactoryRows)
{
    const Bytes airtel = Desc(0x5F, {0x00, 0x00, 0x60, 0x01});
    ExpectRows({
        {"GBR BRA", 0x42, Desc(0x01, Bytes(14, 0)), 0x01, typeid(TCDescScheduling)},
        {"GBR JPN", 0x42, Desc(0x71, {'x'}), 0x71, typeid(TCDescServiceIdentifier)},
        {"GBR BRA", 0x42, Desc(0x72, {0x80}), 0x72, typeid(TCDescServiceAvailability)},
        {"GBR USA", 0x74, Desc(0x66, Bytes(4, 0)), 0x66, typeid(TCDescAbstractService)},
        {"GBR", 0x74, Desc(0xAE, Bytes(4, 0)), 0x66, typeid(TCDescAbstractService)},
        {"GBR", 0x74, Desc(0x68, Bytes(20, 0)), 0x68, typeid(TCDescPrivilegedCertificate)},
        {"GBR", 0x74, Desc(0xB1, Bytes(20, 0)), 0x68, typeid(TCDescPrivilegedCertificate)},
    });
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("IND");
    binder->operatorId = 90;
    TCDescriptorHash hash;
    TCDescriptor descriptor{ZUMHandle()};
    const Bytes loop = zumtest::Concat({airtel, Desc(0xCC, {0x00})});
    descriptor.Parse(loop.data(), static_cast<int>(loop.size()), hash, 0x42);
    EXPECT_EQ(ClassOf(hash.Descriptor(0xCC, 0)), typeid(TCDescEPGInformation).name());
}
