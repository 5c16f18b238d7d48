#include "inspect/Session.h"

#include "inspect/ModelBuilder.h"

namespace zuminspect {

namespace {

constexpr unsigned int kTkgsSpecifier = 0x011FFFFF;

// The two countries whose enumeration value the library acts on.
ECountry CountryEnum(ECountryCode code)
{
    switch (code) {
    case ZumPackCode('T', 'U', 'R'): return ECOUNTRY_TURKEY;
    case ZumPackCode('C', 'H', 'N'): return ECOUNTRY_CHINA;
    default: return ECOUNTRY_NONE;
    }
}

} // namespace

zum_platform::BinderSettings BinderSettingsFor(const InspectSettings& settings)
{
    zum_platform::BinderSettings binder;
    binder.countryCode = ZumPackCode(settings.country.c_str());
    binder.country = CountryEnum(binder.countryCode);
    binder.operatorId = settings.operatorId;
    binder.privateDataSpecifier = settings.privateDataSpecifier;
    // A Turkish receiver of no named operator reads the TKGS channel system.
    if (binder.country == ECOUNTRY_TURKEY && settings.privateDataSpecifier == 0 && settings.operatorId == 0)
        binder.privateDataSpecifier = kTkgsSpecifier;
    binder.languageCode = ZumPackCode(settings.language.c_str());
    // The viewer reads North American text in the receiver's language.
    binder.preferredLanguage = binder.languageCode;
    return binder;
}

namespace {

constexpr char kCountryCharset[] = "country";

} // namespace

zum_platform::TextSettings TextSettingsFor(const std::string& charset)
{
    zum_platform::TextSettings text;
    if (charset == kCountryCharset)
        text.dvbCountryTables = true;
    else
        text.defaultTable = charset;
    return text;
}

bool IsKnownCharset(const std::string& charset)
{
    return charset == kCountryCharset || zum_platform::IsKnownDefaultTable(charset);
}

Session::Session(InputKind kind, const InspectSettings& settings)
    : m_kind(kind),
      m_settings(settings),
      m_router(kZUMDefaultHandle, settings.allPids),
      m_demux([this](uint16_t pid, const uint8_t* section, size_t size) { m_router.OnSection(pid, section, size); },
              kind)
{
    m_demux.SetPidFilter([this](uint16_t pid) { return m_router.Wants(pid); });
}

void Session::Feed(const uint8_t* data, size_t size)
{
    m_bytes += size;
    m_demux.Feed(data, size);
}

void Session::Finish()
{
    m_demux.Finish();
}

Json Session::Model() const
{
    ModelContext context;
    context.country = ZumPackCode(m_settings.country.c_str());
    context.language = ZumPackCode(m_settings.language.c_str());
    context.sectionsInput = m_kind == InputKind::Sections;
    context.bytes = m_bytes;
    context.system = SystemOf(context.country, m_settings.operatorId);
    context.guide = m_settings.guide;
    return BuildModel(m_router, m_demux.Stats(), context);
}

} // namespace zuminspect
