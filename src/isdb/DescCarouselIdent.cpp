#include "DescCarouselIdent.h"

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "../core/RecordAt.h"

namespace {

// A 33-bit time: the low bit of `at` and the four bytes behind it.
uint64_t Read33(const unsigned char* at)
{
    return (static_cast<uint64_t>(at[0] & 0x01) << 32) | ReadBE32(at + 1);
}

const int kFormatSpecifierSize = 16;
const int kNptReferenceSize = 18;
const int kStreamEventSize = 10;

} // namespace

// ---------------------------------------------------------------- format specifier

int TCFormatSpecifier::Parse(const unsigned char* data, int size)
{
    Clear();
    if (!data || size < kFormatSpecifierSize)
        return 0;
    m_moduleVersion = data[0];
    m_moduleId = static_cast<unsigned short>(ReadBE16(data + 1));
    m_blockSize = static_cast<unsigned short>(ReadBE16(data + 3));
    m_moduleSize = ReadBE32(data + 5);
    m_compressionMethod = data[9];
    m_originalSize = ReadBE32(data + 10);
    m_timeOut = data[14];
    m_objectKeyLength = data[15];
    if (m_objectKeyLength == 0)
        return kFormatSpecifierSize;
    // A key that is not all there is not kept, and still counted.
    if (kFormatSpecifierSize + m_objectKeyLength <= size)
        m_pObjectKey = data + kFormatSpecifierSize;
    return kFormatSpecifierSize + m_objectKeyLength;
}

// ---------------------------------------------------------------- carousel identifier

TCDescCarouselIdent::TCDescCarouselIdent() : TCBaseDesc(0x13) {}

TCDescCarouselIdent::~TCDescCarouselIdent()
{
    DeleteAll();
}

void TCDescCarouselIdent::DeleteAll()
{
    m_carouselId = 0;
    m_formatId = 0;
    m_formatSpecifier.Clear();
    m_privateData = TTRawRun();
}

TCBaseDesc* TCDescCarouselIdent::Fork() const
{
    return t_ForkAs(new TCDescCarouselIdent());
}

int TCDescCarouselIdent::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 4)
        return 0;
    m_carouselId = ReadBE32(payload);
    if (length < 5)
        return 4;
    m_formatId = payload[4];
    if (m_formatId > 1) {
        ZUM_LOGD(" TCDescCarouselIdent::t_Parse FormatID = %d", m_formatId);
        return 5;
    }
    int position = 5;
    if (m_formatId == 1 && length > 5)
        position += m_formatSpecifier.Parse(payload + 5, length - 5);
    // A key that ran past the body leaves no private data.
    const int privateLength = length - position;
    if (privateLength < 1)
        return position;
    m_privateData = t_Run(payload, payload + position, privateLength);
    return position + privateLength;
}

// ---------------------------------------------------------------- association tag

TCDescAssociationTag::TCDescAssociationTag() : TCBaseDesc(0x14) {}

TCDescAssociationTag::~TCDescAssociationTag()
{
    DeleteAll();
}

void TCDescAssociationTag::DeleteAll()
{
    m_associationTag = 0;
    m_use = 0;
    m_selectorByteLength = 0;
    m_selector = TTRawRun();
    m_privateData = TTRawRun();
}

TCBaseDesc* TCDescAssociationTag::Fork() const
{
    return t_ForkAs(new TCDescAssociationTag());
}

int TCDescAssociationTag::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length < 5)
        return length;
    DeleteAll();
    m_associationTag = static_cast<unsigned short>(ReadBE16(payload));
    m_use = static_cast<unsigned short>(ReadBE16(payload + 2));
    m_selectorByteLength = payload[4];
    if (m_selectorByteLength == 0 || m_selectorByteLength > length - 5)
        return 5;
    m_selector = t_Run(payload, payload + 5, m_selectorByteLength);
    const int position = 5 + m_selectorByteLength;
    if (length > position)
        m_privateData = t_Run(payload, payload + position, length - position);
    return length;
}

unsigned int TCDescAssociationTag::m_SelectorWord(int at) const
{
    const unsigned char* selector = t_At(m_selector);
    if (m_use != 0 || m_selectorByteLength < 8 || !selector)
        return 0;
    return ReadBE32(selector + at);
}

unsigned int TCDescAssociationTag::TransactionId() const
{
    return m_SelectorWord(0);
}

unsigned int TCDescAssociationTag::Timeout() const
{
    return m_SelectorWord(4);
}

// ---------------------------------------------------------------- deferred association tags

TCDescDeferredAssociationTags::TCDescDeferredAssociationTags() : TCBaseDesc(0x15) {}

TCDescDeferredAssociationTags::~TCDescDeferredAssociationTags()
{
    DeleteAll();
}

void TCDescDeferredAssociationTags::DeleteAll()
{
    m_associationTagsLoopLength = 0;
    m_transportStreamId = 0;
    m_programNumber = 0;
    m_originalNetworkId = 0;
    m_privateData = TTRawRun();
}

TCBaseDesc* TCDescDeferredAssociationTags::Fork() const
{
    return t_ForkAs(new TCDescDeferredAssociationTags());
}

int TCDescDeferredAssociationTags::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    const int loopLength = payload[0];
    // The loop and the three identifiers must fit.
    if (length - 6 <= loopLength)
        return 1;
    m_associationTagsLoopLength = static_cast<unsigned char>(loopLength);
    // By whole tags: the identifiers start right behind the last one.
    const int position = 1 + 2 * NumOfAssociationTag();
    m_transportStreamId = static_cast<unsigned short>(ReadBE16(payload + position));
    m_programNumber = static_cast<unsigned short>(ReadBE16(payload + position + 2));
    m_originalNetworkId = static_cast<unsigned short>(ReadBE16(payload + position + 4));
    const int end = position + 6;
    if (length - end > 0) {
        m_privateData = t_Run(payload, payload + end, length - end);
        return length;
    }
    return end;
}

unsigned short TCDescDeferredAssociationTags::AssociationTag(int index) const
{
    const unsigned char* payload = t_Payload();
    const unsigned char* at = RawRecordAt(payload ? payload + 1 : nullptr, NumOfAssociationTag(), 2, index);
    return at ? static_cast<unsigned short>(ReadBE16(at)) : 0;
}

// ---------------------------------------------------------------- NPT reference

TCDescNPTReference::TCDescNPTReference() : TCBaseDesc(0x18) {}

TCDescNPTReference::~TCDescNPTReference()
{
    DeleteAll();
}

void TCDescNPTReference::DeleteAll()
{
    m_postDiscontinuityIndicator = false;
    m_dsmContentId = 0;
    m_stcReference = 0;
    m_nptReference = 0;
    m_scaleNumerator = 0;
    m_scaleDenominator = 0;
}

TCBaseDesc* TCDescNPTReference::Fork() const
{
    return t_ForkAs(new TCDescNPTReference());
}

int TCDescNPTReference::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    // A body shorter than the fixed part is not read.
    if (length < kNptReferenceSize)
        return 0;
    m_postDiscontinuityIndicator = (payload[0] & 0x80) != 0;
    m_dsmContentId = payload[0] & 0x7F;
    m_stcReference = Read33(payload + 1);
    m_nptReference = Read33(payload + 9);
    m_scaleNumerator = static_cast<unsigned short>(ReadBE16(payload + 14));
    m_scaleDenominator = static_cast<unsigned short>(ReadBE16(payload + 16));
    return m_length;
}

// ---------------------------------------------------------------- stream event

TCDescStreamEvent::TCDescStreamEvent() : TCBaseDesc(0x21) {}

TCDescStreamEvent::~TCDescStreamEvent()
{
    DeleteAll();
}

void TCDescStreamEvent::DeleteAll()
{
    m_eventId = 0;
    m_eventNPT = 0;
    m_privateData = TTRawRun();
}

TCBaseDesc* TCDescStreamEvent::Fork() const
{
    return t_ForkAs(new TCDescStreamEvent());
}

int TCDescStreamEvent::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    // A body shorter than the fixed part is not read.
    if (length < kStreamEventSize)
        return 0;
    m_eventId = static_cast<unsigned short>(ReadBE16(payload));
    m_eventNPT = Read33(payload + 5);
    const int privateLength = length - kStreamEventSize;
    if (privateLength < 1)
        return length;
    m_privateData = t_Run(payload, payload + kStreamEventSize, privateLength);
    return kStreamEventSize + privateLength;
}
