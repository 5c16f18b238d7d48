#ifndef ZUM_PROGRAM_RELATEDCONTENTLINK_H
#define ZUM_PROGRAM_RELATEDCONTENTLINK_H

#include <string>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/DescriptorHash.h"

class TCUniCodeText;

// One link of a related content table. Only URI links with two terms of one
// classification scheme are read; any other link stays empty. Event names
// (from the link's short event descriptors) and promotional texts are kept as
// UTF-16 with their ISO 639 language.
class ZUM_EXPORT TCRelatedContentLink : public TCDescriptorHashOwner {
public:
    // A text with its language; the link owns `text`.
    struct TSISOString {
        TSISOString(unsigned int language, std::basic_string<unsigned short>* text);
        void Convert(TCUniCodeText& text) const;
        // Replaces `text` with the UTF-16 bytes as they lie in memory, two per character.
        void Convert(std::string& text) const;

        unsigned int language = 0;
        std::basic_string<unsigned short>* text = nullptr;
    };

    explicit TCRelatedContentLink(const ZUMHandle& handle);
    ~TCRelatedContentLink() override;
    TCRelatedContentLink(const TCRelatedContentLink&) = delete;
    TCRelatedContentLink& operator=(const TCRelatedContentLink&) = delete;

    // The bytes taken: `length` for a link of another kind, less when the
    // link ends early.
    int Parse(const unsigned char* data, unsigned int length);
    // Frees the texts.
    void DeleteAll();

    bool GetInternalEventName(unsigned int index, std::string& text) const;
    bool GetInternalEventName(unsigned int index, TCUniCodeText& text) const;
    bool GetInternalPromotionalText(unsigned int index, std::string& text) const;
    bool GetInternalPromotionalText(unsigned int index, TCUniCodeText& text) const;
    bool GetInternalURI(std::string& uri) const;

    int LinkType() const { return m_linkType; }
    unsigned char SchemeId() const { return m_schemeId; }
    // 49 for term 2, 50 for term 5, 52 for none read.
    int HowRelated() const { return m_howRelated; }
    unsigned char IconId() const { return m_iconId; }
    bool DefaultIcon() const { return m_defaultIcon; }
    unsigned int NumOfEventNames() const { return static_cast<unsigned int>(m_eventNames.size()); }
    unsigned int NumOfPromotionalTexts() const { return static_cast<unsigned int>(m_promotionalTexts.size()); }

private:
    // The text converted into a new string that the link owns.
    std::basic_string<unsigned short>* m_Convert(const unsigned char* text, int length) const;
    static void m_Free(std::vector<TSISOString>& texts);
    static const TSISOString* m_At(const std::vector<TSISOString>& texts, unsigned int index);

    ZUMHandle m_handle;
    int m_linkType = -1;
    std::string m_uri;
    std::vector<TSISOString> m_eventNames;
    std::vector<TSISOString> m_promotionalTexts;
    unsigned char m_iconId = 0;
    unsigned char m_schemeId = 0xFF;
    int m_howRelated = 52;
    bool m_defaultIcon = false;
};

#endif
