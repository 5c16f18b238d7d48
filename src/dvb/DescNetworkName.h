#ifndef ZUM_DVB_DESCNETWORKNAME_H
#define ZUM_DVB_DESCNETWORKNAME_H

#include "../core/BaseDesc.h"

// network_name_descriptor (0x40): the whole body is the name, raw.
class ZUM_EXPORT TCDescNetworkName : public TCBaseDesc {
public:
    TCDescNetworkName();
    ~TCDescNetworkName() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char NetworkNameLength() const { return m_networkName.length; }
    // Text copy.
    bool NetworkNameText(unsigned char* buffer, unsigned short* size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    TTRawRun m_networkName;
};

// bouquet_name_descriptor (0x47): the whole body is the name, raw.
class ZUM_EXPORT TCDescBouquetName : public TCBaseDesc {
public:
    TCDescBouquetName();
    ~TCDescBouquetName() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char BouquetNameLength() const { return m_bouquetNameLength; }
    // Text copy.
    bool BouquetNameText(unsigned char* buffer, unsigned short* size) const;

protected:
    explicit TCDescBouquetName(int tag);
    int t_Parse(const unsigned char* payload, unsigned char length) override;

    // The length as sent; the run is empty when the text is not kept.
    unsigned char m_bouquetNameLength = 0;
    TTRawRun m_bouquetName;
};

// multilingual_bouquet_name_descriptor (0x5C): only the first language's
// name is kept, and BouquetNameText gives it.
class ZUM_EXPORT TCDescMultilingualBouquetName : public TCDescBouquetName {
public:
    TCDescMultilingualBouquetName();
    ~TCDescMultilingualBouquetName() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int Language() const { return m_language; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_language = 0;
};

#endif
