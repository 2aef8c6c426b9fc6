#pragma once

#include "core/Export.h"
#include "storyboard/KeptContent.h"
#include "xml/PersistObject.h"

#include <string>

/// A group of panels. What a file holds beyond these five is kept for the next save.
class VANTREL_API CGroupObject : public CPersistObject
{
public:
    /// Copies the group's data out. Any argument may be null. Always `status::kOk`.
    vantrel::Status GetGroupInfo(long* id, long* start, long* end, std::string* name,
                                 std::string* description) const;
    vantrel::Status SetGroupInfo(long id, long start, long end, std::string name,
                                 std::string description);

    vantrel::Status PersistXML(_xmlNode* node, bool save) override;

    long m_id = 0;
    long m_start = 0; ///< panel number
    long m_end = 0;   ///< panel number; the storyboard has at least so many panels
    std::string m_name;
    std::string m_description;

private:
    vantrel::KeptContent m_content;
};
