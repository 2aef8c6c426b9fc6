#pragma once

#include "project/ProjectNode.h"

/// The visible elements of a menu or a button: its children, in the order of the file. How they lie
/// over each other is said by their z-order alone.
class VANTREL_API CDSMenuElementList : public CProjectNode
{
public:
    CDSMenuElementList();
    ~CDSMenuElementList() override;

    /// The element has no attributes.
    vantrel::Status FillAttributeMap(std::map<std::string, std::string>& attributes,
                                     bool native) override;
    vantrel::Status ParseAttributeMap(
        const std::map<std::string, std::string>& attributes) override;
};
