#include <gtest/gtest.h>
#include <string>
#include <tinyxml.h>

#include "TempDir.h"
#include "XmlFileLoader.h"

namespace {

struct DepthCase {
    const char* text;
    int depth;
};

class NestingDepthTest : public ::testing::TestWithParam<DepthCase> {};

TEST_P(NestingDepthTest, CountsOnlyElementNesting)
{
    EXPECT_EQ(CXmlFileLoader::NestingDepth(GetParam().text, 100), GetParam().depth);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, NestingDepthTest,
    ::testing::Values(DepthCase{"", 0}, DepthCase{"plain", 0}, DepthCase{"<a/>", 0},
                      DepthCase{"<a><b/><c></c></a>", 2}, DepthCase{"<a><b><c>", 3},
                      DepthCase{"<a x=\"<b>\" y='>'><c/></a>", 1},
                      DepthCase{"<?xml version=\"1.0\"?><!-- <a><a> --><r><![CDATA[<x><y>]]></r>", 1},
                      DepthCase{"<!DOCTYPE r><r></r></r></r><s>", 1}, DepthCase{"<<<<3 < 4", 0}));

TEST(XmlFileLoaderTest, RefusesDeepNestingBeforeParsing)
{
    std::string deep;
    for (int i = 0; i < 50000; ++i)
        deep += "<a>";
    EXPECT_GT(CXmlFileLoader::NestingDepth(deep, CXmlFileLoader::kMaxDepth), CXmlFileLoader::kMaxDepth);
    TiXmlDocument doc;
    EXPECT_FALSE(CXmlFileLoader::Parse(doc, deep));
    EXPECT_TRUE(doc.Error());
    EXPECT_EQ(doc.FirstChild(), nullptr);
}

TEST(XmlFileLoaderTest, LoadsLikeTinyXml)
{
    TempDir dir;
    dir.Write("a.xml", "<Setting>\r\n<UIConfig>\r<R value=\"85\"/></UIConfig></Setting>");
    TiXmlDocument doc;
    ASSERT_TRUE(CXmlFileLoader::Load(doc, dir.File("a.xml")));
    int value = 0;
    doc.RootElement()->FirstChildElement("UIConfig")->FirstChildElement("R")->QueryIntAttribute("value", &value);
    EXPECT_EQ(value, 85);

    TiXmlDocument missing;
    EXPECT_FALSE(CXmlFileLoader::Load(missing, dir.File("none.xml")));
    EXPECT_TRUE(missing.Error());
}

} // namespace
