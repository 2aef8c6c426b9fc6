#pragma once

#include "menu/MenuElementImpl.h"
#include "project/DiscEnums.h"
#include "transform/VCPKeyframeData.h"
#include "xml/KeptXmlPtr.h"

#include <memory>
#include <string>

class CVCPTextPlugInHelper;

/// The element part of a text: its words and how they look, in the rich text of an effect's XML.
///
/// The element keeps a copy of the XML; one that is attached to an effect works on the effect's. The
/// text is read once and again after a change of it; questions in between answer from what was read.
/// The handle, one of nine points of the text's rectangle, is brought to the element's position.
///
/// Without XML, and where it holds no text, a getter gives 1 and leaves its outputs alone; a null
/// output gives `status::kNullPointer`. Without XML a setter gives `status::kNullPointer`.
class VANTREL_API CMenuTextImpl : public CMenuElementImpl
{
public:
    explicit CMenuTextImpl(CProjectNode* node);
    ~CMenuTextImpl() override;

    /// @name Words and look
    /// @{
    vantrel::Status getString(std::string* out);
    vantrel::Status setString(std::string text);

    /// `TEXT_JUSTIFY_...`
    vantrel::Status getJustify(unsigned long* out);
    vantrel::Status setJustify(unsigned long justification);

    vantrel::Status getFontName(std::string* out);
    vantrel::Status setFontName(std::string face);

    /// Outside of 8 to 128 the setter gives `status::kBadArgument`.
    vantrel::Status getFontHeight(long* out);
    vantrel::Status setFontHeight(long height);

    /// The height as it stands in the text: a number or a string reference.
    vantrel::Status getFontHeightString(std::string* out);
    vantrel::Status setFontHeightString(std::string height);

    /// `TEXT_STYLE_...`
    vantrel::Status getStyle(unsigned long* out);
    vantrel::Status setStyle(unsigned long style);
    /// The flags of the first run's fonts, which say nothing of the style.
    vantrel::Status GetFontBIU(bool& bold, bool& italic, bool& underline);

    /// 0xAABBGGRR
    vantrel::Status getColor(unsigned long* out);
    vantrel::Status setColor(unsigned long color);
    /// @}

    /// @name Effect
    /// @{
    /// Keeps a deep copy of `node`, an "effect" element with "plugin_data"; null leaves the text
    /// without XML.
    vantrel::Status setEffectXML(_xmlNode* node);
    /// Hangs a deep copy of the XML under `node`. 1 when there is none.
    vantrel::Status getEffectXML(_xmlNode* node);

    /// Reads the text anew and gives the status of that.
    vantrel::Status LoadTextHelperXML();

    /// The key of exactly that `time` of the effect's transform. Without such a key translation and
    /// rotation give 0.0 each and scaling 1.0; without XML the outputs stay, with 0.
    vantrel::Status get3DKeyFrame(unsigned long mask, double time, KVC_KEYFRAME_TYPE type, float* x,
                                  float* y, float* z, unsigned long* caps) const;
    /// @}

    /// @name Handle
    /// @{
    vantrel::Status getHandle(_TextHandles* out) const;
    /// Outside of 1 to 9: `status::kBadArgument`.
    vantrel::Status setHandle(_TextHandles value);

    /// Where the rectangle's centre lies seen from a handle, in half widths and half heights.
    vantrel::Status GetHandleCoords(_TextHandles handle, float* x, float* y) const;
    /// The handle of exactly these coordinates; "TopLeft" for any others.
    _TextHandles GetHandleEnum(const float* x, const float* y) const;

    /// "rotateAngle" of the file, which nothing computes with.
    vantrel::Status getRotateAngle(double* out) const;
    /// @}

    vantrel::Status getBoundingBox(std::vector<FPoint>* corners) const override;
    /// Without XML 1, and no corners.
    vantrel::Status getModelRect(std::vector<FPoint>& corners) const override;
    vantrel::Status getScalingXForm(FPoint* scale) const override;

    vantrel::Status LoadElementAttributes(const std::map<std::string, std::string>& attributes,
                                          bool ownGeometry) override;
    vantrel::Status SaveElementAttributes(std::map<std::string, std::string>& attributes,
                                          bool ownGeometry) const override;

protected:
    template <class Node>
    struct TextRows;

    /// Keeps `effect` of a file that is read, and hangs it under the element of a file that is
    /// written. Without XML the second gives `status::kNullPointer`.
    void KeepEffectXML(_xmlNode* effect);
    vantrel::Status WriteEffectXML(_xmlNode* element) const;

private:
    struct RestingPose;

    static vantrel::AttributeTable<CMenuTextImpl> Attributes(bool ownGeometry);
    _xmlNode* EffectXML() const;
    RestingPose ReadPose() const;
    RestingPose Pose() const;
    void ForgetWhatWasRead();
    template <class Ask>
    vantrel::Status Answer(Ask ask);
    template <class Change>
    vantrel::Status Edit(Change change);
    template <class Change>
    vantrel::Status EditEffect(Change change);

    _TextHandles m_handle = _TextHandles::TopLeft;
    double m_rotateAngle = 0.0;
    vantrel::KeptXmlPtr m_effectXML; ///< the helper points into it, and goes first
    std::unique_ptr<CVCPTextPlugInHelper> m_textHelper; ///< made at the first need
    bool m_isTextLoaded = false;                        ///< the helper shows the element's own XML
    mutable std::unique_ptr<RestingPose> m_pose; ///< of the element's own XML, once asked for
};
