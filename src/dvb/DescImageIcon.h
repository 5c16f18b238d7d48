#ifndef ZUM_DVB_DESCIMAGEICON_H
#define ZUM_DVB_DESCIMAGEICON_H

#include <string>
#include <vector>

#include "../core/DescExtension.h"

// image_icon_descriptor (extension 0x00): one piece of an icon, sent in the
// descriptor itself or located by a URL. A "dvb:" URL is split into its
// locator numbers, the carousel id and the path of the file.
class ZUM_EXPORT TCDescImageIcon : public TCDescExtension {
public:
    TCDescImageIcon();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // A copy of the data, only into a buffer of exactly the stored size.
    bool GetImagePart(unsigned char* buffer, unsigned short size) const;
    bool GetPathSegment(std::string& path) const;
    // The carousel id and the three locator numbers of a "dvb:" URL.
    bool GetCarouselInfo(unsigned int& carouselId, unsigned short& first, unsigned short& second,
                         unsigned short& third) const;

    unsigned char DescriptorNumber() const { return m_descriptorNumber; }
    unsigned char LastDescriptorNumber() const { return m_lastDescriptorNumber; }
    // 0xFF before a parse reached the field.
    unsigned char IconId() const { return m_iconId; }
    // 0 data in the descriptor, 1 a URL.
    unsigned int TransportMode() const { return m_transportMode; }
    bool PositionFlag() const { return m_positionFlag; }
    unsigned int CoordinateSystem() const { return m_coordinateSystem; }
    unsigned short HorizontalOrigin() const { return m_horizontalOrigin; }
    unsigned short VerticalOrigin() const { return m_verticalOrigin; }
    // The MIME type of the icon, as sent.
    std::string IconType() const;
    // The length the body gave, also when the data did not fit.
    unsigned short IconDataLength() const { return m_iconDataLength; }
    std::string URL() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_ParseUrl(const unsigned char* payload, int at, int length);
    void m_SplitLocator();

    unsigned char m_descriptorNumber = 0;
    unsigned char m_lastDescriptorNumber = 0;
    unsigned char m_iconId = 0xFF;
    unsigned int m_transportMode = 0;
    bool m_positionFlag = false;
    unsigned int m_coordinateSystem = 3;
    unsigned short m_horizontalOrigin = 0;
    unsigned short m_verticalOrigin = 0;
    TTRawRun m_iconType;
    TTRawRun m_iconData;
    unsigned short m_iconDataLength = 0;
    TTRawRun m_url;
    unsigned int m_carouselId = 0xFFFFFFFF;
    unsigned short m_firstLocator = 0xFFFF;
    unsigned short m_secondLocator = 0xFFFF;
    unsigned short m_thirdLocator = 0xFFFF;
    TTRawRun m_pathSegment;
};

// uri_linkage_descriptor (extension 0x13): a URI, with a polling interval for
// the types 0 and 1, then private bytes.
class ZUM_EXPORT TCDescURILinkage : public TCDescExtension {
public:
    TCDescURILinkage();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char GetURILinkageType() const { return m_uriLinkageType; }
    std::string GetURIString() const;
    unsigned short GetMinPollingInterval() const { return m_minPollingInterval; }
    std::vector<unsigned char> GetPrivateData() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_uriLinkageType = 0xFF;
    TTRawRun m_uri;
    unsigned short m_minPollingInterval = 0;
    TTRawRun m_privateData;
};

#endif
