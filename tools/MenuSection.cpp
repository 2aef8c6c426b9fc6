#include "Sections.h"

using std::string;
using namespace vantrel;

namespace tool {

namespace {

void AddElements(Json& facts, CProjectNode* elements)
{
    facts["texts"] = TextFacts(elements);
    facts["overlays"] = OverlayFacts(elements);
}

Json LinkFacts(CDSMenuButton& button)
{
    ButtonLinks none;
    ButtonLinks* links = &none;
    (void)button.get_ButtonLinks(&links); // a child that every button has
    return { { "left", links->left },
             { "right", links->right },
             { "upper", links->upper },
             { "lower", links->lower } };
}

Json ButtonFacts(CDSMenuButton& button)
{
    using B = CDSMenuButton;
    float x = 0.0F;
    float y = 0.0F;
    (void)button.GetPosition(&x, &y); // a button has one
    FloatRect region;
    bool valid = false;
    (void)button.get_ActiveRegion(&region, &valid); // a child that every button has

    Json facts{ { "id", button.GetID() } };
    facts["label"] = Ask<string>(button, &B::get_Label);
    facts["tag"] = AskFlags(button, &B::get_Tag, FormatButtonTag);
    facts["position"] = PointFact(x, y);
    facts["links"] = LinkFacts(button);
    facts["activeRegion"] = valid ? RectFact(region) : Json();
    facts["scheme"] = Ask<long>(button, &B::get_ButtonScheme);
    facts["style"] = Ask<string>(button, &B::get_ButtonStyle);
    FloatRect highlight;
    facts["highlightRegion"] =
        button.GetHighlightRegion(&highlight) == status::kOk ? RectFact(highlight) : Json();
    facts["commands"] = CommandFacts(button.FindChildByType(eNodeCommands, ""));
    AddElements(facts, button.FindChildByType(eNodeElements, ""));
    return facts;
}

Json TemplateFact(const CDSMenu& menu)
{
    string path;
    bool missing = false;
    if (menu.GetTemplateFile(&path, &missing) != vantrel::status::kOk)
        return {};
    return { { "path", path }, { "missing", missing } };
}

Json Facts(CDSMenu& menu)
{
    using M = CDSMenu;
    Json facts;
    facts["id"] = Ask<long>(menu, &M::get_ID);
    facts["label"] = Ask<string>(menu, &M::get_Label);
    facts["tag"] = AskFlags(menu, &M::get_Tag, FormatMenuTag);
    facts["flags"] = AskFlags(menu, &M::get_Flags, FormatMenuFlag);
    facts["native"] = menu.IsNative();
    facts["background"] = Ask<string>(menu, &M::get_Background);
    facts["templateFile"] = TemplateFact(menu);
    facts["audio"] = Ask<string>(menu, &M::get_Audio);
    facts["duration"] = NumberFact(Ask<double>(menu, &M::get_Duration));
    facts["templateID"] = Ask<long>(menu, &M::get_TemplateID);
    facts["defaultButton"] = Ask<long>(menu, &M::get_DefaultButton);
    facts["commands"] = CommandFacts(menu.FindChildByType(eNodeCommands, ""));
    facts["encoding"] = EncodingFacts(menu.FindChildByType(eNodeEncoding, ""));
    CProjectNode* elements = menu.FindChildByType(eNodeElements, "");
    facts["buttons"] = EachChild<CDSMenuButton>(elements, ButtonFacts);
    AddElements(facts, elements);
    facts["storyboard"] = StoryboardOf(menu);
    return facts;
}

string Reference(const Json& id)
{
    return id == 0 ? "" : id.dump();
}

string RegionText(const Json& region)
{
    return region.is_null() ? "" : RectText(region);
}

string LinkText(const Json& links)
{
    std::vector<string> texts;
    for (const auto& [way, button] : links.items()) {
        if (button != 0)
            texts.push_back(way + ' ' + button.dump());
    }
    return List(texts);
}

void ShowButton(Page& page, const Json& button)
{
    page.Nested(
        0, Numbered("Button", button["id"].dump()),
        List({ button["label"], NamesOf(button["tag"]), "scheme " + button["scheme"].dump() }) +
            " at " + PointText(button["position"]));
    page.Nested(1, "Links", LinkText(button["links"]));
    page.Nested(1, "Active", RegionText(button["activeRegion"]));
    page.Nested(1, "Highlight", RegionText(button["highlightRegion"]));
    page.Nested(1, "Commands", CommandText(button["commands"]));
    ShowElements(page, 1, button);
}

} // namespace

Json MenuFacts(CProjectNode* list)
{
    return EachChild<CDSMenu>(list, Facts);
}

void ShowMenus(Page& page, const Json& menus)
{
    if (menus.empty())
        return;
    page.Heading("Menus");
    for (const Json& menu : menus) {
        page.Entry(menu["id"].dump(), string(menu["label"]));
        page.Detail("Tag", List({ NamesOf(menu["tag"]), NamesOf(menu["flags"]),
                                  menu["native"] ? "native" : "" }));
        page.Detail("Template", Reference(menu["templateID"]));
        page.Detail("Background", string(menu["background"]));
        if (const Json& file = menu["templateFile"]; file.is_object() && file["missing"])
            page.Detail("Missing", string(file["path"]) + ", the template of its storyboard");
        page.Detail("Audio", string(menu["audio"]));
        page.Detail("Duration", NumberText(menu["duration"]) + " s");
        page.Detail("Encoding", EncodingText(menu["encoding"]));
        page.Detail("Commands", CommandText(menu["commands"]));
        page.Detail("Default", Reference(menu["defaultButton"]));
        ShowElements(page, 0, menu);
        for (const Json& button : menu["buttons"])
            ShowButton(page, button);
        ShowStoryboard(page, menu["storyboard"]);
    }
}

} // namespace tool
