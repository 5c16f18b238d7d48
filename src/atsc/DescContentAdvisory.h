#ifndef ZUM_ATSC_DESCCONTENTADVISORY_H
#define ZUM_ATSC_DESCCONTENTADVISORY_H

#include <memory>
#include <string>
#include <vector>

#include "../core/BaseDesc.h"
#include "MultipleStringStruct.h"

// content_advisory_descriptor (0x87), the one rating model of the North
// American world: per region, pairs of dimension index and value. Filled from
// the broadcast bytes, or with ParseATSC3 from the textual rating strings of
// ATSC 3.0 signalling, turned into the same numbers.
class ZUM_EXPORT TCDescContentAdvisory : public TCBaseDesc {
public:
    // Which source filled the object (m_curSvc).
    enum { UNDEFINED = -1, ATSC3 = 0, OTHERS = 1 };
    static constexpr unsigned int kMaxStrings = 10;

    class ZUM_EXPORT TCRatingRegion {
    public:
        struct TTDimension {
            unsigned char m_ratingDimensionJ = 0;
            unsigned char m_ratingValue = 0;
        };
        unsigned char m_ratingRegion = 0;
        std::vector<TTDimension> m_dimensions;
        unsigned char m_ratingDescriptionLength = 0;
        std::unique_ptr<TCMultipleStringStruct> m_pDescription;
    };

    TCDescContentAdvisory();
    ~TCDescContentAdvisory() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char RatingRegionCount() const { return m_ratingRegionCount; }
    int CurrentService() const { return m_curSvc; }
    // An index out of range answers 0 or null.
    unsigned char RatingRegion(int i) const;
    unsigned char RatingDemensions(int i) const;
    unsigned char RatingDimensionJ(int i, int j) const;
    unsigned char RatingValue(int i, int j) const;
    unsigned char RatingDescLength(int i) const;
    // Stays owned by the descriptor; null without a description.
    TCMultipleStringStruct* GetRatingDescText(int i) const;

    // Rating strings such as "1 {0 'TV-14'}{1 'D'}{2 'L'}", `count` of them.
    bool ParseATSC3(std::vector<std::string> strings, unsigned int count);
    void Dump() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    const TCRatingRegion* m_Region(int i) const;
    const TCRatingRegion::TTDimension* m_Pair(int i, int j) const;
    unsigned char m_RatingRegionStringToValue(char c) const;
    static unsigned char m_RatingValue(unsigned char region, int dimension, const std::string& token);

    int m_curSvc = UNDEFINED;
    unsigned char m_ratingRegionCount = 0;
    std::vector<TCRatingRegion> m_region;
    std::vector<std::string> m_strings;
};

#endif
