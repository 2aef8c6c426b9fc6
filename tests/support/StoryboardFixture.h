#pragma once

#include "storyboard/QZBaseSBD.h"
#include "support/XmlFixture.h"
#include "xml/KeptXml.h"
#include "xml/XMLHelpers.h"
#include "xml/XmlFile.h"

#include <optional>
#include <string>

/// The element of a storyboard in a file that has one title.
inline _xmlNode* StoryboardIn(xmlDoc* doc)
{
    return vantrel::FindChildElement(
        vantrel::FindChildElement(xmlDocGetRootElement(doc), "Productions"), "Title0001");
}

/// A file of one storyboard; its kept subtrees are lent to it, or copied.
inline std::string SavedFile(CQZBaseSBD& sbd, bool lend = true)
{
    _xmlDoc* doc = nullptr;
    EXPECT_EQ(XMLHelpers<void>::CreateDocument(&doc), vantrel::status::kOk);
    const vantrel::XmlDocPtr owner{ doc };
    std::optional<vantrel::XmlLoan> loan;
    if (lend)
        loan.emplace(doc);
    _xmlNode* productions = nullptr;
    _xmlNode* title = nullptr;
    XMLHelpers<void>::SaveNode(xmlDocGetRootElement(doc), "Productions", "", "", "", &productions);
    XMLHelpers<void>::SaveNode(productions, "Title0001", "", "", "", &title);
    EXPECT_EQ(sbd.SaveProductionToXML(title), vantrel::status::kOk);
    std::string bytes;
    EXPECT_TRUE(vantrel::SerializeXml(doc, &bytes));
    return bytes;
}

/// Loads the storyboard of a file, which is gone afterwards.
inline void LoadFile(CQZBaseSBD& sbd, std::string_view file)
{
    const XmlText xml{ file };
    EXPECT_EQ(sbd.LoadProductionFromXML(StoryboardIn(xml.doc())), vantrel::status::kOk);
}

/// Reads an object, or writes it, as the content of an element of its own.
inline void ReadObject(CPersistObject& object, std::string_view text)
{
    const XmlText xml{ text };
    EXPECT_EQ(object.LoadXML(xml.root()), vantrel::status::kOk);
}

inline std::string WrittenObject(CPersistObject& object)
{
    const EmptyXml xml{ "O" };
    EXPECT_EQ(object.SaveXML(xml.root()), vantrel::status::kOk);
    return TextOf(xml.root());
}
