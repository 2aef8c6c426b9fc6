#pragma once

#include "core/Types.h"
#include "disc/DSLayout.h"
#include "project/FormedNode.h"

#include <memory>
#include <string>

class CDSMenuButton;
class CQZBaseSBD;

/// Free for the application's use; the library neither reads nor writes it.
VANTREL_API extern long g_MenuInstanceID;

/// "Menu": one menu of the disc, with the storyboard that plays behind its elements.
///
/// An ordinary menu's storyboard stands in the project file. A native menu's comes from a template,
/// the ".pvtx" file of a theme that the menu's background names: it is loaded whenever the menu is
/// read, and isn't written to the project file.
///
/// The fixed children stand at the positions of `MenuChild`; buttons, overlays and texts of the menu
/// itself stand in its "Elements". Menus live in the project's "Menus" list.
/// @code
///     CDSMenu menu;
///     CDSMenuButton play;
///     menu.GetChild(vantrel::MenuChild::Elements)->AddChild(&play, true);
///     menu.put_DefaultButton(play.GetID());
///     project.AddMenu(0, &menu);
/// @endcode
///
/// Every `get_X` copies the value to `out` and gives `status::kNullPointer` for null; a `put_X`
/// stores the value and gives 0 unless it says more. Durations are seconds.
class VANTREL_API CDSMenu : public vantrel::FormedNode
{
public:
    /// Makes the children and an empty storyboard.
    CDSMenu();
    ~CDSMenu() override;

    /// Makes what the menu doesn't have yet of fixed children and storyboard. Gives
    /// `status::kNoMemory` when that fails.
    vantrel::Status FinalConstruct();
    /// Releases the storyboard; the destructor does so too.
    vantrel::Status FinalRelease();

    /// @name Storyboard
    /// The menu owns it.
    /// @{
    /// Makes an empty storyboard. 1 when the menu has one.
    vantrel::Status CreateProduction();
    /// 1 when the menu has none.
    vantrel::Status ReleaseProduction();
    /// 1, with null in `*out`, when the menu has none.
    vantrel::Status GetProduction(CQZBaseSBD** out);

    /// Loads the storyboard from the template `file`, a path below the content folder of the theme
    /// that the menu was read from. A template that can't be read leaves the storyboard as it was.
    /// Gives 0.
    vantrel::Status LoadBkngProdFromPVTX(std::string file);

    /// The template that the menu wanted last, and whether it was missing or could not be read, so
    /// that the storyboard is not its own. 1, with nothing touched, for a menu that wanted none.
    vantrel::Status GetTemplateFile(std::string* path, bool* missing) const;
    /// @}

    /// @name Properties
    /// @{
    vantrel::Status get_ID(long* out) const;

    /// Bits of `MenuTypes`.
    vantrel::Status get_Tag(unsigned long* out) const;
    vantrel::Status put_Tag(unsigned long value);

    /// Bits named by `FormatMenuFlag`.
    vantrel::Status get_Flags(unsigned long* out) const;
    vantrel::Status put_Flags(unsigned long value);

    vantrel::Status get_Label(std::string* out) const;
    vantrel::Status put_Label(std::string value);

    /// The ID of the template menu that this one was made from; 0 for none.
    vantrel::Status get_TemplateID(long* out) const;
    vantrel::Status put_TemplateID(long value);

    /// A packed value of 0 reads as the default layout.
    vantrel::Status get_ButtonLayout(CDSLayout* out) const;
    vantrel::Status put_ButtonLayout(unsigned long packed);

    /// The rectangle of child 5; without that child `status::kNullPointer`.
    vantrel::Status get_LayoutRect(FloatRect* out);
    vantrel::Status put_LayoutRect(FloatRect* in);

    /// The ID of a button in this menu's list; 0 for none. Any other gives `status::kNotAButton`,
    /// and a menu without its list `status::kNullPointer`; nothing is changed then.
    vantrel::Status get_DefaultButton(long* out) const;
    vantrel::Status put_DefaultButton(long id);

    /// Only a file makes a menu native.
    vantrel::Status get_IsNative(bool* out) const;
    bool IsNative() const;

    /// Putting it also clears the background's path.
    vantrel::Status get_BkgndID(long* out) const;
    vantrel::Status put_BkgndID(long value);

    /// Only a file sets it, for a native menu.
    vantrel::Status get_Audio(std::string* out) const;

    /// The background's path; where that is a template, the background video of the storyboard,
    /// which leaves `out` alone if it has none.
    vantrel::Status get_Background(std::string* out) const;
    /// Sets the path of a native menu, the background video of an ordinary one's storyboard. An empty
    /// path gives `status::kNullPointer` and changes nothing.
    vantrel::Status put_Background(std::string value);

    /// The stored duration of a native menu and of one with a background ID above 0; of any other
    /// that of the storyboard, if it has one.
    vantrel::Status get_Duration(double* out) const;
    vantrel::Status put_Duration(double value);

    /// A count that a file brought; it isn't written.
    vantrel::Status GetContentCount(long* out) const;

    /// Changes nothing: a palette is set on child 0.
    vantrel::Status SetPalette(long palette);
    /// @}

    /// @name Buttons
    /// Numbered from 1 in the order of the list, where overlays and texts don't count.
    /// @{
    vantrel::Status get_ButtonCount(long* out);
    /// 1, with `out` untouched, for a number outside.
    vantrel::Status GetButton(long index, CDSMenuButton** out);
    /// @}

private:
    struct Form;

    bool m_native = false;
    unsigned long m_tag = 0;
    unsigned long m_flags = 0;
    std::string m_label;
    long m_defaultButton = 0;
    long m_bkgndID = 0;
    std::string m_background;
    std::string m_audio;
    double m_duration = 30.0;
    unsigned long m_btnLayout = 0; ///< see `CDSLayout`
    long m_templateID = 0;
    long m_contentCount = 0;
    std::unique_ptr<CQZBaseSBD> m_production;
    bool m_isBackgroundInContent = false; ///< the file has it below "%CONTENT%"
    bool m_isAudioInContent = false;
    std::string m_templateFile; ///< wanted last
    bool m_isTemplateMissing = false;
};
