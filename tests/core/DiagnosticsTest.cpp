#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "core/Diagnostics.h"
#include "support/LogCapture.h"
#include "support/TestEnvironment.h"

namespace {

bool FailingSite(const void* p)
{
    if (!ZUM_ASSERT(p))
        return false;
    return true;
}

} // namespace

TEST(Diagnostics, AssertionOnReleasedImageReportsAndReturns)
{
    { std::ofstream truncate(zumtest::AssertConsolePath()); }
    zumtest::LogCapture log;
    EXPECT_FALSE(FailingSite(nullptr));
    ASSERT_EQ(log.Entries().size(), 1u);
    EXPECT_EQ(log.Entries()[0].priority, 6);
    EXPECT_EQ(log.Entries()[0].text.rfind("ZUM_PARSER: FailingSite(", 0), 0u);
    EXPECT_EQ(log.Entries()[0].message.rfind("ASSERT!, Func:FailingSite, Line:", 0), 0u);
    EXPECT_NE(log.Entries()[0].message.find(", Failed: p"), std::string::npos);

    std::stringstream report;
    report << std::ifstream(zumtest::AssertConsolePath()).rdbuf();
    for (const char* part : {"Assertion failed: ", " - p\n", "Debug information:\nPosix Thread ID: 0x",
                             "Linux Thread ID:   "})
        EXPECT_NE(report.str().find(part), std::string::npos) << part;

    // stdout works again after the report.
    EXPECT_GE(std::printf("%s", ""), 0);
    EXPECT_TRUE(FailingSite(&report));

    // Without a console the report is lost, but the site's fallback still runs.
    zum_diag::SetAssertFiles("/nonexistent/console", zumtest::AssertReleasePath().c_str());
    EXPECT_FALSE(FailingSite(nullptr));
    zumtest::UseReleasedImage();
}

TEST(DiagnosticsDeathTest, DevelopmentImageStopsAtTheFirstAssertion)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            zum_diag::SetAssertFiles(zumtest::AssertConsolePath().c_str(), "/nonexistent/release");
            FailingSite(nullptr);
        },
        "");
}

TEST(Diagnostics, PrintHelpersCutTheirText)
{
    struct Case { std::string text; std::vector<std::string> lines; } cases[] = {
        {"", {}},
        {"ab\ncd", {"[SIGNAL 0] ab\n", "[SIGNAL 1] cd"}},
        {"x\n", {"[SIGNAL 0] x\n"}},
        {std::string(151, 'a'), {"[SIGNAL 0] " + std::string(150, 'a'), "[SIGNAL 1] a"}},
        {std::string(149, 'b') + "\nc", {"[SIGNAL 0] " + std::string(149, 'b') + "\n", "[SIGNAL 1] c"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text.size());
        std::string text = c.text;
        zumtest::LogCapture log;
        PrintSignalMessage(text.empty() ? nullptr : &text[0], static_cast<int>(text.size()));
        std::vector<std::string> expected{"[PrintSignalMessage] Start !!!", "SIGNAL BEGIN -->"};
        expected.insert(expected.end(), c.lines.begin(), c.lines.end());
        expected.insert(expected.end(), {"SIGNAL END <--", "[PrintSignalMessage] End !!!"});
        EXPECT_EQ(log.Lines(3), expected);
        EXPECT_EQ(text, c.text);
    }

    std::string xml = "<a><b>1</b><c/></a>";
    zumtest::LogCapture log;
    PrintXmlFormat(&xml[0], static_cast<int>(xml.size()));
    EXPECT_EQ(log.Lines(3), (std::vector<std::string>{
                                "[PrintXmlFormat] Start !!!", "[PrintXmlFormat] XML size = 19", "XML BEGIN -->",
                                "[index:0001] Size[0003] <a>", "[index:0002] Size[0016] <b>1</b><c/></a>",
                                "[PrintXmlFormat] End !!!"}));
}
