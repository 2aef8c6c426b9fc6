#pragma once

#include "project/DiscEnums.h"
#include "project/FormedNode.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

class CDSDataFile;
class CDSMenu;
class CDSTitle;

namespace vantrel {
class MenuTemplates;
} // namespace vantrel

/// "Project": the root of a disc project with the settings of the whole disc. Its fixed children stand
/// at the positions of `ProjectChild`.
///
/// It is the one node that a caller makes by itself. `CDSFileService` loads and saves it.
///
/// Every `get_X` copies the value to `out` and gives `status::kNullPointer` for null; every `put_X`
/// stores the value unchecked and gives 0.
class VANTREL_API CDSProjectData : public vantrel::FormedNode
{
public:
    CDSProjectData();
    ~CDSProjectData() override;

    /// Gives every setting its default again; the constructor has done so already.
    void InitProjectProps();
    /// Makes the fixed children that aren't there, which is all in the constructor. Gives
    /// `status::kNoMemory` when that fails.
    vantrel::Status FinalConstruct();
    /// Nothing is to be let go.
    vantrel::Status FinalRelease();

    /// @name Settings in the file
    /// @{
    vantrel::Status get_Label(std::string* out) const;
    vantrel::Status put_Label(std::string value);

    /// The project file's name without folder and extension; every save sets it.
    vantrel::Status get_DisplayName(std::string* out) const;
    vantrel::Status put_DisplayName(std::string value);

    vantrel::Status get_DiscFormat(DiscFormat* out) const;
    vantrel::Status put_DiscFormat(DiscFormat value);

    vantrel::Status get_TVStandard(TVStandard* out) const;
    vantrel::Status put_TVStandard(TVStandard value);

    vantrel::Status get_IsOnDisc(bool* out) const;
    vantrel::Status put_IsOnDisc(bool value);

    vantrel::Status get_FitToDisc(bool* out) const;
    vantrel::Status put_FitToDisc(bool value);

    /// Only answered for a project on disc; for any other it gives 1 and leaves `out` alone.
    vantrel::Status get_DoCompression(bool* out) const;
    vantrel::Status put_DoCompression(bool value);

    /// Bits named by `FormatProjectOptions`.
    vantrel::Status get_Options(unsigned long* out) const;
    vantrel::Status put_Options(unsigned long value);

    /// In KB.
    vantrel::Status get_OnDiscSize(unsigned long* out) const;
    vantrel::Status put_OnDiscSize(unsigned long value);

    vantrel::Status get_RemainingCaptures(long* out) const;
    vantrel::Status put_RemainingCaptures(long value);

    vantrel::Status get_ThemeSource(std::string* out) const;
    vantrel::Status put_ThemeSource(std::string value);

    vantrel::Status get_DiscSize(DiscSizeEnum* out) const;
    vantrel::Status put_DiscSize(DiscSizeEnum value);

    vantrel::Status get_DiscVideoType(DiscVideoType* out) const;
    vantrel::Status put_DiscVideoType(DiscVideoType value);

    /// The version that is stamped on a saved file: always 900.
    vantrel::Status get_Version(unsigned long* out) const;
    /// @}

    /// @name Settings of the session, which no file holds
    /// @{
    vantrel::Status get_VolumeName(std::string* out) const;
    vantrel::Status put_VolumeName(std::string value);

    /// The folder of the project file; every save sets it.
    vantrel::Status get_ProjectDirectory(std::string* out) const;
    vantrel::Status put_ProjectDirectory(std::string value);

    /// Bits named by `FormatTargetType`.
    vantrel::Status get_TargetType(unsigned long* out) const;
    vantrel::Status put_TargetType(unsigned long value);

    vantrel::Status get_ImagePath(std::string* out) const;
    vantrel::Status put_ImagePath(std::string value);

    vantrel::Status get_TargetDrive(std::string* out) const;
    vantrel::Status put_TargetDrive(std::string value);

    vantrel::Status get_ProjectSize(long* out) const;
    vantrel::Status put_ProjectSize(long value);
    /// @}

    /// @name Counts
    /// Null gives `status::kNullPointer`; without the list the result is 1 and `out` stays.
    /// @{
    vantrel::Status get_TitleCount(long* out);
    vantrel::Status get_MenuCount(long* out);
    vantrel::Status get_DataFileCount(long* out);
    /// @}

    /// @name Titles, menus and data files by number
    /// Numbers count from 1. A number outside gives `status::kNoSuchObject`, a null pointer that is
    /// needed `status::kNullPointer`; nothing is changed then.
    ///
    /// An added node stays the caller's, or whose it was; one without an ID gets one, and so does a
    /// title or menu whose ID another node of the project has: an application then changes what it
    /// holds of the old ID (links, commands, template IDs) to the new one. Its place is
    /// among those that the list has: 0 and count + 1 append. A node is removed by pointer or, when
    /// that is null, by ID; it is detached, and one that the library owns lives until the project
    /// goes, so that no pointer dangles.
    /// @{
    vantrel::Status GetTitle(long index, CDSTitle** out); ///< outside: 0, and a null title
    vantrel::Status AddTitle(long index, CDSTitle* title);
    vantrel::Status RemoveTitle(long id, CDSTitle* title);
    vantrel::Status MoveTitle(long from, long to);

    vantrel::Status GetMenu(long index, CDSMenu** out);
    vantrel::Status AddMenu(long index, CDSMenu* menu);
    vantrel::Status InsertMenu(long index, CDSMenu* menu); ///< the same
    /// Of several menus with one ID a template goes first.
    vantrel::Status RemoveMenu(long id, CDSMenu* menu);
    /// `RemoveMenu` for each of these IDs, in one pass over the list.
    vantrel::Status RemoveMenus(const std::set<long>& ids);
    vantrel::Status MoveMenu(long from, long to);

    /// The first menu whose whole tag is `type`. False, with `out` untouched, when there is none, and
    /// for a null `out`.
    bool GetMenuAsType(MenuTypes type, CDSMenu** out);
    bool GetMainTempMenu(CDSMenu** out);
    bool GetChapTempMenu(CDSMenu** out);

    /// Copies the values of a data file, without its ID, into `out`.
    vantrel::Status GetDataFile(long index, CDSDataFile* out);
    vantrel::Status AddDataFile(long index, CDSDataFile* file);
    vantrel::Status RemoveDataFile(long id, CDSDataFile* file);
    vantrel::Status MoveDataFile(long from, long to);
    /// Copies the values of the first data file that matches all that is given: a null path and a tag
    /// of 0 match every file. 1, with `out` untouched, when there is none.
    vantrel::Status FindDataFile(std::string* source, std::string* dest, unsigned long tag,
                                 CDSDataFile* out);
    /// Removes the first data file of that source, and copies its values to `out` if that isn't null.
    vantrel::Status RemoveDataFileBySource(std::string* source, CDSDataFile* out);

    /// The child of `list` at `position`, counted from 0, as a `T`; null when it is none.
    template <class T>
    static vantrel::Status GetObject(CProjectNode* list, long position, T** out);

    /// Takes titles, menus, data files and the project's commands out and releases what the library
    /// owns of them. The settings stay.
    vantrel::Status _Clear();
    /// @}

    /// @name File form
    /// @{
    /// Replaces titles, menus, data files and commands, and takes over the settings, from the elements
    /// at and below `root`, wherever "Project" stands there. Null gives `status::kNoProjectNode`.
    vantrel::Status LoadXML(IXMLDOMNode* root);

    /// Writes "Project" with the whole tree as the last child of `parent`. Null gives
    /// `status::kNullPointer`.
    vantrel::Status SaveXML(IXMLDOMNode* parent);
    /// @}

private:
    friend CDSMenu; // shares the templates

    struct Form;
    vantrel::Status CountOf(int position, long* out);
    vantrel::Status AddTo(int position, long index, CProjectNode* node);
    vantrel::Status RemoveFrom(int position, long id, CProjectNode* node);
    vantrel::Status MoveIn(int position, long from, long to);

    std::string m_label;
    std::string m_displayName; ///< "name"
    DiscFormat m_discFormat;
    TVStandard m_tvStandard;
    bool m_isOnDisc; ///< "onDiscProject"
    bool m_fitToDisc;
    bool m_doCompression;
    unsigned long m_options;
    unsigned long m_onDiscSize; ///< "onDiscSizeKB"
    long m_remainingCaptures;
    std::string m_themeSource;
    DiscSizeEnum m_discSize;
    DiscVideoType m_discVideoType;
    std::string m_volumeName;
    std::string m_projectDirectory;
    unsigned long m_targetType;
    std::string m_imagePath;
    std::string m_targetDrive;
    long m_projectSize;
    std::vector<std::unique_ptr<CProjectNode>> m_removed; ///< detached, but not to dangle
    std::unique_ptr<vantrel::MenuTemplates> m_templates;  ///< only during a load
};

template <class T>
vantrel::Status CDSProjectData::GetObject(CProjectNode* list, long position, T** out)
{
    if (!list)
        return vantrel::status::kNullPointer;
    if (position < 0 || position >= list->GetNumChildren())
        return vantrel::status::kNoSuchObject;
    if (out)
        *out = dynamic_cast<T*>(list->GetChild(static_cast<int>(position)));
    return vantrel::status::kOk;
}
