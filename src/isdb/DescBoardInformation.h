#ifndef ZUM_ISDB_DESCBOARDINFORMATION_H
#define ZUM_ISDB_DESCBOARDINFORMATION_H

#include "../core/BaseDesc.h"

// board_information_descriptor of ARIB (0xDB): the title and text of a
// bulletin board item, handed out converted to 16-bit characters.
class ZUM_EXPORT TCDescBoardInformation : public TCBaseDesc {
public:
    TCDescBoardInformation();
    ~TCDescBoardInformation() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // `size` is the capacity of `buffer` in bytes and comes back as the
    // converter's output size. True whenever there was something to convert.
    bool Title(int& size, char* buffer) const;
    bool Text(int& size, char* buffer) const;
    // The low 8 bits of the converted size in a scratch output of 40 (title)
    // or 400 (text) bytes.
    int TitleLength() const;
    int TextLength() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // The lengths as the stream gives them; a title or text that did not fit has no bytes.
    unsigned char m_titleLength = 0;
    unsigned char m_textLength = 0;
    TTRawRun m_title;
    TTRawRun m_text;
};

#endif
