#include "Sections.h"

#include <iterator>

namespace tool {

namespace {

Json Facts(const CDiscCommandNode& command)
{
    DiscCommandParams params;
    (void)command.GetCommandParams(params);
    const bool named = params.code >= 0 && params.code < std::ssize(arCmdTags);
    return { { "code", params.code },
             { "name", named ? arCmdTags[params.code] : "" },
             { "param1", params.param1 },
             { "param2", params.param2 } };
}

} // namespace

Json CommandFacts(CProjectNode* list)
{
    return EachChild<CDiscCommandNode>(list, Facts);
}

std::string CommandText(const Json& commands)
{
    std::vector<std::string> texts;
    for (const Json& command : commands) {
        const std::string name = command["name"];
        texts.push_back((name.empty() ? "command " + command["code"].dump() : name) + '(' +
                        command["param1"].dump() + ", " + command["param2"].dump() + ')');
    }
    return List(texts);
}

} // namespace tool
