#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include "av/DescAACAudio.h"
#include "av/DescAC3.h"
#include "av/DescAVCVideo.h"
#include "av/DescAudioFile.h"
#include "av/DescDTCP.h"
#include "av/DescMetadata.h"
#include "av/DescTTMLSubtitling.h"
#include "core/DescriptorContainer.h"
#include "dvb/DescLoopProbe.h"
#include "inspect/AvView.h"
#include "inspect/Session.h"
#include "psi/PMTParser.h"

using namespace svctest;
namespace fs = std::filesystem;

namespace {

using Classes = std::map<int, std::type_index>;

// One stream whose loop holds every tag that some system's program factory gives an audio or video class.
const Bytes kLoop = zumtest::Concat({
    Desc(0x05, {'D', 'R', 'A', '1'}), Desc(0x1C, {0x2A}), Desc(0x24, {0x00, 0x10, 0x00}),
    Desc(0x26, {0x01, 0x01, 0x3F, 0xFF, 0x00}), Desc(0x28, {100, 0, 40, 0}), Desc(0x35, {0x03}),
    Desc(0x36, {0x01, 0x01}), Desc(0x38, {0, 0, 0, 1, 0x80, 0, 0, 0x80}), Desc(0x6A, {0x00}),
    Desc(0x7A, {0x00}), Desc(0x7C, {0x51}), Desc(0x81, {0x48, 0x30, 0x0A, 0x01, 0x40}),
    Desc(0x88, {0x0F, 0xFF, 0x6E, 0x06}), Desc(0xCC, {0x00, 0x00, 0x00}),
    Desc(0x7F, {0x06, 0x04}), Desc(0x7F, {0x20, 'e', 'n', 'g', 0x00, 0x00, 0x00})});

Bytes Pmt(const Bytes& loop)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(0x02, 0x0101, 0, 0, 0));
    b.U16(0xE100).Begin16(12).End();
    b.U8(0x06).U16(0xE101).Begin16(12).Raw(loop).End();
    return b.Build();
}

} // namespace

// The same stream loop under a DVB, an ATSC and a Korean receiver: each tag gets its system's class.
TEST(AvSystems, PmtStreamLoopByCountry)
{
    const std::type_index none = typeid(TCDescDefault);
    const Classes common = {{0x1C, typeid(TCDescMpeg4Audio)}, {0x24, typeid(TCDescContentLabeling)},
                            {0x88, typeid(TCDescDTCP)}, {0x6A, typeid(TCDescAC3)}};
    Classes dvb = common, atsc = common;
    dvb.insert({{0x05, typeid(TCDescDRARegistration)}, {0x26, typeid(TCDescMetadata)}, {0x28, typeid(TCDescAVCVideo)},
                {0x35, none}, {0x36, none}, {0x38, none}, {0x7A, typeid(TCDescEnhancedAC3)},
                {0x7C, typeid(TCDescAACAudio)}, {0x81, none}, {0xCC, none},
                {0x7F06, typeid(TCDescSupplementaryAudio)}, {0x7F20, typeid(TCDescTTMLSubtitling)}});
    atsc.insert({{0x05, none}, {0x26, none}, {0x28, none}, {0x35, typeid(TCDescStereoScopicProgramInfo)},
                 {0x36, typeid(TCDescStereoScopicVideoInfo)}, {0x7A, none}, {0x7C, none},
                 {0x81, typeid(TCDescAC3Audio)}, {0xCC, typeid(TCDescATSCEnhancedAC3)}, {0x7F, none}});
    Classes korea = atsc;
    atsc.insert({0x38, none});
    korea.insert({0x38, typeid(TCDescStereoScopicSyncronization)});
    for (const auto& system : {std::make_pair("DEU", dvb), std::make_pair("USA", atsc), std::make_pair("KOR", korea)}) {
        SCOPED_TRACE(system.first);
        zumtest::BinderScope binder;
        binder->countryCode = ZumPackCode(system.first);
        TCPMTParser pmt{ZUMHandle()};
        const Bytes section = Pmt(kLoop);
        ASSERT_TRUE(pmt.Parse(0x1000, section.data()));
        const TCPMTElementary* stream = pmt.PMTInstance(0x0101)->PMTElementary(0);
        for (const auto& tag : system.second) {
            SCOPED_TRACE(testing::Message() << "tag 0x" << std::hex << tag.first);
            EXPECT_EQ(ClassOf(stream->Descriptor(tag.first, 0)), tag.second.name());
        }
    }
}

// The other rows: SI, PSIP, the Chinese DRA stream and the extensions of SI tables.
TEST(AvSystems, SiPsipAndPrivateRows)
{
    ExpectRows({
        {"DEU", 0x42, Desc(0x25, {0x01, 0x01, 0x3F, 0xFF, 0x60, 0}), 0x25, typeid(TCDescMetadataPointer)},
        {"DEU", 0x4E, Desc(0x6A, {0x00}), 0x6A, typeid(TCDescAC3)},
        {"DEU", 0x4E, Desc(0x7A, {0x00}), 0x7A, typeid(TCDescEnhancedAC3)},
        {"DEU", 0x4E, Desc(0x7F, {0x06, 0x04}), 0x7F06, typeid(TCDescSupplementaryAudio)},
        {"USA", 0xC8, Desc(0x02, {0}), 0x02, typeid(TCDescAudioFile)},
        {"USA KOR", 0xC8, Desc(0x1C, {0x2A}), 0x1C, typeid(TCDescMpeg4Audio)},
        {"USA", 0xC8, Desc(0x35, {0x01}), 0x35, typeid(TCDescStereoScopicProgramInfo)},
        {"USA", 0xCB, Desc(0x81, {0x48}), 0x81, typeid(TCDescAC3Audio)},
        {"USA", 0xC8, Desc(0xE1, {0x01}), 0xE1, typeid(TCDescResolutionClass)},
        {"USA", 0xC8, Desc(0xCC, {0x00}), 0xCC, typeid(TCDescDefault)},
    });
    // DRA audio: only a Chinese receiver with no specifier in the stream.
    for (ECountry country : {ECOUNTRY_CHINA, ECOUNTRY_NONE}) {
        zumtest::BinderScope binder;
        binder->countryCode = ZumPackCode("CHN");
        binder->country = country;
        TCDescriptorHash hash;
        TCDescriptor descriptor{ZUMHandle()};
        const Bytes loop = Desc(0xA0, {0x00, 0x90});
        descriptor.Parse(loop.data(), static_cast<int>(loop.size()), hash, 0x02);
        EXPECT_EQ(ClassOf(hash.Descriptor(0xA0, 0)),
                  country == ECOUNTRY_CHINA ? typeid(TCDescDRAAudioStream).name() : "none");
    }
}

TEST(AvSystems, StreamSummaries)
{
    struct Case { const char* country; int streamType; Bytes loop; std::string summary; } cases[] = {
        {"DEU", 0x24, Desc(0x38, {0x02, 0x20, 0, 0, 0, 0x90, 0, 0, 0, 0, 0, 153, 0x00}), "HEVC Main 10 2160p"},
        {"DEU", 0x1B, Desc(0x28, {100, 0, 40, 0}), "AVC High 1080p"},
        {"DEU", 0x06, zumtest::Concat({Desc(0x7A, {0x80, 0x44}), Desc(0x0A, {'e', 'n', 'g', 0})}),
         "E-AC-3 multichannel eng"},
        {"DEU", 0x11, Desc(0x7C, {0x51, 0x80, 0x03}), "AAC-LC stereo"},
        {"USA", 0x81, Desc(0x81, {0x48, 0x30, 0x0E, 'e', 0x40, 0x00, 0x80, 's', 'p', 'a'}), "AC-3 5.1 spa"},
        {"DEU", 0x06, Desc(0x7F, {0x20, 'f', 'r', 'a', 0x00, 0x00, 0x00}), "TTML subtitles fra"},
        {"DEU", 0x04, Desc(0x0A, {'f', 'r', 'a', 0}), "fra"},
        {"DEU", 0x05, {}, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.summary);
        TCDescriptorHash hash;
        Walk(c.country, 0x02, c.loop, hash);
        EXPECT_EQ(zuminspect::StreamSummary(c.streamType, hash), c.summary);
    }
}

// Real PMTs: every tag that the program factories give an audio or video class decodes as that class.
TEST(AvSystems, CapturedPmtsLeaveNoComponentTagUnknown)
{
    const fs::path dir(ZUM_CAPTURES_DIR);
    if (!fs::is_directory(dir))
        GTEST_SKIP() << "no captures at " << dir;
    const std::set<std::string> dvbTags = {"0x05", "0x1C", "0x24", "0x26", "0x28", "0x6A", "0x7A", "0x7C", "0x88",
                                           "0x7F06", "0x7F20"};
    const std::set<std::string> atscTags = {"0x1C", "0x24", "0x35", "0x36", "0x6A", "0x81", "0x88", "0xCC"};
    int decoded = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(dir)) {
        const std::string name = entry.path().filename().string();
        if (entry.path().extension() != ".ts" && entry.path().extension() != ".bin")
            continue;
        SCOPED_TRACE(name);
        const bool atsc = name.find("test-040") != std::string::npos || name.find("cablelabs") != std::string::npos;
        zuminspect::InspectSettings settings;
        settings.country = atsc ? "USA" : "GBR";
        settings.allPids = true;
        std::ifstream in(entry.path(), std::ios::binary);
        const Bytes data((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
        zuminspect::Session session(zuminspect::DetectInputKind(data.data(), data.size()), settings);
        session.Feed(data.data(), data.size());
        session.Finish();
        const auto model = session.Model();
        for (const auto& pmt : model["pmts"])
            for (const auto& stream : pmt["streams"])
                for (const auto& desc : stream["descriptors"]) {
                    const std::string tag = desc["tag"].get<std::string>();
                    if (!(atsc ? atscTags : dvbTags).count(tag))
                        continue;
                    EXPECT_TRUE(desc.contains("fields")) << tag << " " << desc["class"];
                    ++decoded;
                }
    }
    EXPECT_GT(decoded, 0);
}
