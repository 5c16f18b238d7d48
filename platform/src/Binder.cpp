#include "zum-platform/Binder.h"
#include "zum-platform/PlatformConfig.h"

namespace {

struct BinderState {
    zum_platform::BinderSettings settings;
    bool present = true;
    ZUMHandle lastHandle;
};

BinderState& State()
{
    static BinderState state;
    return state;
}

class TCStandInBinder : public IBinder {
public:
    bool IsValidPrivateDataSpecification(const ZUMHandle& handle, unsigned int pds) override
    {
        const auto& s = m_Use(handle);
        return s.acceptSpecifier ? s.acceptSpecifier(pds) : true;
    }
    ECountry GetCountry(const ZUMHandle& handle) override { return m_Use(handle).country; }
    ECountryCode GetCountryCode(const ZUMHandle& handle) override { return m_Use(handle).countryCode; }
    ELanguageCode GetLanguageCode(const ZUMHandle& handle) override { return m_Use(handle).languageCode; }
    unsigned int GetOperator(const ZUMHandle& handle) override { return m_Use(handle).operatorId; }
    unsigned int GetPreferredLanguage(const ZUMHandle& handle) override { return m_Use(handle).preferredLanguage; }
    unsigned int GetPrivateDataSpecification(const ZUMHandle& handle) override
    {
        return m_Use(handle).privateDataSpecifier;
    }
    unsigned int GetRatingRegion(const ZUMHandle& handle) override { return m_Use(handle).ratingRegion; }
    bool IsDolbyCertModeEnabled() override { return State().settings.dolbyCertMode; }

private:
    static const zum_platform::BinderSettings& m_Use(const ZUMHandle& handle)
    {
        State().lastHandle = handle;
        return State().settings;
    }
};

} // namespace

IBinder* IBinder::Instance()
{
    static TCStandInBinder binder;
    return State().present ? &binder : nullptr;
}

namespace zum_platform {

void SetBinder(const BinderSettings& settings)
{
    State().settings = settings;
    State().present = true;
}

void RemoveBinder() { State().present = false; }

void ResetBinder() { SetBinder(BinderSettings()); }

BinderSettings& Binder() { return State().settings; }

ZUMHandle LastBinderHandle() { return State().lastHandle; }

} // namespace zum_platform
