#pragma once

#include "menu/MenuElementImpl.h"

#include <string>

/// The element part of an overlay: a picture's size and where it comes from.
///
/// The picture stands around the element's position. Its size is in model units, the in and out
/// points of its source in seconds. Every output that is null gives `status::kNullPointer`.
class VANTREL_API CMenuOverlayImpl : public CMenuElementImpl
{
public:
    explicit CMenuOverlayImpl(CProjectNode* node);
    ~CMenuOverlayImpl() override;

    vantrel::Status getSize(float* width, float* height) const;
    vantrel::Status setSize(float width, float height);

    /// A path below the content folder of a theme, or an absolute one.
    vantrel::Status getSource(std::string* out) const;
    vantrel::Status setSource(std::string value);
    vantrel::Status getAlphaMask(std::string* out) const;
    vantrel::Status setAlphaMask(std::string value);

    /// A value below 0.0 gives `status::kNegativeInPoint` and `status::kNegativeOutPoint`. The two
    /// are not compared with each other, and a file may say what the setters refuse.
    vantrel::Status getInPoint(double* out) const;
    vantrel::Status setInPoint(double value);
    vantrel::Status getOutPoint(double* out) const;
    vantrel::Status setOutPoint(double value);

    /// How the source is turned. Not in the file.
    vantrel::Status getSourceRotation(long* out) const;
    vantrel::Status setSourceRotation(long value);

    /// There is nothing to refresh: gives 0.
    vantrel::Status refreshSource();

    vantrel::Status getModelRect(std::vector<FPoint>& corners) const override;

    vantrel::Status LoadElementAttributes(const std::map<std::string, std::string>& attributes,
                                          bool ownGeometry) override;
    vantrel::Status SaveElementAttributes(std::map<std::string, std::string>& attributes,
                                          bool ownGeometry) const override;

protected:
    template <class Node>
    struct OverlayRows;

    /// Makes paths that a file brought those of this machine.
    void ResolvePaths();

    /// A source as it is held: relative without "%CONTENT%", with "/"; an absolute one as it is.
    static std::string StoredSource(std::string path);
    /// The same for a mask, but that what follows "%CONTENT%" keeps its separator.
    static std::string StoredMask(std::string path);

private:
    static vantrel::AttributeTable<CMenuOverlayImpl> Attributes();

    float m_width = 1.0F;
    float m_height = 1.0F;
    std::string m_source;
    std::string m_alphaMask;
    double m_inPoint = 0.0;
    double m_outPoint = 0.0;
    long m_sourceRotation = 0;
};
