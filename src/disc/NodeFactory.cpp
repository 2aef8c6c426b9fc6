#include "project/NodeFactory.h"

#include "disc/DSCommandList.h"
#include "disc/DSDataFile.h"
#include "disc/DSMenu.h"
#include "disc/DSMenuButton.h"
#include "disc/DSMenuOverlay.h"
#include "disc/DSMenuText.h"
#include "disc/DSTitle.h"

namespace vantrel {

std::unique_ptr<CProjectNode> MakeNode(eNodeType type)
{
    switch (type) {
    case eNodeTitle:
        return std::make_unique<CDSTitle>();
    case eNodeMenu:
        return std::make_unique<CDSMenu>();
    case eNodeButton:
        return std::make_unique<CDSMenuButton>();
    case eNodeOverlay:
        return std::make_unique<CDSMenuOverlay>();
    case eNodeText:
        return std::make_unique<CDSMenuText>();
    case eNodeFile:
        return std::make_unique<CDSDataFile>();
    case eNodeCommand:
        return std::make_unique<CDiscCommandNode>();
    default:
        return nullptr;
    }
}

} // namespace vantrel
