#include "Sections.h"

namespace tool {

namespace {

Json Facts(const CProjectNode& menu)
{
    return { { "id", menu.GetID() } };
}

} // namespace

Json MenuFacts(CProjectNode* list)
{
    return EachChild<CProjectNode>(list, Facts);
}

void ShowMenus(Page& page, const Json& menus)
{
    if (menus.empty())
        return;
    page.Heading("Menus");
    for (const Json& menu : menus)
        page.Entry(menu["id"].dump(), "");
}

} // namespace tool
