#pragma once

#include "project/ProjectNode.h"

/// A plain list of a project: its titles, its menus or its data files.
///
/// The element's one attribute, "NumItems", tells a reader of the file how many children there are;
/// it is never read back.
class VANTREL_API CDSList : public CProjectNode
{
public:
    explicit CDSList(eNodeType type);

    vantrel::Status FillAttributeMap(std::map<std::string, std::string>& attributes,
                                     bool native) override;
    vantrel::Status ParseAttributeMap(
        const std::map<std::string, std::string>& attributes) override;
};
