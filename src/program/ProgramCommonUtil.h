#ifndef ZUM_PROGRAM_PROGRAMCOMMONUTIL_H
#define ZUM_PROGRAM_PROGRAMCOMMONUTIL_H

#include <memory>

#include <zum-platform/Codes.h>
#include <zum-platform/ProgramData.h>
#include <zum-platform/ZUMHandle.h>

#include "../core/Export.h"

class IDescriptorContainer;
class TCDescParentalRating;

// The guide questions whose answer depends on the broadcast system: one
// implementation per system, picked by country.
class ZUM_EXPORT TCProgramCommonUtilImp {
public:
    virtual ~TCProgramCommonUtilImp() = default;
    virtual bool MakeComponent(const IDescriptorContainer& container, TCProgramData::TCProgCompData& compData) = 0;
    virtual bool DataServiceAvailable(const IDescriptorContainer& container) = 0;
    virtual bool GetDigitalCopyControl(EISDBServiceType serviceType, unsigned char copyControlType,
                                       unsigned char digitalRecordingControl, EDigitalCopyControl& out) = 0;
    virtual bool GetAudioOutputControl(unsigned char copyControlType, unsigned char digitalRecordingControl,
                                       EDigitalCopyControl& out) = 0;
    virtual bool GetDigitalRatingInfo(TCDescParentalRating* pRating, TSRatingInfo& info) = 0;
};

// Countries without a system of their own: only the rating is answered.
class ZUM_EXPORT TCProgramCommonUtilBase : public TCProgramCommonUtilImp {
public:
    bool MakeComponent(const IDescriptorContainer& container, TCProgramData::TCProgCompData& compData) override;
    bool DataServiceAvailable(const IDescriptorContainer& container) override;
    bool GetDigitalCopyControl(EISDBServiceType serviceType, unsigned char copyControlType,
                               unsigned char digitalRecordingControl, EDigitalCopyControl& out) override;
    bool GetAudioOutputControl(unsigned char copyControlType, unsigned char digitalRecordingControl,
                               EDigitalCopyControl& out) override;
    // The entry of the receiver's country, else (outside the rating regions
    // and countries that insist on their own entry) the first one.
    bool GetDigitalRatingInfo(TCDescParentalRating* pRating, TSRatingInfo& info) override;
};

// ISDB-T International: components from the component descriptors.
class ZUM_EXPORT TCProgramCommonUtilISDB : public TCProgramCommonUtilBase {
public:
    bool MakeComponent(const IDescriptorContainer& container, TCProgramData::TCProgCompData& compData) override;
    bool DataServiceAvailable(const IDescriptorContainer& container) override;
};

// Japan: the data service by its selector, and the copy rules of ARIB.
class ZUM_EXPORT TCProgramCommonUtilJPN : public TCProgramCommonUtilISDB {
public:
    bool DataServiceAvailable(const IDescriptorContainer& container) override;
    bool GetDigitalCopyControl(EISDBServiceType serviceType, unsigned char copyControlType,
                               unsigned char digitalRecordingControl, EDigitalCopyControl& out) override;
    bool GetAudioOutputControl(unsigned char copyControlType, unsigned char digitalRecordingControl,
                               EDigitalCopyControl& out) override;
};

// The handle: picks the implementation by the binder's country when built.
class ZUM_EXPORT TCProgramCommonUtil {
public:
    explicit TCProgramCommonUtil(const ZUMHandle& handle);
    virtual ~TCProgramCommonUtil();

    bool MakeComponent(const IDescriptorContainer& container, TCProgramData::TCProgCompData& compData);
    bool DataServiceAvailable(const IDescriptorContainer& container);
    // True when the implementation decided.
    bool GetDigitalCopyControl(EISDBServiceType serviceType, unsigned char copyControlType,
                               unsigned char digitalRecordingControl, EDigitalCopyControl& out);
    bool GetAudioOutputControl(unsigned char copyControlType, unsigned char digitalRecordingControl,
                               EDigitalCopyControl& out);
    bool GetDigitalRatingInfo(TCDescParentalRating* pRating, TSRatingInfo& info);
    // Broadcast text to big-endian UTF-16 bytes; outLength is the capacity in
    // and the bytes written out.
    bool ConvertToUnicode(unsigned char* in, unsigned short inLength, unsigned char* out, unsigned short& outLength,
                          ELanguageCode language);

    TCProgramCommonUtil(const TCProgramCommonUtil&) = delete;
    TCProgramCommonUtil& operator=(const TCProgramCommonUtil&) = delete;

private:
    std::unique_ptr<TCProgramCommonUtilImp> m_pImp;
};

#endif
