#pragma once

#include "core/Status.h"
#include "xml/KeptXmlPtr.h"
#include "xml/XmlPtr.h"

/// XML subtrees that objects keep, from a load to the saves that follow.
///
/// What is kept depends on nothing of the document that it came from. Prefixed names are plain
/// names with the prefix in them ("dt:dt"), so that a kept subtree carries no namespace declaration
/// of its own: the one on the root of the file serves it when it is written. A prefix that the root
/// doesn't declare gets its declaration at the top. Entity references become the text that they
/// stand for.
namespace vantrel {

/// Keeps `node` of a document that is read: takes it while the document is given away, an `XmlGift`,
/// and copies it otherwise. Null gives null.
KeptXmlPtr KeepXml(xmlNode* node);

/// A deep copy of `node`. Null gives null.
XmlNodePtr CopyXml(const xmlNode* node);

/// Takes an element out of its document, so that it depends on nothing of it and may outlive it. All
/// nodes stay what and where they are, for whoever points at them; a reference to an entity becomes
/// the text that it stands for. Gives `status::kNoMemory`, with nothing changed, when that fails.
Status DetachXml(xmlNode* node);

/// Takes `node` out of its document and keeps it. Nothing is copied unless namespaces or entities
/// ask for it: the subtree becomes the root of a document of its own, which shares the dictionary
/// that holds its names. Null gives null.
KeptXmlPtr TakeXml(xmlNode* node);

/// Hangs a deep copy of `node` under `parent` as its last child.
Status AppendXmlCopy(xmlNode* parent, const xmlNode* node);

/// Writes a kept subtree as the last child of `parent`: lent to the document for the time of an
/// `XmlLoan`, and copied otherwise.
Status AppendKeptXml(xmlNode* parent, const KeptXmlPtr& kept);

/// Tells those who read a document that it is released afterwards, so that they may take out of it
/// what they keep. Lives no longer than the document.
class XmlGift
{
public:
    explicit XmlGift(xmlDoc* doc);
    ~XmlGift();
    XmlGift(const XmlGift&) = delete;
    XmlGift& operator=(const XmlGift&) = delete;

private:
    xmlDoc* m_doc; ///< not owned
};

/// Lets kept subtrees be lent to a document that is saved and released at once, so that a save need
/// not copy them. Lives between the making of the document, whose `_private` and `psvi` it needs,
/// and its release, and hands everything back. While it lives, nothing may be moved in the document,
/// and no lender may go. The document gets a dictionary, if it has none.
class XmlLoan
{
public:
    explicit XmlLoan(xmlDoc* doc);
    ~XmlLoan();
    XmlLoan(const XmlLoan&) = delete;
    XmlLoan& operator=(const XmlLoan&) = delete;

private:
    xmlDoc* m_doc; ///< not owned
};

} // namespace vantrel
