#include "Sections.h"

using std::string;
using namespace vantrel;

namespace tool {

namespace {

Json CompressionFact(const CDSProjectData& project)
{
    bool value = false;
    return project.get_DoCompression(&value) == status::kOk ? Json(value) : Json();
}

void AddSettings(Json& facts, CDSProjectData& project)
{
    using P = CDSProjectData;
    facts["label"] = Ask<string>(project, &P::get_Label);
    facts["name"] = Ask<string>(project, &P::get_DisplayName);
    facts["discFormat"] = AskEnum<DiscFormat>(project, &P::get_DiscFormat);
    facts["discSize"] = AskEnum<DiscSizeEnum>(project, &P::get_DiscSize);
    facts["tvStandard"] = AskEnum<TVStandard>(project, &P::get_TVStandard);
    facts["discVideoType"] = AskEnum<DiscVideoType>(project, &P::get_DiscVideoType);
    facts["options"] = AskFlags(project, &P::get_Options, FormatProjectOptions);
    facts["themeSource"] = Ask<string>(project, &P::get_ThemeSource);
    facts["fitToDisc"] = Ask<bool>(project, &P::get_FitToDisc);
    facts["onDiscProject"] = Ask<bool>(project, &P::get_IsOnDisc);
    facts["doCompression"] = CompressionFact(project);
    facts["onDiscSizeKB"] = Ask<unsigned long>(project, &P::get_OnDiscSize);
    facts["remainingCaptures"] = Ask<long>(project, &P::get_RemainingCaptures);
}

string ContentsText(const Json& counts)
{
    return List({ Count(counts["titles"], "title"), Count(counts["menus"], "menu"),
                  Count(counts["dataFiles"], "data file"), Count(counts["commands"], "command") });
}

} // namespace

Json ProjectFacts(CDSProjectData& project, const string& path, unsigned long version)
{
    Json facts = { { "file", path }, { "version", version } };
    AddSettings(facts, project);
    facts["counts"] = Json::object();
    facts["encoding"] = EncodingFacts(project.GetChild(ProjectChild::Encoding));
    facts["commands"] = CommandFacts(project.GetChild(ProjectChild::Commands));
    facts["titles"] = TitleFacts(project.GetChild(ProjectChild::Titles));
    facts["menus"] = MenuFacts(project.GetChild(ProjectChild::Menus));
    facts["dataFiles"] = DataFileFacts(project.GetChild(ProjectChild::DataFiles));
    for (const char* list : { "titles", "menus", "dataFiles", "commands" })
        facts["counts"][list] = facts[list].size();
    return facts;
}

void ShowProject(Page& page, const Json& project)
{
    const string label = project["label"];
    page.Heading(label.empty() ? "(no label)" : label);
    page.Field("File", string(project["file"]));
    page.Field("Version", project["version"].dump());
    page.Field("Disc", List({ NameOf(project["discFormat"]), NameOf(project["discSize"]),
                              NameOf(project["tvStandard"]), NameOf(project["discVideoType"]) }));
    page.Field("Theme", string(project["themeSource"]));
    page.Field("Options",
               List({ NamesOf(project["options"]), project["fitToDisc"] ? "fitted to the disc" : "",
                      project["onDiscProject"] ? "project on disc" : "" }));
    page.Field("Holds", ContentsText(project["counts"]));
    page.Field("Commands", CommandText(project["commands"]));
    ShowEncoding(page, project["encoding"]);
    ShowTitles(page, project["titles"]);
    ShowMenus(page, project["menus"]);
    ShowDataFiles(page, project["dataFiles"]);
}

} // namespace tool
