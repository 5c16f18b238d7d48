#ifndef ZUM_PLATFORM_BINDER_H
#define ZUM_PLATFORM_BINDER_H

#include "Codes.h"
#include "ZUMHandle.h"

// The platform singleton that says where the receiver stands and which
// operator it serves. Instance() is null while the platform is not up.
class IBinder {
public:
    static IBinder* Instance();

    virtual ~IBinder() = default;

    virtual bool IsValidPrivateDataSpecification(const ZUMHandle& handle, unsigned int pds) = 0;
    virtual ECountry GetCountry(const ZUMHandle& handle) = 0;
    virtual ECountryCode GetCountryCode(const ZUMHandle& handle) = 0;
    virtual ELanguageCode GetLanguageCode(const ZUMHandle& handle) = 0;
    virtual unsigned int GetOperator(const ZUMHandle& handle) = 0;
    virtual unsigned int GetPreferredLanguage(const ZUMHandle& handle) = 0;
    virtual unsigned int GetPrivateDataSpecification(const ZUMHandle& handle) = 0;
    virtual unsigned int GetRatingRegion(const ZUMHandle& handle) = 0;
    virtual bool IsDolbyCertModeEnabled() = 0;
};

#endif
