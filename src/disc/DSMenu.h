#pragma once

#include "core/Property.h"
#include "core/Types.h"
#include "disc/DSLayout.h"
#include "project/ProjectNode.h"

#include <memory>
#include <string>

class CDSMenuButton;
class CQZBaseSBD;

namespace vantrel {
template <class Node>
class AttributeTable;
}

/// Free for the application's use; the library neither reads nor writes it.
VANTREL_API extern long g_MenuInstanceID;

/// One menu of the disc, with the storyboard that plays behind its elements.
///
/// An ordinary menu's storyboard stands in the project file. A native menu's comes from a template,
/// the ".pvtx" file of a theme that the menu's background names: it is loaded whenever the menu is
/// read, and isn't written to the project file.
///
/// Nine fixed children stand at positions that are part of the model: 0 "Palette", 1 to 3
/// "ButtonScheme1" to "ButtonScheme3", 4 "SPUColours", 5 "LayoutRect", 6 "Commands", 7 "Encoding",
/// 8 "Elements". Menus live in the project's "Menus" list.
///
/// Every `get_X` copies the value to `out` and gives `status::kNullPointer` for null; a `put_X`
/// stores the value and gives 0 unless it says more. Durations are seconds.
class VANTREL_API CDSMenu : public CProjectNode
{
public:
    /// Makes the children and an empty storyboard.
    CDSMenu();
    ~CDSMenu() override;

    /// Makes what the menu doesn't have yet of children and storyboard.
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
    vantrel::Status get_ID(long* out) const { return vantrel::Give(out, GetID()); }

    /// Bits of `MenuTypes`.
    vantrel::Status get_Tag(unsigned long* out) const { return vantrel::Give(out, m_tag); }
    vantrel::Status put_Tag(unsigned long value) { return vantrel::Take(m_tag, value); }

    /// Bits named by `FormatMenuFlag`.
    vantrel::Status get_Flags(unsigned long* out) const { return vantrel::Give(out, m_flags); }
    vantrel::Status put_Flags(unsigned long value) { return vantrel::Take(m_flags, value); }

    vantrel::Status get_Label(std::string* out) const { return vantrel::Give(out, m_label); }
    vantrel::Status put_Label(std::string value)
    {
        return vantrel::Take(m_label, std::move(value));
    }

    /// The ID of the template menu that this one was made from; 0 for none.
    vantrel::Status get_TemplateID(long* out) const { return vantrel::Give(out, m_templateID); }
    vantrel::Status put_TemplateID(long value) { return vantrel::Take(m_templateID, value); }

    /// A packed value of 0 reads as the default layout.
    vantrel::Status get_ButtonLayout(CDSLayout* out) const;
    vantrel::Status put_ButtonLayout(unsigned long packed)
    {
        return vantrel::Take(m_btnLayout, packed);
    }

    /// The rectangle of child 5; without that child `status::kNullPointer`.
    vantrel::Status get_LayoutRect(FloatRect* out);
    vantrel::Status put_LayoutRect(FloatRect* in);

    /// The ID of a button in this menu's list; 0 for none. Any other gives `status::kNotAButton`,
    /// and a menu without its list `status::kNullPointer`; nothing is changed then.
    vantrel::Status get_DefaultButton(long* out) const
    {
        return vantrel::Give(out, m_defaultButton);
    }
    vantrel::Status put_DefaultButton(long id);

    /// Only a file makes a menu native.
    vantrel::Status get_IsNative(bool* out) const { return vantrel::Give(out, m_native); }
    bool IsNative() const { return m_native; }

    /// Putting it also clears the background's path.
    vantrel::Status get_BkgndID(long* out) const { return vantrel::Give(out, m_bkgndID); }
    vantrel::Status put_BkgndID(long value);

    /// Only a file sets it, for a native menu.
    vantrel::Status get_Audio(std::string* out) const { return vantrel::Give(out, m_audio); }

    /// The background's path; where that is a template, the background video of the storyboard,
    /// which leaves `out` alone if it has none.
    vantrel::Status get_Background(std::string* out) const;
    /// Sets the path of a native menu, the background video of an ordinary one's storyboard. An empty
    /// path gives `status::kNullPointer` and changes nothing.
    vantrel::Status put_Background(std::string value);

    /// The stored duration of a native menu and of one with a background ID above 0; of any other
    /// that of the storyboard, if it has one.
    vantrel::Status get_Duration(double* out) const;
    vantrel::Status put_Duration(double value) { return vantrel::Take(m_duration, value); }

    /// A count that a file brought; it isn't written.
    vantrel::Status GetContentCount(long* out) const { return vantrel::Give(out, m_contentCount); }

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

    vantrel::Status FillAttributeMap(std::map<std::string, std::string>& attributes,
                                     bool native) override;
    vantrel::Status ParseAttributeMap(
        const std::map<std::string, std::string>& attributes) override;

private:
    static vantrel::AttributeTable<CDSMenu> Attributes();
    static void FinishReading(CDSMenu& menu);

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
