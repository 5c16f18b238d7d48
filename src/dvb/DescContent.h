#ifndef ZUM_DVB_DESCCONTENT_H
#define ZUM_DVB_DESCCONTENT_H

#include "../core/BaseDesc.h"

// content_descriptor (0x54): genre nibbles per entry. The loop stores the
// private data specifier under which a UK receiver reads the user nibbles.
class ZUM_EXPORT TCDescContent : public TCBaseDesc {
public:
    TCDescContent();
    ~TCDescContent() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char Count() const { return m_count; }
    // 0 for an index outside the entries.
    unsigned char ContentNibbleLevel1(int index) const;
    unsigned char ContentNibbleLevel2(int index) const;
    unsigned char UserNibble1(int index) const;
    unsigned char UserNibble2(int index) const;

    void SetPDSD(unsigned int pds) { m_pds = pds; }
    unsigned int PDSD() const { return m_pds; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_Nibble(int index, int which) const;

    // Two-byte entries of four nibbles (level 1, level 2, user 1, user 2),
    // read from the raw copy.
    unsigned char m_count = 0;
    unsigned int m_pds = 0;
};

// parental_rating_descriptor (0x55): a rating per country.
class ZUM_EXPORT TCDescParentalRating : public TCBaseDesc {
public:
    TCDescParentalRating();
    ~TCDescParentalRating() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char Count() const { return m_count; }
    // 0 for an index outside the entries. Codes keep the case they were sent in.
    unsigned int CountryCode(int index) const;
    unsigned char Rating(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // Four-byte entries of country code and rating, read from the raw copy.
    unsigned char m_count = 0;
};

#endif
