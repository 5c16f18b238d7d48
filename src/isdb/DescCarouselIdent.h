#ifndef ZUM_ISDB_DESCCAROUSELIDENT_H
#define ZUM_ISDB_DESCCAROUSELIDENT_H

#include <cstdint>

#include "../core/BaseDesc.h"

// Descriptors of program tables that locate an object carousel and time its
// stream events (DSM-CC with its DVB and ARIB profiles).

// The format specifier of a carousel identifier of FormatId 1: where the
// carousel's first module is and how it is compressed.
class ZUM_EXPORT TCFormatSpecifier {
public:
    virtual ~TCFormatSpecifier() = default;

    unsigned char ModuleVersion() const { return m_moduleVersion; }
    unsigned short ModuleId() const { return m_moduleId; }
    unsigned short BlockSize() const { return m_blockSize; }
    unsigned int ModuleSize() const { return m_moduleSize; }
    unsigned char CompressionMethod() const { return m_compressionMethod; }
    unsigned int OriginalSize() const { return m_originalSize; }
    unsigned char TimeOut() const { return m_timeOut; }
    unsigned char ObjectKeyLength() const { return m_objectKeyLength; }
    // Where Parse found the key; null when it was not all there.
    const unsigned char* ObjectKey() const { return m_pObjectKey; }

    // The bytes it takes: 0 below 16 bytes, else 16 plus the key's length,
    // also when the key is not all there.
    int Parse(const unsigned char* data, int size);
    void Clear() { *this = TCFormatSpecifier(); }

private:
    unsigned char m_moduleVersion = 0;
    unsigned short m_moduleId = 0;
    unsigned short m_blockSize = 0;
    unsigned int m_moduleSize = 0;
    unsigned char m_compressionMethod = 0;
    unsigned int m_originalSize = 0;
    unsigned char m_timeOut = 0;
    unsigned char m_objectKeyLength = 0;
    const unsigned char* m_pObjectKey = nullptr;
};

// carousel_identifier_descriptor (0x13).
class ZUM_EXPORT TCDescCarouselIdent : public TCBaseDesc {
public:
    TCDescCarouselIdent();
    ~TCDescCarouselIdent() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int CarouselId() const { return m_carouselId; }
    unsigned char FormatId() const { return m_formatId; }
    // Read for FormatId 1 only.
    const TCFormatSpecifier& FormatSpecifier() const { return m_formatSpecifier; }
    int PrivateDataLength() const { return m_privateData.length; }
    const unsigned char* PrivateData() const { return t_At(m_privateData); }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_carouselId = 0;
    unsigned char m_formatId = 0;
    TCFormatSpecifier m_formatSpecifier;
    TTRawRun m_privateData;
};

// association_tag_descriptor (0x14).
class ZUM_EXPORT TCDescAssociationTag : public TCBaseDesc {
public:
    TCDescAssociationTag();
    ~TCDescAssociationTag() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short AssociationTag() const { return m_associationTag; }
    unsigned short Use() const { return m_use; }
    // As read, also when the selector was not stored.
    unsigned char SelectorByteLength() const { return m_selectorByteLength; }
    const unsigned char* Selector() const { return t_At(m_selector); }
    int PrivateDataLength() const { return m_privateData.length; }
    const unsigned char* PrivateData() const { return t_At(m_privateData); }
    // The selector of use 0 (a DSI): its first and next four bytes; 0 for
    // any other use or a selector of fewer than 8 bytes.
    unsigned int TransactionId() const;
    unsigned int Timeout() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // The selector bytes at `at` of use 0; 0 otherwise.
    unsigned int m_SelectorWord(int at) const;

    unsigned short m_associationTag = 0;
    unsigned short m_use = 0;
    unsigned char m_selectorByteLength = 0;
    TTRawRun m_selector;
    TTRawRun m_privateData;
};

// deferred_association_tags_descriptor (0x15).
class ZUM_EXPORT TCDescDeferredAssociationTags : public TCBaseDesc {
public:
    TCDescDeferredAssociationTags();
    ~TCDescDeferredAssociationTags() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char AssociationTagsLoopLength() const { return m_associationTagsLoopLength; }
    // Whole tags: half the loop length.
    int NumOfAssociationTag() const { return m_associationTagsLoopLength / 2; }
    // 0 for an index out of range.
    unsigned short AssociationTag(int index) const;
    unsigned short TransportStreamId() const { return m_transportStreamId; }
    unsigned short ProgramNumber() const { return m_programNumber; }
    unsigned short OriginalNetworkId() const { return m_originalNetworkId; }
    int PrivateDataLength() const { return m_privateData.length; }
    const unsigned char* PrivateData() const { return t_At(m_privateData); }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_associationTagsLoopLength = 0;
    unsigned short m_transportStreamId = 0;
    unsigned short m_programNumber = 0;
    unsigned short m_originalNetworkId = 0;
    TTRawRun m_privateData;
};

// NPT_reference_descriptor, under the library's tag 0x18: the NPT of a stream
// against its STC.
class ZUM_EXPORT TCDescNPTReference : public TCBaseDesc {
public:
    TCDescNPTReference();
    ~TCDescNPTReference() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    bool PostDiscontinuityIndicator() const { return m_postDiscontinuityIndicator; }
    unsigned char DsmContentId() const { return m_dsmContentId; }
    uint64_t STCReference() const { return m_stcReference; }
    uint64_t NPTReference() const { return m_nptReference; }
    unsigned short ScaleNumerator() const { return m_scaleNumerator; }
    unsigned short ScaleDenominator() const { return m_scaleDenominator; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    bool m_postDiscontinuityIndicator = false;
    unsigned char m_dsmContentId = 0;
    uint64_t m_stcReference = 0;
    uint64_t m_nptReference = 0;
    unsigned short m_scaleNumerator = 0;
    unsigned short m_scaleDenominator = 0;
};

// stream_event_descriptor, under the library's tag 0x21: an event and the NPT
// at which it falls.
class ZUM_EXPORT TCDescStreamEvent : public TCBaseDesc {
public:
    TCDescStreamEvent();
    ~TCDescStreamEvent() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short EventId() const { return m_eventId; }
    uint64_t EventNPT() const { return m_eventNPT; }
    int PrivateDataLength() const { return m_privateData.length; }
    const unsigned char* PrivateData() const { return t_At(m_privateData); }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_eventId = 0;
    uint64_t m_eventNPT = 0;
    TTRawRun m_privateData;
};

#endif
