#pragma once

#include "core/Property.h"
#include "project/DiscEnums.h"
#include "project/ProjectNode.h"

#include <string>

namespace vantrel {
template <class Node>
class AttributeTable;
}

/// The root of a disc project: the settings of the whole disc, and five fixed children at positions
/// that are part of the model: 0 "Titles", 1 "Menus", 2 "DataFiles", 3 "Commands", 4 "Encoding".
///
/// It is the one node that a caller makes by itself. `CDSFileService` loads and saves it.
///
/// Every `get_X` copies the value to `out` and gives `status::kNullPointer` for null; every `put_X`
/// stores the value unchecked and gives 0.
class VANTREL_API CDSProjectData : public CProjectNode
{
public:
    CDSProjectData();
    ~CDSProjectData() override;

    /// Makes the fixed children. The constructor has done so already.
    Status FinalConstruct();
    /// Nothing is to be let go.
    Status FinalRelease();

    /// @name Settings in the file
    /// @{
    Status get_Label(std::string* out) const { return vantrel::Give(out, m_label); }
    Status put_Label(std::string value) { return vantrel::Take(m_label, std::move(value)); }

    /// The project file's name without folder and extension; every save sets it.
    Status get_DisplayName(std::string* out) const { return vantrel::Give(out, m_displayName); }
    Status put_DisplayName(std::string value)
    {
        return vantrel::Take(m_displayName, std::move(value));
    }

    Status get_DiscFormat(DiscFormat* out) const { return vantrel::Give(out, m_discFormat); }
    Status put_DiscFormat(DiscFormat value) { return vantrel::Take(m_discFormat, value); }

    Status get_TVStandard(TVStandard* out) const { return vantrel::Give(out, m_tvStandard); }
    Status put_TVStandard(TVStandard value) { return vantrel::Take(m_tvStandard, value); }

    Status get_IsOnDisc(bool* out) const { return vantrel::Give(out, m_isOnDisc); }
    Status put_IsOnDisc(bool value) { return vantrel::Take(m_isOnDisc, value); }

    Status get_FitToDisc(bool* out) const { return vantrel::Give(out, m_fitToDisc); }
    Status put_FitToDisc(bool value) { return vantrel::Take(m_fitToDisc, value); }

    /// Only answered for a project on disc; for any other it gives 1 and leaves `out` alone.
    Status get_DoCompression(bool* out) const;
    Status put_DoCompression(bool value) { return vantrel::Take(m_doCompression, value); }

    /// Bits named by `FormatProjectOptions`.
    Status get_Options(unsigned long* out) const { return vantrel::Give(out, m_options); }
    Status put_Options(unsigned long value) { return vantrel::Take(m_options, value); }

    /// In KB.
    Status get_OnDiscSize(unsigned long* out) const { return vantrel::Give(out, m_onDiscSize); }
    Status put_OnDiscSize(unsigned long value) { return vantrel::Take(m_onDiscSize, value); }

    Status get_RemainingCaptures(long* out) const
    {
        return vantrel::Give(out, m_remainingCaptures);
    }
    Status put_RemainingCaptures(long value) { return vantrel::Take(m_remainingCaptures, value); }

    Status get_ThemeSource(std::string* out) const { return vantrel::Give(out, m_themeSource); }
    Status put_ThemeSource(std::string value)
    {
        return vantrel::Take(m_themeSource, std::move(value));
    }

    Status get_DiscSize(DiscSizeEnum* out) const { return vantrel::Give(out, m_discSize); }
    Status put_DiscSize(DiscSizeEnum value) { return vantrel::Take(m_discSize, value); }

    Status get_DiscVideoType(DiscVideoType* out) const
    {
        return vantrel::Give(out, m_discVideoType);
    }
    Status put_DiscVideoType(DiscVideoType value) { return vantrel::Take(m_discVideoType, value); }

    /// The version that is stamped on a saved file: always 900.
    Status get_Version(unsigned long* out) const;
    /// @}

    /// @name Settings of the session, which no file holds
    /// @{
    Status get_VolumeName(std::string* out) const { return vantrel::Give(out, m_volumeName); }
    Status put_VolumeName(std::string value)
    {
        return vantrel::Take(m_volumeName, std::move(value));
    }

    /// The folder of the project file; every save sets it.
    Status get_ProjectDirectory(std::string* out) const
    {
        return vantrel::Give(out, m_projectDirectory);
    }
    Status put_ProjectDirectory(std::string value)
    {
        return vantrel::Take(m_projectDirectory, std::move(value));
    }

    /// Bits named by `FormatTargetType`.
    Status get_TargetType(unsigned long* out) const { return vantrel::Give(out, m_targetType); }
    Status put_TargetType(unsigned long value) { return vantrel::Take(m_targetType, value); }

    Status get_ImagePath(std::string* out) const { return vantrel::Give(out, m_imagePath); }
    Status put_ImagePath(std::string value) { return vantrel::Take(m_imagePath, std::move(value)); }

    Status get_TargetDrive(std::string* out) const { return vantrel::Give(out, m_targetDrive); }
    Status put_TargetDrive(std::string value)
    {
        return vantrel::Take(m_targetDrive, std::move(value));
    }

    Status get_ProjectSize(long* out) const { return vantrel::Give(out, m_projectSize); }
    Status put_ProjectSize(long value) { return vantrel::Take(m_projectSize, value); }
    /// @}

    /// @name Counts
    /// Null gives `status::kNullPointer`; without the list the result is 1 and `out` stays.
    /// @{
    Status get_TitleCount(long* out);
    Status get_MenuCount(long* out);
    Status get_DataFileCount(long* out);
    /// @}

    /// @name File form
    /// @{
    /// Reads the project from the elements at and below `root`, wherever "Project" stands there.
    /// Null gives `status::kNoProjectNode`.
    Status LoadXML(IXMLDOMNode* root);

    /// Writes "Project" with the whole tree as the last child of `parent`. Null gives
    /// `status::kNullPointer`.
    Status SaveXML(IXMLDOMNode* parent);

    Status FillAttributeMap(std::map<std::string, std::string>& attributes, bool native) override;
    Status ParseAttributeMap(const std::map<std::string, std::string>& attributes) override;
    /// @}

private:
    static vantrel::AttributeTable<CDSProjectData> Attributes();
    Status CountOf(int position, long* out);

    std::string m_label;
    std::string m_displayName; ///< "name"
    DiscFormat m_discFormat = DiscFormat::DVD_Video;
    TVStandard m_tvStandard = TVStandard::NTSC;
    bool m_isOnDisc = false; ///< "onDiscProject"
    bool m_fitToDisc = false;
    bool m_doCompression = true;
    unsigned long m_options = 0;
    unsigned long m_onDiscSize = 0; ///< "onDiscSizeKB"
    long m_remainingCaptures = -1;
    std::string m_themeSource;
    DiscSizeEnum m_discSize = DiscSizeEnum::DVD_47;
    DiscVideoType m_discVideoType = DiscVideoType::Normal_2D;
    std::string m_volumeName = "KELDODISC";
    std::string m_projectDirectory;
    unsigned long m_targetType = 1;
    std::string m_imagePath;
    std::string m_targetDrive;
    long m_projectSize = 0;
};
