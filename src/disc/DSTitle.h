#pragma once

#include "core/Property.h"
#include "project/ProjectNode.h"

#include <memory>
#include <string>

class CQZBaseSBD;

namespace vantrel {
template <class Node>
class AttributeTable;
void MakeFixedChild(CProjectNode& parent, eNodeType type); // of project/NodeFactory.h
} // namespace vantrel

/// One playable title of the disc. Titles live in the project's "Titles" list.
///
/// A title has no children until `FinalConstruct` makes them, or a file brings "Commands" or
/// "Encoding": then position 0 is a `CDSCommandList` and position 1 a `CDSEncodingParams`.
///
/// Every `get_X` copies the value to `out` and gives `status::kNullPointer` for null; a `put_X`
/// stores the value and gives 0 unless it says more.
class VANTREL_API CDSTitle : public CProjectNode
{
public:
    CDSTitle();
    ~CDSTitle() override;

    /// Makes the two fixed children that the title doesn't have yet.
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

    vantrel::Status get_ID(long* out) const { return vantrel::Give(out, GetID()); }

    /// Bits named by `FormatTitleTag`.
    vantrel::Status get_Tag(unsigned long* out) const { return vantrel::Give(out, m_tag); }
    vantrel::Status put_Tag(unsigned long value) { return vantrel::Take(m_tag, value); }

    vantrel::Status get_Flags(unsigned long* out) const { return vantrel::Give(out, m_flags); }
    vantrel::Status put_Flags(unsigned long value) { return vantrel::Take(m_flags, value); }

    vantrel::Status get_Label(std::string* out) const { return vantrel::Give(out, m_label); }
    vantrel::Status put_Label(std::string value)
    {
        return vantrel::Take(m_label, std::move(value));
    }

    /// Not in the file.
    vantrel::Status get_Source(std::string* out) const { return vantrel::Give(out, m_source); }
    vantrel::Status put_Source(std::string value)
    {
        return vantrel::Take(m_source, std::move(value));
    }

    /// The title's place on the disc. A negative value gives `status::kBadArgument`.
    vantrel::Status get_DiscIndex(long* out) const { return vantrel::Give(out, m_discIndex); }
    vantrel::Status put_DiscIndex(long value);

    /// How long a still stays, in seconds. A negative value gives `status::kBadArgument`.
    vantrel::Status get_StillWaitTime(long* out) const
    {
        return vantrel::Give(out, m_stillWaitTime);
    }
    vantrel::Status put_StillWaitTime(long value);

    /// Duration and size once the title has been built.
    vantrel::Status get_VOBDuration(unsigned long* out) const
    {
        return vantrel::Give(out, m_vobDuration);
    }
    vantrel::Status put_VOBDuration(unsigned long value)
    {
        return vantrel::Take(m_vobDuration, value);
    }
    vantrel::Status get_VOBSize(double* out) const { return vantrel::Give(out, m_vobSize); }
    vantrel::Status put_VOBSize(double value) { return vantrel::Take(m_vobSize, value); }

    vantrel::Status FillAttributeMap(std::map<std::string, std::string>& attributes,
                                     bool native) override;
    vantrel::Status ParseAttributeMap(
        const std::map<std::string, std::string>& attributes) override;

private:
    friend void vantrel::MakeFixedChild(CProjectNode& parent, eNodeType type);

    static vantrel::AttributeTable<CDSTitle> Attributes();
    void MakeMissingChildren(bool assignIDs);

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
