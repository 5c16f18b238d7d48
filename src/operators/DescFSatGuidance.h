#ifndef ZUM_OPERATORS_DESCFSATGUIDANCE_H
#define ZUM_OPERATORS_DESCFSATGUIDANCE_H

#include "../core/BaseDesc.h"

class TCByteReader;

// How a caller reads the guidance text of Freesat's and the D-Book's guidance descriptors.
class ZUM_EXPORT IDescGuidance {
public:
    virtual ~IDescGuidance() = default;
    // Copies up to `size` bytes without a closing zero; `size` becomes what was copied.
    virtual bool GetText(unsigned char* buffer, unsigned short& size) const = 0;
    virtual unsigned int Length() const = 0;
    virtual unsigned int Type() const = 0;
    virtual unsigned int LanguageCode() const = 0;
};

// What the two guidance descriptors hold: type, language and a text run.
class ZUM_EXPORT TCDescGuidanceBase : public TCBaseDesc, public IDescGuidance {
public:
    explicit TCDescGuidanceBase(int tag) : TCBaseDesc(tag) {}
    void DeleteAll() override;
    bool GetText(unsigned char* buffer, unsigned short& size) const override;
    unsigned int Length() const override { return m_text.length; }
    unsigned int Type() const override { return m_type; }
    unsigned int LanguageCode() const override { return m_language; }

protected:
    // Language and text from the reader's place; false if no language fits.
    bool t_TakeLanguageAndText(TCByteReader& reader, const unsigned char* payload);

    TTRawRun m_text;
    unsigned int m_type = 0;
    unsigned int m_language = 0;
};

// Freesat guidance (0xDA under FSAT): only type 0 carries a language and text.
class ZUM_EXPORT TCDescFSatGuidance : public TCDescGuidanceBase {
public:
    TCDescFSatGuidance() : TCDescGuidanceBase(0xDA) {}
    ~TCDescFSatGuidance() override;
    TCBaseDesc* Fork() const override;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;
};

// D-Book guidance (0x89 under 0x233A): type 1 puts a mode byte before the language.
class ZUM_EXPORT TCDescGuidance : public TCDescGuidanceBase {
public:
    TCDescGuidance() : TCDescGuidanceBase(0x89) {}
    ~TCDescGuidance() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;
    unsigned int GuidanceMode() const { return m_guidanceMode; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_guidanceMode = 0;
};

// The one byte of the FTA content management descriptor, which Freesat repeats as 0xDC.
class ZUM_EXPORT TCDescContentManagementBase : public TCBaseDesc {
public:
    explicit TCDescContentManagementBase(int tag) : TCBaseDesc(tag) {}
    void DeleteAll() override;
    bool DoNotScramble() const { return m_doNotScramble; }
    unsigned char ControlRemoteAccessOverInternet() const { return m_controlRemoteAccess; }
    bool DoNotApplyRevocation() const { return m_doNotApplyRevocation; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

    bool m_doNotScramble = false;
    unsigned char m_controlRemoteAccess = 0;
    bool m_doNotApplyRevocation = false;
};

class ZUM_EXPORT TCDescFSatContentManagement : public TCDescContentManagementBase {
public:
    TCDescFSatContentManagement() : TCDescContentManagementBase(0xDC) {}
    ~TCDescFSatContentManagement() override;
    TCBaseDesc* Fork() const override;
};

// FTA content management (0x7E).
class ZUM_EXPORT TCDescFTAContentManagement : public TCDescContentManagementBase {
public:
    TCDescFTAContentManagement() : TCDescContentManagementBase(0x7E) {}
    ~TCDescFTAContentManagement() override;
    TCBaseDesc* Fork() const override;
};

#endif
