#ifndef ZUM_PLATFORM_CODES_H
#define ZUM_PLATFORM_CODES_H

// Three ASCII letters packed into one word, the first in bits 23..16
// (0x4B4F52 is KOR). A two-letter language code has a zero low byte.
typedef unsigned int ECountryCode;
typedef unsigned int ELanguageCode;

// The platform's own small enumerations. Only the values the parser acts on
// are named; every other value is the platform's and passes through as is.
enum ECountry : int {
    ECOUNTRY_NONE = 0,
    ECOUNTRY_TURKEY = 22,
    ECOUNTRY_CHINA = 29,
};

enum system_info_country_e : int {
    SYSTEM_INFO_COUNTRY_INVALID = -1,
    SYSTEM_INFO_COUNTRY_OTHERS = 78,
};

enum ELanguage : int {
    ELANGUAGE_NONE = 0,
    ELANGUAGE_OTHERS = 107,
};

// How the receiver's tuner is fed: terrestrial aerial, cable or satellite dish.
enum EAntennaMode : int {
    EANTENNA_MODE_AIR = 0,
    EANTENNA_MODE_CABLE = 1,
    EANTENNA_MODE_SATELLITE = 2,
};

// Japanese broadcast areas of ARIB emergency signalling: a wide area of
// several prefectures (1 to 4), or one prefecture (17 to 64).
enum EJapanWideArea : int {
    EJAPAN_WIDE_AREA_NONE = 0,
};

enum EJapanPrefecture : int {
    EJAPAN_PREFECTURE_NONE = 63,
};

// ARIB service_type values, as numbers; the named ones are those whose copy
// rules differ.
enum EISDBServiceType : int {
    EISDB_SERVICE_TYPE_DIGITAL_TV = 0x01,
    EISDB_SERVICE_TYPE_TEMPORARY_VIDEO = 0xA1,
    EISDB_SERVICE_TYPE_TEMPORARY_DATA = 0xA3,
    EISDB_SERVICE_TYPE_ENGINEERING = 0xAA,
    EISDB_SERVICE_TYPE_DATA = 0xC0,
};

// What a Japanese receiver may do with an event's output: copy freely, once,
// never (each for the two output families of the platform), or nothing to rule.
enum EDigitalCopyControl : int {
    EDIGITAL_COPY_FREE = 0,
    EDIGITAL_COPY_ONCE = 2,
    EDIGITAL_COPY_ONCE_DATA = 3,
    EDIGITAL_COPY_NEVER = 4,
    EDIGITAL_COPY_NEVER_DATA = 5,
    EDIGITAL_COPY_NOT_RULED = 6,
};

constexpr unsigned int ZumPackCode(char a, char b, char c)
{
    return (static_cast<unsigned int>(static_cast<unsigned char>(a)) << 16) |
           (static_cast<unsigned int>(static_cast<unsigned char>(b)) << 8) |
           static_cast<unsigned int>(static_cast<unsigned char>(c));
}

// "KOR" -> 0x4B4F52; shorter strings leave the low bytes zero.
constexpr unsigned int ZumPackCode(const char* s)
{
    return ZumPackCode(s[0], s[0] ? s[1] : 0, (s[0] && s[1]) ? s[2] : 0);
}

#endif
