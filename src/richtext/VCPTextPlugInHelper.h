#pragma once

#include "richtext/TextAttributes.h"
#include "transform/VCPPlugInHelper.h"

#include <string>

class CVCPTextXMLEditor;

/// One view of the rich text in an effect's XML, at "plugin_data/html/body" below the effect: its
/// words and one summary of how they look, and the edits of both.
///
/// `LoadXML` reads the text once; the questions answer from the summary. A setter changes the
/// loaded XML through a `CVCPTextXMLEditor` and reads the text again, so that the next question
/// shows the change. Setters give the editor's status, and `status::kFailure` without a loaded body
/// unless it says otherwise below.
///
/// The loaded XML stays the caller's and has to outlive the use of it. Getters take no null.
class VANTREL_API CVCPTextPlugInHelper : public CVCPPlugInHelper
{
public:
    /// Reads the transform and the text of an effect. A former text is forgotten first. Gives
    /// `status::kBadArgument` when there is no body.
    vantrel::Status LoadXML(_xmlNode* node);

    /// As `CVCPPlugInHelper::SaveXML`, with the text as it is now.
    vantrel::Status SaveXML(_xmlNode** out) const;

    /// Lets go of the XML. The summary stays.
    vantrel::Status ReleaseXML();

    /// Reads the text again, without turning its strings into numbers.
    vantrel::Status Parse();
    /// Turns the strings of the summary into numbers.
    vantrel::Status ReconcileAttributes();

    /// Summarises the runs below `body`. Null gives `status::kNullPointer`.
    vantrel::Status LoadXMLNodeList2(_xmlNode* body);

    /// @name Words
    /// @{

    /// A text without words gives `status::kNothingDone` and leaves `out` alone.
    vantrel::Status GetTextString(std::string* out) const;
    vantrel::Status PutTextString(std::string text, bool keep);
    /// @}

    /// @name Alignment
    /// `TEXT_JUSTIFY_...`
    /// @{

    /// `status::kFailure` when nothing is loaded.
    vantrel::Status GetJustification(unsigned long* out) const;
    /// `TEXT_JUSTIFY_MIXED` and `TEXT_JUSTIFY_UNKNOWN` give `status::kBadArgument`.
    vantrel::Status SetJustification(unsigned long justification);
    /// @}

    /// @name Font
    /// A getter that has no value for the whole text gives `status::kNothingDone`; `out` is set all
    /// the same.
    /// @{

    /// "undetermined" where the runs differ.
    vantrel::Status GetFont(std::string* out) const;
    vantrel::Status SetFont(std::string face);

    /// 0 where the runs differ.
    vantrel::Status GetFontSize(int* out) const;
    /// Outside of 8 to 128: `status::kBadArgument`.
    vantrel::Status SetFontSize(int size);

    /// The size as it stands in the text, which may be a string reference.
    vantrel::Status GetFontSizeString(std::string* out) const;
    vantrel::Status SetFontSizeString(std::string size);

    /// 0xAABBGGRR
    vantrel::Status GetTextColor(unsigned long* out) const;
    /// `status::kNotAvailable` without a loaded body.
    vantrel::Status SetTextColor(unsigned long color);
    /// @}

    /// @name Style
    /// `TEXT_STYLE_...`
    /// @{

    vantrel::Status GetStyle(unsigned long* out) const;
    /// Puts one of the four definite bits on the whole text. A mixed bit gives
    /// `status::kBadArgument`; a bit that the text has already, in the order italic, not italic,
    /// bold, not bold, leaves it as it is, whatever other bits are asked for.
    vantrel::Status SetStyle(unsigned long style);

    /// The flags of the first run's fonts, which say nothing of the style.
    vantrel::Status GetFontBIU(bool& bold, bool& italic, bool& underline) const;
    /// @}

private:
    template <class... Arguments>
    vantrel::Status Edit(vantrel::Status (CVCPTextXMLEditor::*edit)(Arguments...),
                         Arguments... arguments);
    vantrel::Status Refresh();

    _xmlNode* m_body = nullptr;  ///< the "body" element; not owned
    TextAttributes m_attributes; ///< the summary of the body
    bool m_isParsed = false;     ///< the summary is that of a text
};
