#pragma once

#include "disc/DSProjectData.h"
#include "project/DSList.h"
#include "values/Bits.h"
#include "values/DataFile.h"
#include "values/Menu.h"
#include "values/Positions.h"
#include "values/Title.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace vantrel {

/// A whole disc project: its settings, titles, menus, data files, commands and encoding.
/// @code
///     for (const vantrel::Menu menu : project.menus())
///         for (const vantrel::Button button : menu.buttons())
///             Print(menu.label(), button.label());
/// @endcode
class Project : public NodeHandle<CDSProjectData, eNodeProject>
{
    using P = CDSProjectData;
    using At = position::InProject;

public:
    using NodeHandle::NodeHandle;

    /// @name Settings
    /// @{
    std::string label() const { return Ask(&P::get_Label); }
    Status label(std::string value) const { return Put(&P::put_Label, std::move(value)); }
    /// The project file's name without folder and extension; every save sets it.
    std::string name() const { return Ask(&P::get_DisplayName); }
    DiscFormat discFormat() const { return Ask(&P::get_DiscFormat); }
    Status discFormat(DiscFormat value) const { return Put(&P::put_DiscFormat, value); }
    DiscSizeEnum discSize() const { return Ask(&P::get_DiscSize); }
    Status discSize(DiscSizeEnum value) const { return Put(&P::put_DiscSize, value); }
    TVStandard tvStandard() const { return Ask(&P::get_TVStandard); }
    Status tvStandard(TVStandard value) const { return Put(&P::put_TVStandard, value); }
    DiscVideoType videoType() const { return Ask(&P::get_DiscVideoType); }
    Status videoType(DiscVideoType value) const { return Put(&P::put_DiscVideoType, value); }
    Bits<ProjectOption> options() const { return Bits<ProjectOption>(Ask(&P::get_Options)); }
    Status options(Bits<ProjectOption> bits) const { return Put(&P::put_Options, bits.number()); }
    std::string themeSource() const { return Ask(&P::get_ThemeSource); }
    Status themeSource(std::string value) const
    {
        return Put(&P::put_ThemeSource, std::move(value));
    }
    bool fitToDisc() const { return Ask(&P::get_FitToDisc); }
    Status fitToDisc(bool value) const { return Put(&P::put_FitToDisc, value); }
    bool isOnDisc() const { return Ask(&P::get_IsOnDisc); }
    Status isOnDisc(bool value) const { return Put(&P::put_IsOnDisc, value); }
    /// None for a project that isn't on disc.
    std::optional<bool> compression() const { return AskIf(&P::get_DoCompression); }
    Status compression(bool value) const { return Put(&P::put_DoCompression, value); }
    /// KB
    unsigned long onDiscSize() const { return Ask(&P::get_OnDiscSize); }
    Status onDiscSize(unsigned long value) const { return Put(&P::put_OnDiscSize, value); }
    long remainingCaptures() const { return Ask(&P::get_RemainingCaptures); }
    Status remainingCaptures(long value) const { return Put(&P::put_RemainingCaptures, value); }
    /// The version that a save stamps on the file.
    unsigned long version() const { return Ask(&P::get_Version); }
    /// @}

    /// @name Settings of the session, which no file holds
    /// @{
    std::string volumeName() const { return Ask(&P::get_VolumeName); }
    Status volumeName(std::string value) const { return Put(&P::put_VolumeName, std::move(value)); }
    /// The folder of the project file; every save sets it.
    std::string directory() const { return Ask(&P::get_ProjectDirectory); }
    Bits<Target> target() const { return Bits<Target>(Ask(&P::get_TargetType)); }
    Status target(Bits<Target> bits) const { return Put(&P::put_TargetType, bits.number()); }
    std::string imagePath() const { return Ask(&P::get_ImagePath); }
    Status imagePath(std::string value) const { return Put(&P::put_ImagePath, std::move(value)); }
    std::string targetDrive() const { return Ask(&P::get_TargetDrive); }
    Status targetDrive(std::string value) const
    {
        return Put(&P::put_TargetDrive, std::move(value));
    }
    /// @}

    /// @name What is in it
    /// @{
    Nodes<Title> titles() const { return Nodes<Title>(List(At::titles)); }
    Nodes<Menu> menus() const { return Nodes<Menu>(List(At::menus)); }
    Nodes<DataFile> dataFiles() const { return Nodes<DataFile>(List(At::dataFiles)); }
    Commands commands() const { return Child<Commands>(static_cast<int>(At::commands)); }
    Encoding encoding() const { return Child<Encoding>(static_cast<int>(At::encoding)); }

    /// The title, menu, data file, button, text or overlay of that ID; empty for none. Walks the
    /// whole project.
    Node find(long id) const;
    /// What holds `node`: the menu or button of an element, the project of a title, menu or data
    /// file, past the lists that they stand in; empty for what is no part of the project.
    Node parentOf(Node node) const;
    /// The title or menu whose storyboard that is; empty for none.
    Node parentOf(Storyboard storyboard) const;
    /// @}

    /// @name Making, taking out, moving
    /// What is made is the project's. What is taken out lives until the project goes, so that no
    /// handle of it dangles. Positions count from 0.
    /// @{
    Title addTitle(std::string label) const
    {
        auto title = std::make_unique<CDSTitle>();
        (void)title->FinalConstruct(); // can't fail
        (void)title->put_Label(std::move(label));
        return detail::Adopt<Title>(List(At::titles), std::move(title));
    }
    Menu addMenu(std::string label, Bits<MenuTag> tag = MenuTag::main) const
    {
        const auto added = detail::Adopt<Menu>(List(At::menus), std::make_unique<CDSMenu>());
        (void)added.label(std::move(label)); // an empty one takes nothing
        (void)added.tag(tag);
        return added;
    }
    DataFile addDataFile(std::string source, std::string destination) const
    {
        const auto added =
            detail::Adopt<DataFile>(List(At::dataFiles), std::make_unique<CDSDataFile>());
        (void)added.source(std::move(source)); // an empty one takes nothing
        (void)added.destination(std::move(destination));
        return added;
    }

    Status remove(Title title) const { return Remove(&P::RemoveTitle, title.object()); }
    Status remove(Menu menu) const { return Remove(&P::RemoveMenu, menu.object()); }
    Status remove(DataFile file) const { return Remove(&P::RemoveDataFile, file.object()); }

    Status move(Title title, int position) const
    {
        return detail::Move(List(At::titles), title.object(), position);
    }
    Status move(Menu menu, int position) const
    {
        return detail::Move(List(At::menus), menu.object(), position);
    }
    Status move(DataFile file, int position) const
    {
        return detail::Move(List(At::dataFiles), file.object(), position);
    }
    /// @}

private:
    CProjectNode* List(At position) const
    {
        return object() ? object()->GetChild(static_cast<int>(position)) : nullptr;
    }
    template <class Class>
    Status Remove(Status (P::*take)(long, Class*), Class* node) const
    {
        return object() && node ? (object()->*take)(0, node) : status::kNullPointer;
    }
};

/// A project that owns itself: an empty one, or what a load gave. Wherever a `Project` is asked for,
/// it stands for its view, which is good as long as the owner lives.
class OwnedProject : public Project
{
public:
    OwnedProject() : OwnedProject(std::make_unique<CDSProjectData>()) {}
    explicit OwnedProject(std::string label) : OwnedProject() { (void)Project::label(label); }
    /// Nothing at all: an empty handle.
    explicit OwnedProject(std::nullptr_t) {}
    explicit OwnedProject(std::unique_ptr<CDSProjectData> project)
        : Project(project.get()),
          m_project(std::move(project))
    {}
    /// What was moved from is empty.
    OwnedProject(OwnedProject&& other) noexcept
        : Project(std::exchange(static_cast<Project&>(other), {})),
          m_project(std::move(other.m_project))
    {}
    OwnedProject& operator=(OwnedProject&& other) noexcept
    {
        m_project = std::move(other.m_project);
        static_cast<Project&>(*this) = std::exchange(static_cast<Project&>(other), {});
        return *this;
    }

    Project view() const { return Project(object()); }

private:
    std::unique_ptr<CDSProjectData> m_project;
};

template <class Class, eNodeType Type>
Project NodeHandle<Class, Type>::project() const
{
    if constexpr (Type == eNodeProject)
        return Project(this->object());
    else
        return Node(*this).template above<Project>();
}

inline Menu Menu::templateMenu() const
{
    const long id = templateId();
    return id != 0 ? project().menus().find(id) : Menu();
}

inline Title Command::title() const
{
    if (code() != CommandCode::playTitleFromChapter)
        return {};
    const Nodes<Title> titles = project().titles();
    const Title title = titles.find(param1());
    return title ? title : titles.at(param1() - 1);
}

inline Menu Command::menu() const
{
    return code() == CommandCode::playMenu ? project().menus().find(param1()) : Menu();
}

inline Button Command::button() const
{
    return param2() != 0 ? menu().buttons().find(param2()) : Button();
}

namespace detail {

inline Node FindIn(Elements elements, long id)
{
    CProjectNode* node =
        elements ? elements.object()->FindChildByID(static_cast<unsigned long>(id), nullptr)
                 : nullptr;
    for (const Button button : elements.buttons()) {
        if (node)
            break;
        node = FindIn(button.elements(), id).object();
    }
    return node;
}

} // namespace detail

inline Node Project::find(long id) const
{
    for (const At list : { At::titles, At::menus, At::dataFiles }) {
        CProjectNode* nodes = List(list);
        if (CProjectNode* node =
                nodes ? nodes->FindChildByID(static_cast<unsigned long>(id), nullptr) : nullptr)
            return node;
    }
    for (const Menu menu : menus()) {
        if (const Node node = detail::FindIn(menu.elements(), id))
            return node;
    }
    return {};
}

inline Node Project::parentOf(Node node) const
{
    if (node.above<Project>() != *this)
        return {};
    const Node parent = node.parent();
    switch (parent.type()) {
    case eNodeTitles:
    case eNodeMenus:
    case eNodeDataFiles:
    case eNodeElements:
    case eNodeCommands:
        return parent.parent(); // lists only sort what their parent holds
    default:
        return parent;
    }
}

inline Node Project::parentOf(Storyboard storyboard) const
{
    if (!storyboard)
        return {};
    for (const Title title : titles()) {
        if (title.storyboard() == storyboard)
            return title;
    }
    for (const Menu menu : menus()) {
        if (menu.storyboard() == storyboard)
            return menu;
    }
    return {};
}

} // namespace vantrel
