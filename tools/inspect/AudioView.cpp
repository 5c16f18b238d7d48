#include "inspect/AudioView.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "av/DescAC4.h"
#include "av/DescAPD.h"
#include "inspect/Names.h"

namespace zuminspect {

namespace {

// The language of a presentation: its letters, "-" when no tag gave one, "?" for a tag without a code.
std::string PresentationLanguage(ELanguageCode code)
{
    if (code == TCAC4Presentation::kNoLanguage)
        return "-";
    if (code == 0xFFFFFFFF)
        return "?";
    return CodeText(code);
}

std::string HexOf(const std::vector<unsigned char>& bytes)
{
    return HexBytes(bytes.data(), bytes.size());
}

// Walks the toc on a clone, by the DSI version of its first three bits.
void ReadPresentations(const TCDescAC4& d, const std::vector<unsigned char>& toc, Json& out)
{
    if (toc.empty()) {
        out["dsiVersion"] = nullptr;
        return;
    }
    const int version = toc[0] >> 5;
    out["dsiVersion"] = version;
    std::unique_ptr<TCBaseDesc> clone(d.Fork());
    auto* walker = static_cast<TCDescAC4*>(clone.get());
    std::vector<unsigned char> bits(toc);
    try {
        if (version == 0)
            walker->m_ac4_dsi(static_cast<int>(bits.size()), bits.data());
        else if (version == 1)
            walker->m_ac4_dsi_v1(static_cast<int>(bits.size()), bits.data());
    } catch (const std::out_of_range& e) {
        out["dsiError"] = e.what();
    }
    Json list = Json::array();
    for (int i = 0; i < walker->NumOfPresentations(); ++i) {
        const TCAC4Presentation* p = walker->Presentation(i);
        list.push_back({{"id", p->PresentationId()},
                        {"language", PresentationLanguage(p->Language())},
                        {"main", p->Main() != 0}});
    }
    out["presentations"] = list;
}

std::string AC4Summary(const Json& fields)
{
    const Json& list = fields["presentations"];
    std::string line = "AC-4, " + std::to_string(list.size()) + " presentation" + (list.size() == 1 ? "" : "s");
    std::string separator = ": ";
    for (const Json& p : list) {
        line += separator + p["language"].get<std::string>() + (p["main"].get<bool>() ? " (main)" : "");
        separator = ", ";
    }
    std::string sound;
    if (fields["channelModeName"].is_string())
        sound = fields["channelModeName"].get<std::string>();
    if (fields["dialogEnhancement"].get<bool>())
        sound += sound.empty() ? "DE" : " + DE";
    return sound.empty() ? line : line + "; " + sound;
}

std::vector<unsigned char> Copied(bool (TCDescAC4::*copy)(unsigned char*, int*) const, const TCDescAC4& d, int size)
{
    std::vector<unsigned char> bytes(static_cast<size_t>(size));
    int length = size;
    if (size <= 0 || !(d.*copy)(bytes.data(), &length))
        return {};
    bytes.resize(static_cast<size_t>(length));
    return bytes;
}

} // namespace

Json DescribeAC4(const TCDescAC4& d, const TextDecoder&)
{
    const std::vector<unsigned char> toc = Copied(&TCDescAC4::GetToc, d, d.TocSize());
    const std::vector<unsigned char> info = Copied(&TCDescAC4::GetAdditionalInfo, d, d.AdditionalInfoLength());
    // The summary leads: the tree shows it first on the descriptor's line.
    Json out = {{"summary", ""},
                {"configFlag", d.ConfigFlag() != 0},
                {"tocFlag", d.TocFlag() != 0},
                {"dialogEnhancement", d.DialogEnhancementEnabled() != 0},
                {"channelMode", d.ConfigFlag() ? Json(d.ChannelMode()) : Json(nullptr)},
                {"channelModeName", d.ConfigFlag() ? Json(AC4ChannelModeName(d.ChannelMode())) : Json(nullptr)},
                {"tocLength", d.TocLength()},
                {"toc", HexOf(toc)},
                {"additionalInfo", HexOf(info)}};
    ReadPresentations(d, toc, out);
    out["summary"] = AC4Summary(out);
    return out;
}

Json DescribeAPD(const TCDescAPD& d, const TextDecoder&)
{
    std::vector<CAudioPreselection> records(d.NumOfPreselections());
    Json list = Json::array();
    std::string line = "audio preselection, " + std::to_string(records.size()) + " preselection" +
                       (records.size() == 1 ? "" : "s");
    std::string separator = ": ";
    if (d.GetPreselections(records.data(), d.NumOfPreselections())) {
        for (const CAudioPreselection& p : records) {
            const bool aux = p.multiStreamInfoPresent != 0;
            list.push_back(
                {{"id", p.preselectionId},
                 {"renderingIndication", p.audioRenderingIndication},
                 {"renderingIndicationName", AudioRenderingIndicationName(p.audioRenderingIndication)},
                 {"audioDescription", p.audioDescription != 0},
                 {"spokenSubtitles", p.spokenSubtitles != 0},
                 {"dialogueEnhancement", p.dialogueEnhancement != 0},
                 {"interactivityEnabled", p.interactivityEnabled != 0},
                 {"language", p.languageCodePresent ? Json(CodeText(p.language)) : Json(nullptr)},
                 {"messageId", p.textLabelPresent ? Json(p.messageId) : Json(nullptr)},
                 {"auxComponents",
                  aux ? Json(HexBytes(p.AuxComponents(), static_cast<size_t>(p.AuxComponentsLength()))) : Json(nullptr)},
                 {"futureExtension",
                  p.futureExtension ? Json(HexBytes(p.FutureExtensionBytes(),
                                                    static_cast<size_t>(p.FutureExtensionBytesLength())))
                                    : Json(nullptr)}});
            line += separator + std::to_string(p.preselectionId) +
                    (p.languageCodePresent ? " " + CodeText(p.language) : std::string()) +
                    (p.audioDescription ? " AD" : "") + (p.dialogueEnhancement ? " + DE" : "");
            separator = ", ";
        }
    }
    return {{"summary", line}, {"preselections", list}};
}

} // namespace zuminspect
