#pragma once

#include <libxml/tree.h>

#include <string>
#include <vector>

namespace bench {

/// The content of a project file as plain data, without white space between elements: what
/// a program without a model would have in memory before it saves.
class PlainTree
{
public:
    explicit PlainTree(const xmlDoc* doc);

    /// The same as a document, the plainest way; the caller releases it.
    xmlDoc* Build() const;

private:
    enum Kind
    {
        kOpen,
        kAttribute,
        kText,
        kComment,
        kClose
    };
    struct Step
    {
        Kind kind;
        std::size_t name;  ///< where it begins in `m_texts`
        std::size_t value; ///< the same
    };

    void TakeElement(const xmlNode* element);
    void TakeChild(const xmlNode* child);
    void Add(Kind kind, const xmlChar* name, const xmlChar* value);
    std::size_t Keep(const xmlChar* text);
    const xmlChar* TextAt(std::size_t position) const;

    std::vector<Step> m_steps;
    std::string m_texts; ///< each ended by a zero
};

} // namespace bench
