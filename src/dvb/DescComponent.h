#ifndef ZUM_DVB_DESCCOMPONENT_H
#define ZUM_DVB_DESCCOMPONENT_H

#include "../core/BaseDesc.h"

// component_descriptor (0x50): what a stream of the event carries, with the
// receiver's classification of it. `system` is 0 for DVB, 1 for ISDB, whose
// HD video types add to the DVB ones.
class ZUM_EXPORT TCDescComponent : public TCBaseDesc {
public:
    explicit TCDescComponent(int system);
    ~TCDescComponent() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int System() const { return m_system; }
    unsigned char StreamContentExt() const { return m_streamContentExt; }
    unsigned char StreamContent() const { return m_streamContent; }
    unsigned char ComponentType() const { return m_componentType; }
    unsigned char ComponentTag() const { return m_componentTag; }
    unsigned int Language() const { return m_language; }
    int TextLength() const { return m_text.length; }
    // Text copy.
    bool TextChar(char* buffer, int* size) const;

    bool IsHD() const;
    bool IsUHD() const;
    bool IsSubtitle() const;
    bool IsSignLanguage() const;
    bool IsAD() const;
    bool IsDE() const;
    bool IsSpS() const;
    bool IsTTML() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    bool m_Is(unsigned char content, int ext) const;
    bool m_IsNGAFlag(unsigned char flag) const;

    int m_system;
    unsigned char m_streamContentExt = 0;
    unsigned char m_streamContent = 0;
    unsigned char m_componentType = 0;
    unsigned char m_componentTag = 0;
    unsigned int m_language = 0;
    TTRawRun m_text;
};

// stream_identifier_descriptor (0x52): the component tag of a stream.
class ZUM_EXPORT TCDescStreamIdentifier : public TCBaseDesc {
public:
    TCDescStreamIdentifier();
    ~TCDescStreamIdentifier() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char ComponentTag() const { return m_componentTag; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_componentTag = 0;
};

#endif
