#pragma once

#include "xml/XmlPtr.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantrel {

/// The part of an element that an object has no members for, kept so that a save loses nothing.
class KeptContent
{
public:
    using Names = std::initializer_list<std::string_view>;

    /// Keeps copies of the attributes and children of `element`, but for those of these names and
    /// for the white space between elements.
    void Load(const xmlNode* element, Names knownAttributes, Names knownChildren);

    /// Adds what is kept to `element`, and calls `saveKnown` where the known children stood: before
    /// all others when there were none.
    template <class SaveKnown>
    void Save(xmlNode* element, SaveKnown saveKnown) const
    {
        SaveAttributes(element);
        SaveChildren(element, 0, m_knownPlace);
        saveKnown();
        SaveChildren(element, m_knownPlace, m_children.size());
    }

    bool IsEmpty() const { return m_attributes.empty() && m_children.empty(); }

private:
    void SaveAttributes(xmlNode* element) const;
    void SaveChildren(xmlNode* element, std::size_t from, std::size_t to) const;

    std::vector<std::pair<std::string, std::string>> m_attributes;
    std::vector<XmlNodePtr> m_children;
    std::size_t m_knownPlace = 0; ///< how many children stood before the known ones
};

} // namespace vantrel
