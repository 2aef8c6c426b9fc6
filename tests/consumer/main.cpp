// Touches every family of exported classes from outside, through the installed headers and the
// shared library alone: what lacks its export fails to link here.

#include <Vantrel.h>

#include "core/PathUtils.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

/// Ends the program with a message when a fact doesn't hold, also in builds without `assert`.
void Require(bool holds, const char* fact)
{
    if (!holds) {
        std::fprintf(stderr, "consumer: not so: %s\n", fact);
        std::exit(1);
    }
}

void UseVersion()
{
    Require(VantrelVersionNumber == 1.0, "the version is 1.0");
    const char* text = reinterpret_cast<const char*>(VantrelVersionString);
    Require(std::strstr(text, "PROJECT:Vantrel-1\n") != nullptr, "the version's text names it");
}

void UsePaths()
{
    std::string name;
    Require(Utils::GetDirectoryAndFileName("/a/b.xml", nullptr, &name, nullptr), "a path splits");
    Require(name == "b", "the name is without directory and extension");
    std::string path = "/a/Content/b.xml";
    Utils::GetContentPath(&path);
    Require(path == "/a/Content/", "the content path ends there");
}

void UseXml()
{
    const vantrel::XmlDocPtr doc(xmlReadMemory("<a><b/></a>", 11, nullptr, nullptr, 0));
    xmlNode* root = xmlDocGetRootElement(doc.get());
    unsigned char name[] = "b";
    Require(vantrel::AsNode(root)->selectSingleNode(name) == root->children, "a node walks");
    Require(vantrel::AsElement(root)->selectSingleNode(name) == root->children, "an element too");
}

} // namespace

int main()
{
    UseVersion();
    UsePaths();
    UseXml();
    std::puts("consumer: all families answer");
}
