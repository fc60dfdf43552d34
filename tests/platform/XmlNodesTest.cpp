// Child nodes as both DOMs count them.
#include "platform/xml/XmlDocument.h"

#include <string>

#include "platform/framework/CString.h"

#include <gtest/gtest.h>

namespace {

// The root's nodes: an element by its name, anything else as "-".
std::string Nodes(const std::string& inner) {
  const std::string file = "<r>" + inner + "</r>";
  tq::XmlDocument document;
  EXPECT_TRUE(document.Load(file.data(), file.size())) << file;
  std::string nodes;
  for (const tq::XmlElement& node : document.Root().ChildNodes()) {
    CString name = "-";
    node.Name(name);
    nodes += (nodes.empty() ? "" : " ") + std::string(name);
  }
  return nodes;
}

TEST(XmlNodes, ElementsStandInDocumentOrder) {
  EXPECT_EQ(Nodes(""), "");
  EXPECT_EQ(Nodes("<a/><b><c/></b><a/>"), "a b a");
}

TEST(XmlNodes, LayoutIsNoNode) {
  EXPECT_EQ(Nodes("\n\t<a/>\r\n  <b/> \n"), "a b");
  EXPECT_EQ(Nodes(" \n "), "");
}

TEST(XmlNodes, WhatIsNoElementCountsOnce) {
  EXPECT_EQ(Nodes("<!-- c --><a/>"), "- a");
  EXPECT_EQ(Nodes("<!-- c --> <!-- d --><a/>"), "- - a");
  EXPECT_EQ(Nodes("<?target data?><a/>"), "- a");
  EXPECT_EQ(Nodes("text<a/>more"), "- a -");
  EXPECT_EQ(Nodes("<![CDATA[text]]><a/>"), "- a");
}

TEST(XmlNodes, TextWithReferencesIsOneNode) {
  EXPECT_EQ(Nodes("a&amp;b&#65;c &lt; d<a/>"), "- a");
}

TEST(XmlNodes, TextAndCdataBesideEachOtherAreTwo) {
  EXPECT_EQ(Nodes("x<![CDATA[y]]><a/>"), "- - a");
}

TEST(XmlNodes, NoElementHasNone) {
  EXPECT_TRUE(tq::XmlElement().ChildNodes().empty());
}

} // namespace
