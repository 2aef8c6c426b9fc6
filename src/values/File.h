#pragma once

#include "core/Message.h"
#include "project/DSFileService.h"
#include "values/Project.h"
#include "values/Result.h"

#include <string>

/// @file
/// A project's way from a file and into one. Nothing is printed: what is wrong stands in the result.

namespace vantrel {

namespace detail {

/// Keeps the first message that names a place in a file.
class FirstProblem
{
public:
    FirstProblem() : m_scope(&FirstProblem::Take, this) {}

    Error With(Status result, const std::string& path, const char* step) const
    {
        const bool hasPlace = m_line > 0;
        return { .status = result,
                 .words = hasPlace ? m_words : Describe(result),
                 .path = path,
                 .step = step,
                 .line = m_line,
                 .column = m_column };
    }

private:
    static void Take(const Message& message, void* self) noexcept
    {
        auto& problem = *static_cast<FirstProblem*>(self);
        if (problem.m_line > 0 || message.line <= 0)
            return;
        problem.m_line = message.line;
        problem.m_column = message.column;
        problem.m_words = message.words;
    }

    std::string m_words;
    int m_line = 0;
    int m_column = 0;
    MessageScope m_scope;
};

} // namespace detail

/// Loads the project file at `path`. Only a file that can't be read at all, is no XML or too old
/// gives an error; what is wrong in single elements spoils no more than those.
inline Result<OwnedProject> Load(const std::string& path)
{
    const detail::FirstProblem problem;
    OwnedProject project;
    const Status loaded = CDSFileService().LoadProject(path.c_str(), project.object());
    if (Failed(loaded))
        return problem.With(loaded, path, "load");
    return project;
}

/// Saves a project as `path`, whole: until all of it is written the old file stays as it was, and it
/// stays on any failure.
inline Result<void> Save(Project project, const std::string& path)
{
    const detail::FirstProblem problem;
    const Status saved = CDSFileService().SaveProjectAtomic(path, project.object());
    if (Failed(saved))
        return problem.With(saved, path, "save");
    return {};
}

/// The same for what a load gave: the load's own error when it failed.
inline Result<void> Save(const Result<OwnedProject>& project, const std::string& path)
{
    return project ? Save(project->view(), path) : project.error();
}

} // namespace vantrel
