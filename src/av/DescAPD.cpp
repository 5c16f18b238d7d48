#include "DescAPD.h"

#include <cstring>

#include "../core/ByteReader.h"
#include "../dvb/DescText.h"

namespace {

const unsigned int kAPDExtensionTag = 0x19;

unsigned char Bit(unsigned char byte, int bit)
{
    return static_cast<unsigned char>((byte >> bit) & 1u);
}

} // namespace

// ---------------------------------------------------------------- record

CAudioPreselection::TTBlock CAudioPreselection::TTBlock::Of(const unsigned char* bytes, int length)
{
    TTBlock block;
    if (!bytes || length <= 0)
        return block;
    block.bytes.reset(new unsigned char[static_cast<size_t>(length)]);
    std::memcpy(block.bytes.get(), bytes, static_cast<size_t>(length));
    block.length = length;
    return block;
}

CAudioPreselection& CAudioPreselection::operator=(const CAudioPreselection& other)
{
    if (this == &other)
        return *this;
    preselectionId = other.preselectionId;
    audioRenderingIndication = other.audioRenderingIndication;
    audioDescription = other.audioDescription;
    spokenSubtitles = other.spokenSubtitles;
    dialogueEnhancement = other.dialogueEnhancement;
    interactivityEnabled = other.interactivityEnabled;
    languageCodePresent = other.languageCodePresent;
    textLabelPresent = other.textLabelPresent;
    multiStreamInfoPresent = other.multiStreamInfoPresent;
    futureExtension = other.futureExtension;
    language = other.language;
    messageId = other.messageId;
    numAuxComponents = other.numAuxComponents;
    futureExtensionLength = other.futureExtensionLength;
    // Blocks of its own, so that the two stay independent.
    m_aux = TTBlock::Of(other.m_aux.bytes.get(), other.m_aux.length);
    m_future = TTBlock::Of(other.m_future.bytes.get(), other.m_future.length);
    return *this;
}

// ---------------------------------------------------------------- descriptor

TCDescAPD::TCDescAPD() = default;

TCDescAPD::~TCDescAPD()
{
    DeleteAll();
}

void TCDescAPD::DeleteAll()
{
    m_numPreselections = 0;
    m_hasList = false;
    m_preselections.clear();
    m_preselections.shrink_to_fit();
}

TCBaseDesc* TCDescAPD::Fork() const
{
    return t_ForkAs(new TCDescAPD());
}

int TCDescAPD::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 2 || payload[0] != kAPDExtensionTag)
        return 0;
    m_numPreselections = static_cast<unsigned char>(payload[1] >> 3);
    m_preselections.resize(m_numPreselections);
    m_hasList = true;
    TCByteReader reader(payload + 2, length - 2);
    for (TTPreselection& p : m_preselections) {
        // A record cut at the end of the body ends the list.
        if (!reader.Has(2))
            break;
        p.flags[0] = static_cast<unsigned char>(reader.U8());
        p.flags[1] = static_cast<unsigned char>(reader.U8());
        const unsigned char flags = p.flags[1];
        if (Bit(flags, 3)) {
            if (!reader.Has(3)) {
                reader.SkipToEnd();
                continue;
            }
            p.language = reader.U24();
        }
        if (Bit(flags, 2)) {
            if (!reader.Has(1))
                continue;
            p.messageId = static_cast<unsigned char>(reader.U8());
        }
        if (Bit(flags, 1)) {
            if (!reader.Has(1))
                continue;
            p.numAuxComponents = static_cast<unsigned char>(reader.U8() >> 5);
            // Tags that do not fit are not taken; the count stays as sent.
            if (reader.Has(p.numAuxComponents))
                p.aux = zum_text::TakeRun<TTRawRun>(reader, payload, p.numAuxComponents);
        }
        if (Bit(flags, 0) && reader.Has(1)) {
            p.futureExtensionLength = static_cast<unsigned char>(reader.U8() & 0x1F);
            p.future = zum_text::TakeRun<TTRawRun>(reader, payload, p.futureExtensionLength);
        }
    }
    return 2 + reader.Consumed();
}

bool TCDescAPD::GetPreselections(CAudioPreselection* out, unsigned char count) const
{
    if (!out || count > m_numPreselections || !m_hasList)
        return false;
    for (unsigned char i = 0; i < count; ++i) {
        const TTPreselection& p = m_preselections[i];
        CAudioPreselection record;
        record.preselectionId = static_cast<unsigned char>(p.flags[0] >> 3);
        record.audioRenderingIndication = static_cast<unsigned char>(p.flags[0] & 0x07);
        record.audioDescription = Bit(p.flags[1], 7);
        record.spokenSubtitles = Bit(p.flags[1], 6);
        record.dialogueEnhancement = Bit(p.flags[1], 5);
        record.interactivityEnabled = Bit(p.flags[1], 4);
        record.languageCodePresent = Bit(p.flags[1], 3);
        record.textLabelPresent = Bit(p.flags[1], 2);
        record.multiStreamInfoPresent = Bit(p.flags[1], 1);
        record.futureExtension = Bit(p.flags[1], 0);
        record.language = p.language;
        record.messageId = p.messageId;
        record.numAuxComponents = p.numAuxComponents;
        record.futureExtensionLength = p.futureExtensionLength;
        record.SetAuxComponents(t_At(p.aux), p.aux.length);
        record.SetFutureExtensionBytes(t_At(p.future), p.future.length);
        out[i] = record;
    }
    return true;
}
