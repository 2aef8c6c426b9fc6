#pragma once

#include "core/Export.h"
#include "xml/KeptXmlPtr.h"
#include "xml/PersistObject.h"

#include <string>

/// A group of panels, "group" in the file. What a file holds beyond these five is kept as it stands.
class VANTREL_API CGroupObject : public CPersistObject
{
public:
    /// Copies the group's data out. Any argument may be null. Always `status::kOk`.
    vantrel::Status GetGroupInfo(long* id, long* start, long* end, std::string* name,
                                 std::string* description) const;
    vantrel::Status SetGroupInfo(long id, long start, long end, std::string name,
                                 std::string description);

    vantrel::Status PersistXML(_xmlNode* node, bool save) override;

    /// The element as it was read or set, without "key" and "type"; null when it has nothing else. As
    /// that of a transition.
    _xmlNode* GetContent() const { return m_content.get(); }
    vantrel::Status SetContent(_xmlNode* element);

    long m_id = 0;
    long m_start = 0; ///< panel number
    long m_end = 0;   ///< panel number; the storyboard has at least so many panels
    std::string m_name;
    std::string m_description;

private:
    vantrel::KeptXmlPtr m_content;
};
