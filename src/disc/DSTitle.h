#pragma once

#include "project/FormedNode.h"

#include <memory>
#include <string>

class CQZBaseSBD;

/// "Title": one playable title of the disc. Titles live in the project's "Titles" list.
///
/// A title has no children until `FinalConstruct` makes them, or a file brings "Commands" or
/// "Encoding": then both stand at the positions of `TitleChild`.
///
/// Every `get_X` copies the value to `out` and gives `status::kNullPointer` for null; a `put_X`
/// stores the value and gives 0 unless it says more.
class VANTREL_API CDSTitle : public vantrel::FormedNode
{
public:
    CDSTitle();
    ~CDSTitle() override;

    /// Makes the fixed children that the title doesn't have yet. Gives `status::kNoMemory` when that
    /// fails.
    vantrel::Status FinalConstruct();

    /// @name Storyboard
    /// The title owns it. A new title has none; a load makes one when the file holds one.
    /// @{
    /// Makes an empty storyboard. 1 when the title has one.
    vantrel::Status CreateProduction();
    /// 1 when the title has none.
    vantrel::Status ReleaseProduction();
    /// Releases the storyboard; the destructor does so too.
    vantrel::Status FinalRelease();
    /// 1, with null in `*out`, when the title has none.
    vantrel::Status GetProduction(CQZBaseSBD** out);
    /// @}

    vantrel::Status get_ID(long* out) const;

    /// Bits named by `FormatTitleTag`.
    vantrel::Status get_Tag(unsigned long* out) const;
    vantrel::Status put_Tag(unsigned long value);

    vantrel::Status get_Flags(unsigned long* out) const;
    vantrel::Status put_Flags(unsigned long value);

    vantrel::Status get_Label(std::string* out) const;
    vantrel::Status put_Label(std::string value);

    /// Not in the file.
    vantrel::Status get_Source(std::string* out) const;
    vantrel::Status put_Source(std::string value);

    /// The title's place on the disc. A negative value gives `status::kBadArgument`.
    vantrel::Status get_DiscIndex(long* out) const;
    vantrel::Status put_DiscIndex(long value);

    /// How long a still stays, in seconds. A negative value gives `status::kBadArgument`.
    vantrel::Status get_StillWaitTime(long* out) const;
    vantrel::Status put_StillWaitTime(long value);

    /// Duration and size once the title has been built.
    vantrel::Status get_VOBDuration(unsigned long* out) const;
    vantrel::Status put_VOBDuration(unsigned long value);
    vantrel::Status get_VOBSize(double* out) const;
    vantrel::Status put_VOBSize(double value);

private:
    struct Form;

    unsigned long m_tag = 1;
    unsigned long m_flags = 0;
    std::string m_label;
    std::string m_source;
    long m_discIndex = 0;
    long m_stillWaitTime = 5; ///< "stillWaitSecs"
    unsigned long m_vobDuration = 0;
    double m_vobSize = 0.0;
    std::unique_ptr<CQZBaseSBD> m_production;
};
