#include "Sections.h"

using std::string;

namespace tool {

namespace {

Json Facts(CDSTitle& title)
{
    using T = CDSTitle;
    Json facts;
    facts["id"] = Ask<long>(title, &T::get_ID);
    facts["label"] = Ask<string>(title, &T::get_Label);
    facts["tag"] = AskFlags(title, &T::get_Tag, FormatTitleTag);
    facts["flags"] = Ask<unsigned long>(title, &T::get_Flags);
    facts["discIndex"] = Ask<long>(title, &T::get_DiscIndex);
    facts["stillWaitSecs"] = Ask<long>(title, &T::get_StillWaitTime);
    facts["vobDuration"] = Ask<unsigned long>(title, &T::get_VOBDuration);
    facts["vobSize"] = Ask<double>(title, &T::get_VOBSize);
    facts["commands"] = CommandFacts(title.FindChildByType(eNodeCommands, ""));
    facts["encoding"] = EncodingFacts(title.FindChildByType(eNodeEncoding, ""));
    facts["storyboard"] = StoryboardOf(title);
    return facts;
}

} // namespace

Json TitleFacts(CProjectNode* list)
{
    return EachChild<CDSTitle>(list, Facts);
}

void ShowTitles(Page& page, const Json& titles)
{
    if (titles.empty())
        return;
    page.Heading("Titles");
    for (const Json& title : titles) {
        page.Entry(title["id"].dump(), string(title["label"]));
        page.Detail("Tag", NamesOf(title["tag"]));
        page.Detail("Encoding", EncodingText(title["encoding"]));
        page.Detail("Commands", CommandText(title["commands"]));
        ShowStoryboard(page, title["storyboard"]);
    }
}

} // namespace tool
