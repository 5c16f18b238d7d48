#include "ProgramCommonUtil.h"

#include <zum-platform/Binder.h>
#include <zum-platform/UnicodeConverter.h>

#include "../atsc/MultipleStringStruct.h"
#include "../core/BaseDesc.h"
#include "../core/DescriptorContainer.h"
#include "../core/Diagnostics.h"
#include "../dvb/DescComponent.h"
#include "../dvb/DescContent.h"
#include "../isdb/DescAudioComponent.h"

namespace {

constexpr int kTagComponent = 0x50;
constexpr int kTagAudioComponent = 0xC4;
constexpr int kTagDataContent = 0xC7;
constexpr unsigned char kEntryDataService = 0x40;
constexpr unsigned short kComponentTextCapacity = 256;
constexpr ECountryCode kBrazil = ZumPackCode("BRA");
constexpr ECountryCode kPoland = ZumPackCode("POL");
// "PL ", as some Polish broadcasters send it.
constexpr unsigned int kPolandShort = 0x504C20;
constexpr unsigned int kLowerCaseFrom = 0x616261;
constexpr unsigned int kCaseStep = 0x202020;
constexpr unsigned char kRatingType = 8;

// Countries whose receivers read the ISDB-T International guide.
bool IsISDBGuideCountry(ECountryCode code)
{
    static const char* const kCodes[] = {"ARG", "BOL", "BRA", "CHL", "COL", "EQU", "EST", "GHA", "IDN", "IND",
                                         "IRN", "KAZ", "KEN", "LTU", "NZL", "PAR", "PER", "PHL", "SGP", "SVK",
                                         "THA", "TUN", "TWN", "UKR", "URU", "VNM", "ZAF", "cri"};
    for (const char* c : kCodes)
        if (ZumPackCode(c) == code)
            return true;
    return false;
}

// Countries 64, 65, 69, 71 and 72 take the Brazilian entry or none.
bool IsBrazilGroup(int country)
{
    return country >= 64 && country <= 72 && ((0x1A3u >> (country - 64)) & 1u) != 0;
}

bool RatingCountryMatches(unsigned int entry, ECountryCode wanted)
{
    if (entry == kPolandShort)
        return wanted == kPoland;
    if (entry >= kLowerCaseFrom)
        entry -= kCaseStep;
    return entry == wanted;
}

} // namespace

// The component's text converted in its language; a text longer than the
// buffer stays out.
template <class TDesc>
static void TakeComponentText(const TDesc& desc, TCUnicodeConverter& converter, TCProgramData::TTComp& comp)
{
    char source[kComponentTextCapacity];
    int size = kComponentTextCapacity;
    if (!desc.TextChar(source, &size))
        return;
    unsigned char out[kComponentTextCapacity];
    unsigned short sourceLength = static_cast<unsigned short>(size);
    unsigned short outLength = kComponentTextCapacity;
    converter.ConvertToUnicode(reinterpret_cast<unsigned char*>(source), sourceLength, out, outLength, false,
                               comp.language, true);
    if (outLength != 0)
        comp.SetText(out, outLength);
}

// ---------------------------------------------------------------- base

bool TCProgramCommonUtilBase::MakeComponent(const IDescriptorContainer&, TCProgramData::TCProgCompData&)
{
    return false;
}

bool TCProgramCommonUtilBase::DataServiceAvailable(const IDescriptorContainer&)
{
    return false;
}

bool TCProgramCommonUtilBase::GetDigitalCopyControl(EISDBServiceType, unsigned char, unsigned char,
                                                    EDigitalCopyControl&)
{
    return false;
}

bool TCProgramCommonUtilBase::GetAudioOutputControl(unsigned char, unsigned char, EDigitalCopyControl&)
{
    return false;
}

bool TCProgramCommonUtilBase::GetDigitalRatingInfo(TCDescParentalRating* pRating, TSRatingInfo& info)
{
    if (!ZUM_ASSERT(pRating))
        return false;
    if (pRating->Count() == 0)
        return false;
    IBinder* pBinder = IBinder::Instance();
    if (!ZUM_ASSERT(pBinder))
        return false;
    const ZUMHandle handle(1, 0, 0);
    ECountryCode wanted = pBinder->GetCountryCode(handle);
    const bool brazilGroup = IsBrazilGroup(pBinder->GetCountry(handle));
    if (brazilGroup)
        wanted = kBrazil;
    int index = -1;
    for (int i = 0; i < pRating->Count() && index < 0; ++i)
        if (RatingCountryMatches(pRating->CountryCode(i), wanted))
            index = i;
    const unsigned int region = pBinder->GetRatingRegion(handle);
    if (index < 0) {
        if (region == 8 || region == 12 || brazilGroup)
            return false;
        index = 0;
    }
    info.ratingType = kRatingType;
    info.ratingValue = pRating->Rating(index);
    info.ratingExtra = 0;
    return true;
}

// ---------------------------------------------------------------- ISDB

bool TCProgramCommonUtilISDB::MakeComponent(const IDescriptorContainer& container,
                                            TCProgramData::TCProgCompData& compData)
{
    TCUnicodeConverter converter(ZUMHandle(1, 0, 0));
    for (int i = 0; i < container.NumOfDescriptors(); ++i) {
        const TCBaseDesc* desc = container.DescriptorByIndex(static_cast<unsigned int>(i));
        if (desc == nullptr)
            continue;
        TCProgramData::TTComp comp;
        if (desc->Tag() == kTagAudioComponent) {
            const auto* audio = dynamic_cast<const TCDescAudioComponent*>(desc);
            if (audio == nullptr)
                continue;
            comp.componentTag = audio->ComponentTag();
            comp.componentType = audio->ComponentType();
            comp.language = TCMultipleStringStruct::MultipleSound(audio->ISO639LanguageCode());
            comp.qualityIndicator = audio->QualityIndicator();
            TakeComponentText(*audio, converter, comp);
            compData.AddComponent(TCProgramData::COMP_TYPE_AUDIO, comp);
            // A bilingual stream is listed once per language, with the one text.
            if (audio->ESMultiLingualFlag()) {
                comp.language = TCMultipleStringStruct::MultipleSound(audio->ISO639LanguageCode2());
                compData.AddComponent(TCProgramData::COMP_TYPE_AUDIO, comp);
            }
        } else if (desc->Tag() == kTagComponent) {
            const auto* component = dynamic_cast<const TCDescComponent*>(desc);
            if (component == nullptr)
                continue;
            const TCProgramData::EComponentType type = TCProgramData::ISDBCompType(component->ComponentTag());
            if (static_cast<unsigned int>(type) == 0xFFFFFFFF)
                continue;
            comp.componentTag = component->ComponentTag();
            comp.componentType = component->ComponentType();
            comp.language = TCMultipleStringStruct::MultipleSound(component->Language());
            TakeComponentText(*component, converter, comp);
            compData.AddComponent(type, comp);
        } else if (desc->Tag() == kTagDataContent) {
            const auto* content = dynamic_cast<const TCDescDataContent*>(desc);
            if (content == nullptr)
                continue;
            const TCProgramData::EComponentType type = TCProgramData::ISDBCompType(content->EntryComponent());
            if (static_cast<unsigned int>(type) == 0xFFFFFFFF)
                continue;
            comp.componentTag = content->EntryComponent();
            comp.componentType = 0;
            comp.language = TCMultipleStringStruct::MultipleSound(content->ISO639LanguageCode());
            TakeComponentText(*content, converter, comp);
            compData.AddComponent(type, comp);
        }
    }
    return true;
}

bool TCProgramCommonUtilISDB::DataServiceAvailable(const IDescriptorContainer& container)
{
    for (int i = 0; i < container.NumOfDescriptors(kTagDataContent); ++i) {
        const auto* content = dynamic_cast<const TCDescDataContent*>(
            container.Descriptor(kTagDataContent, static_cast<unsigned int>(i)));
        if (content != nullptr && content->EntryComponent() == kEntryDataService)
            return true;
    }
    return false;
}

// ---------------------------------------------------------------- Japan

bool TCProgramCommonUtilJPN::DataServiceAvailable(const IDescriptorContainer& container)
{
    for (int i = 0; i < container.NumOfDescriptors(kTagDataContent); ++i) {
        const auto* content = dynamic_cast<const TCDescDataContent*>(
            container.Descriptor(kTagDataContent, static_cast<unsigned int>(i)));
        if (content == nullptr)
            continue;
        const unsigned short id = content->DataComponentId();
        if (id != 7 && id != 11 && id != 12)
            continue;
        // The first data coding of these decides: bit 3 of the selector's second byte.
        unsigned char selector[256];
        int size = sizeof selector;
        content->SelectorByte(selector, &size);
        return size >= 2 && (selector[1] & 0x08) != 0;
    }
    return false;
}

bool TCProgramCommonUtilJPN::GetDigitalCopyControl(EISDBServiceType serviceType, unsigned char copyControlType,
                                                   unsigned char digitalRecordingControl, EDigitalCopyControl& out)
{
    // The recording control of copy control types 1 and 3: copy never, once, free.
    auto byRecording = [digitalRecordingControl](EDigitalCopyControl never, EDigitalCopyControl once) {
        return digitalRecordingControl == 3 ? never : digitalRecordingControl == 2 ? once : EDIGITAL_COPY_FREE;
    };
    out = EDIGITAL_COPY_FREE;
    switch (static_cast<int>(serviceType)) {
    case 1:
    case 161:
        out = copyControlType != 1 ? EDIGITAL_COPY_NEVER : byRecording(EDIGITAL_COPY_NEVER, EDIGITAL_COPY_ONCE);
        break;
    case 163:
    case 170:
    case 192:
        if (copyControlType == 1)
            out = byRecording(EDIGITAL_COPY_NEVER, EDIGITAL_COPY_ONCE);
        else if (copyControlType == 3)
            out = byRecording(EDIGITAL_COPY_NEVER_DATA, EDIGITAL_COPY_ONCE_DATA);
        else
            out = EDIGITAL_COPY_NEVER_DATA;
        break;
    default: break;
    }
    return true;
}

bool TCProgramCommonUtilJPN::GetAudioOutputControl(unsigned char copyControlType,
                                                   unsigned char digitalRecordingControl, EDigitalCopyControl& out)
{
    out = EDIGITAL_COPY_FREE;
    if (copyControlType == 0 || copyControlType == 2)
        out = EDIGITAL_COPY_NOT_RULED;
    else if (copyControlType == 1 || copyControlType == 3)
        out = digitalRecordingControl == 1 || digitalRecordingControl == 3 ? EDIGITAL_COPY_NEVER
              : digitalRecordingControl == 2                               ? EDIGITAL_COPY_ONCE
                                                                           : EDIGITAL_COPY_FREE;
    return true;
}

// ---------------------------------------------------------------- handle

TCProgramCommonUtil::TCProgramCommonUtil(const ZUMHandle& handle)
{
    IBinder* pBinder = IBinder::Instance();
    const ECountryCode country = ZUM_ASSERT(pBinder) ? pBinder->GetCountryCode(handle) : 0;
    if (country == ZumPackCode("JPN"))
        m_pImp.reset(new TCProgramCommonUtilJPN());
    else if (IsISDBGuideCountry(country))
        m_pImp.reset(new TCProgramCommonUtilISDB());
    else
        m_pImp.reset(new TCProgramCommonUtilBase());
}

TCProgramCommonUtil::~TCProgramCommonUtil() = default;

bool TCProgramCommonUtil::MakeComponent(const IDescriptorContainer& container,
                                        TCProgramData::TCProgCompData& compData)
{
    if (!ZUM_ASSERT(m_pImp))
        return false;
    return m_pImp->MakeComponent(container, compData);
}

bool TCProgramCommonUtil::DataServiceAvailable(const IDescriptorContainer& container)
{
    if (!ZUM_ASSERT(m_pImp))
        return false;
    return m_pImp->DataServiceAvailable(container);
}

bool TCProgramCommonUtil::GetDigitalCopyControl(EISDBServiceType serviceType, unsigned char copyControlType,
                                                unsigned char digitalRecordingControl, EDigitalCopyControl& out)
{
    if (!ZUM_ASSERT(m_pImp))
        return false;
    return m_pImp->GetDigitalCopyControl(serviceType, copyControlType, digitalRecordingControl, out);
}

bool TCProgramCommonUtil::GetAudioOutputControl(unsigned char copyControlType, unsigned char digitalRecordingControl,
                                                EDigitalCopyControl& out)
{
    if (!ZUM_ASSERT(m_pImp))
        return false;
    return m_pImp->GetAudioOutputControl(copyControlType, digitalRecordingControl, out);
}

bool TCProgramCommonUtil::GetDigitalRatingInfo(TCDescParentalRating* pRating, TSRatingInfo& info)
{
    if (!ZUM_ASSERT(m_pImp))
        return false;
    return m_pImp->GetDigitalRatingInfo(pRating, info);
}

bool TCProgramCommonUtil::ConvertToUnicode(unsigned char* in, unsigned short inLength, unsigned char* out,
                                           unsigned short& outLength, ELanguageCode language)
{
    TCUnicodeConverter converter(ZUMHandle(1, 0, 0));
    return converter.ConvertToUnicode(in, inLength, out, outLength, false, language, true);
}
