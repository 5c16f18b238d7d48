#include "inspect/Names.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>


namespace zuminspect {

namespace {

struct Name {
    unsigned int code;
    const char* name;
};

// A row of the table, or null.
template <size_t N>
const char* Find(const Name (&table)[N], unsigned int code)
{
    for (const Name& n : table)
        if (n.code == code)
            return n.name;
    return nullptr;
}

template <size_t N>
std::string Lookup(const Name (&table)[N], unsigned int code, const char* otherwise = "reserved")
{
    const char* name = Find(table, code);
    return name ? name : otherwise;
}

std::string Lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

// ---- tables ----------------------------------------------------------------

const Name kMpegTables[] = {
    {0x00, "PAT"},
    {0x01, "CAT"},
    {0x02, "PMT"},
    {0x03, "TSDT"},
    {0x04, "scene description section"},
    {0x05, "object descriptor section"},
    {0x06, "metadata section"},
    {0x07, "IPMP control information"},
    {0x3A, "DSM-CC multiprotocol encapsulation"},
    {0x3B, "DSM-CC U-N messages"},
    {0x3C, "DSM-CC download data"},
    {0x3D, "DSM-CC stream descriptors"},
    {0x3E, "DSM-CC private data"},
    {0x3F, "DSM-CC addressable sections"},
    {0xFF, "forbidden"},
};

const Name kDvbTables[] = {
    {0x40, "NIT actual"}, {0x41, "NIT other"},  {0x42, "SDT actual"}, {0x46, "SDT other"},
    {0x4A, "BAT"},        {0x4B, "UNT"},        {0x4C, "INT"},        {0x4D, "SAT"},
    {0x4E, "EIT p/f actual"}, {0x4F, "EIT p/f other"},
    {0x70, "TDT"},        {0x71, "RST"},        {0x72, "ST"},         {0x73, "TOT"},
    {0x74, "AIT"},        {0x75, "container"},  {0x76, "RCT"},        {0x77, "CIT"},
    {0x78, "MPE-FEC"},    {0x79, "RNT"},        {0x7A, "MPE-IFEC"},   {0x7B, "protection message"},
    {0x7C, "DFIT"},       {0x7E, "DIT"},        {0x7F, "SIT"},
};

// ARIB STD-B10 keeps the DVB SI table ids and adds its own.
const Name kIsdbTables[] = {
    {0x82, "ECM"},  {0x83, "ECM"},  {0x84, "EMM"},  {0x85, "EMM"},  {0x86, "DCT"},  {0x87, "DLT"},
    {0x88, "DLT"},  {0xC0, "DCT"},  {0xC1, "DLT"},  {0xC2, "PCAT"}, {0xC3, "SDTT"}, {0xC4, "BIT"},
    {0xC5, "NBIT information"},     {0xC6, "NBIT reference"},       {0xC7, "LDT"},  {0xC8, "CDT"},
    {0x80, "emergency warning"},
};

// ATSC A/65 and the SCTE 65 out-of-band tables.
const Name kAtscTables[] = {
    {0xC2, "SCTE NIT"}, {0xC3, "SCTE NTT"}, {0xC4, "SCTE SVCT"}, {0xC5, "SCTE STT"},
    {0xC7, "MGT"},      {0xC8, "TVCT"},     {0xC9, "CVCT"},      {0xCA, "RRT"},
    {0xCB, "EIT"},      {0xCC, "ETT"},      {0xCD, "STT"},       {0xCE, "DET"},
    {0xCF, "DST"},      {0xD1, "NRT"},      {0xD2, "LTST"},      {0xD3, "DCCT"},
    {0xD4, "DCCSCT"},   {0xD5, "SIT"},      {0xD6, "AEIT"},      {0xD7, "AETT"},
    {0xD8, "EAS"},      {0xDA, "SVCT"},     {0xFC, "SCTE 35 splice information"},
};

// ---- streams ---------------------------------------------------------------

const Name kStreamTypes[] = {
    {0x00, "reserved"},
    {0x01, "MPEG-1 video"},
    {0x02, "MPEG-2 video"},
    {0x03, "MPEG-1 audio"},
    {0x04, "MPEG-2 audio"},
    {0x05, "private sections"},
    {0x06, "PES private data"},
    {0x07, "MHEG"},
    {0x08, "DSM-CC"},
    {0x09, "ITU-T H.222.1"},
    {0x0A, "DSM-CC multiprotocol encapsulation"},
    {0x0B, "DSM-CC U-N messages"},
    {0x0C, "DSM-CC stream descriptors"},
    {0x0D, "DSM-CC sections"},
    {0x0E, "auxiliary"},
    {0x0F, "AAC audio (ADTS)"},
    {0x10, "MPEG-4 visual"},
    {0x11, "MPEG-4 AAC audio (LATM)"},
    {0x12, "MPEG-4 SL packets in PES"},
    {0x13, "MPEG-4 SL packets in sections"},
    {0x14, "DSM-CC synchronized download"},
    {0x15, "metadata in PES"},
    {0x16, "metadata in metadata sections"},
    {0x17, "metadata in DSM-CC data carousel"},
    {0x18, "metadata in DSM-CC object carousel"},
    {0x19, "metadata in DSM-CC synchronized download"},
    {0x1A, "MPEG-2 IPMP"},
    {0x1B, "AVC video (H.264)"},
    {0x1C, "MPEG-4 audio without transport syntax"},
    {0x1D, "MPEG-4 text"},
    {0x1E, "auxiliary video"},
    {0x1F, "SVC video sub-bitstream"},
    {0x20, "MVC video sub-bitstream"},
    {0x21, "JPEG 2000 video"},
    {0x22, "MPEG-2 stereoscopic additional view"},
    {0x23, "AVC stereoscopic additional view"},
    {0x24, "HEVC video (H.265)"},
    {0x25, "HEVC temporal video subset"},
    {0x26, "MVCD video sub-bitstream"},
    {0x27, "timeline and external media information"},
    {0x28, "HEVC enhancement sub-partition"},
    {0x29, "HEVC temporal enhancement sub-partition"},
    {0x2A, "HEVC enhancement sub-partition (MV-HEVC)"},
    {0x2B, "HEVC temporal enhancement (MV-HEVC)"},
    {0x2C, "green access units"},
    {0x2D, "MPEG-H 3D audio (main)"},
    {0x2E, "MPEG-H 3D audio (auxiliary)"},
    {0x2F, "quality access units"},
    {0x30, "media orchestration access units"},
    {0x31, "HEVC tile substream"},
    {0x32, "JPEG XS video"},
    {0x33, "VVC video (H.266)"},
    {0x34, "VVC temporal video subset"},
    {0x35, "EVC video"},
    {0x7F, "IPMP"},
};

// User private stream types that ATSC assigns.
const Name kAtscStreamTypes[] = {
    {0x81, "AC-3 audio"},
    {0x86, "SCTE 35 splice information"},
    {0x87, "E-AC-3 audio"},
};

// ---- services --------------------------------------------------------------

const Name kDvbServiceTypes[] = {
    {0x01, "digital television service"},
    {0x02, "digital radio sound service"},
    {0x03, "Teletext service"},
    {0x04, "NVOD reference service"},
    {0x05, "NVOD time-shifted service"},
    {0x06, "mosaic service"},
    {0x07, "FM radio service"},
    {0x08, "DVB SRM service"},
    {0x0A, "advanced codec digital radio sound service"},
    {0x0B, "H.264/AVC mosaic service"},
    {0x0C, "data broadcast service"},
    {0x0D, "reserved for Common Interface usage"},
    {0x0E, "RCS Map"},
    {0x0F, "RCS FLS"},
    {0x10, "DVB MHP service"},
    {0x11, "MPEG-2 HD digital television service"},
    {0x16, "H.264/AVC SD digital television service"},
    {0x17, "H.264/AVC SD NVOD time-shifted service"},
    {0x18, "H.264/AVC SD NVOD reference service"},
    {0x19, "H.264/AVC HD digital television service"},
    {0x1A, "H.264/AVC HD NVOD time-shifted service"},
    {0x1B, "H.264/AVC HD NVOD reference service"},
    {0x1C, "H.264/AVC frame compatible plano-stereoscopic HD digital television service"},
    {0x1D, "H.264/AVC frame compatible plano-stereoscopic HD NVOD time-shifted service"},
    {0x1E, "H.264/AVC frame compatible plano-stereoscopic HD NVOD reference service"},
    {0x1F, "HEVC digital television service"},
    {0x20, "HEVC UHD digital television service with HDR and/or high frame rate"},
    {0x21, "VVC digital television service"},
    {0x22, "VVC UHD digital television service with HDR and/or high frame rate"},
};

const Name kIsdbServiceTypes[] = {
    {0x01, "digital TV service"},
    {0x02, "digital audio service"},
    {0xA1, "special video service"},
    {0xA2, "special audio service"},
    {0xA3, "special data service"},
    {0xA4, "engineering service"},
    {0xA5, "promotion video service"},
    {0xA6, "promotion audio service"},
    {0xA7, "promotion data service"},
    {0xA8, "data service for accumulation in advance"},
    {0xA9, "data service exclusive for accumulation"},
    {0xAA, "bookmark list data service"},
    {0xAB, "server-type simultaneous service"},
    {0xAC, "independent file service"},
    {0xAD, "ultra high definition television service"},
    {0xC0, "data service"},
};

const Name kAtscServiceTypes[] = {
    {0x01, "analog television"},
    {0x02, "ATSC digital television"},
    {0x03, "ATSC audio"},
    {0x04, "ATSC data only service"},
    {0x05, "ATSC software download service"},
    {0x06, "unassociated/small screen service"},
    {0x07, "parameterized service"},
    {0x08, "ATSC NRT service"},
    {0x09, "extended parameterized service"},
};

const Name kAtscModulations[] = {
    {0x01, "analog"}, {0x02, "SCTE mode 1 (64-QAM)"}, {0x03, "SCTE mode 2 (256-QAM)"},
    {0x04, "8-VSB"},  {0x05, "16-VSB"},
};

const Name kRunningStatus[] = {
    {0, "undefined"}, {1, "not running"}, {2, "starts in a few seconds"}, {3, "pausing"},
    {4, "running"},   {5, "service off-air"},
};

// ---- content (EN 300 468 content_nibble) ----------------------------------

const Name kDvbContent1[] = {
    {0x0, "undefined content"},
    {0x1, "Movie/Drama"},
    {0x2, "News/Current affairs"},
    {0x3, "Show/Game show"},
    {0x4, "Sports"},
    {0x5, "Children's/Youth programmes"},
    {0x6, "Music/Ballet/Dance"},
    {0x7, "Arts/Culture (without music)"},
    {0x8, "Social/Political issues/Economics"},
    {0x9, "Education/Science/Factual topics"},
    {0xA, "Leisure hobbies"},
    {0xB, "Special characteristics"},
    {0xC, "Adult"},
    {0xF, "user defined"},
};

// Level 2 keyed by level 1 in the high nibble.
const Name kDvbContent2[] = {
    {0x10, "movie/drama (general)"},
    {0x11, "detective/thriller"},
    {0x12, "adventure/western/war"},
    {0x13, "science fiction/fantasy/horror"},
    {0x14, "comedy"},
    {0x15, "soap/melodrama/folklore"},
    {0x16, "romance"},
    {0x17, "serious/classical/religious/historical movie/drama"},
    {0x18, "adult movie/drama"},
    {0x20, "news/current affairs (general)"},
    {0x21, "news/weather report"},
    {0x22, "news magazine"},
    {0x23, "documentary"},
    {0x24, "discussion/interview/debate"},
    {0x30, "show/game show (general)"},
    {0x31, "game show/quiz/contest"},
    {0x32, "variety show"},
    {0x33, "talk show"},
    {0x40, "sports (general)"},
    {0x41, "special events"},
    {0x42, "sports magazines"},
    {0x43, "football/soccer"},
    {0x44, "tennis/squash"},
    {0x45, "team sports (excluding football)"},
    {0x46, "athletics"},
    {0x47, "motor sport"},
    {0x48, "water sport"},
    {0x49, "winter sports"},
    {0x4A, "equestrian"},
    {0x4B, "martial sports"},
    {0x50, "children's/youth programmes (general)"},
    {0x51, "pre-school children's programmes"},
    {0x52, "entertainment programmes for 6 to 14"},
    {0x53, "entertainment programmes for 10 to 16"},
    {0x54, "informational/educational/school programmes"},
    {0x55, "cartoons/puppets"},
    {0x60, "music/ballet/dance (general)"},
    {0x61, "rock/pop"},
    {0x62, "serious music/classical music"},
    {0x63, "folk/traditional music"},
    {0x64, "jazz"},
    {0x65, "musical/opera"},
    {0x66, "ballet"},
    {0x70, "arts/culture (without music, general)"},
    {0x71, "performing arts"},
    {0x72, "fine arts"},
    {0x73, "religion"},
    {0x74, "popular culture/traditional arts"},
    {0x75, "literature"},
    {0x76, "film/cinema"},
    {0x77, "experimental film/video"},
    {0x78, "broadcasting/press"},
    {0x79, "new media"},
    {0x7A, "arts/culture magazines"},
    {0x7B, "fashion"},
    {0x80, "social/political issues/economics (general)"},
    {0x81, "magazines/reports/documentary"},
    {0x82, "economics/social advisory"},
    {0x83, "remarkable people"},
    {0x90, "education/science/factual topics (general)"},
    {0x91, "nature/animals/environment"},
    {0x92, "technology/natural sciences"},
    {0x93, "medicine/physiology/psychology"},
    {0x94, "foreign countries/expeditions"},
    {0x95, "social/spiritual sciences"},
    {0x96, "further education"},
    {0x97, "languages"},
    {0xA0, "leisure hobbies (general)"},
    {0xA1, "tourism/travel"},
    {0xA2, "handicraft"},
    {0xA3, "motoring"},
    {0xA4, "fitness and health"},
    {0xA5, "cooking"},
    {0xA6, "advertisement/shopping"},
    {0xA7, "gardening"},
    {0xB0, "original language"},
    {0xB1, "black and white"},
    {0xB2, "unpublished"},
    {0xB3, "live broadcast"},
    {0xB4, "plano-stereoscopic"},
    {0xB5, "local or regional"},
    {0xC0, "adult (general)"},
};

// ARIB STD-B10 genres, level 1.
const Name kIsdbContent1[] = {
    {0x0, "news/reports"},      {0x1, "sports"},                 {0x2, "information/tabloid show"},
    {0x3, "dramas"},            {0x4, "music"},                  {0x5, "variety"},
    {0x6, "movies"},            {0x7, "animation/special effects"}, {0x8, "documentary/culture"},
    {0x9, "theatre/public performance"}, {0xA, "hobby/education"}, {0xB, "welfare"},
    {0xE, "extension"},         {0xF, "others"},
};

// ---- components (EN 300 468 stream_content, component_type) ----------------

const Name kMpeg1Layer2Audio[] = {
    {0x01, "MPEG-1 Layer 2 audio, single mono channel"},
    {0x02, "MPEG-1 Layer 2 audio, dual mono channel"},
    {0x03, "MPEG-1 Layer 2 audio, stereo (2 channel)"},
    {0x04, "MPEG-1 Layer 2 audio, multi-lingual, multi-channel"},
    {0x05, "MPEG-1 Layer 2 audio, surround sound"},
    {0x40, "MPEG-1 Layer 2 audio description for the visually impaired"},
    {0x41, "MPEG-1 Layer 2 audio for the hard of hearing"},
    {0x42, "receiver-mix supplementary audio"},
    {0x47, "MPEG-1 Layer 2 audio, receiver-mix audio description"},
    {0x48, "MPEG-1 Layer 2 audio, broadcast-mix audio description"},
};

const Name kSubtitlesAndData[] = {
    {0x01, "EBU Teletext subtitles"},
    {0x02, "associated EBU Teletext"},
    {0x03, "VBI data"},
    {0x10, "DVB subtitles (normal), no monitor aspect ratio criticality"},
    {0x11, "DVB subtitles (normal) for display on 4:3 monitor"},
    {0x12, "DVB subtitles (normal) for display on 16:9 monitor"},
    {0x13, "DVB subtitles (normal) for display on 2.21:1 monitor"},
    {0x14, "DVB subtitles (normal) for display on a high definition monitor"},
    {0x15, "DVB subtitles (normal) with plano-stereoscopic disparity"},
    {0x16, "DVB subtitles (normal) for display on an ultra high definition monitor"},
    {0x20, "DVB subtitles for the hard of hearing, no monitor aspect ratio criticality"},
    {0x21, "DVB subtitles for the hard of hearing for display on 4:3 monitor"},
    {0x22, "DVB subtitles for the hard of hearing for display on 16:9 monitor"},
    {0x23, "DVB subtitles for the hard of hearing for display on 2.21:1 monitor"},
    {0x24, "DVB subtitles for the hard of hearing for display on a high definition monitor"},
    {0x25, "DVB subtitles for the hard of hearing with plano-stereoscopic disparity"},
    {0x26, "DVB subtitles for the hard of hearing for display on an ultra high definition monitor"},
    {0x30, "open (in-vision) sign language interpretation for the deaf"},
    {0x31, "closed sign language interpretation for the deaf"},
    {0x40, "video up-sampled from standard definition source material"},
    {0x41, "video is standard dynamic range"},
    {0x42, "video is HDR remapped from standard dynamic range source material"},
    {0x43, "video is HDR up-converted from standard dynamic range source material"},
    {0x44, "video is standard frame rate, less than or equal to 60 Hz"},
    {0x45, "high frame rate video generated from lower frame rate source material"},
    {0x80, "dependent SAOC-DE data stream"},
};

const Name kAvcVideo[] = {
    {0x01, "H.264/AVC standard definition video, 4:3 aspect ratio, 25 Hz"},
    {0x03, "H.264/AVC standard definition video, 16:9 aspect ratio, 25 Hz"},
    {0x04, "H.264/AVC standard definition video, > 16:9 aspect ratio, 25 Hz"},
    {0x05, "H.264/AVC standard definition video, 4:3 aspect ratio, 30 Hz"},
    {0x07, "H.264/AVC standard definition video, 16:9 aspect ratio, 30 Hz"},
    {0x08, "H.264/AVC standard definition video, > 16:9 aspect ratio, 30 Hz"},
    {0x0B, "H.264/AVC high definition video, 16:9 aspect ratio, 25 Hz"},
    {0x0C, "H.264/AVC high definition video, > 16:9 aspect ratio, 25 Hz"},
    {0x0F, "H.264/AVC high definition video, 16:9 aspect ratio, 30 Hz"},
    {0x10, "H.264/AVC high definition video, > 16:9 aspect ratio, 30 Hz"},
    {0x80, "H.264/AVC plano-stereoscopic frame compatible HD video, 16:9, 25 Hz, side-by-side"},
    {0x81, "H.264/AVC plano-stereoscopic frame compatible HD video, 16:9, 25 Hz, top-and-bottom"},
    {0x82, "H.264/AVC plano-stereoscopic frame compatible HD video, 16:9, 30 Hz, side-by-side"},
    {0x83, "H.264/AVC plano-stereoscopic frame compatible HD video, 16:9, 30 Hz, top-and-bottom"},
    {0x84, "H.264/MVC dependent view, plano-stereoscopic service compatible video"},
};

const Name kHeAacAudio[] = {
    {0x01, "HE-AAC audio, single mono channel"},
    {0x03, "HE-AAC audio, stereo"},
    {0x05, "HE-AAC audio, surround sound"},
    {0x40, "HE-AAC audio description for the visually impaired"},
    {0x41, "HE-AAC audio for the hard of hearing"},
    {0x42, "HE-AAC receiver-mix supplementary audio"},
    {0x43, "HE-AAC v2 audio, stereo"},
    {0x44, "HE-AAC v2 audio description for the visually impaired"},
    {0x45, "HE-AAC v2 audio for the hard of hearing"},
    {0x46, "HE-AAC v2 receiver-mix supplementary audio"},
    {0x47, "HE-AAC receiver-mix audio description for the visually impaired"},
    {0x48, "HE-AAC broadcast-mix audio description for the visually impaired"},
    {0x49, "HE-AAC v2 receiver-mix audio description for the visually impaired"},
    {0x4A, "HE-AAC v2 broadcast-mix audio description for the visually impaired"},
    {0xA0, "HE-AAC or HE-AAC v2 with SAOC-DE ancillary data"},
};

const Name kHevcVideo[] = {
    {0x00, "HEVC Main Profile high definition video, 50 Hz"},
    {0x01, "HEVC Main 10 Profile high definition video, 50 Hz"},
    {0x02, "HEVC Main Profile high definition video, 60 Hz"},
    {0x03, "HEVC Main 10 Profile high definition video, 60 Hz"},
    {0x04, "HEVC ultra high definition video"},
    {0x05, "HEVC ultra high definition video with PQ10 HDR, frame rate up to 60 Hz"},
    {0x06, "HEVC ultra high definition video, frame rate of 100 Hz, 120 000/1 001 Hz or 120 Hz"},
    {0x07, "HEVC ultra high definition video with PQ10 HDR, high frame rate"},
    {0x08, "HEVC ultra high definition video with HLG10 HDR, frame rate up to 60 Hz"},
    {0x09, "HEVC ultra high definition video with HLG10 HDR, high frame rate"},
};

const Name kAc4Audio[] = {
    {0x00, "AC-4 main audio, mono"},
    {0x01, "AC-4 main audio, mono, dialogue enhancement enabled"},
    {0x02, "AC-4 main audio, stereo"},
    {0x03, "AC-4 main audio, stereo, dialogue enhancement enabled"},
    {0x04, "AC-4 main audio, multichannel"},
    {0x05, "AC-4 main audio, multichannel, dialogue enhancement enabled"},
    {0x06, "AC-4 broadcast-mix audio description, mono, for the visually impaired"},
    {0x07, "AC-4 broadcast-mix audio description, mono, for the visually impaired, dialogue enhancement enabled"},
    {0x08, "AC-4 broadcast-mix audio description, stereo, for the visually impaired"},
    {0x09, "AC-4 broadcast-mix audio description, stereo, for the visually impaired, dialogue enhancement enabled"},
    {0x0A, "AC-4 broadcast-mix audio description, multichannel, for the visually impaired"},
    {0x0B, "AC-4 broadcast-mix audio description, multichannel, for the visually impaired, dialogue enhancement "
           "enabled"},
    {0x0C, "AC-4 receiver-mix audio description, mono, for the visually impaired"},
    {0x0D, "AC-4 receiver-mix audio description, stereo, for the visually impaired"},
    {0x0E, "AC-4 partial component"},
    {0x0F, "AC-4 companion component"},
};

// MPEG-2 video: four aspect ratios per frame rate and definition.
std::string Mpeg2VideoName(unsigned int type)
{
    if (type < 0x01 || type > 0x10)
        return std::string();
    static const char* const kAspect[] = {"4:3 aspect ratio", "16:9 aspect ratio with pan vectors",
                                          "16:9 aspect ratio without pan vectors", "> 16:9 aspect ratio"};
    const unsigned int index = type - 1;
    return std::string(index >= 8 ? "MPEG-2 high definition video, " : "MPEG-2 video, ") + kAspect[index % 4] +
           (index % 8 < 4 ? ", 25 Hz" : ", 30 Hz");
}

// The AC-3 component_type is a bit field (EN 300 468 annex D).
std::string Ac3AudioName(unsigned int type)
{
    static const char* const kChannels[] = {"mono",         "1+1 mode",          "2 channel (stereo)",
                                            "2 channel Dolby surround", "multichannel > 2", "multichannel > 5.1",
                                            "multiple enhanced bit streams", "reserved"};
    static const char* const kService[] = {"complete main",     "music and effects", "visually impaired",
                                           "hearing impaired",  "dialogue",          "commentary",
                                           "emergency",         "voiceover or karaoke"};
    return std::string((type & 0x80) ? "E-AC-3" : "AC-3") + " audio, " + kService[(type >> 3) & 0x07] + ", " +
           kChannels[type & 0x07] + ((type & 0x40) ? "" : ", not a full service");
}

// ---- delivery systems ------------------------------------------------------

const Name kFrontEndModulations[] = {
    {0, "16-QAM"}, {1, "64-QAM"}, {2, "128-QAM"}, {3, "256-QAM"}, {7, "QPSK"}, {15, "32-QAM"}, {16, "8PSK"},
};
const Name kFrontEndCodeRates[] = {
    {0, "1/2"},  {1, "2/3"}, {2, "3/4"},  {3, "5/6"},  {4, "7/8"}, {8, "3/5"},
    {9, "4/5"}, {10, "8/9"}, {11, "9/10"}, {12, "no convolutional coding"},
};
const Name kFrontEndBandwidths[] = {
    {0, "5 MHz"}, {1, "6 MHz"}, {2, "7 MHz"}, {3, "8 MHz"}, {4, "10 MHz"}, {5, "1.712 MHz"},
};
const Name kPolarisations[] = {
    {0, "linear horizontal"}, {1, "linear vertical"}, {2, "circular left"}, {3, "circular right"},
};
const Name kRollOffs[] = {{0, "0.35"}, {1, "0.25"}, {2, "0.20"}};
const Name kModulationSystems[] = {{0, "DVB-S"}, {1, "DVB-S2"}};
const Name kCableModulations[] = {
    {0, "not defined"}, {1, "16-QAM"}, {2, "32-QAM"}, {3, "64-QAM"}, {4, "128-QAM"}, {5, "256-QAM"},
};
const Name kOuterFec[] = {{0, "not defined"}, {1, "no outer FEC coding"}, {2, "RS(204/188)"}};
const Name kInnerFec[] = {
    {0, "not defined"}, {1, "1/2"}, {2, "2/3"}, {3, "3/4"}, {4, "5/6"}, {5, "7/8"},
    {6, "8/9"},         {7, "3/5"}, {8, "4/5"}, {9, "9/10"}, {15, "no convolutional coding"},
};
const Name kTerrestrialBandwidths[] = {{0, "8 MHz"}, {1, "7 MHz"}, {2, "6 MHz"}, {3, "5 MHz"}};
const Name kConstellations[] = {{0, "QPSK"}, {1, "16-QAM"}, {2, "64-QAM"}};
const Name kHierarchies[] = {
    {0, "non-hierarchical, native interleaver"}, {1, "alpha = 1, native interleaver"},
    {2, "alpha = 2, native interleaver"},        {3, "alpha = 4, native interleaver"},
    {4, "non-hierarchical, in-depth interleaver"}, {5, "alpha = 1, in-depth interleaver"},
    {6, "alpha = 2, in-depth interleaver"},      {7, "alpha = 4, in-depth interleaver"},
};
const Name kTerrestrialCodeRates[] = {{0, "1/2"}, {1, "2/3"}, {2, "3/4"}, {3, "5/6"}, {4, "7/8"}};
const Name kGuardIntervals[] = {{0, "1/32"}, {1, "1/16"}, {2, "1/8"}, {3, "1/4"}};
const Name kTransmissionModes[] = {{0, "2k mode"}, {1, "8k mode"}, {2, "4k mode"}};
const Name kT2GuardIntervals[] = {{0, "1/32"},  {1, "1/16"},   {2, "1/8"},   {3, "1/4"},
                                  {4, "1/128"}, {5, "19/128"}, {6, "19/256"}};
const Name kT2TransmissionModes[] = {{0, "2k mode"}, {1, "8k mode"},  {2, "4k mode"},
                                     {3, "1k mode"}, {4, "16k mode"}, {5, "32k mode"}};
const Name kSisoMiso[] = {{0, "SISO"}, {1, "MISO"}};

// ---- next-generation audio ---------------------------------------------------

const Name kAC4ChannelModes[] = {{0, "mono"}, {1, "stereo"}, {2, "multichannel"}};
const Name kAudioRenderingIndications[] = {
    {0, "no preference"}, {1, "stereo"}, {2, "two-dimensional"}, {3, "three-dimensional"}, {4, "headphones"}};

// ---- other descriptors -----------------------------------------------------

const Name kTeletextTypes[] = {
    {0x01, "initial Teletext page"},
    {0x02, "Teletext subtitle page"},
    {0x03, "additional information page"},
    {0x04, "programme schedule page"},
    {0x05, "Teletext subtitle page for hearing impaired people"},
};

const Name kAudioTypes[] = {
    {0x00, "undefined"}, {0x01, "clean effects"}, {0x02, "hearing impaired"}, {0x03, "visual impaired commentary"},
};

const Name kLinkageTypes[] = {
    {0x01, "information service"},
    {0x02, "EPG service"},
    {0x03, "CA replacement service"},
    {0x04, "TS containing complete network/bouquet SI"},
    {0x05, "service replacement service"},
    {0x06, "data broadcast service"},
    {0x07, "RCS Map"},
    {0x08, "mobile hand-over"},
    {0x09, "System Software Update service"},
    {0x0A, "TS containing SSU BAT or NIT"},
    {0x0B, "IP/MAC notification service"},
    {0x0C, "TS containing INT BAT or NIT"},
    {0x0D, "event linkage"},
    {0x20, "downloadable font info linkage"},
};

// CA_system_id ranges by their high byte.
const Name kCaSystems[] = {
    {0x01, "Canal Plus (Mediaguard)"}, {0x02, "CCETT"},
    {0x04, "Eurodec"},                 {0x05, "France Telecom (Viaccess)"},
    {0x06, "Irdeto"},                  {0x07, "General Instrument (DigiCipher)"},
    {0x08, "Matra Communication"},     {0x09, "News Datacom (NDS Videoguard)"},
    {0x0A, "Nokia"},                   {0x0B, "Norwegian Telekom (Conax)"},
    {0x0C, "NTL"},                     {0x0D, "Philips (CryptoWorks)"},
    {0x0E, "Scientific Atlanta (PowerVu)"}, {0x0F, "Sony"},
    {0x10, "Tandberg Television"},     {0x11, "Thomson"},
    {0x12, "TV/Com"},                  {0x13, "HPT - Croatian Post and Telecommunications"},
    {0x14, "HRT - Croatian Radio and Television"}, {0x15, "IBM"},
    {0x16, "Nera"},                    {0x17, "BetaTechnik (BetaCrypt)"},
    {0x18, "Kudelski (Nagravision)"},  {0x19, "Titan Information Systems"},
    {0x20, "Telefonica Servicios Audiovisuales"}, {0x21, "Stentor"},
    {0x22, "Scopus Network Technologies"}, {0x23, "BARCO AS"},
    {0x24, "StarGuide Digital Networks"}, {0x25, "Mentor Data System"},
    {0x26, "European Broadcasting Union (BISS)"}, {0x47, "General Instrument"},
    {0x48, "Telemann"},                {0x49, "Digital TV Industry Alliance of China"},
    {0x4A, "individually allocated"},  {0x56, "individually allocated"},
};

} // namespace

const char* SystemName(BroadcastSystem system)
{
    switch (system) {
    case BroadcastSystem::Atsc: return "ATSC";
    case BroadcastSystem::Isdb: return "ISDB";
    case BroadcastSystem::Dvb: break;
    }
    return "DVB";
}

std::string TableIdName(unsigned int tableId, BroadcastSystem system, unsigned int pid)
{
    if (const char* name = Find(kMpegTables, tableId))
        return name;
    if (system == BroadcastSystem::Atsc) {
        if (const char* name = Find(kAtscTables, tableId))
            return name;
    } else {
        if (system == BroadcastSystem::Isdb)
            if (const char* name = Find(kIsdbTables, tableId))
                return name;
        if (const char* name = Find(kDvbTables, tableId))
            return name;
        if (tableId >= 0x50 && tableId <= 0x5F)
            return "EIT schedule actual";
        if (tableId >= 0x60 && tableId <= 0x6F)
            return "EIT schedule other";
        // This receiver's private tables: compressed EIT on the EIT PID, channel numbers elsewhere.
        if (system == BroadcastSystem::Dvb && tableId == 0x85 && pid != 0x0012)
            return "LCN";
        if (system == BroadcastSystem::Dvb && tableId >= 0x80 && tableId <= 0x9F && (pid == 0x0012 || pid == kAnyPid))
            return "EIT compressed";
        // The selection information of recorded streams.
        if (tableId == 0xD5)
            return "SIT";
        // A Turkish operator's channel system.
        if (system == BroadcastSystem::Dvb && tableId == 0xA7)
            return "TKGS";
        // An operator's fast-scan line-up on its home transponder.
        if (system == BroadcastSystem::Dvb && (tableId == 0xBC || tableId == 0xBD))
            return tableId == 0xBC ? "FNT" : "FST";
        // Freesat's postcode tree and region keys.
        if (system == BroadcastSystem::Dvb && tableId == 0xD2)
            return "Freesat postcodes";
    }
    if (tableId >= 0x08 && tableId <= 0x3F)
        return "reserved";
    if (tableId >= 0x40 && tableId <= 0x7F)
        return "reserved";
    return "user defined";
}

bool TableMatches(const std::string& text, unsigned int tableId, BroadcastSystem system, unsigned int pid)
{
    if (text.empty())
        return false;
    char* end = nullptr;
    const unsigned long number = std::strtoul(text.c_str(), &end, 0);
    if (end != text.c_str() && *end == '\0')
        return number == tableId;
    const std::string name = Lower(TableIdName(tableId, system, pid));
    const std::string wanted = Lower(text);
    return name == wanted || name.substr(0, name.find(' ')) == wanted;
}

std::string StreamTypeName(unsigned int streamType, BroadcastSystem system)
{
    if (system == BroadcastSystem::Atsc)
        if (const char* name = Find(kAtscStreamTypes, streamType))
            return name;
    if (const char* name = Find(kStreamTypes, streamType))
        return name;
    return streamType >= 0x80 ? "user private" : "reserved";
}

std::string ServiceTypeName(unsigned int serviceType, BroadcastSystem system)
{
    if (system == BroadcastSystem::Atsc)
        return AtscServiceTypeName(serviceType);
    if (system == BroadcastSystem::Isdb)
        return Lookup(kIsdbServiceTypes, serviceType, "undefined");
    if (serviceType >= 0x80 && serviceType <= 0xFE)
        return "user defined";
    return Lookup(kDvbServiceTypes, serviceType, "reserved for future use");
}

std::string RunningStatusName(int runningStatus)
{
    if (runningStatus < 0)
        return "not given";
    return Lookup(kRunningStatus, static_cast<unsigned int>(runningStatus), "reserved for future use");
}

std::string ContentName(unsigned int level1, BroadcastSystem system)
{
    if (system == BroadcastSystem::Isdb)
        return Lookup(kIsdbContent1, level1, "reserved");
    return Lookup(kDvbContent1, level1, "reserved for future use");
}

std::string ContentName(unsigned int level1, unsigned int level2, BroadcastSystem system)
{
    // ARIB's level 2 tables are per broadcaster family: the genre is what a guide shows.
    if (system == BroadcastSystem::Isdb)
        return ContentName(level1, system);
    if (level1 == 0x0)
        return "undefined content";
    if (level1 == 0xF || level2 == 0xF)
        return "user defined";
    return Lookup(kDvbContent2, (level1 << 4) | level2, "reserved for future use");
}

std::string ComponentName(unsigned int streamContent, unsigned int streamContentExt, unsigned int componentType)
{
    const char* name = nullptr;
    std::string built;
    switch (streamContent) {
    case 0x1: built = Mpeg2VideoName(componentType); break;
    case 0x2: name = Find(kMpeg1Layer2Audio, componentType); break;
    case 0x3: name = Find(kSubtitlesAndData, componentType); break;
    case 0x4: built = componentType < 0x80 || componentType > 0xFE ? Ac3AudioName(componentType) : ""; break;
    case 0x5: name = Find(kAvcVideo, componentType); break;
    case 0x6: name = Find(kHeAacAudio, componentType); break;
    case 0x7: built = componentType <= 0x7F ? "DTS audio" : ""; break;
    case 0x8: built = componentType == 0x01 ? "DVB SRM data" : componentType >= 0x02 ? "DVB CPCM modes" : ""; break;
    case 0x9:
        if (streamContentExt == 0x0)
            name = Find(kHevcVideo, componentType);
        else if (streamContentExt == 0x1)
            name = Find(kAc4Audio, componentType);
        else if (streamContentExt == 0x2)
            built = componentType == 0x00 ? "TTML subtitles" : "";
        break;
    case 0xB:
        if (streamContentExt == 0xE)
            built = "NGA component";
        else if (streamContentExt == 0xF)
            built = "video characteristics";
        break;
    default: break;
    }
    if (name != nullptr)
        return name;
    if (!built.empty())
        return built;
    if (streamContent >= 0x1 && streamContent <= 0x7 && componentType >= 0xB0 && componentType <= 0xFE)
        return "user defined";
    if (streamContent >= 0xC && streamContent <= 0xF)
        return "user defined";
    return "reserved for future use";
}

std::string ParentalRatingName(unsigned int rating)
{
    if (rating == 0)
        return "undefined";
    if (rating <= 0x0F)
        return "minimum age " + std::to_string(rating + 3);
    return "defined by the broadcaster";
}

std::string TeletextTypeName(unsigned int type)
{
    return Lookup(kTeletextTypes, type, "reserved for future use");
}

std::string AudioTypeName(unsigned int audioType)
{
    if (const char* name = Find(kAudioTypes, audioType))
        return name;
    return audioType < 0x80 ? "user private" : "reserved";
}

std::string LinkageTypeName(unsigned int linkageType)
{
    if (linkageType >= 0x0E && linkageType <= 0x1F)
        return "extended event linkage";
    if (linkageType >= 0x80 && linkageType <= 0xFE)
        return "user defined";
    return Lookup(kLinkageTypes, linkageType, "reserved for future use");
}

std::string ControlRemoteAccessName(unsigned int code)
{
    switch (code) {
    case 0: return "redistribution over the internet enabled";
    case 1: return "redistribution over the internet enabled within a managed domain";
    case 2: return "redistribution over the internet enabled within a managed domain after a certain short period";
    case 3: return "redistribution over the internet not allowed";
    default: return "reserved";
    }
}

std::string CaSystemName(unsigned int caSystemId)
{
    if (caSystemId == 0)
        return "reserved";
    if (caSystemId <= 0x00FF)
        return "standardized system";
    return Lookup(kCaSystems, caSystemId >> 8, "unknown");
}

std::string FrontEndModulationName(int modulation)
{
    return modulation < 0 ? "auto" : Lookup(kFrontEndModulations, static_cast<unsigned int>(modulation));
}

std::string FrontEndCodeRateName(int codeRate)
{
    return codeRate < 0 ? "not defined" : Lookup(kFrontEndCodeRates, static_cast<unsigned int>(codeRate));
}

std::string FrontEndBandwidthName(int bandwidth)
{
    return bandwidth < 0 ? "reserved" : Lookup(kFrontEndBandwidths, static_cast<unsigned int>(bandwidth));
}

std::string PolarisationName(unsigned int code) { return Lookup(kPolarisations, code); }
std::string RollOffName(unsigned int code) { return Lookup(kRollOffs, code); }
std::string SatelliteModulationSystemName(unsigned int code) { return Lookup(kModulationSystems, code); }
std::string CableModulationName(unsigned int code) { return Lookup(kCableModulations, code, "reserved for future use"); }
std::string OuterFecName(unsigned int code) { return Lookup(kOuterFec, code, "reserved for future use"); }
std::string InnerFecName(unsigned int code) { return Lookup(kInnerFec, code, "reserved for future use"); }
std::string TerrestrialBandwidthName(unsigned int code) { return Lookup(kTerrestrialBandwidths, code, "reserved for future use"); }
std::string ConstellationName(unsigned int code) { return Lookup(kConstellations, code, "reserved for future use"); }
std::string HierarchyName(unsigned int code) { return Lookup(kHierarchies, code); }
std::string TerrestrialCodeRateName(unsigned int code) { return Lookup(kTerrestrialCodeRates, code, "reserved for future use"); }
std::string GuardIntervalName(unsigned int code) { return Lookup(kGuardIntervals, code); }
std::string TransmissionModeName(unsigned int code) { return Lookup(kTransmissionModes, code, "reserved for future use"); }
std::string T2GuardIntervalName(unsigned int code) { return Lookup(kT2GuardIntervals, code, "reserved for future use"); }
std::string T2TransmissionModeName(unsigned int code) { return Lookup(kT2TransmissionModes, code, "reserved for future use"); }
std::string SisoMisoName(unsigned int code) { return Lookup(kSisoMiso, code, "reserved for future use"); }

std::string AC4ChannelModeName(unsigned int code) { return Lookup(kAC4ChannelModes, code); }

std::string AudioRenderingIndicationName(unsigned int code)
{
    return Lookup(kAudioRenderingIndications, code, "reserved for future use");
}

std::string AtscModulationName(unsigned int modulationMode)
{
    if (modulationMode >= 0x80)
        return "user private";
    return Lookup(kAtscModulations, modulationMode);
}

std::string AtscServiceTypeName(unsigned int serviceType)
{
    return Lookup(kAtscServiceTypes, serviceType);
}

} // namespace zuminspect
