#include "inspect/AvView.h"

#include <functional>
#include <memory>
#include <typeindex>
#include <typeinfo>
#include <unordered_map>
#include <vector>

#include "av/DescAACAudio.h"
#include "av/DescAC3.h"
#include "av/DescAVCVideo.h"
#include "av/DescAudioFile.h"
#include "av/DescDTCP.h"
#include "av/DescMetadata.h"
#include "av/DescTTMLSubtitling.h"
#include "core/BaseDesc.h"
#include "core/DescriptorContainer.h"
#include "dvb/DescLanguage.h"
#include "inspect/Text.h"

namespace zuminspect {

namespace {

template <class T>
const T* First(const IDescriptorContainer& loop, int tag)
{
    for (int i = 0; i < loop.NumOfDescriptors(tag); ++i)
        if (const T* d = dynamic_cast<const T*>(loop.Descriptor(tag, static_cast<unsigned>(i))))
            return d;
    return nullptr;
}

std::string Joined(const std::vector<std::string>& words)
{
    std::string out;
    for (const std::string& w : words)
        if (!w.empty())
            out += (out.empty() ? "" : " ") + w;
    return out;
}

// ---- video ---------------------------------------------------------------------

std::string HevcProfile(int idc)
{
    switch (idc) {
    case 1: return "Main";
    case 2: return "Main 10";
    case 3: return "Main Still Picture";
    case 4: return "RExt";
    default: return idc == 0xFF ? "" : "profile " + std::to_string(idc);
    }
}

std::string AvcProfile(int idc)
{
    switch (idc) {
    case 66: return "Baseline";
    case 77: return "Main";
    case 88: return "Extended";
    case 100: return "High";
    case 110: return "High 10";
    case 122: return "High 4:2:2";
    case 244: return "High 4:4:4";
    default: return idc == 0 ? "" : "profile " + std::to_string(idc);
    }
}

// The largest picture a level carries at broadcast rates, as lines; `tenths`
// is the level times 10 (AVC level_idc, HEVC level_idc / 3).
std::string LinesOfLevel(int tenths, bool progressive)
{
    const char* scan = progressive ? "p" : "";
    // Below level 2.1 a picture is smaller than standard definition.
    if (tenths < 21)
        return "";
    if (tenths < 31)
        return std::string("576") + (progressive ? "p" : "i");
    if (tenths < 40)
        return std::string("720") + scan;
    if (tenths < 50)
        return std::string("1080") + (progressive ? "p" : "");
    if (tenths < 60)
        return std::string("2160") + scan;
    return std::string("4320") + scan;
}

// No factory makes the HEVC video descriptor: in an HEVC stream the caller
// decodes tag 0x38 itself, as a receiver's player does.
std::unique_ptr<TCDescHEVC> HevcOf(int streamType, const IDescriptorContainer& loop)
{
    const TCBaseDesc* raw = streamType == 0x24 ? First<TCDescDefault>(loop, 0x38) : nullptr;
    unsigned char bytes[257];
    int size = sizeof bytes;
    if (!raw || !raw->GetDescriptor(bytes, &size))
        return nullptr;
    auto hevc = std::make_unique<TCDescHEVC>();
    hevc->Parse(bytes);
    return hevc;
}

std::string VideoSummary(int streamType, const IDescriptorContainer& loop)
{
    if (const auto hevc = HevcOf(streamType, loop)) {
        const int tenths = hevc->LevelIdc() == 0xFF ? 0 : hevc->LevelIdc() / 3;
        return Joined({"HEVC", HevcProfile(hevc->ProfileIdc()), LinesOfLevel(tenths, hevc->ProgressiveSource() != 0)});
    }
    if (const TCDescAVCVideo* avc = First<TCDescAVCVideo>(loop, 0x28))
        return Joined({"AVC", AvcProfile(avc->ProfileIdc()), LinesOfLevel(avc->LevelIdc(), true)});
    // The stream type alone is named beside the stream already.
    return "";
}

// ---- audio ---------------------------------------------------------------------

// Channels of a DVB AC-3 component type (low three bits).
std::string DvbAc3Channels(int componentType)
{
    static const char* const kNames[] = {"mono", "dual mono", "stereo", "surround stereo",
                                         "multichannel", "multichannel above 5.1", "multiple substreams", ""};
    return kNames[componentType & 0x07];
}

// ATSC audio coding mode of the AC-3 audio descriptor.
std::string AtscAc3Channels(int numChannels)
{
    static const char* const kNames[] = {"dual mono", "mono", "stereo", "3/0", "2/1", "3/1", "2/2", "5.1",
                                         "mono", "up to 2 channels", "up to 3 channels", "up to 4 channels",
                                         "up to 5 channels", "up to 6 channels", "", ""};
    return numChannels <= 15 ? kNames[numChannels] : "";
}

std::string AacProfile(int profileAndLevel)
{
    if ((profileAndLevel >= 0x28 && profileAndLevel <= 0x2B) || (profileAndLevel >= 0x50 && profileAndLevel <= 0x57))
        return "AAC-LC";
    if ((profileAndLevel >= 0x2C && profileAndLevel <= 0x2F) || (profileAndLevel >= 0x58 && profileAndLevel <= 0x5F))
        return "HE-AAC";
    if ((profileAndLevel >= 0x30 && profileAndLevel <= 0x33) || (profileAndLevel >= 0x60 && profileAndLevel <= 0x67))
        return "HE-AACv2";
    return "AAC";
}

std::string AacChannels(int aacType)
{
    switch (aacType & 0x07) {
    case 0x01: return "mono";
    case 0x03: return "stereo";
    case 0x05: return "surround";
    default: return "";
    }
}

std::string LanguageOf(const IDescriptorContainer& loop)
{
    ELanguageCode language = 0;
    EAudioType type = AUDIO_TYPE_UNDEFINED;
    const TCDescLanguage* iso = First<TCDescLanguage>(loop, 0x0A);
    if (iso && iso->Count() > 0 && iso->Language(0, &language, &type) && language)
        return CodeText(language);
    if (const TCDescSupplementaryAudio* s = First<TCDescSupplementaryAudio>(loop, 0x7F06))
        if (s->LanguagePresent())
            return CodeText(static_cast<unsigned>(s->Language()));
    return "";
}

std::string AudioSummary(int streamType, const IDescriptorContainer& loop)
{
    const std::string language = LanguageOf(loop);
    if (const TCDescEnhancedAC3* e = First<TCDescEnhancedAC3>(loop, 0x7A))
        return Joined({"E-AC-3", e->ComponentTypeFlag() ? DvbAc3Channels(e->ComponentType()) : "", language});
    if (const TCDescAC3* a = First<TCDescAC3>(loop, 0x6A))
        return Joined({"AC-3", a->ComponentTypeFlag() ? DvbAc3Channels(a->ComponentType()) : "", language});
    if (const TCDescATSCEnhancedAC3* e = First<TCDescATSCEnhancedAC3>(loop, 0xCC))
        return Joined({"E-AC-3", e->LanguageFlag() ? CodeText(e->Language()) : language});
    if (const TCDescAC3Audio* a = First<TCDescAC3Audio>(loop, 0x81)) {
        const bool own = a->LanguageFlag() && a->Language();
        return Joined({streamType == 0x87 ? "E-AC-3" : "AC-3", AtscAc3Channels(a->NumChannels()),
                       own ? CodeText(a->Language()) : language});
    }
    if (const TCDescAACAudio* aac = First<TCDescAACAudio>(loop, 0x7C))
        return Joined({AacProfile(aac->ProfileAndLevel()), aac->AACTypeFlag() ? AacChannels(aac->AACType()) : "",
                       language});
    if (const TCDescMpeg4Audio* m = First<TCDescMpeg4Audio>(loop, 0x1C))
        return Joined({m->ProfileAndLevel() < 0 ? "MPEG-4 audio" : AacProfile(m->ProfileAndLevel()), language});
    if (const TCDescDRAAudioStream* dra = First<TCDescDRAAudioStream>(loop, 0xA0))
        return Joined({"DRA", std::to_string(dra->NormalChannels()) + "." + std::to_string(dra->LFEChannels()),
                       language});
    // The stream type alone is named beside the stream already: the language is what is left to say.
    return language;
}

// ---- describers ----------------------------------------------------------------

using AvDescriber = std::function<Json(const TCBaseDesc&)>;

template <class T, class Fn>
void Add(std::unordered_map<std::type_index, AvDescriber>& table, Fn fn)
{
    table[std::type_index(typeid(T))] = [fn](const TCBaseDesc& d) { return fn(static_cast<const T&>(d)); };
}

template <class T>
std::string InfoText(const T& d)
{
    char buffer[256];
    int size = sizeof buffer;
    return d.GetAdditionalInfo(buffer, &size) ? HexBytes(reinterpret_cast<unsigned char*>(buffer), size) : "";
}

Json Optional(bool present, int value)
{
    return present ? Json(value) : Json(nullptr);
}

std::unordered_map<std::type_index, AvDescriber> MakeAvTable()
{
    std::unordered_map<std::type_index, AvDescriber> t;
    Add<TCDescAC3>(t, [](const TCDescAC3& d) {
        return Json{{"componentType", Optional(d.ComponentTypeFlag(), d.ComponentType())},
                    {"bsid", Optional(d.BsidFlag(), d.Bsid())},
                    {"mainid", Optional(d.MainidFlag(), d.Mainid())},
                    {"asvc", Optional(d.AsvcFlag(), d.Asvc())},
                    {"additionalInfo", InfoText(d)}};
    });
    Add<TCDescEnhancedAC3>(t, [](const TCDescEnhancedAC3& d) {
        return Json{{"componentType", Optional(d.ComponentTypeFlag(), d.ComponentType())},
                    {"bsid", Optional(d.BsidFlag(), d.Bsid())},
                    {"mainid", Optional(d.MainidFlag(), d.Mainid())},
                    {"asvc", Optional(d.AsvcFlag(), d.Asvc())},
                    {"mixinfoExists", d.MixinfoExists()},
                    {"substream1", Optional(d.Substream1Flag(), d.Substream1())},
                    {"substream2", Optional(d.Substream2Flag(), d.Substream2())},
                    {"substream3", Optional(d.Substream3Flag(), d.Substream3())},
                    {"additionalInfo", InfoText(d)}};
    });
    Add<TCDescAC3Audio>(t, [](const TCDescAC3Audio& d) {
        return Json{{"sampleRateCode", d.SampleRateCode()}, {"bsid", d.Bsid()}, {"bitRateCode", d.BitRateCode()},
                    {"surroundMode", d.SurroundMode()},     {"bsmod", d.Bsmod()}, {"numChannels", d.NumChannels()},
                    {"fullService", d.FullService()},       {"mainid", d.Mainid()},
                    {"language", d.LanguageFlag() ? Json(CodeText(d.Language())) : Json(nullptr)}};
    });
    Add<TCDescATSCEnhancedAC3>(t, [](const TCDescATSCEnhancedAC3& d) {
        return Json{{"fullService", d.FullService()},
                    {"audioServiceType", d.AudioServiceType()},
                    {"numChannels", d.NumChannels()},
                    {"bsid", Optional(d.BsidFlag(), d.Bsid())},
                    {"mainid", Optional(d.MainidFlag(), d.Mainid())},
                    {"priority", Optional(d.MainidFlag(), d.Priority())},
                    {"asvc", Optional(d.AsvcFlag(), d.Asvc())},
                    {"language", d.LanguageFlag() ? Json(CodeText(d.Language())) : Json(nullptr)},
                    {"language2", d.LanguageFlag2() ? Json(CodeText(d.Language2())) : Json(nullptr)},
                    {"additionalInfo", InfoText(d)}};
    });
    Add<TCDescAACAudio>(t, [](const TCDescAACAudio& d) {
        return Json{{"profileAndLevel", Hex(static_cast<unsigned>(d.ProfileAndLevel()), 2)},
                    {"profile", AacProfile(d.ProfileAndLevel())},
                    {"aacType", d.AACTypeFlag() ? Json(Hex(d.AACType(), 2)) : Json(nullptr)}};
    });
    Add<TCDescMpeg4Audio>(t, [](const TCDescMpeg4Audio& d) {
        return Json{{"profileAndLevel", d.ProfileAndLevel()}};
    });
    Add<TCDescDRARegistration>(t, [](const TCDescDRARegistration& d) {
        return Json{{"formatIdentifier", Hex(d.FormatIdentifier(), 8)}};
    });
    Add<TCDescDRAAudioStream>(t, [](const TCDescDRAAudioStream& d) {
        return Json{{"sampleRateIndex", d.SampleRateIndex()}, {"normalChannels", d.NormalChannels()},
                    {"lfeChannels", d.LFEChannels()},         {"encodeType", d.EncodeType()},
                    {"language", d.LanguagePresent() ? Json(CodeText(d.Language())) : Json(nullptr)}};
    });
    Add<TCDescSupplementaryAudio>(t, [](const TCDescSupplementaryAudio& d) {
        return Json{{"mixType", d.MixType()},
                    {"editorialClassification", d.EditorialClassification()},
                    {"language", d.LanguagePresent() ? Json(CodeText(static_cast<unsigned>(d.Language()))) : Json(nullptr)}};
    });
    Add<TCDescAudioFile>(t, [](const TCDescAudioFile& d) {
        Json sources = Json::array();
        for (int i = 0; i < d.NumberOfSources(); ++i) {
            TCAudioSource s;
            if (d.AudioSource(i, &s))
                sources.push_back({{"audioFormat", s.AudioFormat()}, {"audioSource", s.AudioSourceType()},
                                   {"programNumber", s.ProgramNumber()}, {"applicationId", s.ApplicationId()}});
        }
        return Json{{"sources", sources}};
    });
    Add<TCDescAVCVideo>(t, [](const TCDescAVCVideo& d) {
        return Json{{"profileIdc", d.ProfileIdc()}, {"profile", AvcProfile(d.ProfileIdc())}, {"levelIdc", d.LevelIdc()},
                    {"stillPresent", d.AVCStillPresent()}, {"24HourPicture", d.AVC24HourPicture()}};
    });
    Add<TCDescHEVC>(t, [](const TCDescHEVC& d) {
        return Json{{"profileIdc", d.ProfileIdc()}, {"profile", HevcProfile(d.ProfileIdc())},
                    {"tier", d.TierFlag() ? "High" : "Main"}, {"levelIdc", d.LevelIdc()},
                    {"progressive", d.ProgressiveSource()}, {"interlaced", d.InterlacedSource()}};
    });
    Add<TCDescStereoScopicProgramInfo>(t, [](const TCDescStereoScopicProgramInfo& d) {
        return Json{{"serviceType", d.StereoscopicServiceType()}};
    });
    Add<TCDescStereoScopicVideoInfo>(t, [](const TCDescStereoScopicVideoInfo& d) {
        return Json{{"baseVideo", d.BaseVideoFlag()}, {"leftView", d.LeftViewFlag()}, {"usableAs2D", d.UsableAs2D()},
                    {"horizontalUpsampling", d.HorizontalUpsamplingFactor()},
                    {"verticalUpsampling", d.VerticalUpsamplingFactor()}};
    });
    Add<TCDescStereoScopicSyncronization>(t, [](const TCDescStereoScopicSyncronization& d) {
        return Json{{"first", d.FirstValue()}, {"second", d.SecondValue()}};
    });
    Add<TCDescFrameRate>(t, [](const TCDescFrameRate& d) { return Json{{"frameRate", d.FrameRate()}}; });
    Add<TCDescResolutionClass>(t, [](const TCDescResolutionClass& d) { return Json{{"class", d.ClassNumber()}}; });
    Add<TCDescDTCP>(t, [](const TCDescDTCP& d) {
        return Json{{"caSystemId", Hex(d.CASystemId(), 4)}, {"retentionMoveMode", d.RetentionMoveMode()},
                    {"retentionState", d.RetentionState()}, {"epn", d.EPN()}, {"cci", d.DTCPCCI()},
                    {"imageConstraintToken", d.ImageConstraintToken()}, {"aps", d.APS()}};
    });
    Add<TCDescRedistributionControl>(t, [](const TCDescRedistributionControl& d) {
        return Json{{"length", d.RCInformationLength()}};
    });
    Add<TCDescContentLabeling>(t, [](const TCDescContentLabeling& d) {
        return Json{{"applicationFormat", Hex(d.ApplicationFormat(), 4)},
                    {"timeBaseIndicator", d.ContentTimeBaseIndicator()},
                    {"contentReferenceIdLength", d.ContentReferenceIdLength()}};
    });
    Add<TCDescMetadata>(t, [](const TCDescMetadata& d) {
        return Json{{"applicationFormat", Hex(d.ApplicationFormat(), 4)}, {"metadataFormat", Hex(d.MetadataFormat(), 2)},
                    {"serviceId", d.MetadataServiceId()}, {"recognised", d.Recognised()}, {"rootDir", d.RootDir()}};
    });
    Add<TCDescMetadataPointer>(t, [](const TCDescMetadataPointer& d) {
        return Json{{"applicationFormat", Hex(d.ApplicationFormat(), 4)}, {"metadataFormat", Hex(d.MetadataFormat(), 2)},
                    {"serviceId", d.MetadataServiceId()}, {"carriage", d.MPEGCarriageFlags()},
                    {"recognised", d.Recognised()}};
    });
    Add<TCDescTTMLSubtitling>(t, [](const TCDescTTMLSubtitling& d) {
        const TSTTMLInfo info = d.GetTTMLInfo();
        Json profiles = Json::array();
        for (ESBTTtmlProfile p : info.profiles)
            profiles.push_back(static_cast<int>(p));
        return Json{{"language", CodeText(static_cast<unsigned>(info.language))},
                    {"subtitlePurpose", info.subtitlePurpose},
                    {"ttsSuitability", info.ttsSuitability},
                    {"profiles", profiles},
                    {"serviceName", info.serviceName}};
    });
    return t;
}

} // namespace

std::string StreamSummary(int streamType, const IDescriptorContainer& loop)
{
    const std::string video = VideoSummary(streamType, loop);
    if (!video.empty())
        return video;
    if (const TCDescTTMLSubtitling* ttml = First<TCDescTTMLSubtitling>(loop, 0x7F20))
        return Joined({"TTML subtitles", CodeText(static_cast<unsigned>(ttml->Language()))});
    return AudioSummary(streamType, loop);
}

Json DescribeAvDescriptor(const TCBaseDesc& desc)
{
    static const std::unordered_map<std::type_index, AvDescriber> table = MakeAvTable();
    const auto found = table.find(std::type_index(typeid(desc)));
    return found == table.end() ? Json(nullptr) : found->second(desc);
}

} // namespace zuminspect
