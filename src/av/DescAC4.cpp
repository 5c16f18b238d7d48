#include "DescAC4.h"

#include <stdexcept>

#include "../core/ByteReader.h"
#include "../core/DescriptorDataTranslator.h"
#include "../core/RecordAt.h"
#include "../dvb/DescText.h"
#include "../lang/DescLangBCP47.h"

namespace {

const unsigned int kAC4ExtensionTag = 0x15;
const int kBitrateDsiBits = 66;
const int kMinLanguageTagBytes = 2;
const int kMaxLanguageTagBytes = 42;

std::string Where(int length, int position, int count)
{
    return "dataByteLen=" + std::to_string(length) + ", bitIndex=" + std::to_string(position) +
           ", bitCount=" + std::to_string(count);
}

void Skip(int& position, int bits)
{
    position += bits;
}

} // namespace

// ---------------------------------------------------------------- presentation

void TCAC4Presentation::SetPresentationId(unsigned char id)
{
    m_presentationId = id;
    m_hasId = true;
}

void TCAC4Presentation::SetLanguageTag(std::string tag)
{
    if (tag.size() <= 1)
        return;
    TCDescLangBCP47 bcp47;
    bcp47.Parse(reinterpret_cast<const unsigned char*>(tag.data()), static_cast<unsigned char>(tag.size()));
    m_language = bcp47.GetELanguageCodeISO639();
}

// ---------------------------------------------------------------- descriptor

TCDescAC4::TCDescAC4() = default;

TCDescAC4::~TCDescAC4()
{
    DeleteAll();
}

void TCDescAC4::DeleteAll()
{
    m_configFlag = 0;
    m_tocFlag = 0;
    m_dialogEnhancementEnabled = 0;
    m_channelMode = 0;
    m_tocLength = 0;
    m_toc = TTRawRun();
    m_additionalInfo = TTRawRun();
    m_presentations.clear();
    m_presentations.shrink_to_fit();
}

TCBaseDesc* TCDescAC4::Fork() const
{
    return t_ForkAs(new TCDescAC4());
}

int TCDescAC4::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (payload[0] != kAC4ExtensionTag)
        return 0;
    if (length < 2)
        return length;
    m_configFlag = static_cast<unsigned char>(payload[1] >> 7);
    m_tocFlag = static_cast<unsigned char>((payload[1] >> 6) & 1);
    int position = 2;
    if (m_configFlag) {
        if (length < 3)
            return 2;
        m_dialogEnhancementEnabled = static_cast<unsigned char>(payload[2] >> 7);
        m_channelMode = static_cast<unsigned char>((payload[2] >> 5) & 0x03);
        if (m_tocFlag && length == 3)
            return 3;
        position = 3;
    } else if (m_tocFlag && length < 3) {
        return 2;
    }
    TCByteReader reader(payload + position, length - position);
    if (m_tocFlag) {
        m_tocLength = static_cast<unsigned char>(reader.U8());
        // A toc length past the body takes what the body holds.
        m_toc = zum_text::TakeRun<TTRawRun>(reader, payload, m_tocLength);
    }
    if (reader.Left() > 0) {
        m_additionalInfo = zum_text::TakeRun<TTRawRun>(reader, payload, reader.Left());
        return length;
    }
    return position + reader.Consumed();
}

bool TCDescAC4::GetToc(unsigned char* buffer, int* size) const
{
    return zum_text::Copy(t_At(m_toc), m_toc.length, buffer, size);
}

bool TCDescAC4::GetAdditionalInfo(unsigned char* buffer, int* size) const
{
    return zum_text::Copy(t_At(m_additionalInfo), m_additionalInfo.length, buffer, size);
}

const TCAC4Presentation* TCDescAC4::Presentation(int index) const
{
    return RecordAt(m_presentations, index);
}

// ---------------------------------------------------------------- bit reading

unsigned int TCDescAC4::read_bits(int length, unsigned char* data, int& position, int count)
{
    if (position < 0)
        throw std::out_of_range("Out of range Bits -index " + Where(length, position, count));
    const long long end = static_cast<long long>(position) + count;
    if (end == 0)
        throw std::out_of_range("Bits nothing to read" + Where(length, position, count));
    if (end > length * 8LL)
        throw std::out_of_range("Out of range Bits index+bitCount to high" + Where(length, position, count));
    uint64_t value = 0;
    TCDescriptorDataTranslator::ReadBitsAt(data, length, position, count, value);
    position += count;
    return static_cast<unsigned int>(value);
}

void TCDescAC4::align_bit_pos_to_byte(int& position)
{
    if (position % 8 != 0)
        position += 8 - position % 8;
}

void TCDescAC4::m_ac4_bitrate_dsi(int& position)
{
    Skip(position, kBitrateDsiBits);
}

// ---------------------------------------------------------------- DSI version 0

void TCDescAC4::m_ac4_dsi(int length, unsigned char* data)
{
    // Behind ac4_dsi_version, bitstream_version, fs_index and frame_rate_index.
    int position = 15;
    const unsigned int presentations = read_bits(length, data, position, 9);
    for (unsigned int i = 0; i < presentations; ++i) {
        TCAC4Presentation presentation;
        const unsigned int singleSubstream = read_bits(length, data, position, 1);
        const unsigned int config = read_bits(length, data, position, 5);
        bool emdf = false;
        if (singleSubstream == 0 && config == 6) {
            Skip(position, 5);
            emdf = true;
        } else {
            Skip(position, 8);
            m_ReadPresentationId(length, data, presentation, position);
            Skip(position, 17);
            if (singleSubstream == 1) {
                m_ac4_substream_dsi(length, data, presentation, position);
            } else {
                Skip(position, 1);
                m_WalksByConfig(config, &TCDescAC4::m_ac4_substream_dsi, length, data, presentation, position);
                Skip(position, 1);
                emdf = read_bits(length, data, position, 1) != 0;
            }
        }
        if (emdf)
            m_SkipCounted(length, data, position, 7, 15);
        if (presentation.HasId())
            m_presentations.push_back(presentation);
        align_bit_pos_to_byte(position);
    }
}

int TCDescAC4::m_ac4_presentation_v0_dsi(int length, unsigned char* data, TCAC4Presentation& presentation,
                                         int& position)
{
    const int start = position;
    const unsigned int config = read_bits(length, data, position, 5);
    bool emdf = true;
    if (config != 6) {
        Skip(position, 3);
        m_ReadPresentationId(length, data, presentation, position);
        if (config == 31) {
            Skip(position, 41);
            m_ac4_substream_dsi(length, data, presentation, position);
        } else {
            Skip(position, 42);
            m_WalksByConfig(config, &TCDescAC4::m_ac4_substream_dsi, length, data, presentation, position);
        }
        Skip(position, 1);
        emdf = read_bits(length, data, position, 1) != 0;
    }
    if (emdf)
        m_SkipCounted(length, data, position, 7, 15);
    align_bit_pos_to_byte(position);
    return (position - start) / 8;
}

void TCDescAC4::m_ac4_substream_dsi(int length, unsigned char* data, TCAC4Presentation& presentation,
                                    int& position)
{
    // channel_mode, then dsi_sf_multiplier and the bit rate indicator flag.
    read_bits(length, data, position, 5);
    Skip(position, 2);
    if (read_bits(length, data, position, 1))
        Skip(position, 5);
    m_content_lang_desc(length, data, presentation, position);
}

void TCDescAC4::m_WalksByConfig(unsigned int config, TTWalk walk, int length, unsigned char* data,
                                TCAC4Presentation& presentation, int& position)
{
    int count = 0;
    if (config < 3)
        count = 2;
    else if (config <= 4)
        count = 3;
    else if (config == 5)
        // A group presentation of config 5 counts its groups; a substream one has one.
        count = walk == &TCDescAC4::m_ac4_substream_group_dsi ? static_cast<int>(read_bits(length, data, position, 3)) + 2
                                                               : 1;
    else
        m_SkipCounted(length, data, position, 7, 8);
    for (int i = 0; i < count; ++i)
        (this->*walk)(length, data, presentation, position);
}

void TCDescAC4::m_ReadPresentationId(int length, unsigned char* data, TCAC4Presentation& presentation,
                                     int& position)
{
    if (read_bits(length, data, position, 1))
        presentation.SetPresentationId(static_cast<unsigned char>(read_bits(length, data, position, 5)));
}

void TCDescAC4::m_SkipCounted(int length, unsigned char* data, int& position, int countBits, int unitBits)
{
    Skip(position, static_cast<int>(read_bits(length, data, position, countBits)) * unitBits);
}

void TCDescAC4::m_content_lang_desc(int length, unsigned char* data, TCAC4Presentation& presentation,
                                    int& position)
{
    if (!read_bits(length, data, position, 1))
        return;
    const unsigned int classifier = read_bits(length, data, position, 3);
    presentation.SetMain(classifier <= 1 ? 1 : 0);
    if (!read_bits(length, data, position, 1))
        return;
    const int tagBytes = static_cast<int>(read_bits(length, data, position, 6));
    if (tagBytes < kMinLanguageTagBytes || tagBytes > kMaxLanguageTagBytes)
        throw std::out_of_range("Invalid n_language_tag_bytes[" + std::to_string(tagBytes) + "]");
    std::string tag;
    for (int i = 0; i < tagBytes; ++i)
        tag += static_cast<char>(read_bits(length, data, position, 8));
    presentation.SetLanguageTag(tag);
}

// ---------------------------------------------------------------- DSI version 1

void TCDescAC4::m_ac4_dsi_v1(int length, unsigned char* data)
{
    // Behind ac4_dsi_version.
    int position = 3;
    const unsigned int bitstreamVersion = read_bits(length, data, position, 7);
    Skip(position, 5);
    const unsigned int presentations = read_bits(length, data, position, 9);
    if (bitstreamVersion > 1 && read_bits(length, data, position, 1)) {
        Skip(position, 16);
        if (read_bits(length, data, position, 1))
            Skip(position, 128);
    }
    m_ac4_bitrate_dsi(position);
    align_bit_pos_to_byte(position);
    for (unsigned int i = 0; i < presentations; ++i) {
        TCAC4Presentation presentation;
        const unsigned int version = read_bits(length, data, position, 8);
        int presentationBytes = static_cast<int>(read_bits(length, data, position, 8));
        if (presentationBytes == 255)
            presentationBytes += static_cast<int>(read_bits(length, data, position, 16));
        int consumed = 0;
        if (version == 0)
            consumed = m_ac4_presentation_v0_dsi(length, data, presentation, position);
        else if (version == 1)
            consumed = m_ac4_presentation_v1_dsi(length, data, presentation, position, presentationBytes);
        const int rest = presentationBytes - consumed;
        if (rest >= 0)
            Skip(position, rest * 8);
        if (presentation.HasId())
            m_presentations.push_back(presentation);
    }
}

int TCDescAC4::m_ac4_presentation_v1_dsi(int length, unsigned char* data, TCAC4Presentation& presentation,
                                         int& position, int presentationBytes)
{
    const int start = position;
    const unsigned int config = read_bits(length, data, position, 5);
    bool emdf = true;
    if (config != 6) {
        Skip(position, 3);
        m_ReadPresentationId(length, data, presentation, position);
        Skip(position, 19);
        if (read_bits(length, data, position, 1)) {
            const unsigned int v = read_bits(length, data, position, 5);
            Skip(position, 24);
            if (v >= 11 && v <= 14)
                Skip(position, 3);
        }
        if (read_bits(length, data, position, 1) && read_bits(length, data, position, 1))
            Skip(position, 2);
        if (read_bits(length, data, position, 1)) {
            Skip(position, 1);
            m_SkipCounted(length, data, position, 8, 8);
        }
        if (config == 31) {
            m_ac4_substream_group_dsi(length, data, presentation, position);
        } else {
            Skip(position, 1);
            m_WalksByConfig(config, &TCDescAC4::m_ac4_substream_group_dsi, length, data, presentation, position);
        }
        Skip(position, 1);
        emdf = read_bits(length, data, position, 1) != 0;
    }
    if (emdf)
        m_SkipCounted(length, data, position, 7, 15);
    if (read_bits(length, data, position, 1))
        m_ac4_bitrate_dsi(position);
    if (read_bits(length, data, position, 1)) {
        align_bit_pos_to_byte(position);
        m_ac4_alternative_info(length, data, position);
    }
    align_bit_pos_to_byte(position);
    if (position - start > presentationBytes * 8 - 8)
        return (position - start) / 8;
    Skip(position, 6);
    Skip(position, read_bits(length, data, position, 1) ? 9 : 1);
    return (position - start) / 8;
}

void TCDescAC4::m_ac4_substream_group_dsi(int length, unsigned char* data, TCAC4Presentation& presentation,
                                          int& position)
{
    Skip(position, 2);
    const bool channelCoded = read_bits(length, data, position, 1) != 0;
    const unsigned int substreams = read_bits(length, data, position, 8);
    for (unsigned int i = 0; i < substreams; ++i) {
        Skip(position, 2);
        if (read_bits(length, data, position, 1))
            Skip(position, 5);
        if (channelCoded) {
            Skip(position, 24);
        } else {
            if (read_bits(length, data, position, 1))
                Skip(position, read_bits(length, data, position, 1) ? 6 : 10);
            Skip(position, 4);
        }
    }
    m_content_lang_desc(length, data, presentation, position);
}

void TCDescAC4::m_ac4_alternative_info(int length, unsigned char* data, int& position)
{
    const int nameLength = static_cast<int>(read_bits(length, data, position, 16));
    if (position / 8 + nameLength > length)
        throw std::out_of_range("m_ac4_alternative_info invalid value: name_len[" + std::to_string(length) + "]");
    Skip(position, nameLength * 8);
    const int targets = static_cast<int>(read_bits(length, data, position, 5));
    Skip(position, targets * 11);
}
