#ifndef ZUM_AV_DESCAPD_H
#define ZUM_AV_DESCAPD_H

#include <memory>
#include <vector>

#include "../core/DescExtension.h"

// One preselection of an audio preselection descriptor, as handed to a
// caller. A copy made by construction shares the byte blocks; an assignment
// makes blocks of its own.
class ZUM_EXPORT CAudioPreselection {
public:
    CAudioPreselection() = default;
    CAudioPreselection(const CAudioPreselection& other) = default;
    CAudioPreselection& operator=(const CAudioPreselection& other);

    unsigned char preselectionId = 0;
    unsigned char audioRenderingIndication = 0;
    unsigned char audioDescription = 0;
    unsigned char spokenSubtitles = 0;
    unsigned char dialogueEnhancement = 0;
    unsigned char interactivityEnabled = 0;
    unsigned char languageCodePresent = 0;
    unsigned char textLabelPresent = 0;
    unsigned char multiStreamInfoPresent = 0;
    unsigned char futureExtension = 0;
    unsigned int language = 0;
    unsigned char messageId = 0;
    unsigned char numAuxComponents = 0;
    unsigned char futureExtensionLength = 0;

    // The component tags as sent; null and 0 when they did not fit.
    const unsigned char* AuxComponents() const { return m_aux.bytes.get(); }
    int AuxComponentsLength() const { return m_aux.length; }
    const unsigned char* FutureExtensionBytes() const { return m_future.bytes.get(); }
    int FutureExtensionBytesLength() const { return m_future.length; }
    void SetAuxComponents(const unsigned char* bytes, int length) { m_aux = TTBlock::Of(bytes, length); }
    void SetFutureExtensionBytes(const unsigned char* bytes, int length) { m_future = TTBlock::Of(bytes, length); }

private:
    struct TTBlock {
        std::shared_ptr<unsigned char[]> bytes;
        int length = 0;
        static TTBlock Of(const unsigned char* bytes, int length);
    };
    TTBlock m_aux;
    TTBlock m_future;
};

// audio_preselection_descriptor (extension 0x19, tag 0x7F19).
class ZUM_EXPORT TCDescAPD : public TCDescExtension {
public:
    TCDescAPD();
    ~TCDescAPD() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char NumOfPreselections() const { return m_numPreselections; }
    // Assigns the first `count` preselections to `out`, which the caller
    // allocated. False for null `out`, no list or more than are held.
    bool GetPreselections(CAudioPreselection* out, unsigned char count) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // A preselection as decoded: the fields, and its byte blocks as runs.
    struct TTPreselection {
        unsigned char flags[2] = {0, 0};
        unsigned int language = 0;
        unsigned char messageId = 0;
        unsigned char numAuxComponents = 0;
        unsigned char futureExtensionLength = 0;
        TTRawRun aux;
        TTRawRun future;
    };

    unsigned char m_numPreselections = 0;
    // Whether a header created the list, even an empty one.
    bool m_hasList = false;
    std::vector<TTPreselection> m_preselections;
};

#endif
