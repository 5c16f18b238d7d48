#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "core/DescConfDS.h"
#include "core/DescConfDVB.h"
#include "core/DescConfPSIBase.h"
#include "core/DescConfPSIP.h"
#include "core/DescExtension.h"
#include "support/LogCapture.h"
#include "support/TestEnvironment.h"

namespace {

std::string Kind(const TCBaseDesc* d)
{
    if (!d)
        return "null";
    if (dynamic_cast<const TCDescExtension*>(d))
        return "extension";
    return dynamic_cast<const TCDescDefault*>(d) ? "default" : "decoded";
}

using Factory = std::function<TCDescConfBase*()>;

const Factory kDVB = [] { return new TCDescConfDVB(ZUMHandle()); };
const Factory kAstra = [] { return new TCDescConfAstra(ZUMHandle()); };
const Factory kISDB = [] { return new TCDescConfISDB(ZUMHandle()); };
const Factory kJPN = [] { return new TCDescConfJPN(ZUMHandle()); };
const Factory kPsiDVB = [] { return new TCDescConfPsiDVB(ZUMHandle()); };
const Factory kPsiISDB = [] { return new TCDescConfPsiISDB(ZUMHandle()); };
const Factory kPsiATSC = [] { return new TCDescConfPsiATSC(); };
const Factory kPsiKR = [] { return new TCDescConfPsiKR(); };
const Factory kPSIP = [] { return new TCDescConfPSIP(); };
const Factory kDS = [] { return new TCDescConfDS(); };

enum BinderState { kBinder, kNoBinder, kNoBinderAsserts };

} // namespace

// Which kind of object each factory answers for tags whose classes are not
// decoded here: a default object, null (skipped), or an extension; and which
// of those answers need the binder.
TEST(DescConf, FallbacksByFactoryAndTag)
{
    struct Case { const char* name; Factory factory; int tag; unsigned pds, binderPds; ECountry country;
                  BinderState binder; const char* kind; } cases[] = {
        {"SDT tag 0x56 is below the private range", kDVB, 0x56, 0, 0, ECOUNTRY_NONE, kBinder, "default"},
        {"SI extension", kDVB, 0x7F, 0, 0, ECOUNTRY_NONE, kBinder, "extension"},
        {"SI tag 0xFF is not private", kDVB, 0xFF, 0, 0, ECOUNTRY_NONE, kBinder, "default"},
        {"SI private tag without binder", kDVB, 0x83, 0x28, 0, ECOUNTRY_NONE, kNoBinderAsserts, "null"},
        {"SI non-private tag needs no binder", kDVB, 0x42, 0, 0, ECOUNTRY_NONE, kNoBinder, "default"},
        {"Astra other tags under specifier 1", kAstra, 0xA0, 1, 0, ECOUNTRY_NONE, kBinder, "default"},
        {"Astra rows by the binder's specifier 1", kAstra, 0x99, 0, 1, ECOUNTRY_NONE, kBinder, "default"},
        {"Astra other specifier follows the default rule", kAstra, 0x88, 2, 1, ECOUNTRY_NONE, kBinder, "null"},
        {"Astra non-private", kAstra, 0x42, 0, 0, ECOUNTRY_NONE, kBinder, "default"},
        {"Astra private tag without binder", kAstra, 0x88, 1, 0, ECOUNTRY_NONE, kNoBinderAsserts, "null"},
        {"ISDB private tags go by tag alone", kISDB, 0xC5, 0, 0, ECOUNTRY_NONE, kNoBinder, "default"},
        {"ISDB SI extension", kISDB, 0x7F, 0, 0, ECOUNTRY_NONE, kBinder, "extension"},
        {"JPN falls back to ISDB", kJPN, 0xFA, 0, 0, ECOUNTRY_NONE, kBinder, "decoded"},
        {"PMT tag 0x48 is no service descriptor", kPsiDVB, 0x48, 0, 0, ECOUNTRY_NONE, kBinder, "default"},
        {"PMT tag 0xC1 in a DVB country", kPsiDVB, 0xC1, 0, 0, ECOUNTRY_NONE, kBinder, "default"},
        {"PMT extension", kPsiDVB, 0x7F, 0, 0, ECOUNTRY_NONE, kBinder, "extension"},
        {"PMT 0xD0 under another specifier", kPsiDVB, 0xD0, 0x28, 0, ECOUNTRY_NONE, kBinder, "null"},
        {"PMT 0xD0 under FSAT", kPsiDVB, 0xD0, 0x46534154, 0, ECOUNTRY_NONE, kBinder, "decoded"},
        {"PMT 0x98 in Turkey, TKGS component", kPsiDVB, 0x98, 0, 0x011FFFFF, ECOUNTRY_TURKEY, kBinder, "decoded"},
        {"PMT 0xA0 in China is the DRA stream", kPsiDVB, 0xA0, 0, 0, ECOUNTRY_CHINA, kBinder, "decoded"},
        {"PMT private tag without binder", kPsiDVB, 0x98, 0, 0, ECOUNTRY_NONE, kNoBinder, "null"},
        {"ISDB PMT falls back to the DVB PMT", kPsiISDB, 0x7F, 0, 0, ECOUNTRY_NONE, kBinder, "extension"},
        {"ATSC PMT has no extension row", kPsiATSC, 0x7F, 0, 0, ECOUNTRY_NONE, kBinder, "default"},
        {"KR PMT", kPsiKR, 0x42, 0, 0, ECOUNTRY_NONE, kBinder, "default"},
        {"AIT tag without a class", kDS, 0x03, 0, 0, ECOUNTRY_NONE, kBinder, "default"},
        {"PSIP", kPSIP, 0xA3, 0, 0, ECOUNTRY_NONE, kBinder, "default"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::BinderScope binder;
        binder->privateDataSpecifier = c.binderPds;
        binder->country = c.country;
        if (c.binder != kBinder)
            zum_platform::RemoveBinder();
        zumtest::LogCapture log;
        std::unique_ptr<TCDescConfBase> factory(c.factory());
        const unsigned char raw[] = {static_cast<unsigned char>(c.tag), 1, 0x08};
        std::unique_ptr<TCBaseDesc> d(factory->NewDescriptor(c.tag, raw, c.pds));
        EXPECT_EQ(Kind(d.get()), c.kind);
        if (Kind(d.get()) == "default") { EXPECT_EQ(d->Tag(), c.tag); }
        EXPECT_EQ(log.Contains("Failed: pBinder"), c.binder == kNoBinderAsserts);
    }
}

// The operators' rows of the PMT factory are virtual: a platform subclass
// answers for its operator, and the dispatch reaches it.
TEST(DescConf, PsiPrivateRowsAreVirtual)
{
    struct Probe : TCDescConfPsiDVB {
        Probe() : TCDescConfPsiDVB(ZUMHandle()) {}
        std::string reached;
        TCBaseDesc* m_NewFSatPrivateDesc(int tag, unsigned int) override { return m_Mark("FSat", tag); }
        TCBaseDesc* m_NewCHNPrivateDesc(int tag, unsigned int) override { return m_Mark("CHN", tag); }
        TCBaseDesc* m_NewTKGSPrivateDesc(int tag, unsigned int) override { return m_Mark("TKGS", tag); }
        TCBaseDesc* m_Mark(const char* name, int tag) { reached = name; return new TCDescDefault(tag); }
    };
    const struct { unsigned pds, binderPds; ECountry country; const char* reached; } cases[] = {
        {0x46534154, 0, ECOUNTRY_NONE, "FSat"},
        {0, 0x011FFFFF, ECOUNTRY_TURKEY, "TKGS"},
        {0, 0, ECOUNTRY_CHINA, "CHN"},
        {0x28, 0, ECOUNTRY_CHINA, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.reached);
        zumtest::BinderScope binder;
        binder->privateDataSpecifier = c.binderPds;
        binder->country = c.country;
        Probe probe;
        const unsigned char raw[] = {0xA0, 1, 0x08};
        std::unique_ptr<TCBaseDesc> d(static_cast<TCDescConfBase&>(probe).NewDescriptor(0xA0, raw, c.pds));
        EXPECT_EQ(probe.reached, c.reached);
        EXPECT_EQ(d != nullptr, *c.reached != '\0');
    }
}
