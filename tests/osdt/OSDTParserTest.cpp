#include <gtest/gtest.h>

#include <functional>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include <boost/property_tree/xml_parser.hpp>

#include "osdt/OSDTParser.h"
#include "support/LogCapture.h"

using namespace OSDT;
namespace pt = boost::property_tree;

namespace {

std::string Service(const std::string& body) { return "<IPService>" + body + "</IPService>"; }
std::string List(const std::string& services) { return "<IPServiceList>" + services + "</IPServiceList>"; }

const std::string kDrmRequired = "<DRMSystemID>sys</DRMSystemID><DRMContentID>cid</DRMContentID>"
                                 "<DRMGenericData/><DRMPrivateData/>";
std::string Drm(const std::string& more) { return "<casd:DRMControlInformation>" + kDrmRequired + more + "</casd:DRMControlInformation>"; }
std::string Coding(const std::string& name) { return "<tva:Coding href=\"urn:" + name + "\"><tva:Name>" + name + "</tva:Name></tva:Coding>"; }

// Which exception, if any, leaves Parse; anything else fails the test.
std::string Outcome(TCOSDTParser& parser, const std::string& document)
{
    try {
        EXPECT_EQ(parser.Parse(document), 1);
        return "ok";
    } catch (const pt::ptree_bad_path&) {
        return "bad path";
    } catch (const pt::ptree_bad_data&) {
        return "bad data";
    } catch (const pt::xml_parser::xml_parser_error& e) {
        EXPECT_NE(std::string(e.what()).find("<unspecified file>"), std::string::npos) << e.what();
        return "bad xml";
    }
}

const TSIPService& Only(const TCOSDTParser& parser)
{
    EXPECT_EQ(parser.GetOSDT().size(), 1u);
    return parser.GetOSDT().front();
}

const char kFullList[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- two services -->
<oipf:IPServiceList xmlns:oipf="urn:oipf" xmlns:tva="urn:tva" xmlns:casd="urn:casd" version="7">
  <IPService>
    <UniqueIdentifier ServiceName="news24" DomainName="tv.example.com"/>
    <ServiceLocation>
      <casd:DRMControlInformation>
        <DRMSystemID>urn:dvb:casystemid:19188</DRMSystemID>
        <DRMContentID>news-24</DRMContentID>
        <RightsIssuerURL>https://ri.example.com/</RightsIssuerURL>
        <SilentRightsURL>https://ri.example.com/silent</SilentRightsURL>
        <PreviewRightsURL>https://ri.example.com/preview</PreviewRightsURL>
        <DoNotRecord>true</DoNotRecord>
        <DoNotTimeShift> 1 </DoNotTimeShift>
        <DRMGenericData kind="lost">a&amp;b<Key id="k1">&lt;7&gt;</Key><!--c--></DRMGenericData>
        <DRMPrivateData><Blob/></DRMPrivateData>
      </casd:DRMControlInformation>
      <DRMControlInformation>)" "<DRMSystemID>second</DRMSystemID><DRMContentID>c2</DRMContentID><DRMGenericData/><DRMPrivateData/>" R"(</DRMControlInformation>
      <ContentAttributes>
        <AudioAttributes><tva:Coding href="urn:aac"><tva:Name>AAC</tva:Name></tva:Coding><tva:NumOfChannels> 6 </tva:NumOfChannels></AudioAttributes>
        <VideoAttributes><tva:Coding href="urn:avc"><tva:Name>H.264</tva:Name></tva:Coding></VideoAttributes>
      </ContentAttributes>
      <UriBasedLocation xsi:contentType="video/mp2t" other="x"><URI>rtp://239.1.1.1:5000</URI></UriBasedLocation>
    </ServiceLocation>
    <ServiceLocation/>
    <LCN LCN="65535" selectable="false"/>
    <TargetRegions>
      <RegionList CountryCodes="GBR,IRL">
        <PrimaryRegion><Region> London </Region><Subregion>Kent</Subregion><Subregion>Essex</Subregion></PrimaryRegion>
        <PrimaryRegion><Region>Dublin</Region></PrimaryRegion>
      </RegionList>
      <AccessibleOutOfRegion>false</AccessibleOutOfRegion>
    </TargetRegions>
    <ServiceName Language="eng">News 24</ServiceName>
    <ServiceName Language="tur">Haber 24</ServiceName>
  </IPService>
  <x:IPService><UniqueIdentifier ServiceName="second"/></x:IPService>
</oipf:IPServiceList>
)";

} // namespace

TEST(OSDTParser, FullList)
{
    zumtest::LogCapture log;
    TCOSDTParser parser;
    std::istringstream stream(kFullList);
    ASSERT_EQ(parser.Parse(stream), 1);
    ASSERT_EQ(parser.GetOSDT().size(), 2u);
    const TSIPService& s = parser.GetOSDT().front();
    EXPECT_EQ(s.uniqueId.serviceName, "news24");
    EXPECT_EQ(s.uniqueId.domainName, "tv.example.com");
    ASSERT_EQ(s.serviceLocations.size(), 2u);
    const TSServiceLocation& location = s.serviceLocations.front();
    ASSERT_EQ(location.drmControlInformation.size(), 2u);
    const TSDRMControlInformation& drm = location.drmControlInformation.front();
    EXPECT_EQ(drm.drmSystemId, "urn:dvb:casystemid:19188");
    EXPECT_EQ(drm.drmContentId, "news-24");
    EXPECT_EQ(drm.rightsIssuerUrl, "https://ri.example.com/");
    EXPECT_EQ(drm.silentRightsUrl, "https://ri.example.com/silent");
    EXPECT_EQ(drm.previewRightsUrl, "https://ri.example.com/preview");
    EXPECT_TRUE(drm.doNotRecord);
    EXPECT_TRUE(drm.doNotTimeShift);
    EXPECT_EQ(drm.drmGenericData, "a&amp;b<Key id=\"k1\">&lt;7&gt;</Key><!--c-->") << "own attributes lost";
    EXPECT_EQ(drm.drmPrivateData, "<Blob/>");
    EXPECT_EQ(location.drmControlInformation.back().drmSystemId, "second");
    const TSContentAttributes& content = location.contentAttributes;
    EXPECT_EQ(content.audioName, "AAC");
    EXPECT_EQ(content.audioHref, "urn:aac");
    EXPECT_EQ(content.audioNumOfChannels, 6u);
    EXPECT_EQ(content.videoName, "H.264");
    EXPECT_EQ(content.videoHref, "urn:avc");
    EXPECT_EQ(location.uriBasedLocation.contentType, "video/mp2t");
    EXPECT_EQ(location.uriBasedLocation.uri, "rtp://239.1.1.1:5000");
    EXPECT_TRUE(s.serviceLocations.back().drmControlInformation.empty());
    EXPECT_EQ(s.lcn.lcn, 65535);
    EXPECT_FALSE(s.lcn.selectable);
    ASSERT_EQ(s.targetRegions.regionLists.size(), 1u);
    const TSRegionList& regions = s.targetRegions.regionLists.front();
    EXPECT_EQ(regions.countryCodes, "GBR,IRL");
    ASSERT_EQ(regions.primaryRegions.size(), 2u);
    EXPECT_EQ(regions.primaryRegions.front().regions, std::list<std::string>{" London "});
    EXPECT_EQ(regions.primaryRegions.front().subregions, (std::list<std::string>{"Kent", "Essex"}));
    EXPECT_EQ(regions.primaryRegions.back().regions, std::list<std::string>{"Dublin"});
    EXPECT_FALSE(s.targetRegions.accessibleOutOfRegion);
    EXPECT_EQ(s.serviceNames, (std::map<std::string, std::string>{{"eng", "News 24"}, {"tur", "Haber 24"}}));
    EXPECT_EQ(parser.GetOSDT().back().uniqueId.serviceName, "second") << "any prefix on a walked element";

    const std::vector<std::string> lines = log.Lines(3);
    EXPECT_EQ(lines.front(), "Parsing OSDT");
    EXPECT_EQ(log.Count("attr xmlns:oipf = urn:oipf"), 1);
    EXPECT_EQ(log.Count("attr version = 7"), 1);
    EXPECT_EQ(log.Count(""), 19) << "one trace line per record function";
    EXPECT_EQ(lines.size(), 1u + 4u + 19u);
}

TEST(OSDTParser, AbsentAndOddOptionalParts)
{
    struct Case {
        const char* what;
        std::string body;
        std::function<void(const TSIPService&)> check;
    };
    const std::vector<Case> cases = {
        {"no element at all", "", [](const TSIPService& s) {
             EXPECT_TRUE(s.uniqueId.serviceName.empty() && s.serviceLocations.empty() && s.serviceNames.empty());
             EXPECT_EQ(s.lcn.lcn, 0);
             EXPECT_FALSE(s.lcn.selectable);
             EXPECT_TRUE(s.targetRegions.regionLists.empty());
             EXPECT_TRUE(s.targetRegions.accessibleOutOfRegion);
         }},
        {"no DomainName", "<UniqueIdentifier ServiceName=\"a\"/>",
         [](const TSIPService& s) { EXPECT_EQ(s.uniqueId.domainName, ""); }},
        {"DRM optional children absent or no boolean",
         "<ServiceLocation>" + Drm("<DoNotRecord>yes</DoNotRecord><DoNotTimeShift>2</DoNotTimeShift>") + "</ServiceLocation>",
         [](const TSIPService& s) {
             const TSDRMControlInformation& d = s.serviceLocations.front().drmControlInformation.front();
             EXPECT_EQ(d.rightsIssuerUrl + d.silentRightsUrl + d.previewRightsUrl + d.drmGenericData, "");
             EXPECT_FALSE(d.doNotRecord || d.doNotTimeShift);
         }},
        {"video only; NumOfChannels not a number",
         "<ServiceLocation><ContentAttributes><AudioAttributes>" + Coding("mp2") +
             "<tva:NumOfChannels>stereo</tva:NumOfChannels></AudioAttributes><Other/></ContentAttributes>"
             "<ContentAttributes><VideoAttributes>" + Coding("hevc") + "</VideoAttributes></ContentAttributes></ServiceLocation>",
         [](const TSIPService& s) {
             const TSContentAttributes& c = s.serviceLocations.front().contentAttributes;
             EXPECT_EQ(c.audioName + c.audioHref, "") << "the later element overwrites all five fields";
             EXPECT_EQ(c.audioNumOfChannels, 0u);
             EXPECT_EQ(c.videoName, "hevc");
         }},
        {"no NumOfChannels", "<ServiceLocation><ContentAttributes><AudioAttributes>" + Coding("ac3") +
             "</AudioAttributes></ContentAttributes></ServiceLocation>",
         [](const TSIPService& s) {
             const TSContentAttributes& c = s.serviceLocations.front().contentAttributes;
             EXPECT_EQ(c.audioName, "ac3");
             EXPECT_EQ(c.audioNumOfChannels + c.videoName.size(), 0u);
         }},
        {"UriBasedLocation empty", "<ServiceLocation><UriBasedLocation><Other>x</Other></UriBasedLocation></ServiceLocation>",
         [](const TSIPService& s) {
             const TSUriBasedLocation& u = s.serviceLocations.front().uriBasedLocation;
             EXPECT_EQ(u.contentType + u.uri, "");
         }},
        {"no AccessibleOutOfRegion nor CountryCodes; a later TargetRegions replaces",
         "<TargetRegions><RegionList/><RegionList/></TargetRegions>"
         "<TargetRegions><AccessibleOutOfRegion>0</AccessibleOutOfRegion></TargetRegions>"
         "<TargetRegions><RegionList><PrimaryRegion/></RegionList><Other/></TargetRegions>",
         [](const TSIPService& s) {
             ASSERT_EQ(s.targetRegions.regionLists.size(), 1u);
             EXPECT_EQ(s.targetRegions.regionLists.front().countryCodes, "");
             EXPECT_TRUE(s.targetRegions.regionLists.front().primaryRegions.front().regions.empty());
             EXPECT_TRUE(s.targetRegions.accessibleOutOfRegion);
         }},
        {"first name of a language, last UniqueIdentifier and LCN",
         "<ServiceName Language=\"eng\">One</ServiceName><ServiceName Language=\"eng\">Two</ServiceName>"
         "<ServiceName Language=\"deu\"/><UniqueIdentifier ServiceName=\"a\" DomainName=\"d\"/>"
         "<UniqueIdentifier ServiceName=\"b\"/><LCN LCN=\"1\" selectable=\"1\"/><LCN LCN=\" 7 \" selectable=\"true\"/>",
         [](const TSIPService& s) {
             EXPECT_EQ(s.serviceNames, (std::map<std::string, std::string>{{"deu", ""}, {"eng", "One"}}));
             EXPECT_EQ(s.uniqueId.serviceName + "/" + s.uniqueId.domainName, "b/");
             EXPECT_EQ(s.lcn.lcn, 7);
             EXPECT_TRUE(s.lcn.selectable);
         }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        TCOSDTParser parser;
        ASSERT_EQ(Outcome(parser, List(Service(c.body))), "ok");
        c.check(Only(parser));
    }
}

TEST(OSDTParser, MalformedDocumentsThrowAndKeepTheFormerList)
{
    const std::string audio = "<ServiceLocation><ContentAttributes><AudioAttributes>";
    const std::string video = "<ServiceLocation><ContentAttributes><VideoAttributes>";
    const std::string end = "</ContentAttributes></ServiceLocation>";
    struct Case {
        std::string document;
        const char* outcome;
    };
    std::vector<Case> cases = {
        {"<IPServiceList><IPService></IPServiceList>", "bad xml"},
        {"text outside", "bad xml"},
        {List(Service("<UniqueIdentifier DomainName=\"d\"/>")), "bad path"},
        {List(Service("<LCN selectable=\"true\"/>")), "bad path"},
        {List(Service("<LCN LCN=\"1\"/>")), "bad path"},
        {List(Service("<LCN LCN=\"abc\" selectable=\"true\"/>")), "bad data"},
        {List(Service("<LCN LCN=\"65536\" selectable=\"true\"/>")), "bad data"},
        {List(Service("<LCN LCN=\"1\" selectable=\"yes\"/>")), "bad data"},
        {List(Service("<TargetRegions><AccessibleOutOfRegion>maybe</AccessibleOutOfRegion></TargetRegions>")), "bad data"},
        {List(Service("<ServiceName>News</ServiceName>")), "bad path"},
        {List(Service(audio + "<Coding href=\"h\"><tva:Name>n</tva:Name></Coding></AudioAttributes>" + end)), "bad path"},
        {List(Service(audio + "<tva:Coding><tva:Name>n</tva:Name></tva:Coding></AudioAttributes>" + end)), "bad path"},
        {List(Service(video + "<tva:Coding href=\"h\"><Name>n</Name></tva:Coding></VideoAttributes>" + end)), "bad path"},
        {List(Service(audio + Coding("a") + "</AudioAttributes>" + end) + Service("<LCN/>")), "bad path"},
    };
    // Each required DRM child missing in turn, then one with a prefix on a path element.
    for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{
             {"<DRMSystemID>sys</DRMSystemID>", ""}, {"<DRMContentID>cid</DRMContentID>", ""}, {"<DRMGenericData/>", ""},
             {"<DRMPrivateData/>", ""}, {"<DRMSystemID>sys</DRMSystemID>", "<x:DRMSystemID>sys</x:DRMSystemID>"}}) {
        std::string drm = Drm("");
        drm.replace(drm.find(from), from.size(), to);
        cases.push_back({List(Service("<ServiceLocation>" + drm + "</ServiceLocation>")), "bad path"});
    }
    TCOSDTParser parser;
    ASSERT_EQ(Outcome(parser, List(Service("<UniqueIdentifier ServiceName=\"kept\"/>"))), "ok");
    for (const Case& c : cases) {
        SCOPED_TRACE(c.document);
        EXPECT_EQ(Outcome(parser, c.document), c.outcome);
        EXPECT_EQ(Only(parser).uniqueId.serviceName, "kept");
    }
    std::istringstream failed(List(""));
    failed.setstate(std::ios::badbit);
    EXPECT_THROW(parser.Parse(failed), pt::xml_parser::xml_parser_error) << "a stream that cannot be read";
    EXPECT_EQ(Only(parser).uniqueId.serviceName, "kept");
}

TEST(OSDTParser, NestingDepthIsBounded)
{
    const auto nest = [](const std::string& open, const std::string& close, int depth) {
        std::string text;
        for (int i = 0; i < depth; ++i)
            text += open;
        for (int i = 0; i < depth; ++i)
            text += close;
        return text;
    };
    const std::string hidden = "<!--" + nest("<a>", "", 1000) + "--><![CDATA[" + nest("<a>", "", 1000) + "]]>";
    struct Case {
        std::string document;
        const char* outcome;
    };
    const std::vector<Case> cases = {
        {List(nest("<a>", "</a>", kMaxElementDepth - 1)), "ok"},
        {List(nest("<a>", "</a>", kMaxElementDepth)), "bad xml"},
        {List(nest("<a x='>'>", "</a >", kMaxElementDepth)), "bad xml"},
        {List(nest("<a\">", "</a\">", kMaxElementDepth)), "bad xml"},
        {nest("<a>", "", 1000000), "bad xml"},
        {List(nest("<a/>", "", 1000) + hidden + nest("<a\n>", "</a>", kMaxElementDepth - 1)), "ok"},
        {"<!DOCTYPE x [<!ENTITY [<a>]>]>" + List(nest("<a>", "</a>", kMaxElementDepth - 1)), "ok"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.document.substr(0, 60));
        TCOSDTParser parser;
        EXPECT_EQ(Outcome(parser, c.document), c.outcome);
    }
}

TEST(OSDTParser, UnknownNodesAndEmptyDocuments)
{
    zumtest::LogCapture log;
    TCOSDTParser parser;
    const std::string service = "<p:IPService a=\"1\"><!--c--><Extra/><ServiceLocation b=\"2\"><ContentAttributes>"
                                "<Extra/></ContentAttributes></ServiceLocation></p:IPService>";
    ASSERT_EQ(Outcome(parser, "<Other/>" + List(service + "<Extra/>") + "<IPServiceList>" + Service("") + "</IPServiceList>"), "ok");
    EXPECT_EQ(parser.GetOSDT().size(), 2u) << "several lists add up";
    for (const auto& [line, count] : std::map<std::string, int>{{"[FAT] unexpected node <xmlattr>", 2},
                                                                 {"[FAT] unexpected node <xmlcomment>", 1},
                                                                 {"[FAT] unexpected node Extra", 2},
                                                                 {"[MAJOR]unexpected node Extra", 1}})
        EXPECT_EQ(log.Count(line), count) << line;
    EXPECT_EQ(log.Lines(), log.Lines(3)) << "all at debug level";

    for (const char* empty : {"", " \n", "<?xml version=\"1.0\"?><Other><IPServiceList/></Other>"}) {
        ASSERT_EQ(Outcome(parser, List(Service(""))), "ok");
        ASSERT_EQ(Outcome(parser, empty), "ok");
        EXPECT_TRUE(parser.GetOSDT().empty()) << empty;
    }
}

TEST(OSDTParser, Matches)
{
    struct Case {
        const char* key;
        const char* name;
        bool result;
    };
    for (const Case& c : std::vector<Case>{{"LCN", "LCN", true}, {"a:LCN", "LCN", true}, {"a:b:LCN", "LCN", true},
                                           {"lcn", "LCN", false}, {"LCN:", "LCN", false}, {"a:LCNx", "LCN", false},
                                           {"<xmlattr>", "xmlattr", false}, {"", "", true}, {":", "", true}})
        EXPECT_EQ(matches(c.key, c.name), c.result) << c.key << " " << c.name;
}
