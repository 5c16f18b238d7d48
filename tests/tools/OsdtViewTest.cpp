// The inspector over the shipped IP service list, and over files it refuses.

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include "inspect/OsdtView.h"

using zuminspect::Json;

namespace {

const std::string kSample = ZUM_SOURCE_DIR "/samples/ip-services.xml";

int Inspect(const std::string& file, bool json, std::string& out, std::string& err)
{
    std::ostringstream o, e;
    const int rc = zuminspect::InspectOsdt(file, json, o, e);
    out = o.str();
    err = e.str();
    return rc;
}

} // namespace

TEST(OsdtView, SampleListAsJsonAndTree)
{
    std::string out, err;
    ASSERT_EQ(Inspect(kSample, true, out, err), 0) << err;
    const Json model = Json::parse(out);
    ASSERT_EQ(model["services"].size(), 3u);
    const Json& news = model["services"][0];
    EXPECT_EQ(news["uniqueId"], Json({{"serviceName", "zum-news"}, {"domainName", "iptv.example.net"}}));
    EXPECT_EQ(news["lcn"], Json({{"lcn", 1}, {"selectable", true}}));
    EXPECT_EQ(news["serviceNames"], Json({{"eng", "ZUM News"}, {"tur", "ZUM Haber"}}));
    const Json& location = news["serviceLocations"][0];
    EXPECT_EQ(location["drmControlInformation"][0]["drmGenericData"], "<KeyId scheme=\"cenc\">5a554d2d6e657773</KeyId>");
    EXPECT_EQ(location["drmControlInformation"][0]["drmPrivateData"], "operator=zum&amp;tier=basic");
    EXPECT_EQ(location["contentAttributes"]["audioNumOfChannels"], 2);
    EXPECT_EQ(location["contentAttributes"]["videoName"], "H.264");
    EXPECT_EQ(location["uriBasedLocation"], Json({{"contentType", "video/mp2t"}, {"uri", "rtp://239.10.0.1:5000"}}));
    EXPECT_EQ(news["targetRegions"]["regionLists"][0]["primaryRegions"][0]["subregions"], Json({"Kent", "Essex"}));
    EXPECT_EQ(model["services"][2]["lcn"]["selectable"], false);

    ASSERT_EQ(Inspect(kSample, false, out, err), 0) << err;
    EXPECT_EQ(out.rfind("IP service list  " + kSample + ", 3 services (TCOSDTParser)\n", 0), 0u) << out;
    EXPECT_NE(out.find("\n  service \"zum-kids\"\n    uniqueId:  serviceName: \"zum-kids\", domainName: \"iptv.example.net\"\n"),
              std::string::npos) << out;
}

TEST(OsdtView, RefusedFiles)
{
    const std::string bad = testing::TempDir() + "osdt-bad.xml";
    std::ofstream(bad) << "<IPServiceList><IPService><LCN LCN=\"x\" selectable=\"1\"/></IPService></IPServiceList>";
    std::string out, err;
    EXPECT_EQ(Inspect(bad, false, out, err), 1);
    EXPECT_EQ(err.rfind("zum-inspect: " + bad + ": conversion of data to type", 0), 0u) << err;
    EXPECT_EQ(out, "");
    EXPECT_EQ(Inspect(bad + ".absent", true, out, err), 1);
    EXPECT_EQ(err, "zum-inspect: " + bad + ".absent: cannot open\n");
    std::remove(bad.c_str());
}
