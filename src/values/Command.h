#pragma once

#include "disc/DSCommandList.h"
#include "values/Nodes.h"

#include <iterator>
#include <memory>
#include <string>

namespace vantrel {

class Button;
class Menu;
class Title;

/// What a command does. A file may bring a number that none of these has.
enum class CommandCode : std::int32_t
{
    none,
    playTitleFromChapter, ///< a title and a chapter
    playMenu,             ///< a menu and a button
    stopPlayback,
    setSubpictureStream,
    transition,
    playClip,
    playAllTitles,
    playMenuTitles,
    playNextTitle,
};

/// One playback instruction of the finished disc.
class Command : public NodeHandle<CDiscCommandNode, eNodeCommand>
{
public:
    using NodeHandle::NodeHandle;

    CommandCode code() const { return static_cast<CommandCode>(Params().code); }
    long param1() const { return Params().param1; }
    long param2() const { return Params().param2; }
    Status set(CommandCode code, long param1 = 0, long param2 = 0) const
    {
        return Put(&CDiscCommandNode::SetCommandParams,
                   DiscCommandParams{ static_cast<std::int32_t>(code), param1, param2 });
    }

    /// The element name of the code; empty for a code without one.
    std::string name() const
    {
        const std::int32_t code = object() ? Params().code : 0;
        return code >= 0 && code < std::ssize(arCmdTags) ? std::string(arCmdTags[code]) : "";
    }

    /// @name What is played
    /// Defined in values/Project.h.
    /// @{
    /// The title of "PlayTitleFromChapter": the one with that ID, or else of that number from 1.
    Title title() const;
    /// Its chapter, from 1; 0 for any other command.
    long chapter() const { return code() == CommandCode::playTitleFromChapter ? param2() : 0; }
    /// The menu of "PlayMenu", and the button that is selected there, if one is named.
    Menu menu() const;
    Button button() const;
    /// @}

private:
    DiscCommandParams Params() const
    {
        DiscCommandParams params;
        params.code = 0;
        if (object())
            (void)object()->GetCommandParams(params); // can't fail
        return params;
    }
};

/// The commands of a project, a title, a menu or a button, in order.
class Commands : public Nodes<Command>
{
public:
    Commands() = default;
    Commands(CDSCommandList* list) : Nodes(list), m_list(list) {}
    static constexpr eNodeType kType = eNodeCommands;
    using Object = CDSCommandList;

    explicit operator bool() const { return m_list != nullptr; }
    CDSCommandList* object() const { return m_list; }

    /// Appends a command. Empty when there is no list.
    Command add(CommandCode code, long param1 = 0, long param2 = 0) const
    {
        const auto added = detail::Adopt<Command>(m_list, std::make_unique<CDiscCommandNode>());
        (void)added.set(code, param1, param2); // an empty one takes nothing
        return added;
    }
    /// Releases one of these commands.
    Status remove(Command command) const { return detail::Remove(m_list, command.object()); }
    Status move(Command command, int position) const
    {
        return detail::Move(m_list, command.object(), position);
    }

private:
    CDSCommandList* m_list = nullptr; ///< not owned
};

} // namespace vantrel

template <>
inline constexpr bool std::ranges::enable_borrowed_range<vantrel::Commands> = true;
