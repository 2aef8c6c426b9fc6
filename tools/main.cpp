// The vantrel command: looks into project files and saves them anew.

#include "Page.h"
#include "ProjectFile.h"
#include "Sections.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>
#include <memory>
#include <string>
#include <vector>

namespace {

enum ExitStatus
{
    kDone = 0,
    kFileProblem = 1,
    kWrongUse = 2
};

struct Arguments
{
    std::vector<std::string> files; ///< of "info"
    bool json = false;
    std::string in, out; ///< of "save"
};

ExitStatus Complain(const std::string& path, const std::string& problem)
{
    std::fprintf(stderr, "vantrel: %s: %s\n", tool::Printable(path).c_str(),
                 tool::Printable(problem).c_str());
    return kFileProblem;
}

ExitStatus Print(const std::string& text)
{
    if (std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && !std::fflush(stdout))
        return kDone;
    return Complain("standard output", "can't be written");
}

tool::Json FactsOf(CDSProjectData& project, const std::string& path)
{
    const tool::OutputGuard guard(tool::OutputGuard::kNowhere);
    return tool::ProjectFacts(project, path, tool::FileVersion(path));
}

/// The report of one file.
ExitStatus Inform(const std::string& path, bool json, bool first)
{
    CDSProjectData project;
    const std::string problem = tool::Load(path, project);
    if (!problem.empty())
        return Complain(path, problem);

    const tool::Json facts = FactsOf(project, path);
    if (json)
        return Print(tool::Line(facts));
    tool::Page page;
    tool::ShowProject(page, facts);
    return Print((first ? "" : "\n") + page.text());
}

ExitStatus Info(const Arguments& arguments)
{
    ExitStatus result = kDone;
    for (const std::string& path : arguments.files) {
        if (Inform(path, arguments.json, &path == &arguments.files.front()) != kDone)
            result = kFileProblem;
    }
    return result;
}

ExitStatus Save(const Arguments& arguments)
{
    CDSProjectData project;
    std::string problem = tool::Load(arguments.in, project);
    if (!problem.empty())
        return Complain(arguments.in, problem);
    problem = tool::Save(arguments.out, project);
    return problem.empty() ? kDone : Complain(arguments.out, problem);
}

int Run(int argc, char** argv)
{
    Arguments arguments;
    CLI::App app{ "Looks into the project files of video discs and saves them anew.", "vantrel" };
    app.set_version_flag("--version", "vantrel " VANTREL_TOOL_VERSION);
    app.require_subcommand(1);
    app.footer("Exit status: 0 done, 1 a file had a problem, 2 wrong use.");

    CLI::App* info = app.add_subcommand("info", "Tell what projects hold");
    info->add_option("FILE", arguments.files, "Project or theme files")->required();
    info->add_flag("--json", arguments.json, "One JSON object a file, each on a line of its own");

    CLI::App* save = app.add_subcommand("save", "Load a project and save it");
    save->add_option("IN", arguments.in, "The project to load")->required();
    save->add_option("OUT", arguments.out, "Where to save it; may be IN")->required();

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? kDone : kWrongUse;
    }
    return *info ? Info(arguments) : Save(arguments);
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        return Complain("out of luck", error.what());
    }
}
